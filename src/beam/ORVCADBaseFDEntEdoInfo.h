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

    QString name;
    double height = 0.0; ///< mm
    double angle = 0.0;  ///< rad
    int elementType = 0;
    int elementSubType = 0;
    double axisOffset = 0.0; ///< mm
    QString topElev;
    QString btmElev;
    std::vector<std::shared_ptr<ORVCADBaseUnitEntEdoInfo>> units;
};
