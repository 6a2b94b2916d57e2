#pragma once

#include "ORVCADModelDataExport.h"
#include "drawing/ORVCADLayerClassifyItem.h"

#include <QJsonObject>
#include <QList>

/** Per drawing and element type, the file that holds the classification of the layers.
 *
 *  The result owns its items and deletes them. A copy holds the very same items, so only one of the two may be destroyed
 *  or cleared while its list still has them. */
class ORVCADMODELDATA_EXPORT ORVCADLayerClassifyResult
{
public:
    ORVCADLayerClassifyResult() = default;
    ~ORVCADLayerClassifyResult();
    ORVCADLayerClassifyResult(const ORVCADLayerClassifyResult &) = default;
    ORVCADLayerClassifyResult &operator=(const ORVCADLayerClassifyResult &) = default; ///< as with a copy

    /** Appends an item and takes it over. */
    void add(ORVCADLayerClassifyItem *item) { m_items.append(item); }
    /** The list itself; after fromJson it can hold null. */
    QList<ORVCADLayerClassifyItem *> &getLayerClassifyItems() { return m_items; }
    /** Deletes the items and empties the list. */
    void clear();

    /** The items in order; a null one is left out. */
    QJsonObject toJson() const;
    /** A new result, which belongs to the caller; null when "LayerClassifyItems" is missing. An item that is refused
     *  stands in the list as null, so that the places of the others stay what they are in the document. */
    static ORVCADLayerClassifyResult *fromJson(const QJsonObject &json);

private:
    struct Fields; // the one list, in the source

    QList<ORVCADLayerClassifyItem *> m_items;
};
