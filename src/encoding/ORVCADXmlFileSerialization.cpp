#include "encoding/ORVCADXmlFileSerialization.h"

#include "encoding/FlatRecord.h"
#include "encoding/XmlAttributes.h"
#include "encoding/XmlSafety.h"

namespace {

using encoding::XmlAttribute;

constexpr auto kEncoding = "GB2312";
constexpr auto kDeclaration = "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n";
constexpr auto kLayerName = "layerName";
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

QString recordOf(const QDomElement &element)
{
    const std::vector<XmlAttribute> attributes = encoding::attributesOf(element);
    encoding::FlatRecordText record;
    for (const XmlAttribute &one : attributes)
        record.add(one.name, one.value);
    return record.text();
}

QString mapKeyOf(const QDomElement &element)
{
    const std::vector<XmlAttribute> attributes = encoding::attributesOf(element);
    encoding::FlatRecordText record;
    for (const XmlAttribute &one : attributes) {
        if (one.name.contains(QLatin1String(kLayerName)))
            record.add(one.value, {});
        else
            record.add(one.name, one.value);
    }
    return record.text();
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

bool ORVCADXmlFileSerialization::parse() { return parse(encodedContent()); }

QByteArray ORVCADXmlFileSerialization::encodedContent() const { return m_content.toLocal8Bit(); }

bool ORVCADXmlFileSerialization::parse(const QByteArray &bytes)
{
    m_elementsByName.clear();
    const QString text = encoding::decodedXml(bytes);
    if (!encoding::isSafeXml(text) || !m_document.setContent(text, false) || m_document.isNull())
        return false;
    for (QDomNode child = m_document.documentElement().firstChild(); !child.isNull(); child = child.nextSibling())
        if (child.isElement())
            m_elementsByName.insert(child.nodeName(), child.toElement());
    return true;
}
