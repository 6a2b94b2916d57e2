#pragma once

#include "platform/host/IHBXEObject.h"

#include <QList>
#include <QString>

class IHBXElementDrawObj;
class IHBXFloor;
class IHBXProperties;
class IHBXRegion;

/** The named definition of a building part; it has any number of draw objects. */
class ORVCADPLATFORM_EXPORT IHBXElement : public IHBXEObject
{
public:
    /** Names the element in the model while it lives. */
    virtual qint64 id() const = 0;
    /** Element type, a number of HBXElementTypes.h. */
    virtual qint64 type() const = 0;
    /** Kind of section within the type, a number of the host. */
    virtual qint64 subType() const = 0;
    /** The region of its floor. */
    virtual IHBXRegion *region() const = 0;
    /** The floor that it was made on. */
    virtual IHBXFloor *floor() const = 0;
    /** The property set; null only where a host keeps none for the type. */
    virtual IHBXProperties *properties() = 0;
    /** Rank among the units of a foundation. */
    virtual int orderNumber() const = 0;
    /** Fills and returns out. */
    virtual QString &name(QString &out) const = 0;
    /** Throws HBXModelException for an empty name and for one that another element of the type has on the floor. */
    virtual void setName(const QString &name) = 0;
    /** Deletes the element with its draw objects and units; this pointer is then dead. */
    virtual void remove() = 0;
    /** Entered draw objects of this element. */
    virtual int drawObjCount() const = 0;
    /** Fills out with those objects; the mode is the host's own. */
    virtual void drawObjs(QList<IHBXElementDrawObj *> &out, int mode) = 0;

    /** Owner of a unit, null for everything else. */
    virtual IHBXElement *parent() const = 0;
};
