#pragma once

#include "platform/geometry/CPolygon.h"

#include <QtGlobal>

#include <string>

/** A point-shaped object that stands in the host, in practice a column. A copy shares the polygon. */
struct ORVCADCloudHBXModelPointEdoStruct
{
    vks::CRefPtr<vks::CPolygon> worldPoly; ///< outline in the world, mm; may be null
    qint64 edoId = 0;                      ///< the placed object's id in the host
    int modelEdoType = 0;                  ///< its property "Type"
    std::wstring entName;                  ///< of its element
    int elementType = 0;                   ///< the host's numbers
    int elementSubType = 0;                ///< likewise
    std::wstring SectionTypeID;            ///< text of the section type; empty where the element has none
};
