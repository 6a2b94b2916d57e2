#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <cstdlib>

/** JSON in tests: from a literal or a file, and back to compact text. */
namespace drawing_test {

/** A literal that is no JSON ends the test program: it is a slip of the test. */
inline QJsonValue json(const char *text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray("[") + text + "]", &error);
    if (error.error != QJsonParseError::NoError)
        std::abort();
    return document.array().at(0);
}

inline QJsonObject object(const char *text) { return json(text).toObject(); }

inline QByteArray text(const QJsonValue &value)
{
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

/** A document below tests/data; a missing one ends the test program. */
inline QJsonObject dataObject(const char *path)
{
    QFile file(QStringLiteral(ORVCAD_TEST_DATA "/") + QString::fromUtf8(path));
    if (!file.open(QIODevice::ReadOnly))
        std::abort();
    return object(file.readAll());
}

} // namespace drawing_test
