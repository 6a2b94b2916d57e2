#pragma once

#include "ModelSerialization/ORVCADBoardLocalModelTransformHBXService_Sample.h"
#include "embedded/EmbeddedBuilding.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

/** A house whose floor "F1" (id 2, 0 m to 3 m) tests put things on, and a local model to read it into. */
class SlabReaderFixture : public hbx::embedded::EmbeddedBuilding
{
protected:
    using Service = ORVCADBoardLocalModelTransformHBXService_Sample;
    using Model = ORVCADBoardLocalModel_Sample;
    using Point = vks::CVec2<double>;
    using PolygonPtr = vks::CRefPtr<vks::CPolygon>;
    using CurvePtr = vks::CRefPtr<vks::CCurve2d>;

    // ---- The host

    struct Number
    {
        const wchar_t *name;
        int value;
    };
    struct Text
    {
        const wchar_t *name;
        QString value;
    };

    static void setNumbers(IHBXElementDrawObj *object, const std::vector<Number> &numbers)
    {
        for (const Number &number : numbers)
            object->properties()->setInt(number.name, number.value, true);
    }
    static void setTexts(IHBXElementDrawObj *object, const std::vector<Text> &texts)
    {
        for (const Text &text : texts)
            object->properties()->setString(text.name, text.value, true);
    }
    static void setDrawn(IHBXElementDrawObj *object, const char *curve)
    {
        object->properties()->setCurve(L"CurveData", hbx::embedded::curveOf(curve), true);
    }
    /** A slab or raft of 100 mm. */
    IHBXElementDrawObj *plate(qint64 type, const char *name, const char *outline = kOutline)
    {
        IHBXElement *ofPlate = element(type, name);
        ofPlate->properties()->setDouble(L"Thickness", 100.0, false);
        IHBXElementDrawObj *object = placed(ofPlate);
        as<IHBXFaceSolidShape>(object)->setPolygon(hbx::embedded::polygonOf(outline));
        return object;
    }
    /** A bar of an area that is linked with slabs by the text. */
    IHBXElementDrawObj *areaBar(qint64 type, const char *name, const QString &links = kLinks,
                                const char *drawn = "LINESTRING(1000 2000, 5000 2000)")
    {
        IHBXElementDrawObj *object = placed(element(type, name));
        as<IHBXFaceShape2D>(object)->setPolygon(hbx::embedded::polygonOf(kOutline));
        setDrawn(object, drawn);
        setTexts(object, {{L"ReinforcementInfo", links}});
        return object;
    }
    /** A bar along a line, upright at x = 5 m unless told, drawn from its left, with those labels. */
    IHBXElementDrawObj *lineBar(qint64 type, const char *name, int left = 900, int right = 900,
                                const char *line = "LINESTRING(5000 1000, 5000 7000)",
                                const char *drawn = "LINESTRING(4100 4000, 5900 4000)")
    {
        IHBXElementDrawObj *object = placed(element(type, name));
        as<IHBXLineShape2D>(object)->setLine(hbx::embedded::curveOf(line));
        setDrawn(object, drawn);
        setNumbers(object, {{L"LeftLabel", left}, {L"RightLabel", right}});
        return object;
    }
    static QString linkTo(const IHBXElementDrawObj *object) { return QString::number(object->id()) + ",1;"; }

    // ---- The local model

    bool read(int parts = Service::Everything)
    {
        return Service::hbx2local(&model(), "House", "F1", topElev, btmElev, &local,
                                  static_cast<Service::Parts>(parts));
    }
    /** The only one of some elements; fails when there is another number of them. */
    template <typename Element> static const Element &only(const std::vector<const Element *> &elements)
    {
        static const Element none;
        EXPECT_EQ(elements.size(), 1U);
        return elements.size() == 1 ? *elements.front() : none;
    }
    /** What the model holds, as "name row", in order. */
    template <typename Bar> static QStringList rows(const std::vector<const Bar *> &bars)
    {
        QStringList out;
        for (const Bar *bar : bars)
            out.append(bar->name + ' ' + QString::number(bar->rowNumber));
        return out;
    }
    static std::string text(const vks::CGeometry *geometry) { return geometry ? geometry->ToText() : "none"; }

    static constexpr char kOutline[] = "POLYGON((0 0, 6000 0, 6000 4000, 0 4000, 0 0))";
    static inline const QString kLinks = QStringLiteral("4711,1;");

    Model local;
    double topElev = -1.0;
    double btmElev = -1.0;
};
