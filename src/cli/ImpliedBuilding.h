#pragma once

#include <QMap>
#include <QSet>
#include <QString>

#include <memory>

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** The building that a reply takes for granted: the regions and floors that its members name, and the elements that they
 *  need and the reply does not make. What is wrong with the reply in such a building is wrong in any. */
class ImpliedBuilding
{
public:
    /** A floor whose name and code are the same; none for an empty name, which no building has. */
    void addFloor(const QString &region, const QString &floor);
    /** A door on that floor, and the floor. */
    void addDoor(const QString &region, const QString &floor, const QString &name);

    /** The building, in memory. */
    std::unique_ptr<hbx::embedded::HBXProject> project() const;

private:
    using Doors = QSet<QString>;
    QMap<QString, QMap<QString, Doors>> m_regions; // by region and floor
};

} // namespace orvcad
