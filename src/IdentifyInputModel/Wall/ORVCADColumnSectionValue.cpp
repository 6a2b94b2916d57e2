#include "IdentifyInputModel/Wall/ORVCADColumnSectionValue.h"

QString ORVCADColumnSectionValue::sectionText(const std::shared_ptr<IHBXProperty> &property) const
{
    return value(property);
}
