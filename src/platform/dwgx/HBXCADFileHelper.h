#pragma once

#include "ORVCADPlatformExport.h"

class HBXCADIOperator;

/** Way to the drawing files of the host. */
class ORVCADPLATFORM_EXPORT HBXCADFileHelper
{
public:
    /** The one helper; it lives as long as the process. */
    static HBXCADFileHelper *getInstance();
    /** A new operator, which the caller deletes; null when the host has none. */
    HBXCADIOperator *createCADIOperator();

private:
    HBXCADFileHelper() = default;
};
