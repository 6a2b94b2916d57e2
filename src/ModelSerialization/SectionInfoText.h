#pragma once

#include <QString>

/** "SectionInfo" of an outline: "100*a;100*b", the numbers of grid lines along x and y. */
inline QString sectionInfoText(int linesAlongX, int linesAlongY)
{
    return QStringLiteral("100*%1;100*%2").arg(linesAlongX).arg(linesAlongY);
}
