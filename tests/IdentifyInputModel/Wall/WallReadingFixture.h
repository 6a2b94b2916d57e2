#pragma once

#include "platform/embedded/HBXModelStore.h"
#include "support/HouseFixture.h"

/** A host with one floor and the walls, axes and columns that a test puts onto it. */
class WallReadingFixture : public HouseFixture
{
protected:
    /** An element as the exchange file has it, with what stands in its draw objects. */
    static QByteArray element(const QByteArray &name, int type, int subType, const QByteArray &properties,
                              const QByteArray &drawObjects = QByteArray())
    {
        return R"({"name": ")" + name + R"(", "type": )" + QByteArray::number(type) + R"(, "subType": )" +
               QByteArray::number(subType) + R"(, "properties": {)" + properties + R"(}, "drawObjects": [)" +
               drawObjects + "]}";
    }
    /** A placed wall of 200 mm; the axis as "0 0, 5000 0". */
    static QByteArray piece(const QByteArray &axis, const QByteArray &more = QByteArray())
    {
        return R"({"shape": {"kind": "line", "axis": "LINESTRING()" + axis + R"~()", "width": 200})~" + more + "}";
    }
    static QByteArray column(const QByteArray &more = QByteArray())
    {
        return R"~({"shape": {"kind": "point", "outline":
            "POLYGON((-200 -200, 200 -200, 200 200, -200 200, -200 -200))", "insertPoint": [1000, 2000]})~" +
               more + "}";
    }
    static QByteArray axis(const QByteArray &label, const QByteArray &points)
    {
        return R"({"label": ")" + label + R"(", "curve": "LINESTRING()" + points + R"~()"})~";
    }

    /** The building becomes current, with materials 1 "C30" and 2 "MU10". */
    void open(const QByteArray &elements, const QByteArray &options = "[]")
    {
        ASSERT_NO_FATAL_FAILURE(load(elements, options));
        project->store().setMaterials({{1, "C30"}, {2, "MU10"}});
        project->makeCurrent();
    }
    IHBXElementDrawObj *onlyPlaced(qint64 type) const
    {
        const QList<IHBXElementDrawObj *> objects = placed(type);
        EXPECT_EQ(objects.size(), 1);
        return objects.value(0);
    }
};
