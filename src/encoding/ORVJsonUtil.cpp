#include "encoding/ORVJsonUtil.h"

#include <QFile>
#include <QJsonDocument>

namespace {

bool loadFromBytes(QJsonObject &object, const QByteArray &bytes)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError)
        return false;
    object = document.object();
    return true;
}

} // namespace

bool ORVJsonUtil::loadFromFile(QJsonObject &object, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    return loadFromBytes(object, file.readAll());
}

bool ORVJsonUtil::loadFromJsonString(QJsonObject &object, const QString &text)
{
    return loadFromBytes(object, text.toUtf8());
}

bool ORVJsonUtil::saveToFile(const QJsonObject &object, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Text))
        return false;
    const QByteArray bytes = QJsonDocument(object).toJson();
    file.resize(0); // this way of opening keeps what the file held
    file.write(bytes);
    file.flush();
    return true;
}

QString ORVJsonUtil::parseJsonByPath(const QString &json, const QStringList &path, const QString &key)
{
    QJsonObject object;
    if (!loadFromJsonString(object, json))
        return QString();
    for (const QString &element : path) {
        const QJsonValue next = object.value(element);
        if (next.isUndefined())
            break; // meant: the key is looked up in the object reached so far
        object = next.toObject();
    }
    return object.value(key).toString();
}
