#include "ModelSerialization/SlabHostWriting.h"

#include "ModelSerialization/SlabWriterFixture.h"
#include "platform/geometry/KernelTolerance.h"

#include <limits>

namespace {

using slabhost::buildOneHBXElement;

TEST(SlabHostTruncatedTest, fractionIsCutTowardsZero)
{
    EXPECT_EQ(slabhost::truncated(120.9), 120);
    EXPECT_EQ(slabhost::truncated(-120.9), -120);
    EXPECT_EQ(slabhost::truncated(0.0), 0);
}

TEST(SlabHostTruncatedTest, numberBeyondTheRangeIsItsEndAndNoNumberIsZero)
{
    EXPECT_EQ(slabhost::truncated(1e300), std::numeric_limits<int>::max());
    EXPECT_EQ(slabhost::truncated(-1e300), std::numeric_limits<int>::min());
    EXPECT_EQ(slabhost::truncated(std::numeric_limits<double>::quiet_NaN()), 0);
}

/** Sets the kernel's tolerance for one test. */
class ToleranceScope
{
public:
    explicit ToleranceScope(double tolerance) : m_before(vks::g_DistEpsilon) { vks::g_DistEpsilon = tolerance; }
    ~ToleranceScope() { vks::g_DistEpsilon = m_before; }
    ToleranceScope(const ToleranceScope &) = delete;
    ToleranceScope &operator=(const ToleranceScope &) = delete;

private:
    double m_before;
};

TEST(SlabHostLengthToleranceTest, kernelTellsTheTolerance)
{
    const ToleranceScope scope(0.002);
    EXPECT_EQ(slabhost::lengthTolerance(5e12), 0.002);
}

TEST(SlabHostLengthToleranceTest, withoutOneTheSizeTellsIt)
{
    const ToleranceScope scope(0.0);
    EXPECT_EQ(slabhost::lengthTolerance(0.5), 1e-12);
    EXPECT_DOUBLE_EQ(slabhost::lengthTolerance(3000.0), 3e-9);
    EXPECT_EQ(slabhost::lengthTolerance(-3000.0), 1e-12);
}

class BuildOneHBXElementTest : public SlabWriterFixture
{
protected:
    IHBXElement *build(const QString &name, int type = 19)
    {
        return buildOneHBXElement(&model(), floor(), name, type, 13);
    }
};

TEST_F(BuildOneHBXElementTest, freeNameIsTakenAsItIs)
{
    IHBXElement *made = build("B");
    ASSERT_TRUE(made);
    EXPECT_EQ(nameOf(made), "B");
    EXPECT_EQ(made->type(), 19);
    EXPECT_EQ(made->subType(), 13);
}

TEST_F(BuildOneHBXElementTest, takenNameGetsTheFirstFreeSuffix)
{
    element(19, "B");
    element(19, "B-1");
    element(19, "B-3");
    EXPECT_EQ(nameOf(build("B")), "B-2");
    EXPECT_EQ(nameOf(build("B")), "B-4");
}

TEST_F(BuildOneHBXElementTest, nameOfAnotherTypeOrFloorIsFree)
{
    element(48, "B");
    element(19, "B", "F2");
    EXPECT_EQ(nameOf(build("B")), "B");
}

TEST_F(BuildOneHBXElementTest, hostIsAskedForEachNameBeforeTheElementIsMade)
{
    element(19, "B");
    RecordingHost host(*store.service());
    IHBXModel &recorded = *host.service()->model();
    buildOneHBXElement(&recorded, recorded.regions()->at(0)->floors()->at(0), "B", 19, 13);
    expectEqual(host.calls(), {R"(findElement("B", 2, 19, true, 0))", R"(findElement("B-1", 2, 19, true, 0))",
                               R"(createElement(19, 13, floor 1, ""))", R"(setName("B-1"))"});
}

TEST_F(BuildOneHBXElementTest, refusedNameLeavesNoElement)
{
    RecordingHost host(*store.service());
    host.beforeCall([](const QString &call) {
        if (call.startsWith("setName"))
            throw HBXModelException("refused");
    });
    IHBXModel &recorded = *host.service()->model();
    EXPECT_FALSE(buildOneHBXElement(&recorded, recorded.regions()->at(0)->floors()->at(0), "B", 19, 13));
    EXPECT_EQ(elementCount(19), 0);
}

TEST_F(BuildOneHBXElementTest, nothingIsMadeWithoutAPlaceOrForAnUnknownType)
{
    EXPECT_FALSE(buildOneHBXElement(nullptr, floor(), "B", 19, 13));
    EXPECT_FALSE(buildOneHBXElement(&model(), nullptr, "B", 19, 13));
    EXPECT_FALSE(build("B", 4711));
}

} // namespace
