#include "slab/BoardLocalModelProperties.h"

#include <gtest/gtest.h>

#include <string>

using slab::bindProperty;
using slab::fieldValue;

namespace {

TEST(BoardLocalModelPropertiesTest, integerFieldTakesEveryNumberWithoutItsFraction)
{
    EXPECT_EQ(fieldValue<qint32>(Any(2.9)), 2);
    EXPECT_EQ(fieldValue<qint32>(Any(qint64(-3))), -3);
    EXPECT_EQ(fieldValue<qint32>(Any(std::string("4.7 rows"))), 4);
    EXPECT_EQ(fieldValue<qint32>(Any(2147483648.0)), 0);
    EXPECT_EQ(fieldValue<qint32>(Any()), 0);
}

TEST(BoardLocalModelPropertiesTest, otherFieldsTakeWhatTheValueConvertsTo)
{
    EXPECT_EQ(fieldValue<double>(Any(2)), 2.0);
    EXPECT_EQ(fieldValue<QString>(Any(QString("C8@200"))), "C8@200");
    EXPECT_EQ(fieldValue<QString>(Any(8)), QString());
}

TEST(BoardLocalModelPropertiesTest, boundPropertyReadsAndWritesTheField)
{
    cv::Object_AI object;
    double thickness = 100.0;
    bindProperty(object, slab::property::thickness(), thickness);
    EXPECT_EQ(object.property("厚度").cast<double>(), 100.0);
    object.setProperty("厚度", 120);
    EXPECT_EQ(thickness, 120.0);
    thickness = 90.0;
    EXPECT_EQ(object["厚度"].to<double>(), 90.0);
}

TEST(BoardLocalModelPropertiesTest, secondBindingTakesThePlaceOfTheFirst)
{
    cv::Object_AI object;
    qint32 first = 1;
    qint32 second = 2;
    bindProperty(object, slab::property::rowNumber(), first);
    bindProperty(object, slab::property::rowNumber(), second);
    object.setProperty("钢筋排数", 7);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 7);
}

} // namespace
