#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <gtest/gtest.h>

#include <string>
#include <vector>

/** JSON documents for tests, and what is told of them. */
namespace clitest {

/** The value that a sound JSON text holds; parsed, so that numbers are what they are in a file. */
inline QJsonValue valueOf(const QByteArray &text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson('[' + text + ']', &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << text.toStdString();
    return document.array().at(0);
}
inline QJsonObject objectOf(const QByteArray &text) { return valueOf(text).toObject(); }

inline QByteArray fileContent(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}
inline QJsonObject fileObject(const QString &path) { return QJsonDocument::fromJson(fileContent(path)).object(); }

/** An object with a member set, or without it. */
inline QJsonObject with(QJsonObject object, const QString &key, const QJsonValue &value)
{
    object[key] = value;
    return object;
}
inline QJsonObject without(QJsonObject object, const QString &key)
{
    object.remove(key);
    return object;
}

/** "place: reason" of each, on lines of their own. */
template <typename Fault> std::string textOf(const std::vector<Fault> &faults)
{
    QStringList lines;
    for (const Fault &fault : faults)
        lines.append(fault.place + ": " + fault.reason);
    return lines.join('\n').toStdString();
}

} // namespace clitest
