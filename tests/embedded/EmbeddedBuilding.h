#pragma once

#include "platform/embedded/HBXModelStore.h"
#include "platform/geometry/CLine2d.h"
#include "platform/host/HBXModelException.h"
#include "platform/host/IHBXAxisGrid.h"
#include "platform/host/IHBXCheck.h"
#include "platform/host/IHBXCurState.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXDrawObjStatus.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFaceShape2D.h"
#include "platform/host/IHBXFaceSolidShape.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXGridShape.h"
#include "platform/host/IHBXLineShape2D.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXProperty.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXSection.h"
#include "platform/host/IHBXSectionHolder.h"
#include "platform/host/IHBXSectionPointSolidShape.h"
#include "platform/host/IHBXService.h"
#include "support/QStringPrinter.h"

#include <gtest/gtest.h>

namespace hbx::embedded {

using Point = vks::CVec2<double>;

/** Region "House" (1) with the floors "F1" (2, code "1", 0 m to 3 m) and "F2" (3, code "2", 3 m to 6.5 m); the first id
 *  that a test makes is 4. */
inline ProjectRecord emptyHouse()
{
    ProjectRecord record;
    record.name = QStringLiteral("Test");
    record.regions = {{1, QStringLiteral("House")}};
    FloorRecord first;
    first.id = 2;
    first.regionId = 1;
    first.name = QStringLiteral("F1");
    first.code = QStringLiteral("1");
    first.height = 3.0;
    FloorRecord second = first;
    second.id = 3;
    second.name = QStringLiteral("F2");
    second.code = QStringLiteral("2");
    second.bottomElev = 3.0;
    second.height = 3.5;
    record.floors = {first, second};
    return record;
}

inline vks::CRefPtr<vks::CPolygon> polygonOf(const char *text) { return vks::CPolygon::LoadFromString(text); }

inline vks::CRefPtr<vks::CCurve2d> curveOf(const char *text)
{
    return dynamic_cast<vks::CCurve2d *>(vks::CGeometry::LoadFromStr(text).get());
}

/** A grid with an outline, an axis in group 0 and one in group 2. */
inline ShapeRecord gridShape()
{
    ShapeRecord shape;
    shape.kind = IHBXShape::kGrid;
    shape.outline = polygonOf("POLYGON((0 0, 8000 0, 8000 6000, 0 6000, 0 0))");
    shape.axes[0] = {{QStringLiteral("1"), {curveOf("LINESTRING(0 0, 0 6000)")}}};
    shape.axes[2] = {{QStringLiteral("A"), {curveOf("LINESTRING(0 0, 8000 0)")}}};
    return shape;
}

/** A house with nothing in it, and short words for putting something there. */
class EmbeddedBuilding : public ::testing::Test
{
protected:
    EmbeddedBuilding() { store.load(emptyHouse()); }

    IHBXModel &model() { return *store.service()->model(); }
    IHBXElements &elements() { return *model().elements(); }
    IHBXDrawObjs &drawObjs() { return *model().drawObjects(); }
    IHBXFloor *floor(const char *name = "F1")
    {
        return model().regions()->at(0)->floors()->find(QString::fromLatin1(name));
    }
    IHBXElement *element(qint64 type, const char *name = "", const char *floorName = "F1", qint64 subType = 0)
    {
        return elements().createElement(type, subType, floor(floorName), QString::fromUtf8(name));
    }
    /** A unit of a foundation. */
    IHBXElement *unit(IHBXElement *parent, qint64 type = 82)
    {
        return elements().createElement(type, 0, parent, parent->floor(), 2, QString(), 0);
    }
    /** A draw object that is entered. */
    IHBXElementDrawObj *placed(IHBXElement *element)
    {
        IHBXElementDrawObj *object = drawObjs().createDrawObj(element->floor(), element, true);
        drawObjs().addDrawObj(object);
        return object;
    }
    IHBXElementDrawObj *wall(const char *axis, double thickness, qint64 type = 1003)
    {
        IHBXElement *ofWall = element(type);
        ofWall->properties()->setDouble(L"Thickness", thickness, false);
        IHBXElementDrawObj *object = placed(ofWall);
        as<IHBXCustomLineSolidShape>(object)->setLine(curveOf(axis));
        return object;
    }
    IHBXElementDrawObj *slab(const char *outline, const char *name = "")
    {
        IHBXElementDrawObj *object = placed(element(19, name));
        as<IHBXFaceSolidShape>(object)->setPolygon(polygonOf(outline));
        return object;
    }
    IHBXElementDrawObj *lineBar(const char *line, qint64 type = 23)
    {
        IHBXElementDrawObj *bar = placed(element(type));
        as<IHBXLineShape2D>(bar)->setLine(curveOf(line));
        return bar;
    }
    /** Loads a house with one element (4) and its draw object (5) of that shape alone. */
    IHBXElementDrawObj *loaded(qint64 type, const ShapeRecord &shape)
    {
        ProjectRecord record = emptyHouse();
        ElementRecord loadedElement;
        loadedElement.id = 4;
        loadedElement.floorId = 2;
        loadedElement.type = type;
        loadedElement.name = QStringLiteral("E");
        DrawObjRecord object;
        object.id = 5;
        object.elementId = 4;
        object.type = type;
        object.shape = shape;
        record.elements = {loadedElement};
        record.drawObjs = {object};
        store.load(record);
        return drawObjs().drawObjById(5);
    }
    template <typename Shape> static Shape *as(IHBXElementDrawObj *object)
    {
        return dynamic_cast<Shape *>(object->shape());
    }

    static vks::CRefPtr<vks::CPolygon> worldPoly(IHBXElementDrawObj *object)
    {
        vks::CRefPtr<vks::CPolygon> polygon;
        return object->shape()->worldPoly(polygon, IHBXModel::g_bDefaultAutoCalc);
    }
    static vks::CBox2<double> box(IHBXElementDrawObj *object)
    {
        vks::CBox2<double> out;
        return object->shape()->box(out, IHBXModel::g_bDefaultAutoCalc);
    }
    static QString nameOf(const IHBXElement *element)
    {
        QString out;
        return element->name(out);
    }
    static QString textIn(const IHBXProperties *properties, const wchar_t *name)
    {
        QString out;
        return properties->asString(out, std::wstring(name));
    }
    static double numberIn(const IHBXProperties *properties, const wchar_t *name)
    {
        return properties->asDouble(std::wstring(name));
    }
    static int wholeIn(const IHBXProperties *properties, const wchar_t *name)
    {
        return properties->asInt(std::wstring(name));
    }
    bool isAcceptable(IHBXElementDrawObj *object) { return model().checker()->checkDrawObj(object, error, collisions); }

    HBXModelStore store;
    HBXCheckError error;
    std::map<qint64, QString> collisions;
};

inline void expectBox(const vks::CBox2<double> &box, double minX, double minY, double maxX, double maxY)
{
    constexpr double kNear = 1e-6; // mm
    EXPECT_NEAR(box.minPt.x, minX, kNear);
    EXPECT_NEAR(box.minPt.y, minY, kNear);
    EXPECT_NEAR(box.maxPt.x, maxX, kNear);
    EXPECT_NEAR(box.maxPt.y, maxY, kNear);
}

} // namespace hbx::embedded
