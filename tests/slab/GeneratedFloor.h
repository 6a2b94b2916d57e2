#pragma once

#include "platform/geometry/CLine2d.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"

#include <random>

/** A floor of equal bays with supports on the axes and a slab in each bay: for tests of and measurements on slab local
 *  models. Lengths in mm. Two floors that differ in their jitter or in how far their slabs reach are what a building
 *  holds and what recognition gives for it. */
class GeneratedFloor
{
public:
    using Model = ORVCADBoardLocalModel_Sample;
    using Point = vks::CVec2<double>;

    int baysAlong = 1;
    int baysAcross = 1;
    double slabInset = 0.0;   ///< of the slabs' edges from the axes
    double jitter = 0.0;      ///< each corner is off by up to this in x and in y
    bool withSupports = true; ///< beams along, walls across, columns at the crossings
    bool withBars = true;     ///< bottom bars in each bay, those across two in every third, top bars on the axes
    bool withHoles = true;    ///< in every fourth slab, an element of its own and in every eighth an inner loop, too
    unsigned seed = 1;

    static constexpr double kBay = 4000.0;
    static constexpr double kSupportWidth = 300.0;

    /** Adds the floor to a model. */
    void fill(Model &model)
    {
        m_random.seed(seed);
        for (int i = 0; i < baysAlong; ++i)
            for (int k = 0; k < baysAcross; ++k)
                fillBay(model, i, k);
    }

private:
    using Polygon = vks::CRefPtr<vks::CPolygon>;
    using Line = vks::CRefPtr<vks::CCurve2d>;

    void fillBay(Model &model, int i, int k)
    {
        const Point corner(i * kBay, k * kBay);
        const int number = i * baysAcross + k;
        addSlab(model, corner, number);
        if (withSupports)
            addSupports(model, corner);
        if (withBars)
            addBars(model, corner, number);
    }

    void addSlab(Model &model, const Point &corner, int number)
    {
        auto *slab = new Model::Board(&model);
        slab->surface = rectangle(corner, kBay, kBay, slabInset);
        if (!withHoles || number % 4 != 0)
            return;
        auto *hole = new Model::BoardHole(&model);
        hole->surface = rectangle(corner, kBay / 4, kBay / 4, slabInset);
        if (number % 8 == 0)
            slab->surface->AddLoop(loop(corner + Point(kBay / 2, kBay / 2), 500.0, 500.0, 0.0), true);
    }

    void addSupports(Model &model, const Point &corner)
    {
        addSupport<Model::Beam>(model, corner, corner + Point(kBay, 0));
        addSupport<Model::Wall>(model, corner, corner + Point(0, kBay));
        auto *column = new Model::Column(&model);
        column->surface = rectangle(corner - Point(kSupportWidth, kSupportWidth), 2 * kSupportWidth, 2 * kSupportWidth);
    }
    template <typename Support> void addSupport(Model &model, const Point &from, const Point &to)
    {
        auto *support = new Support(&model);
        support->line = Line(new vks::CLine2d(from, to));
        support->width = kSupportWidth;
        support->distanceToLeft = kSupportWidth / 2;
    }

    void addBars(Model &model, const Point &corner, int number)
    {
        auto *bottom = new Model::ForcedBar(&model);
        bottom->surface = rectangle(corner, kBay, kBay);
        bottom->direction = number % 2 == 0 ? Point(1, 0) : Point(0, 1);
        bottom->forcedType = number % 2;
        if (number % 3 == 0) {
            auto *straddle = new Model::StraddleForcedBar(&model);
            straddle->surface = rectangle(corner, 2 * kBay, kBay);
            straddle->direction = Point(-1, 0.1);
            straddle->rowNumber = number % 2;
        }
        auto *top = new Model::NegativeForcedBar(&model);
        top->line = Line(new vks::CLine2d(moved(corner), moved(corner + Point(0, kBay))));
        top->leftStretchLength = number % 3 == 0 ? 0.0 : 900.0;
        top->rightStretchLength = number % 3 == 1 ? 0.0 : 900.0;
    }

    Point moved(const Point &point)
    {
        std::uniform_real_distribution<double> move(-jitter, jitter);
        const double x = move(m_random);
        return point + Point(x, move(m_random));
    }

    vks::CLoop *loop(const Point &corner, double width, double height, double inset)
    {
        const Point low = corner + Point(inset, inset);
        const Point high = corner + Point(width - inset, height - inset);
        const Point corners[] = {moved(low), moved({high.x, low.y}), moved(high), moved({low.x, high.y})};
        auto *result = new vks::CLoop;
        for (int i = 0; i < 4; ++i)
            result->AddCurve(new vks::CLine2d(corners[i], corners[(i + 1) % 4]), false);
        return result;
    }
    Polygon rectangle(const Point &corner, double width, double height, double inset = 0.0)
    {
        Polygon polygon(new vks::CPolygon);
        polygon->AddLoop(loop(corner, width, height, inset), true);
        return polygon;
    }

    std::mt19937 m_random;
};
