#include "platform/embedded/ExchangeObject.h"

#include "embedded/ExchangeDocuments.h"
#include "embedded/ToldRefusal.h"

using exchangetest::parsed;
using hbx::embedded::ExchangeObject;
using hbx::embedded::JsonPlace;

namespace {

const QLatin1String kMember("x");
const JsonPlace kDocument;

ExchangeObject objectOf(const char *json) { return {parsed(json), kDocument, {kMember}}; }

/** Place and reason of a refusal. */
template <typename Read> std::string refusalOf(const char *json, Read read)
{
    return refusaltest::toldBy([&] { read(objectOf(json)); });
}

} // namespace

TEST(ExchangeObjectTest, absentMembersGiveTheStartValue)
{
    const ExchangeObject empty = objectOf("{}");
    EXPECT_EQ(empty.textOr(kMember, "none"), QString("none"));
    EXPECT_EQ(empty.numberOr(kMember, 1.5), 1.5);
    EXPECT_TRUE(empty.flagOr(kMember, true));
    EXPECT_EQ(empty.integer32Or(kMember, 7), 7);
    EXPECT_EQ(empty.wideOr(kMember, 8), 8);
}

TEST(ExchangeObjectTest, presentMembersAreGiven)
{
    EXPECT_EQ(objectOf(R"({"x": ""})").textOr(kMember, "none"), QString());
    EXPECT_EQ(objectOf(R"({"x": -0.5})").numberOr(kMember, 1.5), -0.5);
    EXPECT_FALSE(objectOf(R"({"x": false})").flagOr(kMember, true));
    EXPECT_EQ(objectOf(R"({"x": -2147483648})").integer32Or(kMember, 7), std::numeric_limits<int>::min());
    EXPECT_EQ(objectOf(R"({"x": "B-1"})").name(kMember), QString("B-1"));
}

TEST(ExchangeObjectTest, nullIsNoAbsentMember)
{
    const auto read = [](const ExchangeObject &json) { json.numberOr(kMember, 1.5); };
    EXPECT_EQ(refusalOf(R"({"x": null})", read), "x: is not a number");
}

TEST(ExchangeObjectTest, anIntegerHasItsLimits)
{
    const auto fromOne = [](const ExchangeObject &json) { json.integer32(kMember, 1); };
    EXPECT_EQ(refusalOf(R"({"x": 1})", fromOne), "good");
    EXPECT_EQ(refusalOf(R"({"x": 0})", fromOne), "x: is not an integer from 1 to 2147483647");
    EXPECT_EQ(refusalOf(R"({"x": 2147483648})", fromOne), "x: is not an integer from 1 to 2147483647");
}

TEST(ExchangeObjectTest, aWideNumberIsWhatADoubleHoldsExactly)
{
    EXPECT_EQ(objectOf(R"({"x": 9007199254740992})").wide(kMember), Q_INT64_C(9007199254740992));
    EXPECT_EQ(refusalOf(R"({"x": 9007199254740994})", [](const ExchangeObject &json) { json.wide(kMember); }),
              "x: is not an integer from -9007199254740992 to 9007199254740992");
}

TEST(ExchangeObjectTest, aNameIsNotEmpty)
{
    EXPECT_EQ(refusalOf(R"({"x": ""})", [](const ExchangeObject &json) { json.name(kMember); }), "x: is empty");
}

TEST(ExchangeObjectTest, entriesAreVisitedInOrderWithTheirPlaces)
{
    std::string visited;
    objectOf(R"({"x": [5, 6]})").each(kMember, [&](const QJsonValue &value, const JsonPlace &place, int index) {
        visited += place.text().toStdString() + '=' + std::to_string(value.toInt()) + '@' + std::to_string(index) + ' ';
    });
    EXPECT_EQ(visited, "x[0]=5@0 x[1]=6@1 ");
}

TEST(ExchangeObjectTest, anAbsentArrayHasNoEntriesAndAnythingElseIsRefused)
{
    const auto visit = [](const QJsonValue &, const JsonPlace &, int) { ADD_FAILURE(); };
    objectOf("{}").each(kMember, visit);
    EXPECT_EQ(refusalOf(R"({"x": {}})", [&](const ExchangeObject &json) { json.each(kMember, visit); }),
              "x: is not an array");
}
