#pragma once

#include "beam/ORVCADBaseUnitEntEdoInfo.h"

#include <memory>
#include <vector>

/** A foundation with its units, carried for the calling module and never looked into here. A copy shares the units. */
class ORVCADBaseFDEntEdoInfo
{
public:
    ORVCADBaseFDEntEdoInfo() = default;
    ORVCADBaseFDEntEdoInfo(const ORVCADBaseFDEntEdoInfo &) = default;
    ORVCADBaseFDEntEdoInfo &operator=(const ORVCADBaseFDEntEdoInfo &) = default;
    virtual ~ORVCADBaseFDEntEdoInfo() = default;

    QString name;                                                 ///< of the element
    double height = 0.0;                                          ///< mm
    double angle = 0.0;                                           ///< rad
    int elementType = 0;                                          ///< of the host
    int elementSubType = 0;                                       ///< of the host
    double axisOffset = 0.0;                                      ///< mm
    QString topElev;                                              ///< as the host keeps it
    QString btmElev;                                              ///< as the host keeps it
    std::vector<std::shared_ptr<ORVCADBaseUnitEntEdoInfo>> units; ///< below it
};
