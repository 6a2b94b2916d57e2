#pragma once

#include <QtGlobal>

#include <string>

/** A load-bearing concrete wall element of the host: one named definition, of which walls are placed. */
struct ORVCADCloudEntForceWallStruct
{
    std::wstring tieBar;    ///< bar text of the ties
    std::wstring hreBar;    ///< bar text, horizontal
    std::wstring vreBar;    ///< bar text, vertical
    std::wstring entName;   ///< name of the element
    int elementType = 0;    ///< the host's numbers
    int elementSubType = 0; ///< likewise
    int width = 0;          ///< thickness, mm
    qint64 edoId = 0;       ///< the element's id in the host
    std::wstring floorCode; ///< in replies only
    std::wstring region;    ///< name; in replies only
};
