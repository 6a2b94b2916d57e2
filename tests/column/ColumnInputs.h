#pragma once

#include "column/ORVCADAxisLine.h"
#include "column/ORVCADIdentifyColumnOptions.h"
#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"

#include <memory>
#include <vector>

/** What the documents of both inputs, tests/data/columns, have in common. */
namespace columninputs {

inline ORVCADIdentifyColumnOptions options()
{
    ORVCADIdentifyColumnOptions options;
    options.KJZMark = "KJZ";
    options.AZMark = "AZ";
    options.DZMark = "D";
    options.KZZMark = "KZ";
    options.ZHZMark = "ZHZ1";
    options.GZZMark = "GZZ";
    options.bSideBarAverageDistribution = true;
    options.MaxSearchExtent = 3000;
    return options;
}

inline std::shared_ptr<ORVCADAxisLine> axisLine(vks::CCurve2d *curve)
{
    return std::make_shared<ORVCADAxisLine>(ORVCADAxisLine{curve});
}

/** A straight one and an arc. */
inline std::vector<std::shared_ptr<ORVCADAxisLine>> axisLines()
{
    return {axisLine(new vks::CLine2d({0, 0}, {10000, 0})), axisLine(new vks::CArc2d({0, 0}, {6000, 0}, 0.5))};
}

} // namespace columninputs
