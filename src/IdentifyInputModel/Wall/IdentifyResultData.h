#pragma once

#include "platform/geometry/CCurve2d.h"
#include "platform/geometry/CPolygon.h"

#include <list>
#include <string>
#include <vector>

/** One wall piece that was identified. A copy shares curve and polygon. */
struct IdentifyResultData
{
    vks::CRefPtr<vks::CCurve2d> sWorldLine;             ///< centre line in the world, mm; may be null
    vks::CRefPtr<vks::CPolygon> sPolys;                 ///< outline in the world, mm; may be null
    std::string sStrTextInfo;                           ///< text that belongs to the piece, UTF-8
    double sWidth = 0.0;                                ///< mm
    std::wstring sPfnStartPtTopElev;                    ///< as the host has it: metres, or a base word with a number
    std::wstring sPfnStartPtBottomElev;                 ///< likewise
    std::wstring sPfnEndPtTopElev;                      ///< likewise
    std::wstring sPfnEndPtBottomElev;                   ///< likewise
    std::wstring sStrEntName;                           ///< of its element
    std::list<std::vector<int>> sSegmentEntityDataList; ///< ids of the drawing's entities, segment by segment
    std::wstring floorCode;                             ///< of the floor that it stands on
    std::wstring region;                                ///< name of the region
};
