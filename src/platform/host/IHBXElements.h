#pragma once

#include "ORVCADPlatformExport.h"

#include <QList>
#include <QSet>
#include <QString>

class IHBXElement;
class IHBXFloor;

/** Element store of a model. Type -1 asks for any type. Queries answer in id order and replace what out held. */
class ORVCADPLATFORM_EXPORT IHBXElements
{
public:
    virtual ~IHBXElements() = default;

    /** Makes an element on a floor; it belongs to the model. Null without a floor, for an unknown type, and for a unit
     *  (82, 83) without a parent. An empty name is replaced by a unique one; for a name that is taken by another element
     *  of the type on the floor likewise, with a suffix. Mode and flag are the host's own.
     *  @param parent  owner of a unit, null for everything else */
    virtual IHBXElement *createElement(qint64 type, qint64 subType, IHBXElement *parent, IHBXFloor *floor, int mode,
                                       const QString &name, int flag) = 0;
    /** The same without a parent, mode 0. */
    virtual IHBXElement *createElement(qint64 type, qint64 subType, IHBXFloor *floor, const QString &name) = 0;
    /** Null for an unknown id. */
    virtual IHBXElement *elementById(qint64 id) = 0;
    /** The first element, in id order, of that exact name and type on a floor; null when there is none. */
    virtual IHBXElement *findElement(const QString &name, int floorId, qint64 type, bool on, int flag) = 0;
    /** Elements of the types on the floors. */
    virtual void queryElements(QList<IHBXElement *> &out, const QSet<qint64> &floorIds,
                               const QSet<qint64> &elementTypes, bool on) = 0;
    /** The same of one floor and one type. */
    virtual void queryElementsOnFloor(QList<IHBXElement *> &out, qint64 floorId, qint64 type, bool on) = 0;
    /** A name that no element of the type has on a floor: the given one when it is free, else with a suffix "-1", "-2",
     *  …. Fills and returns out. */
    virtual QString &uniqueName(QString &out, qint64 floorId, qint64 type, const QString &name) = 0;

    /** Number of elements. */
    virtual int count() const = 0;
    /** Null for a position out of range. */
    virtual IHBXElement *at(int position) = 0;
};
