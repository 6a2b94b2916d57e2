#include "cli/JsonDifference.h"

#include "JsonTexts.h"

using clitest::valueOf;
using namespace orvcad;

namespace {

/** The places, with commas between them. */
std::string places(const QByteArray &before, const QByteArray &after)
{
    QStringList found;
    for (const JsonDifference &difference : differencesBetween(valueOf(before), valueOf(after)))
        found.append(difference.place);
    return found.join(',').toStdString();
}

TEST(JsonDifferenceTest, sameDocumentsHaveNone)
{
    EXPECT_EQ(places(R"({"a": [1, {"b": null}], "c": "x"})", R"({"c": "x", "a": [1.0, {"b": null}]})"), "");
}

TEST(JsonDifferenceTest, placeIsThePathOfKeysAndIndexes)
{
    EXPECT_EQ(places(R"({"a": [1, {"b": [[7]]}], "c": 1})", R"({"a": [2, {"b": [[8]]}], "c": "1"})"),
              "a[0],a[1].b[0][0],c");
    ASSERT_EQ(differencesBetween(1, 2).size(), 1U);
    EXPECT_EQ(differencesBetween(1, 2)[0].place, "");
}

TEST(JsonDifferenceTest, keysOfTheWayAreToldWithoutIndexes)
{
    const auto found = differencesBetween(valueOf(R"({"a": [{"b.c": 1}]})"), valueOf(R"({"a": [{"b.c": 2}]})"));
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].keys, (QStringList{"a", "b.c"}));
    EXPECT_EQ(found[0].before, 1);
    EXPECT_EQ(found[0].after, 2);
}

TEST(JsonDifferenceTest, keysOfTheLaterDocumentAloneMayBePassedOver)
{
    const auto found = differencesBetween(valueOf(R"({"a": 1, "b": [{}], "c": 1})"),
                                          valueOf(R"({"b": [{"new": 1}], "c": 2, "new": 1})"), AddedKeys::PassedOver);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].place, "a");
    EXPECT_EQ(found[1].place, "c");
}

TEST(JsonDifferenceTest, keyOfOneSideAloneIsUndefinedOnTheOther)
{
    const auto found = differencesBetween(valueOf(R"({"a": null})"), valueOf(R"({"b": {"c": 1}})"));
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].place, "a");
    EXPECT_TRUE(found[0].before.isNull());
    EXPECT_TRUE(found[0].after.isUndefined());
    EXPECT_EQ(found[1].place, "b");
    EXPECT_TRUE(found[1].before.isUndefined());
}

TEST(JsonDifferenceTest, arraysOfDifferentLengthsAreADifferenceWithTheirCommonEntries)
{
    EXPECT_EQ(places(R"({"a": [1, 2, 3]})", R"({"a": [1, 7]})"), "a,a[1]");
    EXPECT_EQ(places(R"({"a": []})", R"({"a": {}})"), "a");
}

TEST(JsonDifferenceTest, wholeNumbersAreComparedWith64Bits)
{
    EXPECT_EQ(places(R"({"id": 9007199254740993})", R"({"id": 9007199254740992})"), "id");
    EXPECT_EQ(places(R"({"id": 9007199254740993})", R"({"id": 9007199254740993})"), "");
    EXPECT_EQ(places(R"({"id": 1e300})", R"({"id": 1e300})"), "");
}

} // namespace
