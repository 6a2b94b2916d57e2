#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/CBox2.h"

#include <QList>
#include <QSet>

class IHBXElement;
class IHBXElementDrawObj;
class IHBXFloor;

/** Draw object store of a model. Queries answer with entered objects, in id order, and replace what out held. */
class ORVCADPLATFORM_EXPORT IHBXDrawObjs
{
public:
    /** In sub-type arguments: objects of all. */
    static constexpr int kAnySubType = -1;
    static constexpr int kAnySubType16 = 65535; ///< the same of those who keep sub-types in 16 bits

    virtual ~IHBXDrawObjs() = default;

    /** Makes a draw object of an element on a floor. It has an id at once and joins counts, queries and checks when
     *  addDrawObj enters it; until then remove() gives it back. Null without a floor or an element. */
    virtual IHBXElementDrawObj *createDrawObj(IHBXFloor *floor, IHBXElement *element, bool on) = 0;
    /** Enters a new draw object; null and an entered one change nothing. */
    virtual void addDrawObj(IHBXElementDrawObj *drawObj) = 0;
    /** Entered or not; null for an unknown id. */
    virtual IHBXElementDrawObj *drawObjById(qint64 id) = 0;
    /** Objects of the types on the floors. */
    virtual void queryDrawObjs(QList<IHBXElementDrawObj *> &out, const QSet<qint64> &floorIds,
                               const QSet<qint64> &elementTypes, bool on) = 0;
    /** Sub-types kAnySubType and kAnySubType16 ask for all. */
    virtual void queryDrawObjsOfFloor(QList<IHBXElementDrawObj *> &out, int floorId, int elementType, int subType,
                                      bool on) = 0;

    /** Number of entered objects. */
    virtual int count() const = 0;
    /** Null for a position out of range. */
    virtual IHBXElementDrawObj *at(int position) = 0;

    /** Of what queryDrawObjsOfFloor gives for all sub-types, the objects whose world boxes come within a tolerance (mm) of a
     *  box; none for an empty box. This looks at each object of the type: a host that knows where its objects lie answers
     *  from that instead. */
    virtual void queryDrawObjsInBox(QList<IHBXElementDrawObj *> &out, int floorId, int elementType,
                                    const vks::CBox2<double> &box, double tolerance);
};
