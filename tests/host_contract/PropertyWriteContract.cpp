#include "HostContract.h"

#include "HostContractGeometry.h"
#include "platform/host/HBXModelException.h"
#include "platform/host/IHBXProperty.h"

#include <limits>

using namespace host_contract;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/** The property as an object of its own; null where the object lacks it. */
std::shared_ptr<IHBXProperty> singleProperty(IHBXProperties &properties, const std::wstring &name)
{
    std::shared_ptr<IHBXProperty> property;
    EXPECT_EQ(&properties.property(property, name), &property);
    return property;
}

} // namespace

TEST_P(HostPropertyWriteContract, integerTakesANumberAndATextThatAreWhole)
{
    const std::wstring &name = terms().integer.name;
    IHBXProperties &door = propertiesOf(placed(terms().integer.type));
    door.setDouble(name, 2100.0, true);
    EXPECT_EQ(door.asInt(name), 2100);
    door.setString(name, QStringLiteral("-1800"), true);
    EXPECT_EQ(door.asInt(name), -1800);
}

TEST_P(HostPropertyWriteContract, integerThrowsForWhatIsNotWholeAndKeepsItsValue)
{
    const std::wstring &name = terms().integer.name;
    IHBXProperties &door = propertiesOf(placed(terms().integer.type));
    door.setInt(name, 2100, true);
    for (const double value : {2100.5, 2147483648.0, -1e300, kInfinity, kNaN})
        EXPECT_THROW(door.setDouble(name, value, true), HBXModelException) << value;
    for (const char *value : {"2100.5", "wide", "2147483648", "12 mm"})
        EXPECT_THROW(door.setString(name, QString::fromLatin1(value), true), HBXModelException) << value;
    EXPECT_EQ(door.asInt(name), 2100);
}

TEST_P(HostPropertyWriteContract, numberTakesAnIntegerAndANumericText)
{
    const std::wstring &name = terms().number.name;
    IHBXProperties &beam = propertiesOf(placed(terms().number.type));
    beam.setInt(name, 600, true);
    EXPECT_EQ(beam.asDouble(name), 600.0);
    beam.setString(name, QStringLiteral("350.25"), true);
    EXPECT_EQ(beam.asDouble(name), 350.25);
}

TEST_P(HostPropertyWriteContract, numberThrowsForAnyOtherTextAndKeepsItsValue)
{
    const std::wstring &name = terms().number.name;
    IHBXProperties &beam = propertiesOf(placed(terms().number.type));
    beam.setDouble(name, 600.5, true);
    for (const char *value : {"high", "600x", "1,5"})
        EXPECT_THROW(beam.setString(name, QString::fromLatin1(value), true), HBXModelException) << value;
    EXPECT_EQ(beam.asDouble(name), 600.5);
}

TEST_P(HostPropertyWriteContract, textTakesNumbersInDecimal)
{
    const std::wstring &name = terms().text.name;
    IHBXProperties &beam = propertiesOf(placed(terms().text.type));
    beam.setInt(name, -12, true);
    EXPECT_EQ(textOf(beam, name), QStringLiteral("-12"));
    beam.setDouble(name, 2.5, true);
    EXPECT_EQ(textOf(beam, name), QStringLiteral("2.5"));
}

TEST_P(HostPropertyWriteContract, plainValuesThrowForGeometryAndKeepWhatTheyHave)
{
    const vks::CVec2<double> point{1, 2};
    for (const HostContractProperty &property : {terms().integer, terms().number}) {
        IHBXProperties &properties = propertiesOf(placed(property.type));
        properties.setInt(property.name, 7, true);
        EXPECT_THROW(properties.setPoint(property.name, &point, true), HBXModelException);
        EXPECT_THROW(properties.setCurve(property.name, line(0, 0, 1, 1), true), HBXModelException);
        EXPECT_THROW(properties.setPolygon(property.name, rectangle(0, 0, 1, 1), true), HBXModelException);
        EXPECT_EQ(properties.asInt(property.name), 7);
    }
}

