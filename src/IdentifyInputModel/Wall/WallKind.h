#pragma once

#include "IdentifyInputModel/Wall/ORVCADInputModelSerialization.h"
#include "IdentifyInputModel/Wall/ORVCADOutputModelSerialization.h"

namespace wall {

/** How documents hold each kind of walls: those that the host has, in inputs, and those that were identified, in replies. */
template <typename Wall> struct WallKind;

template <> struct WallKind<ORVCADCloudEntBrickWallStruct>
{
    static constexpr auto saveInput = &ORVCADInputModelSerialization::saveCadEntBrickWallDataInfo;
    static constexpr auto loadInput = &ORVCADInputModelSerialization::loadCadEntBrickWallDataInfo;
    static constexpr auto saveReply = &ORVCADOutputModelSerialization::saveBrickWallIdentifyData;
    static constexpr auto loadReply = &ORVCADOutputModelSerialization::loadBrickWallIdentifyData;
};

template <> struct WallKind<ORVCADCloudEntForceWallStruct>
{
    static constexpr auto saveInput = &ORVCADInputModelSerialization::saveCadEntForceWallDataInfo;
    static constexpr auto loadInput = &ORVCADInputModelSerialization::loadCadEntForceWallDataInfo;
    static constexpr auto saveReply = &ORVCADOutputModelSerialization::saveForceWallIdentifyData;
    static constexpr auto loadReply = &ORVCADOutputModelSerialization::loadForceWallIdentifyData;
};

} // namespace wall
