#pragma once

#include "platform/host/IHBXEObject.h"

#include <QtGlobal>

class IHBXDrawObjStatus;
class IHBXElement;
class IHBXFloor;
class IHBXProperties;
class IHBXRegion;
class IHBXSectionHolder;
class IHBXShape;

/** One placed instance of an element. */
class ORVCADPLATFORM_EXPORT IHBXElementDrawObj : public IHBXEObject
{
public:
    /** Names the object in the model from its making on, entered or not. */
    virtual qint64 id() const = 0;
    /** Element type, a number of HBXElementTypes.h. */
    virtual qint64 type() const = 0;
    /** Kind of section within the type, a number of the host. */
    virtual qint64 subType() const = 0;
    /** The region of its floor. */
    virtual IHBXRegion *region() const = 0;
    /** The floor that it stands on. */
    virtual IHBXFloor *floor() const = 0;
    /** The object's own values over those of its element; a write makes the value its own. Null only where a host keeps
     *  no set for the type. */
    virtual IHBXProperties *properties() = 0;
    /** A copy with an id of its own that is not yet entered; the three numbers are 0, 0 and 1. Null when it cannot. */
    virtual IHBXElementDrawObj *cloneDrawObj(int mode, int flag, int depth) = 0;
    /** Unlinks, detaches and destroys the object; this pointer is then dead. */
    virtual void remove() = 0;
    /** The element that it is an instance of. */
    virtual IHBXElement *element() const = 0;
    /** The geometry, to be cast to its kind; null when the type has none. */
    virtual IHBXShape *shape() = 0;
    /** Its layer and state. */
    virtual IHBXDrawObjStatus *status() = 0;
    /** Number of its children: one for each unit of its element. */
    virtual int childCount() const = 0;
    /** Null for an index out of range. */
    virtual IHBXElementDrawObj *child(int index) const = 0;
    /** Attaches an opening to its wall, a hole to its slab or raft, on the same floor; null detaches. Anything else changes
     *  nothing. */
    virtual void attachTo(IHBXElementDrawObj *parent) = 0;
    /** Null when the object has no section. */
    virtual IHBXSectionHolder *sectionHolder() = 0;
    /** First object of the chain that holds this one. A beam object (15, 17, 18, 47) that is linked to nothing is its own
     *  head; null for other types and before the object is entered. */
    virtual IHBXElementDrawObj *chainHead() = 0;
    /** The object that is linked behind this one; null where the chain ends. */
    virtual IHBXElementDrawObj *nextInChain() = 0;
    /** Makes next the following link; null ends the chain here. A link that would close a ring changes nothing, and so does
     *  one of an object that is no beam, and one to an object of another element. */
    virtual void linkNext(IHBXElementDrawObj *next) = 0;

    /** What attachTo was given, or the owner of a child; null when there is none. */
    virtual IHBXElementDrawObj *parent() const = 0;
};
