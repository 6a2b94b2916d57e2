#include "support/FuzzHost.h"

#include "support/FuzzInput.h"

#include <QFile>

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

void requireSound(const HBXProject &project)
{
    const QByteArray written = project.toJson();
    ProjectError error;
    const auto read = HBXProject::fromJson(written, QStringLiteral("written.json"), error);
    if (!read)
        require(false, error.text().toUtf8().constData());
    require(read->toJson() == written, "what is written reads back to the same");
}

} // namespace fuzz
