#pragma once

#include "platform/geometry/CCurve2d.h"

#include <QList>
#include <QStringList>

#include <string>
#include <vector>

/** What the recognition of beams is told of a floor, in both families of identify records, which differ in the record of
 *  a seat.
 *
 *  The model deletes its seats. A copy shares them and would delete them again: only one of the two may be destroyed
 *  while it holds them. A moved-from model has no seats. */
template <typename SeatModel> class BeamInputFields
{
public:
    BeamInputFields() = default;
    BeamInputFields(const BeamInputFields &) = default;
    BeamInputFields(BeamInputFields &&) noexcept = default;
    BeamInputFields &operator=(const BeamInputFields &) = default;
    BeamInputFields &operator=(BeamInputFields &&) noexcept = default;
    ~BeamInputFields() { qDeleteAll(beamSeatInfos); }

    double curFloorHeight = 0.0;        ///< m
    bool bIsCurFloorFD = false;         ///< a foundation floor
    double curFloorBtmElev = 0.0;       ///< m
    qint64 nCurFloorID = 0;             ///< of the host
    QList<QStringList> strRawBeamCodes; ///< prefixes of beam labels, one list per kind of beam
    bool bIs11or16G = false;            ///< the plane rule in force is one of the two standards 11G and 16G
    QList<SeatModel *> beamSeatInfos;   ///< what beams may rest on
    std::vector<vks::CRefPtr<vks::CCurve2d>> axisLines; ///< in the world; null where a line has no projection
    std::wstring strBeamLineLayerName;                  ///< of the beams' lines; nothing fills it
    std::wstring strBeamBorderLayerName;                ///< of the beams' borders; nothing fills it
    std::wstring strBeamJZBZLayerName;                  ///< of the beams' collective labels
    std::wstring strBeamYWBZLayerName;                  ///< of the beams' in-place labels
};
