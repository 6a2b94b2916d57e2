#include "encoding/XmlTextWriter.h"

#include <QTextCodec>

#include <algorithm>

namespace encoding {

namespace {

constexpr std::size_t kManyAttributes = 32; // beyond, looking through all of them is slow

void append(QString &text, QStringView piece) { text.append(piece.data(), static_cast<int>(piece.size())); }

bool isPlain(QChar c) { return c >= u' ' && c < u'\x7f' && c != u'<' && c != u'&' && c != u'"' && c != u'>'; }

QLatin1String entityOf(QChar c)
{
    switch (c.unicode()) {
    case u'<':
        return QLatin1String("&lt;");
    case u'&':
        return QLatin1String("&amp;");
    case u'"':
        return QLatin1String("&quot;");
    case u'>':
        return QLatin1String("&gt;");
    default:
        return {};
    }
}

bool isBreak(QChar c) { return c == u'\n' || c == u'\r' || c == u'\t'; }

} // namespace

XmlTextWriter::XmlTextWriter(const QByteArray &encoding, int level)
    : m_codec(QTextCodec::codecForName(encoding)), m_level(level)
{
    if (!m_codec)
        m_codec = QTextCodec::codecForName("UTF-8");
}

void XmlTextWriter::startElement(QStringView name)
{
    if (m_inStart)
        finishStart(true);
    indent(m_level + static_cast<int>(m_open.size()));
    m_text.append(u'<');
    append(m_text, name);
    m_open.push_back(name);
    m_inStart = true;
}

void XmlTextWriter::attribute(QStringView name, QStringView value)
{
    if (name.isEmpty()) // meant: there is no attribute without a name
        return;
    if (Attribute *present = find(name)) {
        present->second = value;
        return;
    }
    if (!m_manyPlaces.isEmpty())
        m_manyPlaces.insert(name, m_attributes.size());
    m_attributes.emplace_back(name, value);
}

void XmlTextWriter::endElement()
{
    const QStringView name = m_open.back();
    m_open.pop_back();
    if (m_inStart) {
        finishStart(false);
        return;
    }
    indent(m_level + static_cast<int>(m_open.size()));
    m_text.append(QLatin1String("</"));
    append(m_text, name);
    m_text.append(QLatin1String(">\n"));
}

void XmlTextWriter::indent(int level)
{
    for (int i = 0; i < level; ++i)
        m_text.append(u' ');
}

void XmlTextWriter::finishStart(bool hasChildren)
{
    for (const Attribute &one : m_attributes) {
        m_text.append(u' ');
        append(m_text, one.first);
        m_text.append(QLatin1String("=\""));
        appendValue(one.second);
        m_text.append(u'"');
    }
    m_text.append(QLatin1String(hasChildren ? ">\n" : "/>\n"));
    m_attributes.clear();
    m_manyPlaces.clear();
    m_inStart = false;
}

XmlTextWriter::Attribute *XmlTextWriter::find(QStringView name)
{
    if (m_attributes.size() < kManyAttributes) {
        const auto place = std::find_if(m_attributes.begin(), m_attributes.end(),
                                        [name](const Attribute &one) { return one.first == name; });
        return place == m_attributes.end() ? nullptr : &*place;
    }
    if (m_manyPlaces.isEmpty())
        for (std::size_t i = 0; i < m_attributes.size(); ++i)
            m_manyPlaces.insert(m_attributes[i].first, i);
    const auto place = m_manyPlaces.constFind(name);
    return place == m_manyPlaces.constEnd() ? nullptr : &m_attributes[*place];
}

void XmlTextWriter::appendValue(QStringView value)
{
    for (auto c = value.begin(); c != value.end(); ++c) {
        const auto plainEnd = std::find_if_not(c, value.end(), isPlain);
        append(m_text, QStringView(c, plainEnd));
        c = plainEnd;
        if (c == value.end())
            return;
        const bool endsSection = *c == u'>' && c - value.begin() >= 2 && c[-1] == u']' && c[-2] == u']';
        const QLatin1String entity = *c == u'>' && !endsSection ? QLatin1String() : entityOf(*c);
        if (!entity.isEmpty())
            m_text.append(entity);
        else if (isBreak(*c) || !isEncodable(*c))
            appendReference(*c);
        else
            m_text.append(*c);
    }
}

void XmlTextWriter::appendReference(QChar character)
{
    m_text.append(QLatin1String("&#x"));
    m_text.append(QString::number(character.unicode(), 16));
    m_text.append(u';');
}

bool XmlTextWriter::isEncodable(QChar character)
{
    const auto known = m_encodable.constFind(character.unicode());
    if (known != m_encodable.constEnd())
        return *known;
    const bool encodable = m_codec->canEncode(character);
    m_encodable.insert(character.unicode(), encodable);
    return encodable;
}

} // namespace encoding
