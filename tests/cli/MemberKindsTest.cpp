#include "cli/MemberKinds.h"

#include "JsonTexts.h"

using clitest::objectOf;
using namespace orvcad;

namespace {

/** Of a record that has a name, a width, which is whole, a height and a mark. */
std::string wrong(const QByteArray &member)
{
    static const QJsonObject pattern{{"Name", ""}, {"Width", 0}, {"Height", 0.0}, {"Mirror", false}};
    return wrongKey(objectOf(member), pattern, {"Width"}, {"Name", "Width"}).toStdString();
}

TEST(MemberKindsTest, valuesOfTheKindsOfAFreshRecordAreTaken)
{
    EXPECT_EQ(wrong(R"({"Name": "KL-1", "Width": 300, "Height": 0.5, "Mirror": true})"), "");
}

TEST(MemberKindsTest, keysThatAreNotRequiredMayBeMissingAndOthersAreNotLookedAt)
{
    EXPECT_EQ(wrong(R"({"Name": "", "Width": 0, "Colour": [7]})"), "");
    EXPECT_EQ(wrong(R"({"Name": "", "Height": 3})"), "Width is missing");
}

TEST(MemberKindsTest, valueOfAnotherKindIsNamedWithTheKindThatItShouldHave)
{
    EXPECT_EQ(wrong(R"({"Name": 7, "Width": 0})"), "Name is not text");
    EXPECT_EQ(wrong(R"({"Name": null, "Width": 0})"), "Name is not text");
    EXPECT_EQ(wrong(R"({"Name": "", "Width": "300"})"), "Width is not a number");
    EXPECT_EQ(wrong(R"({"Name": "", "Width": 0, "Mirror": 1})"), "Mirror is not true or false");
}

TEST(MemberKindsTest, wholeNumberHas32Bits)
{
    EXPECT_EQ(wrong(R"({"Name": "", "Width": 0.5})"), "Width is not a whole number of 32 bits");
    EXPECT_EQ(wrong(R"({"Name": "", "Width": 5000000000})"), "Width is not a whole number of 32 bits");
}

TEST(MemberKindsTest, axisIsACurveOfSomeLengthOrNone)
{
    const auto whyNot = [](const char *text) { return whyNotAxis(QLatin1String("WordLine"), text).toStdString(); };
    EXPECT_EQ(whyNot("0,0,1000,0"), "");
    EXPECT_EQ(whyNot(""), "");
    EXPECT_EQ(whyNot("from here to there"), "WordLine is no curve");
    EXPECT_EQ(whyNot("5,5,5,5"), "WordLine has no length");
}

} // namespace
