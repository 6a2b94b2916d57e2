#pragma once

#include "cli/PlanLegend.h"
#include "cli/PlanObjects.h"
#include "cli/PlanShades.h"
#include "platform/geometry/CBox2.h"

#include <QMap>

#include <vector>

class IHBXFloor;
class IHBXModel;

namespace orvcad {

/** What there is to be drawn of a floor. */
struct PlanContents
{
    std::vector<PlanObject> objects;      ///< from the bottom of the picture to its top, those of a type together
    QMap<int, PlanLegend::Entry> entries; ///< by place from the bottom
    QMap<qint64, PlanShades> shades;      ///< by type, of slabs and rafts
    vks::CBox2<double> box;               ///< mm; not valid where there is nothing
    int withoutGeometry = 0;              ///< objects that no plan can show
};

PlanContents planContentsOf(IHBXModel &model, const IHBXFloor &floor);

} // namespace orvcad
