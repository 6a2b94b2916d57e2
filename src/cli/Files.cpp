#include "cli/Files.h"

#include "cli/Command.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringList>

#include <cstdio>

using hbx::embedded::HBXProject;
using hbx::embedded::ProjectError;

namespace orvcad {

namespace {

[[noreturn]] void fail(const ProjectError &error)
{
    throw CommandFailure(kBadInput, error.file, error.place, error.reason);
}

IHBXRegions &regionsOf(const HBXProject &project) { return *project.service()->model()->regions(); }

QString quotedList(const QStringList &names)
{
    return names.isEmpty() ? QStringLiteral("none") : '"' + names.join(QStringLiteral("\", \"")) + '"';
}

QString knownRegions(const HBXProject &project)
{
    QStringList names;
    for (int i = 0; i < regionsOf(project).count(); ++i)
        names.append(regionsOf(project).at(i)->name());
    return quotedList(names);
}

QString knownFloors(IHBXRegion &region)
{
    QStringList names;
    for (int i = 0; i < region.floors()->count(); ++i)
        names.append(region.floors()->at(i)->name());
    return quotedList(names);
}

/** Line and column, counted from 1, of a byte position. */
QString lineAndColumn(const QByteArray &bytes, int offset)
{
    const QByteArray before = bytes.left(offset);
    const int line = before.count('\n') + 1;
    const int column = offset - before.lastIndexOf('\n');
    return QStringLiteral("line %1, column %2").arg(line).arg(column);
}

void appendFloors(IHBXRegion &region, std::vector<IHBXFloor *> &floors)
{
    for (int i = 0; i < region.floors()->count(); ++i)
        floors.push_back(region.floors()->at(i));
}

} // namespace

QByteArray readFile(const QString &path)
{
    QFile file(path);
    if (QFileInfo(path).isDir())
        throw CommandFailure(kBadInput, path, {}, QStringLiteral("is a directory"));
    if (!file.open(QIODevice::ReadOnly))
        throw CommandFailure(kBadInput, path, {}, file.errorString());
    return file.readAll();
}

QJsonDocument readJsonFile(const QString &path)
{
    const QByteArray bytes = readFile(path);
    if (bytes.trimmed().isEmpty())
        throw CommandFailure(kBadInput, path, {}, QStringLiteral("the file is empty"));
    QJsonParseError error;
    QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError)
        throw CommandFailure(kBadInput, path, lineAndColumn(bytes, error.offset),
                             QStringLiteral("not JSON: ") + error.errorString());
    return document;
}

bool writeResult(const QString &path, const QByteArray &bytes)
{
    if (path.isEmpty() || path == QLatin1String("-")) {
        const auto size = static_cast<std::size_t>(bytes.size());
        if (std::fwrite(bytes.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0)
            throw CommandFailure(kBadInput, QStringLiteral("standard output"), {}, QStringLiteral("cannot be written"));
        return true;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw CommandFailure(kBadInput, path, {}, QStringLiteral("cannot be written: ") + file.errorString());
    return false;
}

std::unique_ptr<HBXProject> openProject(const QString &path)
{
    ProjectError error;
    auto project = HBXProject::open(path, error);
    if (!project)
        fail(error);
    return project;
}

void saveProject(HBXProject &project)
{
    ProjectError error;
    if (!project.save(error))
        fail(error);
}

void saveProjectAs(HBXProject &project, const QString &path)
{
    ProjectError error;
    if (!project.saveAs(path, error))
        fail(error);
}

IHBXRegion &requireRegion(const HBXProject &project, const QString &name)
{
    IHBXRegion *region =
        name.isEmpty() && regionsOf(project).count() == 1 ? regionsOf(project).at(0) : regionsOf(project).find(name);
    if (!region) {
        const QString reason =
            name.isEmpty() ? QStringLiteral("no --region is given") : QStringLiteral("no region \"%1\"").arg(name);
        throw CommandFailure(kBadInput, project.path(), {},
                             reason + QStringLiteral("; known regions: ") + knownRegions(project));
    }
    return *region;
}

IHBXFloor &requireFloor(const HBXProject &project, IHBXRegion &region, const QString &name)
{
    IHBXFloor *floor = region.floors()->find(name);
    if (!floor)
        floor = region.floors()->findByCode(name);
    if (!floor)
        throw CommandFailure(
            kBadInput, project.path(), {},
            QStringLiteral("no floor \"%1\" in region \"%2\"; known floors: ").arg(name, region.name()) +
                knownFloors(region));
    return *floor;
}

std::vector<IHBXFloor *> pickFloors(const HBXProject &project, const QString &region, const QString &floor)
{
    std::vector<IHBXFloor *> floors;
    if (!floor.isEmpty()) {
        floors.push_back(&requireFloor(project, requireRegion(project, region), floor));
    } else if (!region.isEmpty()) {
        appendFloors(requireRegion(project, region), floors);
    } else {
        for (int i = 0; i < regionsOf(project).count(); ++i)
            appendFloors(*regionsOf(project).at(i), floors);
    }
    return floors;
}

QString fileIn(const QString &directory, const QString &name)
{
    if (!QDir().mkpath(directory))
        throw CommandFailure(kBadInput, directory, {}, QStringLiteral("the directory cannot be made"));
    return QDir(directory).filePath(name);
}

} // namespace orvcad
