#pragma once

#include "platform/host/IHBXFloor.h"

/** A floor whose numbers and texts all differ. It leaves the search for a draw object to its base. */
class PlainFloor : public IHBXFloor
{
public:
    int id() const override { return 12; }
    QString &code(QString &out) const override { return out = "2"; }
    QString name() const override { return floorName; }
    double bottomElev() const override { return 3.25; }
    double height() const override { return 3.0; }
    int standardFloorCount() const override { return 4; }
    double topElev() const override { return 6.25; }
    bool flag() const override { return false; }
    void drawObjsOfTypes(QList<IHBXElementDrawObj *> &out, const QSet<qint64> &types, bool /*on*/) override
    {
        askedTypes = types;
        out = drawObjs;
    }
    IHBXRegion *region() const override { return nullptr; }
    QString remark() const override { return "remark"; }

    QString floorName = "Level 2";
    QList<IHBXElementDrawObj *> drawObjs;
    QSet<qint64> askedTypes; ///< those that draw objects were last asked of
};
