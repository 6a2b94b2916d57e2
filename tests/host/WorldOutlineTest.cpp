#include "platform/host/WorldOutline.h"

#include "geometry/KernelShapes.h"
#include "host/PlainDrawObj.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

/** Has an outline while it is brought up to date, and none otherwise. */
class OutlinedShape : public BoxShape
{
public:
    explicit OutlinedShape(vks::CRefPtr<vks::CPolygon> outline) : BoxShape({}), m_outline(std::move(outline)) {}

    vks::CRefPtr<vks::CPolygon> &worldPoly(vks::CRefPtr<vks::CPolygon> &out, bool autoCalc) const override
    {
        return out = autoCalc ? m_outline : nullptr;
    }

private:
    vks::CRefPtr<vks::CPolygon> m_outline;
};

/** Restores the host's default. */
class WorldOutlineTest : public ::testing::Test
{
protected:
    ~WorldOutlineTest() override { IHBXModel::g_bDefaultAutoCalc = m_default; }

private:
    const bool m_default = IHBXModel::g_bDefaultAutoCalc;
};

TEST_F(WorldOutlineTest, isTheShapesOwn)
{
    const auto outline = shapes::rectangle(0, 0, 10, 20);
    EXPECT_EQ(hbx::worldOutline(std::make_unique<OutlinedShape>(outline).get()), outline);
}

TEST_F(WorldOutlineTest, shapeIsBroughtUpToDateByDefaultOnly)
{
    const OutlinedShape shape(shapes::rectangle(0, 0, 10, 20));
    EXPECT_TRUE(hbx::worldOutline(&shape));
    IHBXModel::g_bDefaultAutoCalc = false;
    EXPECT_FALSE(hbx::worldOutline(&shape));
}

TEST_F(WorldOutlineTest, noShapeAndAShapeWithoutGeometryHaveNone)
{
    EXPECT_FALSE(hbx::worldOutline(nullptr));
    EXPECT_FALSE(hbx::worldOutline(std::make_unique<BoxShape>(vks::CBox2<double>()).get()));
}

} // namespace
