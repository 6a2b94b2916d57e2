#pragma once

#include "platform/services/IHBXPropInfoPainter.h"

#include <QString>

#include <memory>

class IHBXProperty;

/** Makes the text that a property is shown as. */
class ORVCADPLATFORM_EXPORT IHBXPropInfoBuilder : public IHBXPropInfoPainter
{
protected:
    /** The text of a property; empty for null and for a property without a value. */
    virtual QString value(std::shared_ptr<IHBXProperty> property) const = 0;
};
