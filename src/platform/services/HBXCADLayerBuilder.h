#pragma once

#include "ORVCADPlatformExport.h"

#include <string>

/** Layers of drawings as the layer manager of the current building keeps them. */
class ORVCADPLATFORM_EXPORT HBXCADLayerBuilder
{
public:
    /** The name under which the building keeps the layer of a title (s_str… in HBXOptionNames.h, translated): the option
     *  of the title in the group "CADLayerNames". The title itself where the building keeps none, or an empty one, and
     *  without a building. */
    static std::wstring getCustomLayerStoredName(const std::wstring &title);
};
