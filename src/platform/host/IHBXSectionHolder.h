#pragma once

#include "ORVCADPlatformExport.h"

class IHBXSection;

/** Holder of the section of a draw object. */
class ORVCADPLATFORM_EXPORT IHBXSectionHolder
{
public:
    virtual ~IHBXSectionHolder() = default;

    /** Null when no section is set. */
    virtual IHBXSection *section() = 0;
};
