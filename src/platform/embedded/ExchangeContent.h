#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/embedded/HBXProjectRecords.h"

#include <QHash>

#include <optional>
#include <vector>

namespace hbx::embedded {

/** Which records of a project stand under which, in id order, and what objects are called in the exchange form. The
 *  project must outlive it. */
class ORVCADPLATFORM_EXPORT ExchangeContent
{
public:
    using Elements = std::vector<const ElementRecord *>;
    using DrawObjs = std::vector<const DrawObjRecord *>;

    explicit ExchangeContent(const ProjectRecord &project);

    std::vector<const FloorRecord *> floorsOf(qint64 regionId) const;
    /** Elements of a floor without units. */
    Elements elementsOf(int floorId) const { return m_elementsByFloor.value(floorId); }
    Elements unitsOf(qint64 elementId) const { return m_unitsByElement.value(elementId); }
    /** Objects of an element that are no children. */
    DrawObjs drawObjsOf(qint64 elementId) const { return m_drawObjsByElement.value(elementId); }
    DrawObjs childrenOf(qint64 drawObjId) const { return m_childrenByOwner.value(drawObjId); }

    const ElementRecord *element(qint64 id) const { return m_elements.value(id); }
    const DrawObjRecord *drawObj(qint64 id) const { return m_drawObjs.value(id); }
    /** Place among the element's objects that are no children. */
    int positionOf(qint64 drawObjId) const { return m_positions.value(drawObjId); }

    /** Key of an object, one made up where somebody refers to it and it has none; empty for an object that needs none. */
    QString keyOf(const DrawObjRecord &drawObj) const { return m_keys.value(drawObj.id); }
    /** Key by the decimal text of an id; nothing when there is no such object. */
    std::optional<QString> keyOfId(const QString &id) const;
    /** Place of creation among the objects of a floor by id; empty when they were made in the order of the file. */
    QHash<qint64, int> creationOrderOf(int floorId) const;

private:
    void sortElements(const ProjectRecord &project);
    void sortDrawObjs(const ProjectRecord &project);
    void giveKeys(const ProjectRecord &project);
    void giveKeysTo(const DrawObjRecord &user, QHash<QString, qint64> &taken);

    const ProjectRecord &m_project;
    QHash<int, Elements> m_elementsByFloor;
    QHash<qint64, Elements> m_unitsByElement;
    QHash<qint64, DrawObjs> m_drawObjsByElement;
    QHash<qint64, DrawObjs> m_childrenByOwner;
    QHash<qint64, const ElementRecord *> m_elements;
    QHash<qint64, const DrawObjRecord *> m_drawObjs;
    QHash<qint64, int> m_positions;
    QHash<qint64, QString> m_keys;
};

} // namespace hbx::embedded
