#include "cli/JsonShape.h"

#include "JsonTexts.h"
#include "platform/dwgx/KeyLiteral.h"

using namespace dwgx::literals;
using namespace orvcad;
using clitest::valueOf;
using Kind = JsonShape::Kind;

namespace {

constexpr JsonShape kText{Kind::Text};
constexpr JsonShape kWhole{Kind::Whole};
constexpr JsonShape kWhole32{Kind::Whole32};
constexpr JsonShape kNumber{Kind::Number};
constexpr JsonShape kNumberOrNull{Kind::NumberOrNull};
constexpr JsonShape kAnything{Kind::TextOrPassedOver};
constexpr JsonShape kTexts = listOf(kText);
constexpr JsonShape kPair = listOf(kNumber, 2);
constexpr JsonShape kNames = mapOf(kTexts);

constexpr JsonShape::Member kEntryMembers[] = {
    {"name"_key, &kText}, {"point"_key, &kPair}, {"remark"_key, &kText, JsonShape::Missing::Taken}};
constexpr JsonShape kEntry = objectOf(kEntryMembers);
constexpr JsonShape kEntries = listOf(kEntry);
constexpr JsonShape::Member kTopMembers[] = {{"entries"_key, &kEntries}, {"names"_key, &kNames}};
constexpr JsonShape kTop = closed(objectOf(kTopMembers));

/** "place: reason" of the first fault, or "sound". */
std::string fault(const QByteArray &text, const JsonShape &shape)
{
    const auto found = firstFault(valueOf(text), shape);
    return found ? (found->place + ": " + found->reason).toStdString() : "sound";
}

TEST(JsonShapeTest, unknownMembersAreTheKeysThatNoShapeHasAndNoMapNames)
{
    const auto document = valueOf(R"({"entries": [{"name": "a", "point": [0, 1]}, {"Name": "b", "remark": "c"}],
                                      "names": {"any": ["x"]}})");
    const auto unknown = unknownMembers(document, kTop);
    ASSERT_EQ(unknown.size(), 1U);
    EXPECT_EQ(unknown[0].place, "entries[1].Name");
    EXPECT_EQ(unknown[0].reason, "is no member of this format, and not read");
}

TEST(JsonShapeTest, valuesOfTheirKindAreSound)
{
    const std::pair<QByteArray, JsonShape> cases[] = {
        {"\"\"", kText},           {"5e9", kWhole},  {"-3.0", kWhole},        {"2147483647", kWhole32},
        {"-2147483647", kWhole32}, {"0.5", kNumber}, {"null", kNumberOrNull}, {"-1e300", kNumberOrNull},
        {"7", kAnything},          {"[]", kTexts},   {"{}", kNames},          {R"({"a": ["b"]})", kNames}};
    for (const auto &[text, shape] : cases)
        EXPECT_EQ(fault(text, shape), "sound") << text.toStdString();
}

TEST(JsonShapeTest, valueOfAnotherKindIsToldWithWhatItIsNot)
{
    EXPECT_EQ(fault("1", kText), ": is no text");
    EXPECT_EQ(fault("0.5", kWhole), ": is no whole number");
    EXPECT_EQ(fault("\"1\"", kWhole), ": is no whole number");
    EXPECT_EQ(fault("0.5", kWhole32), ": is no whole number from -2147483647 to 2147483647");
    EXPECT_EQ(fault("2147483648", kWhole32), ": is no whole number from -2147483647 to 2147483647");
    EXPECT_EQ(fault("null", kNumber), ": is no number");
    EXPECT_EQ(fault("\"1\"", kNumberOrNull), ": is neither a number nor null");
    EXPECT_EQ(fault("{}", kTexts), ": is no array");
    EXPECT_EQ(fault("[]", kNames), ": is no object");
    EXPECT_EQ(fault("null", kEntry), ": is no object");
}

TEST(JsonShapeTest, lowestNumbersStandForNoneAndAreRefused)
{
    EXPECT_EQ(fault("-2147483648", kWhole32), ": is no whole number from -2147483647 to 2147483647");
    EXPECT_EQ(fault("-1.7976931348623157e+308", kNumber), ": is no number above -1.7976931348623157e+308");
}

TEST(JsonShapeTest, placeIsThePathOfKeysAndIndexes)
{
    EXPECT_EQ(
        fault(R"({"entries": [{"name": "a", "point": [1, 2]}, {"name": "b", "point": [1, "2"]}], "names": {}})", kTop),
        "entries[1].point[1]: is no number");
    EXPECT_EQ(fault(R"({"entries": [], "names": {"floor one": ["a", 7]}})", kTop), "names.floor one[1]: is no text");
    EXPECT_EQ(fault(R"(["a", 7])", kTexts), "[1]: is no text");
}

TEST(JsonShapeTest, firstFaultGoesByTheOrderOfTheShape)
{
    EXPECT_EQ(fault(R"({"point": 7, "name": 7})", kEntry), "name: is no text");
    EXPECT_EQ(fault(R"({"point": 7})", kEntry), "name: is missing");
}

TEST(JsonShapeTest, memberThatMayBeMissingIsLookedAtWhereItIsThere)
{
    EXPECT_EQ(fault(R"({"name": "a", "point": [1, 2]})", kEntry), "sound");
    EXPECT_EQ(fault(R"({"name": "a", "point": [1, 2], "remark": 7})", kEntry), "remark: is no text");
}

TEST(JsonShapeTest, closedObjectMayHaveNoOtherMembers)
{
    EXPECT_EQ(fault(R"({"entries": [], "names": {}, "more": 1})", kTop), "more: is no member of this format");
    EXPECT_EQ(fault(R"({"entries": 7, "more": 1})", kTop), "names: is missing");
    EXPECT_EQ(fault(R"({"name": "a", "point": [1, 2], "more": 1})", kEntry), "sound");
}

TEST(JsonShapeTest, listHasTheLengthThatItIsGiven)
{
    EXPECT_EQ(fault("[1]", kPair), ": is no array of 2 entries");
    EXPECT_EQ(fault("[1, 2, 3]", kPair), ": is no array of 2 entries");
}

TEST(JsonShapeTest, emptyObjectAndNullInPlaceOfAListAreTakenWhereTheyMayBe)
{
    EXPECT_EQ(fault("{}", orEmpty(kEntry)), "sound");
    EXPECT_EQ(fault("null", orEmpty(kTexts)), "sound");
    EXPECT_EQ(fault("null", orEmpty(kEntry)), ": is no object");
    EXPECT_EQ(fault("null", kTexts), ": is no array");
}

TEST(JsonShapeTest, memberIsFoundByItsKey)
{
    ASSERT_NE(kEntry.member("point"), nullptr);
    EXPECT_EQ(kEntry.member("point")->shape, &kPair);
    EXPECT_EQ(kEntry.member("Point"), nullptr);
    EXPECT_EQ(kText.member("point"), nullptr);
}

TEST(JsonShapeTest, documentDeeperThanItsShapeIsNotGoneInto)
{
    const QByteArray deep = QByteArray(500, '[') + QByteArray(500, ']');
    EXPECT_EQ(fault(deep, kTexts), "[0]: is no text");
    EXPECT_EQ(fault(deep, kAnything), "sound");
}

} // namespace
