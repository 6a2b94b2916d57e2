#pragma once

#include "ORVCADPlatformExport.h"

#include <QtGlobal>

/** Section of a draw object: a number in a section library, and its kind. */
class ORVCADPLATFORM_EXPORT IHBXSection
{
public:
    virtual ~IHBXSection() = default;

    virtual qint64 number() const = 0;
    virtual int kind() const = 0;
};
