#pragma once

#include "ORVCADPlatformExport.h"

/** Layer and state flag of a draw object; kept as given. */
class ORVCADPLATFORM_EXPORT IHBXDrawObjStatus
{
public:
    virtual ~IHBXDrawObjStatus() = default;

    /** Any number: the host's own layers. */
    virtual void setLayer(int layer) = 0;
    /** Any number: the host's own flags. */
    virtual void setState(int state) = 0;

    /** What setLayer was given; 0 before. */
    virtual int layer() const = 0;
    /** What setState was given; 0 before. */
    virtual int state() const = 0;
};
