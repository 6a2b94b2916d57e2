#pragma once

#include "ORVCADModelDataExport.h"
#include "drawing/ORVCADDrawingLocationDataItem.h"

#include <QJsonValue>
#include <QList>

/** Where the drawings of a set lie against the axes of the building.
 *
 *  The set owns its items and deletes them. A copy holds the very same items, so only one of the two may be destroyed
 *  while its list still has them. */
class ORVCADMODELDATA_EXPORT ORVCADDrawingLocationData
{
public:
    ORVCADDrawingLocationData() = default;
    ~ORVCADDrawingLocationData();
    ORVCADDrawingLocationData(const ORVCADDrawingLocationData &) = default;
    /** As with a copy; what was held before is not deleted. */
    ORVCADDrawingLocationData &operator=(const ORVCADDrawingLocationData &) = default;

    /** Appends an item and takes it over. */
    void addItem(ORVCADDrawingLocationDataItem *item) { m_items.append(item); }

    /** Array of the items; a null one is left out. */
    QJsonValue toJson() const;
    /** Always null: locations are written and not read. */
    static ORVCADDrawingLocationData *fromJson(const QJsonValue &json);

private:
    QList<ORVCADDrawingLocationDataItem *> m_items;
};
