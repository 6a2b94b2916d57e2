#include "encoding/XmlAttributes.h"

#include <QStringList>
#include <QTextStream>

#include <algorithm>

namespace encoding {

namespace {

constexpr int kMostByNumber = 64; // attributes; each costs a walk over those before it

std::vector<XmlAttribute> fewAttributes(const QDomNamedNodeMap &map)
{
    std::vector<XmlAttribute> result;
    result.reserve(static_cast<std::size_t>(map.length()));
    for (int i = 0; i < map.length(); ++i) {
        const QDomNode attribute = map.item(i);
        result.push_back({attribute.nodeName(), attribute.nodeValue()});
    }
    return result;
}

/** The names stand in the element's own text: `<name a="…" b="…"/>`, no quotes within the values. */
std::vector<XmlAttribute> manyAttributes(const QDomElement &element)
{
    QString text;
    QTextStream stream(&text);
    element.cloneNode(false).save(stream, -1);
    stream.flush();
    std::vector<XmlAttribute> result;
    const QVector<QStringRef> pieces = text.splitRef(u'"');
    for (int i = 0; i + 1 < pieces.size(); i += 2) {
        const int blank = pieces[i].lastIndexOf(u' ');
        const QString name = pieces[i].mid(blank + 1).chopped(1).toString(); // without the "="
        result.push_back({name, element.attribute(name)});
    }
    return result;
}

} // namespace

std::vector<XmlAttribute> attributesOf(const QDomElement &element)
{
    const QDomNamedNodeMap map = element.attributes();
    std::vector<XmlAttribute> result = map.length() <= kMostByNumber ? fewAttributes(map) : manyAttributes(element);
    std::sort(result.begin(), result.end(),
              [](const XmlAttribute &a, const XmlAttribute &b) { return a.name < b.name; });
    return result;
}

} // namespace encoding
