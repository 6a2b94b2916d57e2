#pragma once

#include <QString>

/** A unit below a foundation, carried for the calling module and never looked into here. */
class ORVCADBaseUnitEntEdoInfo
{
public:
    ORVCADBaseUnitEntEdoInfo() = default;
    ORVCADBaseUnitEntEdoInfo(const ORVCADBaseUnitEntEdoInfo &) = default;
    ORVCADBaseUnitEntEdoInfo &operator=(const ORVCADBaseUnitEntEdoInfo &) = default;
    virtual ~ORVCADBaseUnitEntEdoInfo() = default;

    QString name;           ///< of the element
    int elementType = 0;    ///< of the host
    int elementSubType = 0; ///< of the host
    double height = 0.0;    ///< mm
    double angle = 0.0;     ///< rad
};
