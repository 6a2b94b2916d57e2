#include "platform/services/HBXPropInfoBuilder.h"

#include "platform/host/IHBXProperty.h"

QString HBXPropInfoBuilder::value(std::shared_ptr<IHBXProperty> property) const
{
    return property && property->hasValue() ? textOf(*property) : QString();
}
