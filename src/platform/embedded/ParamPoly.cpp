#include "platform/services/ParamPoly.h"

#include <QStringList>

void stringToParamPoly(const QString &text, QString &xGrid, int & /*kind*/, QString &yGrid, QString &insertPoint)
{
    const QStringList parts = text.split(u';'); // ahead of the outputs, one of which may be the text itself
    xGrid = parts.value(0);
    yGrid = parts.value(1);
    insertPoint = parts.value(2);
}
