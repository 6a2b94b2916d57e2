#pragma once

#include "platform/geometry/CCurve2d.h"
#include "platform/geometry/CPolygon.h"

#include <QString>

#include <optional>
#include <vector>

class IHBXElementDrawObj;

namespace orvcad {

/** What a plan shows of a placed object, in the plan of the building, mm. */
struct PlanObject
{
    struct Axis
    {
        QString label;
        vks::CRefPtr<vks::CCurve2d> line;
    };

    IHBXElementDrawObj *object = nullptr;
    vks::CRefPtr<vks::CPolygon> outline; ///< null for a curve
    vks::CRefPtr<vks::CCurve2d> curve;   ///< of plan lines
    std::vector<Axis> axes;              ///< of grids
    vks::CRefPtr<vks::CCurve2d> bar;     ///< one bar of those that the object stands for, where it is drawn; else null
    QString barText;                     ///< C12@150
    std::optional<double> topElev;       ///< of slabs and rafts, mm above the building's zero

    bool hasGeometry() const { return outline || curve || !axes.empty(); }
    vks::CBox2<double> box() const;
};

PlanObject planObjectOf(IHBXElementDrawObj &object);

} // namespace orvcad
