#pragma once

#include "ORVCADPlatformExport.h"

#include <QtGlobal>

/** Section of a draw object: a number in a section library, and its kind. */
class ORVCADPLATFORM_EXPORT IHBXSection
{
public:
    virtual ~IHBXSection() = default;

    /** In the section library of the host. */
    virtual qint64 number() const = 0;
    /** A number of the host. */
    virtual int kind() const = 0;
};
