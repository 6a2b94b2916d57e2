#pragma once

/** Options of the wall identification, mm. The library has no defaults of its own: they come from the host. */
struct ORVCADCloudWalloptionDataStruct
{
    int maxOpeningWidth = 0;             ///< widest opening that is still bridged as one wall
    int maxWallLineWidth = 0;            ///< largest distance of two parallel wall lines
    int wallLineWidthDeviationRange = 0; ///< tolerance of that distance
    int wallEndExtensionRange = 0;       ///< tolerance when a wall's end is extended to meet another wall
    int wallAndWindowExtenHRange = 0;    ///< the same to meet a door or window, horizontal
    int wallAndWindowExtenVRange = 0;    ///< the same, vertical
};
