#pragma once

#include "ORVCADModelDataExport.h"

#include <QDomElement>
#include <QString>

#include <vector>

namespace encoding {

/** One attribute of an element. */
struct XmlAttribute
{
    QString name;
    QString value;
};

/** All attributes of an element in the order of their names, in time that is linear but for the sorting; none for null.
 *  QDomDocument gives them in another order in each process, and by number only with a walk over those before. */
ORVCADMODELDATA_EXPORT std::vector<XmlAttribute> attributesOf(const QDomElement &element);

} // namespace encoding
