#include "encoding/ORVCADXmlFileSerialization.h"

#include "encoding/FlatRecord.h"
#include "encoding/XmlSafety.h"

#include <QTextStream>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

using Attribute = std::pair<QString, QString>;

constexpr auto kEncoding = "GB2312";
constexpr auto kDeclaration = "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n";
constexpr auto kLayerName = "layerName";
constexpr int kMostByIndex = 64;                  // attributes; each costs a walk over those before it
constexpr qint64 kMostListText = qint64(1) << 24; // characters that a list may give

void writeItems(encoding::XmlTextWriter &writer, const QString &record)
{
    encoding::forEachItem(record, [&writer](QStringView key, QStringView value) { writer.attribute(key, value); });
}

/** As writeItems, but a key with "|" in it, as the layer of a bound drawing has, stands as a value. */
void writeMapKey(encoding::XmlTextWriter &writer, const QString &record)
{
    static const QString layerName = QLatin1String(kLayerName);
    encoding::forEachItem(record, [&writer](QStringView key, QStringView value) {
        if (key.contains(u'|'))
            writer.attribute(layerName, key);
        else
            writer.attribute(key, value);
    });
}

void writeElement(encoding::XmlTextWriter &writer, const QString &name, const QString &record)
{
    writer.startElement(name);
    writeItems(writer, record);
    writer.endElement();
}

void writeMapEntry(encoding::XmlTextWriter &writer, int number, const QString &key, const QStringList &records)
{
    const QString name = QStringLiteral("key_%1").arg(number);
    writer.startElement(name);
    writeMapKey(writer, key);
    for (int i = 0; i < records.size(); ++i)
        writeElement(writer, QStringLiteral("value_%1").arg(i), records[i]);
    writer.endElement();
}

/** Names of the attributes, from the element's own text: `<name a="…" b="…"/>`, no quotes within the values. */
QStringList attributeNames(const QDomElement &element)
{
    QString text;
    QTextStream stream(&text);
    element.cloneNode(false).save(stream, -1);
    stream.flush();
    QStringList names;
    const QVector<QStringRef> pieces = text.splitRef(u'"');
    for (int i = 0; i + 1 < pieces.size(); i += 2) {
        const int blank = pieces[i].lastIndexOf(u' ');
        names.append(pieces[i].mid(blank + 1).chopped(1).toString()); // without the "="
    }
    return names;
}

/** In the order of the names, since QDomDocument gives them in another order in each process. */
std::vector<Attribute> attributesOf(const QDomElement &element)
{
    std::vector<Attribute> result;
    const QDomNamedNodeMap map = element.attributes();
    if (map.length() <= kMostByIndex) {
        result.reserve(static_cast<std::size_t>(map.length()));
        for (int i = 0; i < map.length(); ++i) {
            const QDomNode attribute = map.item(i);
            result.emplace_back(attribute.nodeName(), attribute.nodeValue());
        }
    } else {
        for (const QString &name : attributeNames(element))
            result.emplace_back(name, element.attribute(name));
    }
    std::sort(result.begin(), result.end(), [](const Attribute &a, const Attribute &b) { return a.first < b.first; });
    return result;
}

QString recordOf(const QDomElement &element)
{
    constexpr int usualItem = 24; // characters
    const std::vector<Attribute> attributes = attributesOf(element);
    QString record = QLatin1String("");
    record.reserve(static_cast<int>(attributes.size()) * usualItem);
    for (const Attribute &one : attributes)
        encoding::appendItem(record, one.first, one.second);
    encoding::cutLastSeparator(record);
    return record;
}

QString mapKeyOf(const QDomElement &element)
{
    QString record = QLatin1String("");
    for (const Attribute &one : attributesOf(element)) {
        if (one.first.contains(QLatin1String(kLayerName)))
            encoding::appendItem(record, one.second, {});
        else
            encoding::appendItem(record, one.first, one.second);
    }
    encoding::cutLastSeparator(record);
    return record;
}

/** One record per child; a child that is no element gives an empty one. */
QStringList childRecords(const QDomElement &element)
{
    QStringList records;
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling())
        records.append(recordOf(child.toElement()));
    return records;
}

} // namespace

ORVCADXmlFileSerialization::ORVCADXmlFileSerialization(const QString &text)
    : ORVCADFileSerialization(text), m_isNew(text.isEmpty()), m_written(kEncoding, 1)
{}

ORVCADXmlFileSerialization::~ORVCADXmlFileSerialization() = default;

void ORVCADXmlFileSerialization::writeRecordMap(const QString &key, QMap<QString, QStringList> &records)
{
    if (!mayWrite(key))
        return;
    m_written.startElement(key);
    int number = 0;
    for (auto entry = records.constBegin(); entry != records.constEnd(); ++entry)
        writeMapEntry(m_written, number++, entry.key(), entry.value());
    m_written.endElement();
}

void ORVCADXmlFileSerialization::writeRecordList(const QString &key, const QStringList &records)
{
    if (!mayWrite(key))
        return;
    m_written.startElement(key);
    for (const QString &record : records)
        writeElement(m_written, key, record);
    m_written.endElement();
}

void ORVCADXmlFileSerialization::writeRecord(const QString &key, const QString &record)
{
    if (mayWrite(key))
        writeElement(m_written, key, record);
}

void ORVCADXmlFileSerialization::readRecordMap(const QString &key, QMap<QString, QStringList> &records)
{
    const QDomElement outer = m_elementsByName.value(key);
    for (QDomNode child = outer.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const QDomElement entry = child.toElement();
        records.insert(mapKeyOf(entry), childRecords(entry));
    }
}

void ORVCADXmlFileSerialization::readRecordList(const QString &key, QStringList &records)
{
    // Meant: it looks one level too deep, and then takes the outer element's attributes. Lists do not come back.
    const QDomElement outer = m_elementsByName.value(key);
    const QString record = recordOf(outer);
    qint64 length = 0;
    for (QDomNode child = outer.firstChild().firstChild(); !child.isNull(); child = child.nextSibling()) {
        length += record.size();
        if (length > kMostListText) // a document of a few megabytes could ask for terabytes
            return;
        records.append(record);
    }
}

void ORVCADXmlFileSerialization::readRecord(const QString &key, QString &record)
{
    const auto element = m_elementsByName.constFind(key);
    if (element != m_elementsByName.constEnd())
        record = record + recordOf(*element);
}

void ORVCADXmlFileSerialization::save(const QString & /*text*/)
{
    if (!m_isNew)
        return;
    const QString &body = m_written.text();
    m_content = QLatin1String(kDeclaration);
    m_content += body.isEmpty() ? QStringLiteral("<XmlRoot/>\n")
                                : QLatin1String("<XmlRoot>\n") + body + QLatin1String("</XmlRoot>\n");
}

bool ORVCADXmlFileSerialization::parse()
{
    m_elementsByName.clear();
    const QString text = encoding::decodedXml(m_content.toLocal8Bit());
    if (!encoding::isSafeXml(text) || !m_document.setContent(text, false) || m_document.isNull())
        return false;
    m_root = m_document.documentElement();
    for (QDomNode child = m_root.firstChild(); !child.isNull(); child = child.nextSibling())
        if (child.isElement())
            m_elementsByName.insert(child.nodeName(), child.toElement());
    return true;
}
