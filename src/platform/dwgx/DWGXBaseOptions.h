#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>

namespace dwgx {

/** Options that the user sets for the work on drawings. */
class ORVCADPLATFORM_EXPORT DWGXBaseOptions
{
public:
    virtual ~DWGXBaseOptions();

    /** Value of the option that the user sees under a label, in the language of the labels; the store's own default for
     *  an option that is not set, 0 for a label that it does not know. */
    virtual int intOption(const QString &label) const = 0;
};

} // namespace dwgx