TEST_P(HostPropertyWriteContract, geometryThrowsForNumbersForWordsAndForOtherGeometry)
{
    const vks::CVec2<double> point{1, 2};
    for (const HostContractProperty &property : {terms().point, terms().curve, terms().polygon}) {
        IHBXProperties &properties = propertiesOf(placed(property.type));
        EXPECT_THROW(properties.setInt(property.name, 7, true), HBXModelException);
        EXPECT_THROW(properties.setDouble(property.name, 7.5, true), HBXModelException);
        EXPECT_THROW(properties.setString(property.name, QStringLiteral("somewhere"), true), HBXModelException);
        EXPECT_TRUE(properties.isNull(property.name));
    }
    EXPECT_THROW(propertiesOf(placed(terms().curve.type)).setPoint(terms().curve.name, &point, true),
                 HBXModelException);
    EXPECT_THROW(propertiesOf(placed(terms().polygon.type)).setCurve(terms().polygon.name, line(0, 0, 1, 1), true),
                 HBXModelException);
    EXPECT_THROW(propertiesOf(placed(terms().point.type)).setPolygon(terms().point.name, rectangle(0, 0, 1, 1), true),
                 HBXModelException);
}

TEST_P(HostPropertyWriteContract, elevationThrowsForAnyOtherTextAndKeepsItsValue)
{
    const std::wstring &name = terms().elevation.name;
    IHBXProperties &slab = propertiesOf(placed(terms().elevation.type));
    slab.setString(name, QStringLiteral("2.95"), false);
    for (const char *text :
         {"high", "2.95 m", "层顶", "层顶标高0.1", "层顶标高+", "层顶标高+0.1-0.2", "inf", "nan", "1e999"})
        EXPECT_THROW(slab.setString(name, QString::fromUtf8(text), false), HBXModelException) << text;
    EXPECT_EQ(textOf(slab, name), QStringLiteral("2.95"));
}

TEST_P(HostPropertyWriteContract, elevationThrowsForANumberThatIsNotFinite)
{
    const std::wstring &name = terms().elevation.name;
    IHBXProperties &slab = propertiesOf(placed(terms().elevation.type));
    EXPECT_THROW(slab.setDouble(name, kInfinity, false), HBXModelException);
    EXPECT_THROW(slab.setDouble(name, kNaN, false), HBXModelException);
    EXPECT_TRUE(slab.isNull(name));
}

TEST_P(HostPropertyWriteContract, refusedWriteTellsItsReason)
{
    IHBXProperties &door = propertiesOf(placed(terms().integer.type));
    try {
        door.setString(terms().integer.name, QStringLiteral("wide"), true);
        FAIL() << "the write was taken";
    } catch (const HBXModelException &exception) {
        EXPECT_FALSE(exception.reason().isEmpty());
    }
}

TEST_P(HostPropertyWriteContract, refusedWriteToADrawObjectLeavesItsElementsValueShowing)
{
    const std::wstring &name = terms().integer.name;
    IHBXElement &door = makeElement(terms().integer.type);
    IHBXProperties &own = propertiesOf(placed(door));
    propertiesOf(door).setInt(name, 2100, true);
    EXPECT_THROW(own.setString(name, QStringLiteral("wide"), true), HBXModelException);
    propertiesOf(door).setInt(name, 2400, true);
    EXPECT_EQ(own.asInt(name), 2400);
}

TEST_P(HostSinglePropertyContract, propertyThatTheObjectLacksIsNull)
{
    IHBXProperties &beam = propertiesOf(placed(15));
    std::shared_ptr<IHBXProperty> property = singleProperty(beam, terms().text.name);
    ASSERT_NE(property, nullptr);
    EXPECT_EQ(beam.property(property, terms().unknownProperty), nullptr);
    EXPECT_EQ(property, nullptr);
}

TEST_P(HostSinglePropertyContract, hasValueTurnsTrueWithAValue)
{
    IHBXProperties &door = propertiesOf(placed(terms().integer.type));
    const std::shared_ptr<IHBXProperty> height = singleProperty(door, terms().integer.name);
    ASSERT_NE(height, nullptr);
    EXPECT_FALSE(height->hasValue());
    EXPECT_EQ(height->intValue(), 0);
    door.setInt(terms().integer.name, 2100, true);
    EXPECT_TRUE(height->hasValue());
    EXPECT_EQ(height->intValue(), 2100);
}

