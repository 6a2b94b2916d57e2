#include "foundation/Object_AI.h"

#include "foundation/Log_AI.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QUuid>
#include <QtDebug>

#include <algorithm>
#include <stdexcept>
#include <typeinfo>

template class gp::TreeNode<cv::Object_AI *, 0>;
template class gp::Object_AI<cv::Object_AI *, QString, Any>;

namespace cv {

namespace {

using Node = gp::TreeNode<Object_AI *>::ChildNode;
using Logs = std::vector<Log_AI *>;

// Meant: one fixed place for the logs. Where there are no drives it is below the current folder.
const char kLogFile[] = "E:/orv_2018_AI0529/build/bin/Win32/Release/BoardCheckLog/%1.json";

bool isLog(const Node *node) { return typeid(*node) == typeid(Log_AI); }

bool hasLogs(const Object_AI &object, FindChildOption option)
{
    return static_cast<const gp::TreeNode<Object_AI *> &>(object).findChild_if(isLog, option) != nullptr;
}

Logs logsUnder(const Object_AI &object)
{
    const auto found = static_cast<const gp::TreeNode<Object_AI *> &>(object).findChildren_if(isLog, FindWholeSubtree);
    Logs logs(found.size());
    std::transform(found.begin(), found.end(), logs.begin(), [](Object_AI *log) { return static_cast<Log_AI *>(log); });
    return logs;
}

/** Deletes logs in order, but those with logs under them last and from the back, the deeper ones before those above. */
void deleteLogs(Logs logs)
{
    const auto above = std::stable_partition(
        logs.begin(), logs.end(), [](const Log_AI *log) { return !log || !hasLogs(*log, FindWholeSubtree); });
    std::reverse(above, logs.end());
    for (const Log_AI *log : logs)
        delete log;
}

/** False, with a warning, where the folder of the file is not there and cannot be made. */
bool makeFolderOf(const QString &path)
{
    const QString folder = QFileInfo(path).path();
    if (QDir(folder).exists() || QDir().mkpath(folder))
        return true;
    qWarning() << "fail to create dir:" << folder;
    return false;
}

void writeFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    // Unbuffered, so that write itself tells what did not reach the file.
    const bool open = file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered);
    if (!open || file.write(text) != text.size())
        qWarning() << file.fileName() << file.errorString();
}

[[noreturn]] void refuseToDie() { throw std::logic_error("There are no saved logs"); }

} // namespace

Object_AI::Object_AI(Object_AI *parent) : gp::Object_AI<Object_AI *, QString, Any>(this, parent) {}
Object_AI::Object_AI(const QString &name, Object_AI *parent)
    : gp::Object_AI<Object_AI *, QString, Any>(name, this, parent)
{}
Object_AI::Object_AI(const char *name, Object_AI *parent) : Object_AI(QString::fromUtf8(name), parent) {}
Object_AI::Object_AI(const Object_AI &other) : gp::Object_AI<Object_AI *, QString, Any>(other, this, 0) {}
Object_AI &Object_AI::operator=(const Object_AI &other) = default;
// NOLINTBEGIN(*-noexcept-move-*,*-exception-escape): handlers of events may throw
Object_AI::Object_AI(Object_AI &&other) : gp::Object_AI<Object_AI *, QString, Any>(std::move(other), this, 0) {}
Object_AI &Object_AI::operator=(Object_AI &&other) = default;
// NOLINTEND(*-noexcept-move-*,*-exception-escape)

// NOLINTNEXTLINE(bugprone-exception-escape): meant, it ends the process
Object_AI::~Object_AI()
{
    // What dies with an object above was searched with that one: another search of all below would be quadratic in a
    // chain. Logs that were made since are found by the object that they stand under.
    if (Log_AI::anyExists() && hasLogs(*this, diesWithParent() ? FindDirectChildren : FindWholeSubtree))
        refuseToDie();
}

Log_AI *Object_AI::log(const QString &type, const QString &descript, double confidenceLevel)
{
    return new Log_AI(type, descript, confidenceLevel, this);
}

void Object_AI::clearLog() { deleteLogs(logsUnder(*this)); }

void Object_AI::raiseLog()
{
    Object_AI *above = parent();
    if (!above)
        return;
    for (Log_AI *log : logsUnder(*this))
        above->insertChild(above->childCount(), static_cast<Object_AI *>(log));
}

void Object_AI::saveLog() { output(logsUnder(*this)); }

void Object_AI::output(const std::vector<Log_AI *> &logs)
{
    QJsonArray array;
    for (const Log_AI *log : logs)
        if (log)
            array.append(log->toJson());
    deleteLogs(logs);

    const QString path = QString::fromLatin1(kLogFile).arg(QUuid::createUuid().toString());
    if (makeFolderOf(path))
        writeFile(path, QJsonDocument(array).toJson());
}

} // namespace cv
