#pragma once

#include <QString>

/** The bar texts of a column, with the pictures of its hoops. */
struct ColumnBarInfo
{
    QString pfnVertBar;   ///< bar text, all vertical bars
    QString pfnCornerBar; ///< bar text, at the corners
    QString pfnBSideBar;  ///< bar text, along the B side
    QString pfnHSideBar;  ///< bar text, along the H side
    QString pfnHoopBar;   ///< bar text of the hoops
    QString strLimb;      ///< limbs on the B side "*" limbs on the H side; see ORVCADColumnHoopBarSettingPar
    int nBSidePicID = 0;  ///< hoop picture of the B side
    int nHSidePicID = 0;  ///< hoop picture of the H side
};
