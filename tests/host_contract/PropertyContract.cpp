#include "HostContract.h"

#include "HostContractGeometry.h"

using namespace host_contract;
using vks::CCurve2d;
using vks::CPolygon;
using vks::CRefPtr;
using vks::CVec2;

namespace {

CVec2<double> pointOf(const IHBXProperties &properties, const std::wstring &name)
{
    CVec2<double> point{17, 18};
    EXPECT_EQ(&properties.asPoint(point, name), &point);
    return point;
}

CRefPtr<CCurve2d> curveOf(const IHBXProperties &properties, const std::wstring &name)
{
    CRefPtr<CCurve2d> curve = line(1, 2, 3, 4);
    EXPECT_EQ(&properties.asCurve(curve, name), &curve);
    return curve;
}

CRefPtr<CPolygon> polygonOfProperty(const IHBXProperties &properties, const std::wstring &name)
{
    CRefPtr<CPolygon> polygon = rectangle(1, 2, 3, 4);
    EXPECT_EQ(&properties.asPolygon(polygon, name), &polygon);
    return polygon;
}

/** Every typed read of a property without a value, or of none, gives the kind's nothing. */
void expectNothing(const IHBXProperties &properties, const std::wstring &name)
{
    const QString key = QString::fromStdWString(name);
    EXPECT_TRUE(properties.isNull(name));
    EXPECT_EQ(properties.asInt(name), 0);
    EXPECT_EQ(properties.asInt(key), 0);
    EXPECT_EQ(properties.asDouble(name), 0.0);
    EXPECT_EQ(properties.asDouble(key), 0.0);
    EXPECT_EQ(textOf(properties, name), QString());
    QString text = QStringLiteral("before");
    EXPECT_EQ(&properties.asString(text, key), &text);
    EXPECT_EQ(text, QString());
    EXPECT_EQ(pointOf(properties, name), CVec2<double>());
    EXPECT_EQ(curveOf(properties, name), nullptr);
    CRefPtr<CCurve2d> curve = line(1, 2, 3, 4);
    EXPECT_EQ(&properties.asCurve(curve, key), &curve);
    EXPECT_EQ(curve, nullptr);
    EXPECT_EQ(polygonOfProperty(properties, name), nullptr);
}

} // namespace

TEST_P(HostPropertyContract, hasPropertyGoesByTheExactNameAndTheType)
{
    const HostContractProperty &text = terms().text;
    const IHBXProperties &properties = propertiesOf(makeElement(text.type));
    EXPECT_TRUE(properties.hasProperty(text.name));
    EXPECT_FALSE(properties.hasProperty(text.name + L" "));
    EXPECT_FALSE(properties.hasProperty(L""));
    EXPECT_FALSE(properties.hasProperty(terms().unknownProperty));
    EXPECT_FALSE(propertiesOf(makeElement(74)).hasProperty(text.name));
}

TEST_P(HostPropertyContract, drawObjectHasThePropertiesOfItsElement)
{
    for (const HostContractProperty &property : {terms().integer, terms().number, terms().text, terms().elevation}) {
        IHBXElementDrawObj &drawObj = placed(property.type);
        EXPECT_TRUE(propertiesOf(*drawObj.element()).hasProperty(property.name)) << property.type;
        EXPECT_TRUE(propertiesOf(drawObj).hasProperty(property.name)) << property.type;
    }
}

TEST_P(HostPropertyContract, propertyWithoutAValueReadsAsNothingInEveryForm)
{
    for (const HostContractProperty &property : {terms().integer, terms().number, terms().text, terms().elevation,
                                                 terms().point, terms().curve, terms().polygon}) {
        SCOPED_TRACE(QString::fromStdWString(property.name).toStdString());
        IHBXElementDrawObj &drawObj = placed(property.type);
        ASSERT_TRUE(propertiesOf(drawObj).hasProperty(property.name));
        expectNothing(propertiesOf(drawObj), property.name);
    }
}

TEST_P(HostPropertyContract, nameThatTheObjectLacksReadsAsNothingInEveryForm)
{
    IHBXElementDrawObj &drawObj = placed(15);
    expectNothing(propertiesOf(drawObj), terms().unknownProperty);
    expectNothing(propertiesOf(*drawObj.element()), terms().unknownProperty);
    expectNothing(propertiesOf(drawObj), L"");
}

