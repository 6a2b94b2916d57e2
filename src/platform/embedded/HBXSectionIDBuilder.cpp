#include "platform/services/HBXSectionIDBuilder.h"

#include "platform/host/IHBXProperty.h"

QString HBXSectionIDBuilder::textOf(const IHBXProperty &property) const { return QString::number(property.intValue()); }
