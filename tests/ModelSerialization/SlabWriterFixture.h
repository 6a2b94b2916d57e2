#pragma once

#include "ModelSerialization/ORVCADBoardLocalModelTransformHBXService_Sample.h"
#include "embedded/EmbeddedBuilding.h"
#include "geometry/KernelShapes.h"
#include "platform/dwgx/DWGXBaseBoxTree.h"
#include "platform/host/IHBXDrawObjStatus.h"
#include "slab/SlabModelFixture.h"
#include "support/RecordingHost.h"

#include <memory>

/** A house whose floor "F1" (id 2, code "1", 0 m to 3 m) is current, with layer 7, and a local model to be written there. */
class SlabWriterFixture : public hbx::embedded::EmbeddedBuilding
{
protected:
    using Service = ORVCADBoardLocalModelTransformHBXService_Sample;
    using Model = ORVCADBoardLocalModel_Sample;
    using Point = vks::CVec2<double>;
    using PolygonPtr = vks::CRefPtr<vks::CPolygon>;
    using CurvePtr = vks::CRefPtr<vks::CCurve2d>;

    SlabWriterFixture()
    {
        store.setCurrent(QStringLiteral("House"), QStringLiteral("F1"));
        store.setCurrentLayer(7);
    }

    /** A new element of the local model. */
    template <typename Element> Element *add() { return ORVCADBoardLocalModelTestAccess::add<Element>(local); }
    /** A new bar of an area. */
    template <typename Bar> Bar *addBar(const PolygonPtr &surface, const Point &direction = {1, 0})
    {
        Bar *bar = add<Bar>();
        bar->surface = surface;
        bar->direction = direction;
        bar->barInfo = QStringLiteral("C12@150");
        return bar;
    }
    /** A new bar along a line. */
    template <typename Bar> Bar *addLineBar(const Point &start, const Point &end, double left, double right)
    {
        Bar *bar = add<Bar>();
        bar->line = CurvePtr(new vks::CLine2d(start, end));
        bar->leftStretchLength = left;
        bar->rightStretchLength = right;
        bar->barInfo = QStringLiteral("C8@200");
        return bar;
    }

    /** A slab of the host, which bars are linked with. */
    IHBXElementDrawObj *hostSlab(double x, double y, double width, double height, const char *name = "",
                                 const char *topElev = "层顶标高")
    {
        IHBXElementDrawObj *object = placed(element(19, name));
        as<IHBXFaceSolidShape>(object)->setPolygon(shapes::rectangle(x, y, width, height));
        object->properties()->setString(L"TopElev", QString::fromUtf8(topElev), false);
        slabs->add(box(object), object);
        return object;
    }

    /** Writes the whole local model. */
    void write(const QString &region = "House", const QString &floorName = "F1")
    {
        ids = Service::local2hbx(&local, store.service(), slabs.get(), region, floorName);
    }
    QList<IHBXElementDrawObj *> written(qint64 type, const char *floorName = "F1")
    {
        QList<IHBXElementDrawObj *> out;
        floor(floorName)->drawObjsOfTypes(out, {type}, true);
        return out;
    }
    /** The only draw object of a type; fails, and null, when there is another number of them. */
    IHBXElementDrawObj *only(qint64 type)
    {
        const auto found = written(type);
        EXPECT_EQ(found.size(), 1);
        return found.size() == 1 ? found[0] : nullptr;
    }
    IHBXElement *named(const char *name, qint64 type)
    {
        return elements().findElement(QString::fromUtf8(name), floor()->id(), type, true, 0);
    }
    int elementCount(qint64 type)
    {
        QList<IHBXElement *> out;
        elements().queryElementsOnFloor(out, floor()->id(), type, true);
        return out.size();
    }
    static QString elementName(IHBXElementDrawObj *object) { return nameOf(object->element()); }
    static QString textOf(IHBXElementDrawObj *object, const wchar_t *name)
    {
        return textIn(object->properties(), name);
    }
    static int intOf(IHBXElementDrawObj *object, const wchar_t *name) { return wholeIn(object->properties(), name); }
    static std::string curveIn(IHBXElementDrawObj *object, const wchar_t *name = L"CurveData")
    {
        CurvePtr curve;
        object->properties()->asCurve(curve, std::wstring(name));
        return curve ? curve->ToText() : "none";
    }
    static void expectEqual(const QStringList &calls, const QStringList &expected)
    {
        EXPECT_EQ(calls, expected) << calls.join('\n').toStdString();
    }

    Model local;
    Service::IdMap ids;
    std::unique_ptr<dwgx::DWGXBaseBoxTree> slabs{dwgx::DWGXBaseBoxTree::createObject()};
};
