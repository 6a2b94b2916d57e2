#include "cli/ImpliedBuilding.h"

#include "platform/embedded/HBXProject.h"
#include "platform/services/HBXElementTypes.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using hbx::embedded::HBXProject;
using hbx::embedded::ProjectError;

namespace orvcad {

namespace {

constexpr double kHeight = 3; // of every floor, m

} // namespace

void ImpliedBuilding::addFloor(const QString &region, const QString &floor)
{
    if (!region.isEmpty() && !floor.isEmpty())
        m_regions[region][floor];
}

void ImpliedBuilding::addDoor(const QString &region, const QString &floor, const QString &name)
{
    addFloor(region, floor);
    if (!region.isEmpty() && !floor.isEmpty() && !name.isEmpty())
        m_regions[region][floor].insert(name);
}

std::unique_ptr<HBXProject> ImpliedBuilding::project() const
{
    QJsonArray regions;
    for (auto region = m_regions.begin(); region != m_regions.end(); ++region) {
        QJsonArray floors;
        for (auto floor = region->begin(); floor != region->end(); ++floor) {
            QJsonArray elements;
            for (const QString &door : *floor)
                elements.append(QJsonObject{{"name", door}, {"type", hbx::type::door}});
            floors.append(QJsonObject{{"name", floor.key()},
                                      {"code", floor.key()},
                                      {"bottomElev", kHeight * floors.size()},
                                      {"height", kHeight},
                                      {"elements", elements}});
        }
        regions.append(QJsonObject{{"name", region.key()}, {"floors", floors}});
    }
    const QJsonObject building{{"format", "hbx-project"}, {"version", 1}, {"name", QString()}, {"regions", regions}};
    ProjectError error;
    return HBXProject::fromJson(QJsonDocument(building).toJson(QJsonDocument::Compact), QString(), error);
}

} // namespace orvcad
