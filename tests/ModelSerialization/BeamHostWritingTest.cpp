#include "ModelSerialization/BeamHostWriting.h"

#include "ModelSerialization/ReconstructionFixture.h"

namespace {

using beam::writeAll;
using beam::writeProperty;
using testing::IsEmpty;

const std::wstring kWidth = L"SectionWidth";
const std::wstring kSideBar = L"SideBar";
const std::wstring kOffset = L"AxisOffset";
const std::wstring kUnknown = L"NoSuchProperty";

/** A recorded beam on the floor. */
class BeamHostWritingTest : public ReconstructionFixture
{
protected:
    BeamHostWritingTest() { newElement(15); }

    IHBXElement *target() const { return recorded(); }
    static vks::CRefPtr<vks::CPolygon> polygon(const char *text) { return vks::CPolygon::LoadFromString(text); }
};

TEST_F(BeamHostWritingTest, keyOfABracketEndsInTheNumberOfItsSite)
{
    EXPECT_EQ(beam::batchKey(320), R"(ModelSerialization\ORVCADBeamLocalModel2HBXService320)");
}

TEST_F(BeamHostWritingTest, textBecomesAPropertyOfItsKind)
{
    EXPECT_TRUE(writeProperty({kSideBar, PropType::Text, true, "4C12"}, target()));
    EXPECT_TRUE(writeProperty({kWidth, PropType::Integer, false, "300"}, target()));
    EXPECT_TRUE(writeProperty({kOffset, PropType::Double, true, "25.5"}, target()));
    EXPECT_EQ(host->calls(),
              (QStringList{R"(setString("SideBar", "4C12", true))", R"(setInt("SectionWidth", 300, false))",
                           R"(setDouble("AxisOffset", 25.5, true))"}));
}

TEST_F(BeamHostWritingTest, textThatIsNoWholeNumberIsTheIntegerZero)
{
    EXPECT_TRUE(writeProperty({kWidth, PropType::Integer, true, "300.5"}, target()));
    EXPECT_TRUE(writeProperty({kWidth, PropType::Integer, true, "%"}, target()));
    EXPECT_EQ(host->calls(), QStringList({R"(setInt("SectionWidth", 0, true))", R"(setInt("SectionWidth", 0, true))"}));
}

TEST_F(BeamHostWritingTest, emptyValueAndUnknownPropertyAreAcceptedWithoutAWrite)
{
    EXPECT_TRUE(writeProperty({kSideBar, PropType::Text, true, ""}, target()));
    EXPECT_TRUE(writeProperty({kUnknown, PropType::Text, true, "4C12"}, target()));
    EXPECT_TRUE(writeProperty({kSideBar, PropType::Text, true, ""}, static_cast<IHBXElement *>(nullptr)));
    EXPECT_THAT(host->calls(), IsEmpty());
}

TEST_F(BeamHostWritingTest, nothingIsAcceptedWithoutATarget)
{
    EXPECT_FALSE(writeProperty({kSideBar, PropType::Text, true, "4C12"}, static_cast<IHBXElement *>(nullptr)));
    EXPECT_FALSE(writeProperty({kSideBar, PropType::Text, true, "4C12"}, static_cast<IHBXElementDrawObj *>(nullptr)));
}

TEST_F(BeamHostWritingTest, whateverTheHostThrowsIsARefusal)
{
    refuse<std::runtime_error>({"setString", "setName"});
    EXPECT_FALSE(writeProperty({kSideBar, PropType::Text, true, "4C12"}, target()));
    EXPECT_FALSE(beam::setName(*target(), "KL2"));
    EXPECT_EQ(text(find()->properties(), L"SideBar"), "");
}

TEST_F(BeamHostWritingTest, nameIsSet)
{
    EXPECT_TRUE(beam::setName(*target(), "KL2"));
    EXPECT_TRUE(find("KL2"));
}

TEST_F(BeamHostWritingTest, allWritesAreTriedAndOneThatIsAcceptedIsEnough)
{
    refuse({"setString"});
    const PropertyText refused{kSideBar, PropType::Text, true, "4C12"};
    const PropertyText accepted{kWidth, PropType::Integer, true, "300"};
    EXPECT_TRUE(writeAll({refused, accepted, refused}, target()));
    EXPECT_FALSE(writeAll({refused, refused}, target()));
    EXPECT_TRUE(writeAll({}, target()));
    EXPECT_EQ(callsWith("set").size(), 1); // the refused ones are not written down
    EXPECT_EQ(find()->properties()->asInt(kWidth), 300);
}

TEST_F(BeamHostWritingTest, outlineIsWrittenWithTheCentreOfItsBox)
{
    beam::writeOutline(*target()->properties(), *polygon("POLYGON((0 0, 400 0, 400 300, 0 300, 0 0))"));
    EXPECT_EQ(host->calls(),
              QStringList({R"(setPolygon("SectionPoly", POLYGON((0 0, 400 0, 400 300, 0 300, 0 0)), false))",
                           R"(setPoint("InsertPt", (200, 150), false))"}));
}

TEST_F(BeamHostWritingTest, outlineThatTheHostRefusesDoesNotKeepItsCentreOut)
{
    refuse({"setPolygon"});
    beam::writeOutline(*target()->properties(), *polygon("POLYGON((0 0, 400 0, 400 300, 0 300, 0 0))"));
    EXPECT_EQ(callsWith("setPoint").size(), 1);
}

TEST_F(BeamHostWritingTest, otherFailureAtAnOutlinePassesOn)
{
    refuse<std::runtime_error>({"setPolygon"});
    const auto outline = polygon("POLYGON((0 0, 400 0, 400 300, 0 300, 0 0))");
    EXPECT_THROW(beam::writeOutline(*target()->properties(), *outline), std::runtime_error);
}

TEST_F(BeamHostWritingTest, sectionInfoOfAPileCountsStepsOfItsBox)
{
    EXPECT_EQ(beam::sectionInfo(*polygon("POLYGON((5000 7000, 5400 7000, 5400 7400, 5000 7400, 5000 7000))")),
              "100*9;100*9");
    // 349 has six whole steps of 50 and 1249.6, which counts as 1250, has 25.
    EXPECT_EQ(beam::sectionInfo(*polygon("POLYGON((0 0, 349 0, 349 1249.6, 0 1249.6, 0 0))")), "100*7;100*26");
}

} // namespace
