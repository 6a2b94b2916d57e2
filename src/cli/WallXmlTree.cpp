#include "cli/WallXmlTree.h"

#include "IdentifyInputModel/Wall/WallKeys.h"
#include "cli/Message.h"
#include "encoding/XmlSafety.h"

#include <QStringList>
#include <QXmlStreamReader>

namespace orvcad {

namespace {

using Index = JsonTree::Index;
using Kind = JsonTree::Kind;

const QStringList &lists()
{
    namespace document = wall::document;
    static const QStringList keys{document::brickWalls, document::forceWalls, document::forceLines,
                                  document::brickLines, document::axisLines,  document::points,
                                  document::filterTexts};
    return keys;
}

const QStringList &maps()
{
    static const QStringList keys{wall::document::lines, wall::document::texts};
    return keys;
}

/** Walks through the elements: the root, the sections in it, their records, and those below the keys of a map. */
class Filling
{
public:
    Filling(const QString &text, const QByteArray &bytes) : m_text(text), m_xml(text), m_tree(JsonTree::over(bytes)) {}

    std::unique_ptr<JsonTree> tree()
    {
        const Index top = m_tree->add(Kind::Object, JsonTree::kNone, 0);
        if (next())
            while (next())
                section(top);
        while (!m_xml.atEnd())
            m_xml.readNext();
        if (m_xml.hasError())
            m_tree->addFault({top, bytesTo(static_cast<int>(m_xml.characterOffset())),
                              Message::tr("not XML: %1").arg(m_xml.errorString())});
        return std::move(m_tree);
    }

private:
    /** Whether an element begins before the one that is open ends; its start is noted. */
    bool next()
    {
        while (!m_xml.atEnd()) {
            m_start = static_cast<int>(m_xml.characterOffset());
            m_xml.readNext();
            if (m_xml.isStartElement() || m_xml.isEndElement())
                return m_xml.isStartElement();
        }
        return false;
    }
    QString name() const { return m_xml.qualifiedName().toString(); }

    /** Bytes in UTF-8 in front of a character; cheap when places rise. */
    int bytesTo(int character)
    {
        if (character < m_characters)
            m_characters = m_bytes = 0;
        m_bytes += m_text.midRef(m_characters, character - m_characters).toUtf8().size();
        m_characters = character;
        return m_bytes;
    }

    Index member(Kind kind, Index parent, const QString &key, int offset)
    {
        const Index made = m_tree->add(kind, parent, offset);
        m_tree->setKey(made, key.toStdString(), offset);
        return made;
    }

    /** The attributes of the element at hand as members. */
    void attributes(Index record, int start)
    {
        const QStringRef tag = m_text.midRef(start, static_cast<int>(m_xml.characterOffset()) - start);
        int from = 0;
        for (const QXmlStreamAttribute &one : m_xml.attributes()) {
            const QString key = one.qualifiedName().toString();
            const int at = tag.indexOf(key + QLatin1Char('='), from);
            from = std::max(at, from);
            const Index value = member(Kind::Text, record, key, bytesTo(start + from));
            m_tree->setText(value, one.value().toString().toStdString());
        }
    }
    void record(Index record, int start)
    {
        attributes(record, start);
        m_xml.skipCurrentElement();
    }
    void records(Index list)
    {
        while (next()) {
            const int start = m_start;
            record(m_tree->add(Kind::Object, list, bytesTo(start)), start);
        }
    }
    void section(Index top)
    {
        const int start = m_start;
        const int offset = bytesTo(start);
        const QString key = name();
        if (lists().contains(key))
            return records(member(Kind::List, top, key, offset));
        const Index object = member(Kind::Object, top, key, offset);
        return maps().contains(key) ? entries(object) : record(object, start);
    }
    void entries(Index map)
    {
        while (next()) {
            const int start = m_start;
            const int offset = bytesTo(start);
            const QString key = name();
            attributes(member(Kind::Object, map, key, offset), start);
            const QString values = QString(key).replace(QLatin1String("key_"), QLatin1String("value_"));
            records(member(Kind::List, map, values, offset));
        }
    }

    const QString m_text;
    QXmlStreamReader m_xml;
    std::unique_ptr<JsonTree> m_tree;
    int m_start = 0;      // of the element at hand
    int m_characters = 0; // of the place asked for last
    int m_bytes = 0;
};

} // namespace

std::unique_ptr<JsonTree> wallXmlTree(const QByteArray &bytes)
{
    const QString text = encoding::decodedXml(bytes);
    if (encoding::isSafeXml(text))
        return Filling(text, text.toUtf8()).tree();
    auto refused = JsonTree::over(text.toUtf8());
    refused->add(Kind::Object, JsonTree::kNone, 0);
    refused->addFault({0, 0,
                       Message::tr("has a document type declaration or more than %1 levels, and is not parsed")
                           .arg(encoding::kMostXmlLevels)});
    return refused;
}

} // namespace orvcad