TEST_P(HostPropertyContract, writeToANameThatTheObjectLacksDoesNothing)
{
    IHBXElementDrawObj &drawObj = placed(15);
    const std::wstring &name = terms().unknownProperty;
    const CVec2<double> point{1, 2};
    IHBXElement &element = *drawObj.element();
    for (IHBXProperties *properties : {&propertiesOf(drawObj), &propertiesOf(element)}) {
        EXPECT_NO_THROW(properties->setInt(name, 1, true));
        EXPECT_NO_THROW(properties->setDouble(name, 1.5, true));
        EXPECT_NO_THROW(properties->setString(name, QStringLiteral("x"), false));
        EXPECT_NO_THROW(properties->setPoint(name, &point, false));
        EXPECT_NO_THROW(properties->setCurve(name, line(0, 0, 1, 1), false));
        EXPECT_NO_THROW(properties->setPolygon(name, rectangle(0, 0, 1, 1), false));
        expectNothing(*properties, name);
    }
}

TEST_P(HostPropertyContract, integerIsReadBackInBothForms)
{
    const HostContractProperty &integer = terms().integer;
    IHBXProperties &properties = propertiesOf(placed(integer.type));
    properties.setInt(integer.name, -2100, true);
    EXPECT_EQ(properties.asInt(integer.name), -2100);
    EXPECT_EQ(properties.asInt(QString::fromStdWString(integer.name)), -2100);
    EXPECT_FALSE(properties.isNull(integer.name));
}

TEST_P(HostPropertyContract, zeroIsAValue)
{
    const HostContractProperty &integer = terms().integer;
    IHBXProperties &properties = propertiesOf(placed(integer.type));
    properties.setInt(integer.name, 0, true);
    EXPECT_FALSE(properties.isNull(integer.name));
}

TEST_P(HostPropertyContract, numberIsReadBackInBothForms)
{
    const HostContractProperty &number = terms().number;
    IHBXProperties &properties = propertiesOf(placed(number.type));
    properties.setDouble(number.name, 350.25, true);
    EXPECT_EQ(properties.asDouble(number.name), 350.25);
    EXPECT_EQ(properties.asDouble(QString::fromStdWString(number.name)), 350.25);
}

TEST_P(HostPropertyContract, textIsReadBackInBothFormsAsItIs)
{
    const HostContractProperty &text = terms().text;
    IHBXProperties &properties = propertiesOf(placed(text.type));
    const QString bars = QString::fromUtf8(" A8@100/200(2) 箍筋 ");
    properties.setString(text.name, bars, true);
    EXPECT_EQ(textOf(properties, text.name), bars);
    QString byKey;
    EXPECT_EQ(&properties.asString(byKey, QString::fromStdWString(text.name)), &byKey);
    EXPECT_EQ(byKey, bars);
}

TEST_P(HostPropertyContract, numberIsCutOrWrittenOutWhereItIsReadAsAnotherKind)
{
    const HostContractProperty &number = terms().number;
    IHBXProperties &beam = propertiesOf(placed(number.type));
    beam.setDouble(number.name, 350.75, true);
    EXPECT_EQ(beam.asInt(number.name), 350);
    EXPECT_EQ(textOf(beam, number.name), QStringLiteral("350.75"));
    beam.setDouble(number.name, -2.75, true);
    EXPECT_EQ(beam.asInt(number.name), -2);

    const HostContractProperty &integer = terms().integer;
    IHBXProperties &door = propertiesOf(placed(integer.type));
    door.setInt(integer.name, 2100, true);
    EXPECT_EQ(door.asDouble(integer.name), 2100.0);
    EXPECT_EQ(textOf(door, integer.name), QStringLiteral("2100"));
}

TEST_P(HostPropertyContract, pointIsReadBackAndNullClearsIt)
{
    const HostContractProperty &point = terms().point;
    IHBXProperties &properties = propertiesOf(placed(point.type));
    const CVec2<double> value{100.5, -200};
    properties.setPoint(point.name, &value, false);
    EXPECT_FALSE(properties.isNull(point.name));
    EXPECT_EQ(pointOf(properties, point.name), value);
    properties.setPoint(point.name, nullptr, false);
    EXPECT_TRUE(properties.isNull(point.name));
    EXPECT_EQ(pointOf(properties, point.name), CVec2<double>());
}

TEST_P(HostPropertyContract, curveIsCopiedReadBackInBothFormsAndClearedByNull)
{
    const HostContractProperty &property = terms().curve;
    IHBXProperties &properties = propertiesOf(placed(property.type));
    const CRefPtr<CCurve2d> curve = line(0, 0, 3000, 0);
    properties.setCurve(property.name, curve, false);
    curve->Translate({500, 500});
    EXPECT_FALSE(properties.isNull(property.name));
    EXPECT_TRUE(isLine(curveOf(properties, property.name), 0, 0, 3000, 0));
    CRefPtr<CCurve2d> byKey;
    EXPECT_TRUE(isLine(properties.asCurve(byKey, QString::fromStdWString(property.name)), 0, 0, 3000, 0));
    properties.setCurve(property.name, nullptr, false);
    EXPECT_TRUE(properties.isNull(property.name));
    EXPECT_EQ(curveOf(properties, property.name), nullptr);
}

