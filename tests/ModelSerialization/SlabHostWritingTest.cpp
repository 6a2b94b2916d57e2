#include "ModelSerialization/SlabHostWriting.h"

#include "ModelSerialization/SlabWriterFixture.h"

namespace {

using slabhost::buildOneHBXElement;

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
