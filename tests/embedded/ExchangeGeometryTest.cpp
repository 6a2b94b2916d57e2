#include "platform/embedded/ExchangeGeometry.h"

#include "embedded/ToldRefusal.h"

#include <gtest/gtest.h>

using namespace hbx::embedded;

namespace {

std::string polygonReason(const QJsonValue &value)
{
    return refusaltest::toldBy([&] { polygonFromJson(value, JsonPlace()); });
}

std::string curveReason(const QJsonValue &value)
{
    return refusaltest::toldBy([&] { curveFromJson(value, JsonPlace()); });
}

} // namespace

TEST(ExchangeGeometryTest, nullIsNullBothWays)
{
    EXPECT_FALSE(polygonFromJson(QJsonValue::Null, JsonPlace()));
    EXPECT_FALSE(curveFromJson(QJsonValue::Null, JsonPlace()));
    EXPECT_TRUE(geometryToJson(nullptr).isNull());
}

TEST(ExchangeGeometryTest, soundGeometryIsItsText)
{
    for (const QJsonValue &text : {QJsonValue("LINESTRING(0 0, 5 0)"), QJsonValue("CIRCULARSTRING(0 0, 5 5, 10 0)")})
        EXPECT_EQ(geometryToJson(curveFromJson(text, JsonPlace()).get()), text);
    const QJsonValue outline("POLYGON((0 0, 5 0, 5 5, 0 0))");
    EXPECT_EQ(geometryToJson(polygonFromJson(outline, JsonPlace()).get()), outline);
}

TEST(ExchangeGeometryTest, whatIsNoTextOfItsKindIsRefused)
{
    for (const QJsonValue &value : {QJsonValue(5), QJsonValue(""), QJsonValue("LINESTRING(0 0, 5 0)")})
        EXPECT_EQ(polygonReason(value), "is not the text of a polygon");
    for (const QJsonValue &value : {QJsonValue(true), QJsonValue(" "), QJsonValue("POLYGON((0 0, 5 0, 5 5, 0 0))")})
        EXPECT_EQ(curveReason(value), "is not the text of a curve");
}

TEST(ExchangeGeometryTest, theFirstRuleThatAPolygonBreaksIsTold)
{
    EXPECT_EQ(polygonReason("POLYGON((0 0, 5 0, 5 5, 0 5))"), "has an open ring");
    EXPECT_EQ(polygonReason("POLYGON((0 0, 10 0, 10 0, 10 10, 0 0))"), "has an edge of no length");
    EXPECT_EQ(polygonReason("POLYGON((0 0, 5 5, 5 0, 0 5, 0 0))"), "crosses itself");
}

TEST(ExchangeGeometryTest, anAxisHasALength)
{
    const QJsonValue point = "LINESTRING(5 5, 5 5)";
    EXPECT_EQ(refusaltest::toldBy([&] { placedCurveFromJson(point, JsonPlace()); }), "has no length");
    EXPECT_EQ(refusaltest::toldBy([&] { placedCurveFromJson("line", JsonPlace()); }), "is not the text of a curve");
    EXPECT_FALSE(placedCurveFromJson(QJsonValue::Null, JsonPlace()));
    EXPECT_EQ(placedCurveFromJson("LINESTRING(5 5, 9 5)", JsonPlace())->Length(), 4.0);
}

TEST(ExchangeGeometryTest, anotherCurveMayHaveNone)
{
    EXPECT_EQ(curveFromJson("LINESTRING(5 5, 5 5)", JsonPlace())->Length(), 0.0);
}

TEST(ExchangeGeometryTest, aPointIsAnArrayOfTwoNumbers)
{
    const auto point = pointFromJson(QJsonArray{1.5, -2}, JsonPlace());
    EXPECT_EQ(pointToJson(point), (QJsonArray{1.5, -2}));
    for (const QJsonValue &value :
         {QJsonValue(1), QJsonValue(QJsonArray{1}), QJsonValue(QJsonArray{1, "2"}), QJsonValue(QJsonArray{"1", 2})})
        EXPECT_THROW(pointFromJson(value, JsonPlace()), dwgx::JsonRefusal);
}
