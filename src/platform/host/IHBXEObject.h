#pragma once

#include "ORVCADPlatformExport.h"

/** What elements and draw objects have in common. */
class ORVCADPLATFORM_EXPORT IHBXEObject
{
public:
    /** The kinds, by the numbers that objectKind() gives. */
    enum Kind { kElement = 0, kDrawObj = 1 };

    virtual ~IHBXEObject() = default;

    /** 0 for an element, 1 for a draw object. */
    virtual int objectKind() const = 0;
};
