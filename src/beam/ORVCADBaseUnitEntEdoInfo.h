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

    QString name;
    int elementType = 0;
    int elementSubType = 0;
    double height = 0.0; ///< mm
    double angle = 0.0;  ///< rad
};
