#include "platform/services/ParamPoly.h"

void stringToParamPoly(const QString &text, QString &xGrid, int & /*kind*/, QString &yGrid, QString &insertPoint)
{
    const QString parts = text; // an output may be the text itself
    xGrid = parts.section(u';', 0, 0);
    yGrid = parts.section(u';', 1, 1);
    insertPoint = parts.section(u';', 2, 2);
}
