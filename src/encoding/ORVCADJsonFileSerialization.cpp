#include "encoding/ORVCADJsonFileSerialization.h"

#include "encoding/FlatRecord.h"
#include "encoding/JsonMembers.h"

#include <QJsonArray>
#include <QJsonValue>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

QString keyName(int i) { return QStringLiteral("key_%1").arg(i); }
QString valueName(int i) { return QStringLiteral("value_%1").arg(i); }

QJsonObject largeRecordObject(const QString &record)
{
    std::vector<encoding::JsonMember> members;
    encoding::forEachItem(record, [&members](QStringView key, QStringView value) {
        members.emplace_back(key.toString(), value.toString());
    });
    return encoding::objectOf(std::move(members));
}

/** Of two items of one key the later one counts. */
QJsonObject recordObject(const QString &record)
{
    constexpr int largeSize = 2000; // characters; no usual record comes near it
    if (record.size() > largeSize)
        return largeRecordObject(record);
    QJsonObject object;
    encoding::forEachItem(record,
                          [&object](QStringView key, QStringView value) { object.insert(key, value.toString()); });
    return object;
}

QJsonArray recordArray(const QStringList &records)
{
    QJsonArray array;
    for (const QString &record : records)
        array.append(recordObject(record));
    return array;
}

/** Makes records of objects. The objects of a list mostly have the same keys, so those of the last one are tried first:
 *  asking an object for the text of its keys costs more than looking for values. */
class RecordReader
{
public:
    QString recordOf(const QJsonObject &object)
    {
        if (object.size() == m_keys.size()) {
            encoding::FlatRecordText record;
            if (addValues(object, record))
                return record.text();
        }
        m_keys = object.keys();
        encoding::FlatRecordText record;
        addValues(object, record);
        return record.text();
    }

private:
    /** @return whether the object has all the keys; no use of the record otherwise */
    bool addValues(const QJsonObject &object, encoding::FlatRecordText &record) const
    {
        return std::all_of(m_keys.cbegin(), m_keys.cend(), [&](const QString &key) {
            const QJsonValue value = object.value(QStringView(key));
            record.add(key, value.toString());
            return !value.isUndefined();
        });
    }

    QStringList m_keys; // sorted, each once
};

QString recordOf(const QJsonObject &object) { return RecordReader().recordOf(object); }

void appendRecords(const QJsonArray &array, QStringList &records)
{
    RecordReader reader;
    records.reserve(records.size() + array.size());
    for (const QJsonValue element : array)
        records.append(reader.recordOf(element.toObject()));
}

} // namespace

ORVCADJsonFileSerialization::ORVCADJsonFileSerialization(const QString &text) : ORVCADFileSerialization(text) {}

ORVCADJsonFileSerialization::~ORVCADJsonFileSerialization() = default;

void ORVCADJsonFileSerialization::writeRecordMap(const QString &key, QMap<QString, QStringList> &records)
{
    std::vector<encoding::JsonMember> members;
    int i = 0;
    for (auto entry = records.constBegin(); entry != records.constEnd(); ++entry, ++i) {
        members.emplace_back(keyName(i), recordObject(entry.key()));
        members.emplace_back(valueName(i), recordArray(entry.value()));
    }
    m_root.insert(key, encoding::objectOf(std::move(members)));
}

void ORVCADJsonFileSerialization::writeRecordList(const QString &key, const QStringList &records)
{
    m_root.insert(key, recordArray(records));
}

void ORVCADJsonFileSerialization::writeRecord(const QString &key, const QString &record)
{
    m_root.insert(key, recordObject(record));
}

void ORVCADJsonFileSerialization::readRecordMap(const QString &key, QMap<QString, QStringList> &records)
{
    const QJsonObject object = m_document.object().value(key).toObject();
    const int count = object.size() / 2; // meant: of an odd number of keys the last one is left out
    for (int i = 0; i < count; ++i) {
        QStringList entry;
        appendRecords(object.value(valueName(i)).toArray(), entry);
        records.insert(recordOf(object.value(keyName(i)).toObject()), entry);
    }
}

void ORVCADJsonFileSerialization::readRecordList(const QString &key, QStringList &records)
{
    appendRecords(m_document.object().value(key).toArray(), records);
}

void ORVCADJsonFileSerialization::readRecord(const QString &key, QString &record)
{
    const QJsonValue value = m_document.object().value(key);
    if (!value.isUndefined())
        record = record + recordOf(value.toObject());
}

void ORVCADJsonFileSerialization::save(const QString & /*text*/)
{
    m_document.setObject(m_root);
    m_content = QString::fromUtf8(m_document.toJson(QJsonDocument::Indented));
}

bool ORVCADJsonFileSerialization::parse() { return parse(encodedContent()); }

QByteArray ORVCADJsonFileSerialization::encodedContent() const { return m_content.toUtf8(); }

bool ORVCADJsonFileSerialization::parse(const QByteArray &bytes)
{
    QJsonParseError error;
    m_document = QJsonDocument::fromJson(bytes, &error);
    return error.error == QJsonParseError::NoError && !m_document.isNull();
}

void ORVCADJsonFileSerialization::insertRootInto(const QString &key, QJsonObject *object) const
{
    if (object)
        object->insert(key, m_root);
}
