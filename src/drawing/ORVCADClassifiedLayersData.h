#pragma once

#include "ORVCADModelDataExport.h"
#include "drawing/ORVCADClassifiedLayers.h"

#include <QJsonValue>
#include <QList>
#include <QString>

/** The sorted layers of all drawings of a project.
 *
 *  The set owns its groups and deletes them. A copy holds the very same groups, so only one of the two may be destroyed
 *  while its list still has them. */
class ORVCADMODELDATA_EXPORT ORVCADClassifiedLayersData
{
public:
    ORVCADClassifiedLayersData() = default;
    ~ORVCADClassifiedLayersData();
    ORVCADClassifiedLayersData(const ORVCADClassifiedLayersData &) = default;
    ORVCADClassifiedLayersData &operator=(const ORVCADClassifiedLayersData &) = default; ///< as with a copy

    /** Appends a group and takes it over. */
    void addLayers(ORVCADClassifiedLayers *layers) { m_groups.append(layers); }
    /** The list itself. */
    QList<ORVCADClassifiedLayers *> &getLayers() { return m_groups; }
    /** All groups of a drawing, in order. */
    QList<ORVCADClassifiedLayers *> getLayers(const QString &drawingName) const;
    /** The first group that is of the drawing or of the element type, else null. One of the two is enough, so it can be
     *  the group of another drawing. */
    ORVCADClassifiedLayers *getLayers(const QString &drawingName, int elementType) const;

    /** Array of the groups; a null one is left out. There is no reader. */
    QJsonValue toJson() const;

private:
    QList<ORVCADClassifiedLayers *> m_groups;
};
