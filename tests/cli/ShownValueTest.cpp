#include "cli/ShownValue.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>

using orvcad::shownValue;

namespace {

TEST(ShownValueTest, valuesAreToldAsADocumentHasThem)
{
    EXPECT_EQ(shownValue(120), "120");
    EXPECT_EQ(shownValue(0.5), "0.5");
    EXPECT_EQ(shownValue("C30"), "\"C30\"");
    EXPECT_EQ(shownValue(QJsonValue::Null), "null");
    EXPECT_EQ(shownValue(QJsonArray{0, true}), "[0,true]");
    EXPECT_EQ(shownValue(QJsonObject{{"kind", 2}}), "{\"kind\":2}");
}

TEST(ShownValueTest, valueThatIsNotThereIsNothing) { EXPECT_EQ(shownValue(QJsonValue::Undefined), "nothing"); }

TEST(ShownValueTest, lineBreaksStayOnOneLineAndLongTextsAreCut)
{
    EXPECT_EQ(shownValue("a\nb"), "\"a\\nb\"");
    const QString cut = shownValue(QString(10000, 'x'));
    EXPECT_LT(cut.size(), 1000);
    EXPECT_TRUE(cut.startsWith("\"xxx"));
}

} // namespace
