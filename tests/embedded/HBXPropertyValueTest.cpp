#include "platform/embedded/HBXPropertyValue.h"

#include "embedded/EmbeddedBuilding.h"

#include <limits>

namespace hbx::embedded {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

/** Every kind's form of nothing: it is kept as no value whatever the kind of the property. */
const PropertyValue kNothings[] = {PropertyValue(), vks::CRefPtr<vks::CCurve2d>(), vks::CRefPtr<vks::CPolygon>()};

constexpr PropertyKind kAllKinds[] = {PropertyKind::Integer,   PropertyKind::Double, PropertyKind::Text,
                                      PropertyKind::Elevation, PropertyKind::Point,  PropertyKind::Curve,
                                      PropertyKind::Polygon};

/** What is kept of a value, as text; "refused" where nothing can be. */
QString kept(PropertyKind kind, const PropertyValue &value)
{
    const auto result = keptAs(kind, value);
    if (!result)
        return QStringLiteral("refused");
    const auto asText = keptAs(PropertyKind::Text, *result);
    return asText && !isNoValue(*asText) ? std::get<QString>(*asText) : QStringLiteral("none");
}

TEST(HBXPropertyValueTest, nullGeometryAndNothingAreNoValueOfAnyKind)
{
    for (const PropertyValue &nothing : kNothings) {
        EXPECT_TRUE(isNoValue(nothing));
        for (const PropertyKind kind : kAllKinds)
            EXPECT_TRUE(std::holds_alternative<std::monostate>(keptAs(kind, nothing).value()));
    }
    EXPECT_FALSE(isNoValue(0));
    EXPECT_FALSE(isNoValue(0.0));
    EXPECT_FALSE(isNoValue(QString()));
    EXPECT_FALSE(isNoValue(Point()));
}

TEST(HBXPropertyValueTest, anIntegerTakesWholeNumbersAlone)
{
    EXPECT_EQ(kept(PropertyKind::Integer, -7), "-7");
    EXPECT_EQ(kept(PropertyKind::Integer, 7.0), "7");
    EXPECT_EQ(kept(PropertyKind::Integer, QStringLiteral("42")), "42");
    EXPECT_EQ(kept(PropertyKind::Integer, static_cast<double>(kHighest)), "2147483647");
    for (const double unfit : {7.5, 2147483648.0, -2147483649.0, 1e300, kNan, kInf})
        EXPECT_EQ(kept(PropertyKind::Integer, unfit), "refused") << unfit;
    for (const char *unfit : {"", "7.0", "7x", "2147483648"})
        EXPECT_EQ(kept(PropertyKind::Integer, QString(unfit)), "refused") << unfit;
    EXPECT_EQ(kept(PropertyKind::Integer, Point(1, 2)), "refused");
}

TEST(HBXPropertyValueTest, aDoubleTakesFiniteNumbersAlone)
{
    EXPECT_EQ(kept(PropertyKind::Double, 3), "3");
    EXPECT_EQ(kept(PropertyKind::Double, QStringLiteral("-0.5")), "-0.5");
    for (const double unfit : {kNan, kInf, -kInf})
        EXPECT_EQ(kept(PropertyKind::Double, unfit), "refused") << unfit;
    for (const char *unfit : {"", "inf", "nan", "1e999", "1,5"})
        EXPECT_EQ(kept(PropertyKind::Double, QString(unfit)), "refused") << unfit;
}

TEST(HBXPropertyValueTest, aTextTakesNumbersAndGeometryAndNoPoint)
{
    EXPECT_EQ(kept(PropertyKind::Text, -3), "-3");
    EXPECT_EQ(kept(PropertyKind::Text, 0.1), "0.1");
    EXPECT_EQ(kept(PropertyKind::Text, QString()), "");
    EXPECT_EQ(kept(PropertyKind::Text, curveOf("LINESTRING(0 0, 1 2)")), "LINESTRING(0 0, 1 2)");
    EXPECT_EQ(kept(PropertyKind::Text, polygonOf("POLYGON((0 0, 4 0, 4 3, 0 0))")), "POLYGON((0 0, 4 0, 4 3, 0 0))");
    EXPECT_EQ(kept(PropertyKind::Text, kNan), "refused");
    EXPECT_EQ(kept(PropertyKind::Text, Point(1, 2)), "refused");
}

TEST(HBXPropertyValueTest, anElevationTakesMetresAndTheWordsOfAFloor)
{
    EXPECT_EQ(kept(PropertyKind::Elevation, 3), "3");
    EXPECT_EQ(kept(PropertyKind::Elevation, 2.95), "2.95");
    EXPECT_EQ(kept(PropertyKind::Elevation, QString::fromUtf8("层顶标高-0.05")), QString::fromUtf8("层顶标高-0.05"));
    EXPECT_EQ(kept(PropertyKind::Elevation, QStringLiteral("top")), "refused");
    EXPECT_EQ(kept(PropertyKind::Elevation, kInf), "refused");
    EXPECT_EQ(kept(PropertyKind::Elevation, curveOf("LINESTRING(0 0, 1 2)")), "refused");
}

TEST(HBXPropertyValueTest, aPointTakesFinitePointsAlone)
{
    EXPECT_EQ(std::get<Point>(keptAs(PropertyKind::Point, Point(3, -4)).value()), Point(3, -4));
    EXPECT_FALSE(keptAs(PropertyKind::Point, Point(kNan, 0)));
    EXPECT_FALSE(keptAs(PropertyKind::Point, QStringLiteral("3,-4")));
}

TEST(HBXPropertyValueTest, geometryIsReadFromTextOfItsOwnKind)
{
    EXPECT_EQ(kept(PropertyKind::Curve, QStringLiteral("LINESTRING(0 0, 1 2)")), "LINESTRING(0 0, 1 2)");
    EXPECT_EQ(kept(PropertyKind::Polygon, QStringLiteral("POLYGON((0 0, 4 0, 4 3, 0 0))")),
              "POLYGON((0 0, 4 0, 4 3, 0 0))");
    EXPECT_EQ(kept(PropertyKind::Polygon, QStringLiteral("LINESTRING(0 0, 1 2)")), "refused");
    EXPECT_EQ(kept(PropertyKind::Curve, QStringLiteral("line")), "refused");
    EXPECT_EQ(kept(PropertyKind::Curve, 4), "refused");
    EXPECT_EQ(kept(PropertyKind::Polygon, curveOf("LINESTRING(0 0, 1 2)")), "refused");
}

TEST(HBXPropertyValueTest, outlineThatNoObjectCanHaveIsRefusedHoweverItComes)
{
    constexpr const char *kUnsound[] = {"POLYGON((0 0, 9 0, 9 9))", "POLYGON((0 0, 9 9, 9 0, 0 9, 0 0))",
                                        "POLYGON((0 0, 9 0, 0 0))", "POLYGON EMPTY",
                                        "POLYGON((0 0, 9 0, 9 9, 0 0),(20 0, 30 0, 30 9, 20 0))"};
    for (const char *text : kUnsound) {
        EXPECT_EQ(kept(PropertyKind::Polygon, polygonOf(text)), "refused") << text;
        EXPECT_EQ(kept(PropertyKind::Polygon, QString(text)), "refused") << text;
        EXPECT_EQ(kept(PropertyKind::Text, polygonOf(text)), text);
    }
}

TEST(HBXPropertyValueTest, aCurveOfNoLengthIsKept) // of a bar without a direction
{
    EXPECT_EQ(kept(PropertyKind::Curve, curveOf("LINESTRING(3 3, 3 3)")), "LINESTRING(3 3, 3 3)");
}

TEST(HBXPropertyValueTest, whatStandsBehindAZeroInATextIsNotOverlooked)
{
    const QString text = QStringLiteral("LINESTRING(0 0, 1 2)") + QChar(0) + QLatin1Char('x');
    EXPECT_EQ(kept(PropertyKind::Curve, text), "refused");
}

TEST(HBXPropertyValueTest, aTextThatDoesNotFitIsNoValue)
{
    EXPECT_EQ(std::get<int>(valueOfText(PropertyKind::Integer, QStringLiteral("5"))), 5);
    EXPECT_TRUE(isNoValue(valueOfText(PropertyKind::Integer, QStringLiteral("five"))));
}

TEST(HBXPropertyValueTest, numbersAreReadFromWhatIsOneAndAreZeroElsewhere)
{
    EXPECT_EQ(intOf(QStringLiteral("12.7")), 12);
    EXPECT_EQ(intOf(-12.7), -12);
    EXPECT_EQ(doubleOf(QStringLiteral("12.7")), 12.7);
    EXPECT_EQ(doubleOf(kHighest), 2147483647.0);
    for (const PropertyValue &none : {PropertyValue(), PropertyValue(QStringLiteral("3A")), PropertyValue(Point(1, 2)),
                                      PropertyValue(kNan), PropertyValue(curveOf("LINESTRING(0 0, 1 2)"))}) {
        EXPECT_EQ(intOf(none), 0);
        EXPECT_EQ(doubleOf(none), 0.0);
    }
}

TEST(HBXPropertyValueTest, numbersBeyondAnIntAreCutToItsRange)
{
    EXPECT_EQ(cutToInt(-0.9), 0);
    EXPECT_EQ(cutToInt(2147483646.9), 2147483646);
    EXPECT_EQ(cutToInt(1e300), kHighest);
    EXPECT_EQ(cutToInt(kInf), kHighest);
    EXPECT_EQ(cutToInt(-kInf), kLowest);
    EXPECT_EQ(cutToInt(kNan), 0);
}

TEST(HBXPropertyValueTest, numbersAreWrittenPlainlyWhereABuildingHasThem)
{
    EXPECT_EQ(textOf(0.0), "0");
    EXPECT_EQ(textOf(1234567.125), "1234567.125");
    EXPECT_EQ(textOf(0.000001), "0.000001");
    EXPECT_EQ(textOf(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(textOf(1e15), "1e+15");
    EXPECT_EQ(textOf(2e-7), "2e-07");
}

TEST(HBXPropertyValueTest, pointsAndGeometryHaveNoText)
{
    EXPECT_EQ(textOf(PropertyValue()), "");
    EXPECT_EQ(textOf(Point(1, 2)), "");
    EXPECT_EQ(textOf(curveOf("LINESTRING(0 0, 1 2)")), "");
}

TEST(HBXPropertyValueTest, everyKindHasANameOfItsOwn)
{
    QStringList names;
    for (const PropertyKind kind : kAllKinds)
        names.append(kindName(kind));
    EXPECT_EQ(names.join(QStringLiteral(", ")), "whole number, number, text, elevation, point, curve, polygon");
}

} // namespace
} // namespace hbx::embedded
