#include "ModelSerialization/SlabWriterFixture.h"
#include "ModelSerialization/SlabsOfBars.h"
#include "platform/geometry/CPositionJudge.h"
#include "platform/services/SlabElevations.h"

#include <cmath>
#include <random>

// The overlap of negative bars, which is found by place, against a look at each bar of the floor.

namespace {

class BarPlacesComparisonTest : public SlabWriterFixture
{
protected:
    using Bars = std::vector<IHBXElementDrawObj *>;

    static CurvePtr curveOf(IHBXElementDrawObj &bar)
    {
        CurvePtr curve;
        return as<IHBXLineShape2D>(&bar)->curve(curve);
    }
    static CurvePtr drawnIn(IHBXElementDrawObj &bar)
    {
        CurvePtr curve;
        return bar.properties()->asCurve(curve, std::wstring(L"CurveData"));
    }
    static bool overlap(const CurvePtr &a, const CurvePtr &b)
    {
        return vks::CPositionJudge().GetCurveCurvePosition(a, b) > 1;
    }
    bool staysByLookingAtEach(IHBXElementDrawObj &bar, IHBXElementDrawObj *slab, int type)
    {
        const double level = getSlabElev(slab, QStringLiteral("TopElev"));
        QList<IHBXElementDrawObj *> others;
        model().drawObjects()->queryDrawObjsOfFloor(others, floor()->id(), type, -1, true);
        return std::none_of(others.begin(), others.end(), [&](IHBXElementDrawObj *other) {
            return other != &bar && overlap(curveOf(bar), curveOf(*other)) &&
                   std::fabs(level - getNegReinfElev(other)) <= vks::g_DistEpsilon &&
                   overlap(drawnIn(bar), drawnIn(*other));
        });
    }
    bool stays(IHBXElementDrawObj &bar, IHBXElementDrawObj *slab, int type)
    {
        return slabhost::checkBFJOverlap(store.service(), slab ? static_cast<int>(slab->id()) : -1, curveOf(bar), type,
                                         static_cast<int>(bar.id()));
    }

    /** A place on a coarse grid, so that many bars share lines; now and then off it by the tolerance or so. */
    Point point()
    {
        static constexpr double offs[] = {0, 0, 0, 0, 5e-7, 2e-6};
        const double x = static_cast<double>(random() % 5) * 1000 + offs[random() % std::size(offs)];
        return {x, static_cast<double>(random() % 5) * 1000 + offs[random() % std::size(offs)]};
    }
    void lay(IHBXElementDrawObj &bar)
    {
        const Point start = point();
        const double length = 1000.0 + static_cast<double>(random() % 3) * 500;
        const bool isUpright = random() % 2 == 0;
        const Point end = start + (isUpright ? Point(0, length) : Point(length, 0));
        as<IHBXLineShape2D>(&bar)->setLine(CurvePtr(new vks::CLine2d(start, end)));
        const Point middle = (start + end) / 2;
        const Point reach = isUpright ? Point(600, 0) : Point(0, 600);
        bar.properties()->setCurve(L"CurveData", CurvePtr(new vks::CLine2d(middle - reach, middle + reach)), true);
    }
    IHBXElementDrawObj *dependOn(IHBXElementDrawObj &bar, const Bars &plates)
    {
        IHBXElementDrawObj *slab = random() % 4 == 0 ? nullptr : plates[random() % plates.size()];
        bar.properties()->setInt(L"DependSlabID", slab ? static_cast<int>(slab->id()) : -1, true);
        return slab;
    }

    std::mt19937 random{3};
};

TEST_F(BarPlacesComparisonTest, placesFindWhatALookAtEachFinds)
{
    int refused = 0;
    int taken = 0;
    for (int round = 0; round < 20; ++round) {
        const Bars plates{hostSlab(0, 0, 9000, 9000, "", "3"), hostSlab(0, 0, 9000, 9000, "", "2.95"),
                          hostSlab(0, 0, 9000, 9000, "", "0")};
        IHBXElement *bars = element(23);
        IHBXElement *ofRafts = element(50);
        Bars all;
        for (int i = 0; i < 200; ++i) {
            IHBXElementDrawObj *bar = placed(random() % 5 == 0 ? ofRafts : bars);
            lay(*bar);
            IHBXElementDrawObj *slab = dependOn(*bar, plates);
            const int type = random() % 4 == 0 ? 50 : 23;
            const bool expected = staysByLookingAtEach(*bar, slab, type);
            ASSERT_EQ(stays(*bar, slab, type), expected) << round << ' ' << i;
            (expected ? taken : refused)++;
            all.push_back(bar);
            if (random() % 3 == 0)
                lay(*all[random() % all.size()]); // one that stood there goes elsewhere
            if (random() % 6 == 0) {
                all.back()->remove();
                all.pop_back();
            }
        }
        bars->remove();
        ofRafts->remove();
    }
    EXPECT_GT(refused, 100) << "floors that test nothing";
    EXPECT_GT(taken, 100);
}

TEST_F(BarPlacesComparisonTest, hostWithoutAnIndexAnswersAlike)
{
    IHBXElement *bars = element(23);
    for (int i = 0; i < 200; ++i) {
        lay(*placed(bars));
        const Point corner = point();
        const vks::CBox2<double> box(corner, corner + Point(700, 300));
        QList<IHBXElementDrawObj *> found;
        QList<IHBXElementDrawObj *> plain;
        model().drawObjects()->queryDrawObjsInBox(found, floor()->id(), 23, box, 300.0);
        model().drawObjects()->IHBXDrawObjs::queryDrawObjsInBox(plain, floor()->id(), 23, box, 300.0);
        ASSERT_EQ(found, plain) << i;
    }
}

} // namespace
