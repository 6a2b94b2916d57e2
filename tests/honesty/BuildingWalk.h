#pragma once

#include <QJsonObject>
#include <QMap>
#include <QString>

#include <functional>
#include <vector>

namespace honestytest {

/** A building in the exchange form, counted by a walk through the document. */
struct BuildingWalk
{
    explicit BuildingWalk(const QJsonObject &building);

    struct Floor
    {
        QString region;
        QString name;
        QString code;
        QMap<int, int> elements; ///< by type; units apart
        QMap<int, int> units;    ///< by type
        QMap<int, int> drawObjs; ///< by type; the parts of one apart
        QMap<int, int> children; ///< parts of draw objects, by type
        int withoutGeometry = 0; ///< draw objects that have none
    };
    std::vector<Floor> floors;
    int regions = 0;

    int elements() const;
    int drawObjs() const;
    /** Draw objects of some types, on a floor or on all. */
    static int placed(const Floor &floor, const std::vector<int> &types);
    int placed(const std::vector<int> &types) const;
};

/** The sample building of that name. */
QJsonObject sampleBuilding(const char *name);
constexpr const char *kSampleBuildings[] = {"duplex-apartment", "masonry-block", "precast-hall", "made-building"};

} // namespace honestytest
