#pragma once

#include "ORVCADModelDataExport.h"

#include <QList>

#include <vector>

class IHBXElementDrawObj;

/** Which row bars of the host lie in. Bars that were drawn for the same place form a group; in a group they are told from
 *  each other by a number from 0 on, so that recognition can place them side by side. */
namespace slabhost {

struct NumberedBar
{
    IHBXElementDrawObj *bar;
    int row;
};

/** Area bars of one slab each, and those that straddle several: "Type" is 0 or another number. */
struct AreaBarRows
{
    std::vector<NumberedBar> single;
    std::vector<NumberedBar> straddling;
};

/** Area bars, the two kinds apart. A group has the same slabs or rafts, the same "Position" and a direction within 10 degrees of its first bar's,
 *  either way round, and is numbered by "BarInfo". The slabs are those items of "ReinforcementInfo" that have two fields;
 *  a bar without one is left out.
 *
 *  Groups come in the order of their slabs and positions, bars of equal text in the order in which they came. Meant: a bar
 *  stands in every group whose first bar it is parallel to, so it may come twice. Bars without a curve form a group of
 *  their own. */
ORVCADMODELDATA_EXPORT AreaBarRows areaBarRows(const QList<IHBXElementDrawObj *> &bars);

/** Line bars. A group lies on the line of its first bar, reaches to the same side of it, and is numbered by "BarInfo",
 *  "LeftLabel" and "RightLabel". A bar without a curve in the plan is left out. Groups come in the order of their first
 *  bars. */
ORVCADMODELDATA_EXPORT std::vector<NumberedBar> lineBarRows(const QList<IHBXElementDrawObj *> &bars);

} // namespace slabhost
