#pragma once

#include "ORVCADPlatformExport.h"

#include <QMap>
#include <QString>

class IHBXModel;

/** The one reading of a group of identify options, name to value, out of the model's database. Of a name that stands
 *  twice in the table the first row counts. A null model, a model without a database and a database without the table
 *  give no options. */
ORVCADPLATFORM_EXPORT QMap<QString, QString> readOptionGroup(IHBXModel *model, const QString &group);
/** The same into a map that may hold options already: those stay as they are. */
ORVCADPLATFORM_EXPORT void insertOptionGroup(IHBXModel *model, const QString &group, QMap<QString, QString> &options);
