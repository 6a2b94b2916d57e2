#pragma once

#include <QJsonObject>
#include <QMap>
#include <QString>

#include <vector>

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** What a project holds, counted. */
struct ProjectInfo
{
    struct TypeCount
    {
        int elements = 0;
        int drawObjects = 0; ///< placed objects
    };
    struct Floor
    {
        QString name;
        QString code;
        double bottomElev = 0.0; ///< m
        double height = 0.0;     ///< m
        QMap<qint64, TypeCount> types;
    };
    struct Region
    {
        QString name;
        std::vector<Floor> floors; ///< from the lowest up
    };

    QString name;
    QString source;
    std::vector<Region> regions;

    int floorCount() const;
    TypeCount total() const;
    /** The counts of a floor by names; none for one that there is not. */
    QMap<qint64, TypeCount> typesOn(const QString &region, const QString &floor) const;
    /** "1 region, 4 floors, 35 elements, 118 placed objects". */
    QString counts() const;
    /** A table for people. */
    QString table() const;
    QJsonObject toJson() const;
};

/** {"type", "title", "elements", "drawObjects"}. */
QJsonObject typeToJson(qint64 type, const ProjectInfo::TypeCount &count);

ProjectInfo projectInfo(const hbx::embedded::HBXProject &project);

} // namespace orvcad
