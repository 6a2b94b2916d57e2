#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>

namespace honestytest {

/** What a command line did, run in this process: as main() would, but for the printing. */
struct Ran
{
    int exitCode = -1; ///< -1 for anything that is thrown and is no failure of a command
    QString text;      ///< summary for people
    QJsonObject json;  ///< the same for machines
    QJsonObject error; ///< "error" of a failure
    bool documentOnStdout = false;

    /** For messages of tests. */
    std::string shown() const;
};

/** Runs orvcad with these arguments. What goes to standard output goes there: name a file with -o. */
Ran run(const QStringList &arguments);

QByteArray fileContent(const QString &path);
QJsonObject fileObject(const QString &path);
void writeFile(const QString &path, const QByteArray &bytes);
void writeFile(const QString &path, const QJsonValue &document);

} // namespace honestytest
