#pragma once

#include "ORVCADPlatformExport.h"

/** Shows properties to people. What and how is up to the kinds below it. */
class ORVCADPLATFORM_EXPORT IHBXPropInfoPainter
{
public:
    virtual ~IHBXPropInfoPainter() = default;
};
