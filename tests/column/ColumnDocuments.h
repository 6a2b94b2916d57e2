#pragma once

#include "beam/RecordChecks.h"

#include <QFile>
#include <QJsonArray>

#include <string>

/** A document below tests/data/columns in which every key has a value of its own. */
inline QByteArray columnDocument(const QString &name)
{
    QFile file(QStringLiteral(ORVCAD_TEST_DATA "/columns/%1.json").arg(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    return file.readAll();
}

/** The text of an object, to be compared byte for byte. */
inline std::string textOf(const QJsonObject &json) { return QJsonDocument(json).toJson().toStdString(); }

/** A new record, filled from an object. */
template <typename Record> Record filled(const QJsonObject &json)
{
    Record record;
    record.fromJson(&record, json);
    return record;
}

/** An object of texts, none of them empty: each key with its own name as value. */
inline QJsonObject namedAfterTheirKeys(const QStringList &keys)
{
    QJsonObject json;
    for (const QString &key : keys)
        json.insert(key, "text of " + key);
    return json;
}

/** As mistyped, and truth values become numbers. */
inline QJsonObject mistypedThroughout(const QJsonObject &json)
{
    QJsonObject other = mistyped(json);
    for (const QString &key : json.keys())
        if (json[key].isBool())
            other[key] = 1;
    return other;
}