TEST_P(HostSinglePropertyContract, valueOfTheElementIsAValueOfTheDrawObjectsProperty)
{
    IHBXElement &door = makeElement(terms().integer.type);
    const std::shared_ptr<IHBXProperty> height = singleProperty(propertiesOf(placed(door)), terms().integer.name);
    ASSERT_NE(height, nullptr);
    propertiesOf(door).setInt(terms().integer.name, 2100, true);
    EXPECT_TRUE(height->hasValue());
    EXPECT_EQ(height->intValue(), 2100);
}

TEST_P(HostSinglePropertyContract, setIntWritesIntoThePropertySet)
{
    IHBXProperties &door = propertiesOf(placed(terms().integer.type));
    const std::shared_ptr<IHBXProperty> height = singleProperty(door, terms().integer.name);
    ASSERT_NE(height, nullptr);
    height->setInt(2100, true);
    EXPECT_EQ(door.asInt(terms().integer.name), 2100);
    EXPECT_FALSE(door.isNull(terms().integer.name));
}

TEST_P(HostSinglePropertyContract, setStringWritesAndConvertsAsThePropertySetDoes)
{
    IHBXProperties &door = propertiesOf(placed(terms().integer.type));
    const std::shared_ptr<IHBXProperty> height = singleProperty(door, terms().integer.name);
    IHBXProperties &beam = propertiesOf(placed(terms().text.type));
    const std::shared_ptr<IHBXProperty> bars = singleProperty(beam, terms().text.name);
    ASSERT_TRUE(height && bars);
    height->setString(QStringLiteral("1800"), false);
    EXPECT_EQ(height->intValue(), 1800);
    bars->setString(QStringLiteral("A8@100"), false);
    EXPECT_EQ(textOf(beam, terms().text.name), QStringLiteral("A8@100"));
    bars->setInt(8, true);
    EXPECT_EQ(textOf(beam, terms().text.name), QStringLiteral("8"));
}

TEST_P(HostSinglePropertyContract, revertGivesBackTheValueFromBeforeTheLastWrite)
{
    IHBXProperties &door = propertiesOf(placed(terms().integer.type));
    const std::shared_ptr<IHBXProperty> height = singleProperty(door, terms().integer.name);
    ASSERT_NE(height, nullptr);
    height->setInt(2100, true);
    height->setInt(1800, true);
    height->revert();
    EXPECT_EQ(height->intValue(), 2100);
    EXPECT_EQ(door.asInt(terms().integer.name), 2100);
}

TEST_P(HostSinglePropertyContract, revertOfTheFirstWriteLeavesNoValue)
{
    IHBXProperties &door = propertiesOf(placed(terms().integer.type));
    const std::shared_ptr<IHBXProperty> height = singleProperty(door, terms().integer.name);
    ASSERT_NE(height, nullptr);
    height->setInt(2100, true);
    height->revert();
    EXPECT_FALSE(height->hasValue());
    EXPECT_TRUE(door.isNull(terms().integer.name));
}

TEST_P(HostSinglePropertyContract, revertAfterARefusedWriteKeepsTheValueFromBeforeIt)
{
    IHBXProperties &door = propertiesOf(placed(terms().integer.type));
    const std::shared_ptr<IHBXProperty> height = singleProperty(door, terms().integer.name);
    ASSERT_NE(height, nullptr);
    height->setInt(2100, true);
    EXPECT_THROW(height->setString(QStringLiteral("wide"), false), HBXModelException);
    height->revert();
    EXPECT_EQ(door.asInt(terms().integer.name), 2100);
}

TEST_P(HostSinglePropertyContract, revertWithoutAWriteChangesNothing)
{
    IHBXProperties &door = propertiesOf(placed(terms().integer.type));
    door.setInt(terms().integer.name, 2100, true);
    const std::shared_ptr<IHBXProperty> height = singleProperty(door, terms().integer.name);
    ASSERT_NE(height, nullptr);
    height->revert();
    EXPECT_EQ(door.asInt(terms().integer.name), 2100);
}
