#pragma once

#include "encoding/ORVCADFileSerialization.h"

#include <QJsonDocument>
#include <QJsonObject>

/** The archive as one JSON object, indented UTF-8. A record is an object of texts: numbers become texts, too, and other
 *  values than texts read as empty. A record list is an array of such objects. A record map is one object in which
 *  "key_0" holds the first map key, taken apart like a record, and "value_0" the array of its records, and so on in the
 *  order of the map. */
class ORVCADMODELDATA_EXPORT ORVCADJsonFileSerialization : public ORVCADFileSerialization
{
public:
    /** Keeps the text and does nothing else. */
    explicit ORVCADJsonFileSerialization(const QString &text);
    ~ORVCADJsonFileSerialization() override;

    void writeRecordMap(const QString &key, QMap<QString, QStringList> &records) override;
    void writeRecordList(const QString &key, const QStringList &records) override;
    void writeRecord(const QString &key, const QString &record) override;

    /** Reads half as many entries as the object has keys, rounded down. */
    void readRecordMap(const QString &key, QMap<QString, QStringList> &records) override;
    void readRecordList(const QString &key, QStringList &records) override;
    /** Items stand in the order of the sorted keys. */
    void readRecord(const QString &key, QString &record) override;

    /** The root object becomes the content; the text is ignored. */
    void save(const QString &text) override;

    /** @return whether the content is JSON. A document that is an array is, and nothing can be read from it. */
    bool parse();

    /** What has been written so far; needs no save(). */
    QJsonObject rootObject() const { return m_root; }
    /** Inserts the root object into the object under the key, which may be empty. Null does nothing. */
    void insertRootInto(const QString &key, QJsonObject *object) const;

protected:
    /** The content as it is parsed, in UTF-8. */
    QByteArray encodedContent() const;
    /** The same as parse(), of these bytes in place of the content. */
    bool parse(const QByteArray &bytes);

private:
    QJsonDocument m_document;
    QJsonObject m_root;
};
