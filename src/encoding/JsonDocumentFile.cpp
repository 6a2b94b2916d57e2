#include "encoding/JsonDocumentFile.h"

#include "encoding/LayerFileKeys.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

namespace {

namespace layerfile = encoding::layerfile;

constexpr int kDone = 0;
constexpr int kFailed = -1;

enum class FileState { Missing, Closed, Empty, Read };

FileState readTextFile(const QString &path, QByteArray &bytes)
{
    if (!QFile::exists(path))
        return FileState::Missing;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return FileState::Closed;
    bytes = file.readAll();
    return bytes.isEmpty() ? FileState::Empty : FileState::Read;
}

QString messageOf(FileState state)
{
    switch (state) {
    case FileState::Missing:
        return QStringLiteral("can't find json file!");
    case FileState::Closed:
        return QStringLiteral("can't open file!");
    case FileState::Empty:
        return QStringLiteral("file is empty!");
    case FileState::Read:
        break;
    }
    return QString();
}

/** The part of a path between its last "_" and ".json"; without "_" the whole path. */
QString layerKeyOf(const QString &path)
{
    return path.mid(path.lastIndexOf(u'_') + 1).remove(layerfile::ending); // meant: every ".json" goes
}

QJsonObject layerNamed(const QString &name, const QJsonArray &layers)
{
    QJsonObject layer;
    for (const QJsonValue entry : layers) {
        layer = entry.toObject();
        if (layer.value(layerfile::layerName).toString() == name)
            break;
    }
    return layer; // meant: a name that is not there gives the last layer
}

bool readIds(const QJsonArray &entries, QVector<int> &ids)
{
    if (entries.isEmpty())
        return false;
    ids.clear();
    for (const QJsonValue entry : entries)
        ids.append(entry.toObject().value(layerfile::edoId).toInt(-1));
    return true;
}

} // namespace

bool loadJsonDocumentFromFile(const QString &path, QJsonDocument &document)
{
    QByteArray bytes;
    if (readTextFile(path, bytes) != FileState::Read)
        return false;
    QJsonParseError error;
    document = QJsonDocument::fromJson(bytes, &error);
    return error.error == QJsonParseError::NoError;
}

bool saveJsonDocumentToFile(const QString &path, const QJsonDocument &document)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        qWarning("Couldn't open save file.");
        return false;
    }
    file.write(document.toJson());
    return true;
}

int readLayerEdoIds(const QString &path, const QString &layerName, QString &message, QVector<int> &ids)
{
    QByteArray bytes;
    const FileState state = readTextFile(path, bytes);
    if (state != FileState::Read) {
        message = messageOf(state);
        return kFailed;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError) {
        message = error.errorString();
        return kFailed;
    }
    const QJsonArray layers = document.object().value(layerKeyOf(path)).toArray();
    if (!readIds(layerNamed(layerName, layers).value(layerfile::edoIdList).toArray(), ids)) {
        message = QStringLiteral("no datas");
        return kFailed;
    }
    return kDone;
}
