#include "encoding/GeometryFields.h"

#include "encoding/RecordKey.h"
#include "platform/geometry/CLine2d.h"

#include <gtest/gtest.h>

using namespace encoding;

namespace {

using Curve = vks::CRefPtr<vks::CCurve2d>;
using Polygon = vks::CRefPtr<vks::CPolygon>;

struct Shape
{
    Curve axis;
    Polygon outline;
    Curve exactAxis;
    Polygon exactOutline;

    static constexpr auto table() // NOLINT(readability-identifier-naming)
    {
        return std::make_tuple(fieldOr("axis"_key, &Shape::axis), fieldOr("outline"_key, &Shape::outline),
                               fieldAsOr<KernelText>("exactAxis"_key, &Shape::exactAxis),
                               fieldAsOr<KernelText>("exactOutline"_key, &Shape::exactOutline));
    }
};

const QJsonObject kFilled{{"axis", "0,0,1.5,0"},
                          {"outline", "0,0;100,0;100,100;"},
                          {"exactAxis", "LINESTRING(0 0, 1.23456789 0)"},
                          {"exactOutline", "POLYGON((0 0, 100 0, 100 100, 0 0))"}};

Shape read(const QJsonObject &json)
{
    Shape shape;
    shape.axis = new vks::CLine2d({0, 0}, {1, 1});
    shape.exactAxis = shape.axis;
    shape.outline = GeometryTextReader::polygonOf(QStringLiteral("0,0;1,0;1,1;"));
    shape.exactOutline = shape.outline;
    readFields(json, Shape::table(), shape);
    return shape;
}

TEST(GeometryFieldsTest, bothTextFormsAreReadAndWritten)
{
    const Shape shape = read(kFilled);
    ASSERT_TRUE(shape.axis && shape.outline && shape.exactAxis && shape.exactOutline);
    EXPECT_EQ(shape.axis->Length(), 1.5);
    EXPECT_EQ(shape.outline->Area(), 5000.0);
    EXPECT_EQ(shape.exactAxis->Length(), 1.23456789);
    EXPECT_EQ(shape.exactOutline->Area(), 5000.0);
    EXPECT_EQ(writtenFields(shape, Shape::table()), kFilled);
}

TEST(GeometryFieldsTest, nullGeometryIsTheEmptyText)
{
    EXPECT_EQ(writtenFields(Shape(), Shape::table()),
              (QJsonObject{{"axis", ""}, {"outline", ""}, {"exactAxis", ""}, {"exactOutline", ""}}));
}

TEST(GeometryFieldsTest, badEmptyMissingAndMistypedTextsReadAsNull)
{
    const QJsonObject bad{{"axis", "1,2"}, {"outline", "0,0;"}, {"exactAxis", "0,0,1,0"}, {"exactOutline", "0,0;"}};
    const QJsonObject empty{{"axis", ""}, {"outline", ""}, {"exactAxis", ""}, {"exactOutline", ""}};
    const QJsonObject mistyped{{"axis", 1}, {"outline", true}, {"exactAxis", QJsonObject()}, {"exactOutline", 2}};
    for (const QJsonObject &json : {bad, empty, QJsonObject(), mistyped}) {
        const Shape shape = read(json);
        EXPECT_FALSE(shape.axis || shape.outline || shape.exactAxis || shape.exactOutline);
    }
}

TEST(GeometryFieldsTest, kernelTextOfOtherGeometryReadsAsNull)
{
    const Shape shape = read({{"exactAxis", kFilled["exactOutline"]}, {"exactOutline", kFilled["exactAxis"]}});
    EXPECT_FALSE(shape.exactAxis);
    EXPECT_FALSE(shape.exactOutline);
}

struct Place
{
    vks::CVec2<double> point{1, 2};
    static constexpr auto table() // NOLINT(readability-identifier-naming)
    {
        return std::make_tuple(fieldOr("point"_key, &Place::point));
    }
};

TEST(GeometryFieldsTest, pointIsItsTextAndABadOneIsTheOrigin)
{
    Place place;
    const QJsonObject json = writtenFields(place, Place::table());
    EXPECT_EQ(json["point"], "1,2");
    readFields({{"point", "3.5,-4"}}, Place::table(), place);
    EXPECT_EQ(place.point, vks::CVec2<double>(3.5, -4));
    for (const QJsonValue &bad : {QJsonValue("3.5"), QJsonValue("1,2,3"), QJsonValue(7), QJsonValue()}) {
        place.point = {1, 2};
        readFields({{"point", bad}}, Place::table(), place);
        EXPECT_EQ(place.point, vks::CVec2<double>());
    }
}

} // namespace
