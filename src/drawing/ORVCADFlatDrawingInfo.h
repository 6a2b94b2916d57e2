#pragma once

#include <QString>

/** What a caller says of a drawing that is not split: a value that the library hands on and neither fills nor reads, so
 *  the fields have no meaning here. */
struct ORVCADFlatDrawingInfo
{
    QString text;        ///< the caller's own
    double first = 0.0;  ///< the caller's own
    double second = 0.0; ///< the caller's own
    double third = 0.0;  ///< the caller's own
    double fourth = 0.0; ///< the caller's own
};
