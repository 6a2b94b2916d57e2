#pragma once

#include <QtGlobal>

#include <string>

/** A brick wall element of the host: one named definition, of which walls are placed. */
struct ORVCADCloudEntBrickWallStruct
{
    std::wstring throughBar;    ///< bar text in the wall's through direction
    std::wstring transverseBar; ///< bar text across
    std::wstring material;      ///< a name or a number, as whoever filled it tells
    std::wstring entName;       ///< name of the element
    int elementType = 0;        ///< the host's numbers
    int elementSubType = 0;     ///< likewise
    int width = 0;              ///< thickness, mm
    qint64 edoId = 0;           ///< the element's id in the host
    int typePropertyValue = 0;  ///< the element's property "Type"
    std::wstring floorCode;     ///< in replies only
    std::wstring region;        ///< name; in replies only
};
