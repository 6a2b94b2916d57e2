#include "cli/Files.h"

#include "cli/Command.h"
#include "cli/Message.h"
#include "platform/dwgx/StrictJson.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace orvcad {

namespace {

bool isDeviceOrPipe(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile() && !info.isDir();
}

} // namespace

QByteArray readFile(const QString &path)
{
    QFile file(path);
    if (QFileInfo(path).isDir())
        throw CommandFailure(kBadInput, path, {}, Message::tr("is a directory"));
    if (!file.open(QIODevice::ReadOnly))
        throw CommandFailure(kBadInput, path, {}, file.errorString());
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw CommandFailure(kBadInput, path, {}, file.errorString());
    return bytes;
}

void requireStrictJson(const QByteArray &text, const QString &path, LargeNumbers large)
{
    if (text.trimmed().isEmpty())
        throw CommandFailure(kBadInput, path, {}, Message::tr("the file is empty"));
    if (const auto fault = firstTextFault(text, large))
        throw CommandFailure(kBadInput, path, fault->place, fault->reason);
}

QJsonDocument parseJson(const QByteArray &text, const QString &path, LargeNumbers large)
{
    requireStrictJson(text, path, large); // first, since Qt's reader leaks what it drops of two members of one name
    QJsonParseError error;
    QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) // nested deeper than it follows
        throw CommandFailure(kBadInput, path, dwgx::lineAndColumn(text, error.offset),
                             Message::tr("not JSON: %1").arg(error.errorString()));
    return document;
}

QJsonDocument readJsonFile(const QString &path, LargeNumbers large) { return parseJson(readFile(path), path, large); }

QJsonObject readJsonObject(const QString &path, const QString &what, LargeNumbers large)
{
    const QJsonDocument document = readJsonFile(path, large);
    if (!document.isObject())
        throw CommandFailure(kBadInput, path, {}, Message::tr("no %1: its top is no object").arg(what));
    return document.object();
}

void writeToStandardOutput(const QByteArray &bytes, const QString &standing)
{
    const auto size = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0)
        return;
    const QString reason = QString::fromLocal8Bit(std::strerror(errno));
    throw CommandFailure(kBadInput, Message::tr("standard output"), {},
                         Message::tr("cannot be written: %1").arg(reason) + standing);
}

PendingResult::PendingResult(const QString &path, const QByteArray &bytes)
{
    if (path.isEmpty() || path == QLatin1String("-")) {
        writeToStandardOutput(bytes);
        return;
    }
    m_path = path;
    if (isDeviceOrPipe(path)) {
        QFile device(path);
        write(device, bytes);
        return;
    }
    m_file = std::make_unique<QSaveFile>(path);
    write(*m_file, bytes);
}

PendingResult::~PendingResult() = default;

void PendingResult::write(QFileDevice &file, const QByteArray &bytes) const
{
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        fail(file);
}

void PendingResult::commit()
{
    if (m_file && !m_file->commit())
        fail(*m_file);
}

void PendingResult::fail(const QFileDevice &file) const
{
    throw CommandFailure(kBadInput, m_path, {}, Message::tr("cannot be written: %1").arg(file.errorString()));
}

bool writeResult(const QString &path, const QByteArray &bytes)
{
    PendingResult result(path, bytes);
    result.commit();
    return result.isOnStandardOutput();
}

bool writeResult(const QString &path, const QJsonObject &document)
{
    return writeResult(path, QJsonDocument(document).toJson());
}

QString fileIn(const QString &directory, const QString &name)
{
    if (!QDir().mkpath(directory))
        throw CommandFailure(kBadInput, directory, {}, Message::tr("the directory cannot be made"));
    return QDir(directory).filePath(name);
}

} // namespace orvcad
