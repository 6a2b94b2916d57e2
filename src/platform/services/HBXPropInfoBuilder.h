#pragma once

#include "platform/services/IHBXPropInfoBuilder.h"

/** Base of the builders: keeps null and properties without a value from them. */
class ORVCADPLATFORM_EXPORT HBXPropInfoBuilder : public IHBXPropInfoBuilder
{
protected:
    QString value(std::shared_ptr<IHBXProperty> property) const override;

private:
    /** The text of a property that has a value. */
    virtual QString textOf(const IHBXProperty &property) const = 0;
};