TEST_P(HostPropertyContract, polygonIsCopiedReadBackAndClearedByNull)
{
    const HostContractProperty &property = terms().polygon;
    IHBXProperties &properties = propertiesOf(placed(property.type));
    const CRefPtr<CPolygon> polygon = rectangle(0, 0, 300, 600);
    properties.setPolygon(property.name, polygon, false);
    polygon->Translate({500, 500});
    EXPECT_FALSE(properties.isNull(property.name));
    EXPECT_TRUE(isRectangle(polygonOfProperty(properties, property.name), 0, 0, 300, 600));
    properties.setPolygon(property.name, nullptr, false);
    EXPECT_TRUE(properties.isNull(property.name));
    EXPECT_EQ(polygonOfProperty(properties, property.name), nullptr);
}

TEST_P(HostPropertyContract, drawObjectReadsItsElementsValueUntilItHasItsOwn)
{
    const HostContractProperty &integer = terms().integer;
    IHBXElement &door = makeElement(integer.type);
    IHBXProperties &own = propertiesOf(placed(door));
    IHBXProperties &other = propertiesOf(placed(door));
    IHBXProperties &shared = propertiesOf(door);
    shared.setInt(integer.name, 2100, true);
    EXPECT_EQ(own.asInt(integer.name), 2100);
    EXPECT_FALSE(own.isNull(integer.name));

    own.setInt(integer.name, 1800, true);
    EXPECT_EQ(own.asInt(integer.name), 1800);
    EXPECT_EQ(shared.asInt(integer.name), 2100);
    EXPECT_EQ(other.asInt(integer.name), 2100);

    shared.setInt(integer.name, 2400, true);
    EXPECT_EQ(own.asInt(integer.name), 1800);
    EXPECT_EQ(other.asInt(integer.name), 2400);
}

TEST_P(HostPropertyContract, elementsHaveValuesOfTheirOwn)
{
    const HostContractProperty &text = terms().text;
    IHBXProperties &first = propertiesOf(makeElement(text.type));
    IHBXProperties &second = propertiesOf(makeElement(text.type));
    first.setString(text.name, QStringLiteral("A8@100"), true);
    EXPECT_TRUE(second.isNull(text.name));
}

TEST_P(HostPropertyContract, elevationInMetresReadsAsMillimetres)
{
    const HostContractProperty &elevation = terms().elevation;
    IHBXProperties &properties = propertiesOf(placed(elevation.type));
    properties.setString(elevation.name, QStringLiteral("2.95"), false);
    EXPECT_NEAR(properties.asDouble(elevation.name), 2950.0, kNear);
    EXPECT_NEAR(properties.asDouble(QString::fromStdWString(elevation.name)), 2950.0, kNear);
    EXPECT_EQ(textOf(properties, elevation.name), QStringLiteral("2.95"));
    properties.setString(elevation.name, QStringLiteral(" -0.05 "), false);
    EXPECT_NEAR(properties.asDouble(elevation.name), -50.0, kNear);
}

TEST_P(HostPropertyContract, elevationOfABaseWordIsWorkedOutAgainstTheFloor)
{
    const HostContractProperty &elevation = terms().elevation;
    IHBXProperties &properties = propertiesOf(placed(makeElement(elevation.type, floor("2"))));
    const std::pair<const char *, double> cases[] = {{"层顶标高", 5800},
                                                     {"层底标高", 3000},
                                                     {"层顶标高-0.05", 5750},
                                                     {"层顶标高+0.1", 5900},
                                                     {"层底标高+1.2", 4200}};
    for (const auto &[text, millimetres] : cases) {
        properties.setString(elevation.name, QString::fromUtf8(text), false);
        EXPECT_NEAR(properties.asDouble(elevation.name), millimetres, kNear) << text;
        EXPECT_EQ(textOf(properties, elevation.name), QString::fromUtf8(text));
    }
}

TEST_P(HostPropertyContract, elevationOfAnElementIsWorkedOutAgainstItsFloorForItsDrawObjectsToo)
{
    const HostContractProperty &elevation = terms().elevation;
    IHBXElement &slab = makeElement(elevation.type, floor("2"));
    IHBXElementDrawObj &drawObj = placed(slab);
    propertiesOf(slab).setString(elevation.name, QString::fromUtf8("层顶标高"), false);
    EXPECT_NEAR(propertiesOf(slab).asDouble(elevation.name), 5800.0, kNear);
    EXPECT_NEAR(propertiesOf(drawObj).asDouble(elevation.name), 5800.0, kNear);
}
