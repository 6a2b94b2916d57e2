#include "support/FuzzHost.h"

#include "support/FuzzInput.h"

#include <QFile>
#include <QTemporaryDir>

namespace fuzz {

using hbx::embedded::HBXProject;
using hbx::embedded::ProjectError;

namespace {

QByteArray smallBuilding()
{
    QFile file(QStringLiteral(ORVCAD_FUZZ_CORPUS "/Exchange/small-house.json"));
    require(file.open(QIODevice::ReadOnly), "the small building is there");
    return file.readAll();
}

} // namespace

std::unique_ptr<HBXProject> smallProject()
{
    static const QByteArray building = smallBuilding();
    ProjectError error;
    auto project = HBXProject::fromJson(building, QStringLiteral("small-house.json"), error);
    require(project != nullptr, "the small building is sound");
    return project;
}

void requireKept(HBXProject &project)
{
    const QByteArray before = project.toJson();
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("saved.hbxdb"));
    ProjectError error;
    if (!project.saveAs(path, error))
        require(false, error.text().toUtf8().constData());
    const auto opened = HBXProject::open(path, error);
    if (!opened)
        require(false, error.text().toUtf8().constData());
    require(opened->toJson() == before, "what is saved opens as the same");
}

void requireSound(HBXProject &project)
{
    static QByteArray known; // most inputs change nothing
    const QByteArray written = project.toJson();
    if (written == known)
        return;
    ProjectError error;
    const auto read = HBXProject::fromJson(written, QStringLiteral("written.json"), error);
    if (!read)
        require(false, error.text().toUtf8().constData());
    require(read->toJson() == written, "what is written reads back to the same");
    requireKept(project);
    known = written;
}

} // namespace fuzz
