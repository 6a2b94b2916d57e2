#pragma once

#include "platform/services/HBXPropInfoBuilder.h"

/** Shows the section type of a column: the property's integer in decimal. */
class ORVCADPLATFORM_EXPORT HBXSectionIDBuilder : public HBXPropInfoBuilder
{
private:
    QString textOf(const IHBXProperty &property) const override;
};
