#pragma once

#include "ORVCADModelDataExport.h"
#include "drawing/NamedRecords.h"
#include "drawing/ORVCADScaleReviseDataItem.h"

#include <QJsonValue>
#include <QList>
#include <QString>

/** The scales of the drawings of a set.
 *
 *  The set owns its items and deletes them. A copy holds the very same items, so only one of the two may be destroyed
 *  while its list still has them. */
class ORVCADMODELDATA_EXPORT ORVCADScaleReviseData
{
public:
    ORVCADScaleReviseData() = default;
    ~ORVCADScaleReviseData();
    ORVCADScaleReviseData(const ORVCADScaleReviseData &) = default;
    ORVCADScaleReviseData &operator=(const ORVCADScaleReviseData &) = default; ///< as with a copy

    /** Appends an item and takes it over. */
    void addItem(ORVCADScaleReviseDataItem *item) { m_items.append(item); }
    /** Number of items, null ones included. */
    int getCount() const { return m_items.list().size(); }
    /** The list itself. */
    QList<ORVCADScaleReviseDataItem *> &getScaleReviseData() { return m_items.list(); }
    /** First item of exactly that drawing name, else null. */
    ORVCADScaleReviseDataItem *getScaleReviseDataItem(const QString &drawingName) const;

    /** Array of the items; a null one is left out. */
    QJsonValue toJson() const;
    /** Always null: scales are written and not read. */
    static ORVCADScaleReviseData *fromJson(const QJsonValue &json);

private:
    using Items = drawing::NamedRecords<ORVCADScaleReviseDataItem, &ORVCADScaleReviseDataItem::getDrawingName>;

    Items m_items;
};
