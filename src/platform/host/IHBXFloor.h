#pragma once

#include "ORVCADPlatformExport.h"

#include <QList>
#include <QSet>
#include <QString>

class IHBXElementDrawObj;
class IHBXRegion;

/** A floor of a region. Elevations and height are metres above the building's zero. */
class ORVCADPLATFORM_EXPORT IHBXFloor
{
public:
    virtual ~IHBXFloor() = default;

    /** Names the floor in the model. */
    virtual int id() const = 0;
    /** Short text of the floor: "0" the foundation floor, "1", "2", … upwards, "-1" a basement. Fills and returns out. */
    virtual QString &code(QString &out) const = 0;
    /** As shown to the user. */
    virtual QString name() const = 0;
    /** Elevation of its bottom, m. */
    virtual double bottomElev() const = 0;
    /** From its bottom to its top, m. */
    virtual double height() const = 0;
    /** Number of equal floors of the building that this one stands for. */
    virtual int standardFloorCount() const = 0;
    /** bottomElev plus height. */
    virtual double topElev() const = 0;
    /** True for a foundation floor. */
    virtual bool flag() const = 0;
    /** Fills out with the entered draw objects of those types on this floor, in id order; what it held is dropped. */
    virtual void drawObjsOfTypes(QList<IHBXElementDrawObj *> &out, const QSet<qint64> &types, bool on) = 0;

    /** The region that it belongs to. */
    virtual IHBXRegion *region() const = 0;
    /** Whatever the user noted; may be empty. */
    virtual QString remark() const = 0;

    /** The object of an id among those that drawObjsOfTypes gives, null when it is none of them. This looks at each of them: a
     *  host that finds objects by id does so instead. */
    virtual IHBXElementDrawObj *findDrawObj(qint64 id, const QSet<qint64> &types);
};
