#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>

/** One property of an element or draw object. */
class ORVCADPLATFORM_EXPORT IHBXProperty
{
public:
    virtual ~IHBXProperty() = default;

    /** False for a property that was never written and has no start value. */
    virtual bool hasValue() const = 0;
    /** The value as a whole number; 0 without one. */
    virtual int intValue() const = 0;
    /** Gives back the value from before the last write; called when a write threw. */
    virtual void revert() = 0;
    /** Throw HBXModelException for a value that the property cannot take. */
    virtual void setInt(int value, bool flag) = 0;
    /** The same for a text. */
    virtual void setString(const QString &value, bool flag) = 0;
};
