#pragma once

#include "encoding/ORVCADFileSerialization.h"
#include "encoding/XmlTextWriter.h"

#include <QDomDocument>
#include <QDomElement>

/** The archive as XML below one element "XmlRoot". The items of a record are the attributes of an element named by the
 *  key: an item with an empty key makes none, every other key becomes one as it is, so that a key which is no XML name
 *  makes a document that does not parse. A record list is an element of that name around one per record. A record map
 *  is an element around "key_0", "key_1", …, in the order of the map, each with the map key's items as attributes and
 *  around "value_0", "value_1", … for its records. In a map key an item whose key holds "|" stands as the value of the
 *  attribute "layerName".
 *
 *  The text declares GB2312 and is parsed from the local 8-bit encoding, so it reads back when that is a Chinese one
 *  which holds every character. It stays a QString: whoever puts it into a file writes the local 8-bit encoding.
 *
 *  Lists do not read back. Attributes read back in the order of their names. */
class ORVCADMODELDATA_EXPORT ORVCADXmlFileSerialization : public ORVCADFileSerialization
{
public:
    /** Begins a document if the text is empty, else keeps the text for parse(). */
    explicit ORVCADXmlFileSerialization(const QString &text);
    ~ORVCADXmlFileSerialization() override;

    // An archive that was made with a text writes nothing; an empty key names no element and writes nothing either.
    void writeRecordMap(const QString &key, QMap<QString, QStringList> &records) override;
    void writeRecordList(const QString &key, const QStringList &records) override;
    void writeRecord(const QString &key, const QString &record) override;

    void readRecordMap(const QString &key, QMap<QString, QStringList> &records) override;
    /** Appends, for each child of the element's first child, the attributes of the element itself: nothing of what
     *  writeRecordList wrote. Ends early where the records would be long beyond measure. */
    void readRecordList(const QString &key, QStringList &records) override;
    void readRecord(const QString &key, QString &record) override;

    /** The document becomes the content; the text is ignored. */
    void save(const QString &text) override;

    /** @return whether the content is XML, has no document type declaration and at most 256 levels of elements. Of
     *  several children of the root that have one name the last one counts. */
    bool parse();

protected:
    /** The content as it is parsed, in the local 8-bit encoding. */
    QByteArray encodedContent() const;
    /** The same as parse(), of these bytes in place of the content. */
    bool parse(const QByteArray &bytes);

private:
    bool mayWrite(const QString &key) const { return m_isNew && !key.isEmpty(); }

    const bool m_isNew;
    encoding::XmlTextWriter m_written; // children of the root; a QDomDocument could not keep attributes in order
    QDomDocument m_document;           // what was parsed
    QMap<QString, QDomElement> m_elementsByName; // children of the parsed root
};
