#pragma once

#include <QString>

/** The bar texts of a column, with the pictures of its hoops. */
struct ColumnBarInfo
{
    QString pfnVertBar;
    QString pfnCornerBar;
    QString pfnBSideBar;
    QString pfnHSideBar;
    QString pfnHoopBar;
    QString strLimb;     ///< limbs on the B side "*" limbs on the H side; see ORVCADColumnHoopBarSettingPar
    int nBSidePicID = 0; ///< hoop picture of the B side
    int nHSidePicID = 0; ///< hoop picture of the H side
};
