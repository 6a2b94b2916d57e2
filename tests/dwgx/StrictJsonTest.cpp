#include "platform/dwgx/StrictJson.h"

#include <gtest/gtest.h>

#include <QJsonDocument>

namespace {

using namespace dwgx::literals;
using dwgx::JsonPlace;
using dwgx::JsonRefusal;
using dwgx::StrictObject;

constexpr QLatin1String kLayers = "layers"_key;
constexpr QLatin1String kSize = "size"_key;

/** "place: reason" of what a reader refuses; empty when it refuses nothing. */
template <typename Read> std::string refusalOf(Read read)
{
    try {
        read();
        return {};
    } catch (const JsonRefusal &refusal) {
        return (refusal.place + QStringLiteral(": ") + refusal.reason).toStdString();
    }
}

QJsonValue json(const char *text) { return QJsonDocument::fromJson(text).object(); }

/** An object that stands under layers[2] and may have the one member "size". */
class StrictObjectTest : public ::testing::Test
{
protected:
    StrictObject object(const char *text) const { return {json(text), m_place, {kSize}}; }
    template <typename Read> std::string refusal(const char *text, Read read) const
    {
        return refusalOf([&] { read(object(text)); });
    }

    JsonPlace m_root;
    JsonPlace m_layers{m_root, kLayers};
    JsonPlace m_place{m_layers, 2};
};

TEST(LineAndColumnTest, bothCountFromOne)
{
    EXPECT_EQ(dwgx::lineAndColumn("{}", 0), QStringLiteral("line 1, column 1"));
    EXPECT_EQ(dwgx::lineAndColumn("{}", 2), QStringLiteral("line 1, column 3"));
}

TEST(LineAndColumnTest, columnCountsFromTheLastLineBreak)
{
    const QByteArray text("{\n \"a\": 1,\n\n ?}");
    EXPECT_EQ(dwgx::lineAndColumn(text, text.indexOf('?')), QStringLiteral("line 4, column 2"));
    EXPECT_EQ(dwgx::lineAndColumn(text, 1), QStringLiteral("line 1, column 2")); // the break ends its own line
    EXPECT_EQ(dwgx::lineAndColumn(text, 2), QStringLiteral("line 2, column 1"));
    const QByteArray wide = QStringLiteral("层顶?").toUtf8();
    EXPECT_EQ(dwgx::lineAndColumn(wide, wide.indexOf('?')), QStringLiteral("line 1, column 3"));
}

TEST(JsonPlaceTest, textIsTheWayFromTheDocument)
{
    const JsonPlace root;
    const JsonPlace layers(root, kLayers);
    const JsonPlace layer(layers, 0);
    const JsonPlace size(layer, kSize);
    const JsonPlace term(size, 11);
    EXPECT_EQ(root.text(), "");
    EXPECT_EQ(layers.text(), "layers");
    EXPECT_EQ(layer.text(), "layers[0]");
    EXPECT_EQ(size.text(), "layers[0].size");
    EXPECT_EQ(term.text(), "layers[0].size[11]");
}

TEST(JsonPlaceTest, arraysWithinArraysHaveNoDotBetweenThem)
{
    const JsonPlace root;
    const JsonPlace outer(root, 1);
    EXPECT_EQ(JsonPlace(outer, 2).text(), "[1][2]");
}

TEST(JsonPlaceTest, refusalTellsPlaceAndReason)
{
    const JsonPlace root;
    EXPECT_EQ(refusalOf([&] { JsonPlace(root, kSize).refuse(QStringLiteral("is too large")); }), "size: is too large");
}

TEST_F(StrictObjectTest, valueThatIsNoObjectIsRefused)
{
    for (const QJsonValue &value : {QJsonValue(), QJsonValue(1.0), QJsonValue("{}"), QJsonValue(QJsonArray())})
        EXPECT_EQ(refusalOf([&] { StrictObject(value, m_place, {kSize}); }), "layers[2]: is not an object");
}

TEST_F(StrictObjectTest, unknownMemberIsRefusedThoughNobodyAsksForIt)
{
    EXPECT_EQ(refusal(R"({"size": 1, "Size": 2})", [](const StrictObject &) {}),
              "layers[2]: has the unknown member \"Size\"");
}

TEST_F(StrictObjectTest, memberThatIsMissingIsRefusedWhenAskedFor)
{
    EXPECT_FALSE(object("{}").has(kSize));
    EXPECT_EQ(refusal("{}", [](const StrictObject &empty) { empty.value(kSize); }), "layers[2]: has no \"size\"");
    EXPECT_EQ(refusal("{}", [](const StrictObject &empty) { empty.number(kSize); }), "layers[2]: has no \"size\"");
}

TEST_F(StrictObjectTest, membersOfTheirKindAreRead)
{
    EXPECT_TRUE(object(R"({"size": null})").has(kSize));
    EXPECT_EQ(object(R"({"size": "large"})").text(kSize), "large");
    EXPECT_EQ(object(R"({"size": 2.5})").number(kSize), 2.5);
    EXPECT_EQ(object(R"({"size": [1, "x"]})").array(kSize).size(), 2);
    EXPECT_EQ(object(R"({"size": [1, -2.5]})").numbers(kSize, 2), (std::vector<double>{1.0, -2.5}));
    EXPECT_EQ(&object("{}").place(), &m_place);
}

TEST_F(StrictObjectTest, memberOfAnotherKindIsRefused)
{
    const auto text = [](const StrictObject &object) { object.text(kSize); };
    const auto number = [](const StrictObject &object) { object.number(kSize); };
    const auto array = [](const StrictObject &object) { object.array(kSize); };
    EXPECT_EQ(refusal(R"({"size": 1})", text), "layers[2].size: is not a text");
    EXPECT_EQ(refusal(R"({"size": "1"})", number), "layers[2].size: is not a number");
    EXPECT_EQ(refusal(R"({"size": true})", number), "layers[2].size: is not a number");
    EXPECT_EQ(refusal(R"({"size": {}})", array), "layers[2].size: is not an array");
}

TEST_F(StrictObjectTest, integerIsWholeAndWithinItsRange)
{
    const auto size = [](const StrictObject &object) { object.integer(kSize, -2, 300); };
    const std::string refused = "layers[2].size: is not an integer from -2 to 300";
    EXPECT_EQ(object(R"({"size": -2})").integer(kSize, -2, 300), -2);
    EXPECT_EQ(object(R"({"size": 300.0})").integer(kSize, -2, 300), 300);
    for (const char *text : {R"({"size": -3})", R"({"size": 301})", R"({"size": 1.5})", R"({"size": 1e300})"})
        EXPECT_EQ(refusal(text, size), refused) << text;
}

TEST_F(StrictObjectTest, numbersAreAllNumbersAndOfTheCountAskedFor)
{
    const auto pair = [](const StrictObject &object) { object.numbers(kSize, 2); };
    const std::string refused = "layers[2].size: is not an array of 2 numbers";
    for (const char *text : {R"({"size": [1]})", R"({"size": [1, 2, 3]})", R"({"size": [1, "2"]})"})
        EXPECT_EQ(refusal(text, pair), refused) << text;
    EXPECT_EQ(refusal(R"({"size": 1})", pair), "layers[2].size: is not an array");
}

} // namespace
