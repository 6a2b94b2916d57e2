#pragma once

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

/** The object of a JSON text; the text in a test has to be right. */
inline QJsonObject jsonOf(const QByteArray &text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << text.toStdString();
    return document.object();
}

/** Two objects as texts, so that a difference is told by its line. */
inline void expectSameJson(const QJsonObject &actual, const QJsonObject &expected)
{
    EXPECT_EQ(QJsonDocument(actual).toJson().toStdString(), QJsonDocument(expected).toJson().toStdString());
}

/** The same keys, each with another value: texts become numbers, numbers texts, arrays and objects true. */
inline QJsonObject mistyped(const QJsonObject &json)
{
    QJsonObject other;
    for (auto member = json.begin(); member != json.end(); ++member) {
        const QJsonValue value = member.value();
        if (value.isString())
            other.insert(member.key(), 7);
        else if (value.isDouble())
            other.insert(member.key(), QString::number(value.toDouble()));
        else
            other.insert(member.key(), true);
    }
    return other;
}
