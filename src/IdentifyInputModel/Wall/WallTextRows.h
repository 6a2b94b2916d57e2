#pragma once

#include "IdentifyInputModel/Wall/IdentifyResultData.h"
#include "IdentifyInputModel/Wall/ORVCADCloudEntBrickWallStruct.h"
#include "IdentifyInputModel/Wall/ORVCADCloudEntForceWallStruct.h"
#include "platform/services/HBXElementTypes.h"
#include "platform/services/HBXPropertyNames.h"

/** Which text properties of the host belong to which fields. */
namespace wall {

namespace property = hbx::property;
namespace type = hbx::type;

template <typename Record> struct TextRow
{
    const std::wstring &name;
    std::wstring Record::*member;
};

// clang-format off
/** Bars of brick walls as the host keeps them. Meant: replies are written to other properties, those of the next list. */
inline constexpr TextRow<ORVCADCloudEntBrickWallStruct> kBrickBars[] = {
    {property::masonryThroughBar, &ORVCADCloudEntBrickWallStruct::throughBar},
    {property::transverseBar,     &ORVCADCloudEntBrickWallStruct::transverseBar},
};
inline constexpr TextRow<ORVCADCloudEntBrickWallStruct> kBrickBarsOfReplies[] = {
    {property::vertDistributionBar, &ORVCADCloudEntBrickWallStruct::throughBar},
    {property::horiDistributionBar, &ORVCADCloudEntBrickWallStruct::transverseBar},
};

/** Bars of load-bearing walls, as the host keeps them and as replies are written. */
inline constexpr TextRow<ORVCADCloudEntForceWallStruct> kForceBars[] = {
    {property::tieBar,              &ORVCADCloudEntForceWallStruct::tieBar},
    {property::vertDistributionBar, &ORVCADCloudEntForceWallStruct::vreBar},
    {property::horiDistributionBar, &ORVCADCloudEntForceWallStruct::hreBar},
};

/** Elevations of placed walls, in the order of writing. */
inline constexpr TextRow<IdentifyResultData> kElevations[] = {
    {property::startPtBottomElev, &IdentifyResultData::sPfnStartPtBottomElev},
    {property::endPtBottomElev,   &IdentifyResultData::sPfnEndPtBottomElev},
    {property::startPtTopElev,    &IdentifyResultData::sPfnStartPtTopElev},
    {property::endPtTopElev,      &IdentifyResultData::sPfnEndPtTopElev},
};
// clang-format on

} // namespace wall
