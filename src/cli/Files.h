#pragma once

#include "cli/StrictJsonText.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <memory>

class QFileDevice;
class QSaveFile;

namespace orvcad {

/** All bytes of a file; throws CommandFailure when it is missing or cannot be read. */
QByteArray readFile(const QString &path);
/** Throws CommandFailure for an empty text, and with line, column and reason for one that is not read as it stands: see
 *  StrictJsonText.h. The path is only told. */
void requireStrictJson(const QByteArray &text, const QString &path, LargeNumbers large = LargeNumbers::Refused);
/** The JSON document of a text; throws CommandFailure with line and column when it is none, or none by the letter. */
QJsonDocument parseJson(const QByteArray &text, const QString &path, LargeNumbers large = LargeNumbers::Refused);
/** A JSON document of a file; throws CommandFailure with line and column when it is none, or none by the letter. */
QJsonDocument readJsonFile(const QString &path, LargeNumbers large = LargeNumbers::Refused);
/** The object that a JSON file holds; throws CommandFailure, also when its top is no object.
 *  @param what  the document that is expected, for the reason: "floors document" */
QJsonObject readJsonObject(const QString &path, const QString &what, LargeNumbers large = LargeNumbers::Refused);

/** Writes bytes to standard output, at once. Throws CommandFailure with the system's reason when it does not take them.
 *  @param standing  what is said behind the reason */
void writeToStandardOutput(const QByteArray &bytes, const QString &standing = {});

/** A result on its way into its file, or to standard output for an empty path or "-". It is written beside the file, in a
 *  way that leaves nothing behind if the process ends, and takes its place at commit(); without that the file stays as it
 *  was. Devices and pipes, as well as standard output, get the bytes at once. */
class PendingResult
{
public:
    /** Throws CommandFailure when the bytes cannot be written. */
    PendingResult(const QString &path, const QByteArray &bytes);
    ~PendingResult();

    bool isOnStandardOutput() const { return m_path.isEmpty(); }
    void commit();

private:
    void write(QFileDevice &file, const QByteArray &bytes) const;
    [[noreturn]] void fail(const QFileDevice &file) const;

    QString m_path;
    std::unique_ptr<QSaveFile> m_file; ///< absent when the bytes have gone
};

/** Writes bytes to a file, or to standard output for an empty path or "-". Throws CommandFailure when they cannot be
 *  written; a file that was there is then as it was.
 *  @return true when they went to standard output */
bool writeResult(const QString &path, const QByteArray &bytes);
/** The same for a JSON document, indented. */
bool writeResult(const QString &path, const QJsonObject &document);

/** A path with a directory made for it; throws CommandFailure when it cannot be made. */
QString fileIn(const QString &directory, const QString &name);

} // namespace orvcad
