#pragma once

#include <QByteArray>
#include <QString>

class IHBXFloor;
class IHBXModel;

namespace orvcad {

/** A floor plan as an SVG page of A3 size: to a round scale, a colour and a legend entry per type, walls with their
 *  width, openings at their place, axes with their labels, names on elements that have room for them, a scale bar. */
struct PlanSvg
{
    QByteArray document;
    double scale = 0.0;      ///< 100 for 1:100
    int drawn = 0;           ///< placed objects on the picture
    int withoutGeometry = 0; ///< placed objects that it does not show
};

/** @param building  title of the page */
PlanSvg drawPlan(IHBXModel &model, const IHBXFloor &floor, const QString &building);

} // namespace orvcad
