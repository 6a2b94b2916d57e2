#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <cstdlib>

/** JSON in tests: from a literal, and back to compact text. */
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

} // namespace drawing_test
