#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>

/** What the identify modules share. */
class ORVCADPLATFORM_EXPORT ORVCADCommonUtils
{
public:
    /** Name of the table of identify options in a model's database. */
    static QString getCADIdentifyOptionTableName();
};
