#include "cli/Comparison.h"

#include <gtest/gtest.h>

#include <QJsonArray>

namespace {

struct Numbers : orvcad::Comparison
{
    QString text() const { return textOf(QStringLiteral("7 numbers")); }
};

TEST(ComparisonTest, nothingThatDeviatesIsTheSame)
{
    Numbers numbers;
    numbers.compared = 7;
    EXPECT_TRUE(numbers.isSame());
    EXPECT_EQ(numbers.text(), "Compared with the original: 7 numbers");
    EXPECT_EQ(numbers.toJson(), (QJsonObject{{"compared", 7}, {"deviations", QJsonArray()}}));
}

TEST(ComparisonTest, deviationsStandBelowTheFinding)
{
    Numbers numbers;
    numbers.compared = 7;
    numbers.deviations = QStringList{"lost: 3", "added: %1"};
    EXPECT_FALSE(numbers.isSame());
    EXPECT_EQ(numbers.text(), "Compared with the original: 7 numbers\n  lost: 3\n  added: %1");
    EXPECT_EQ(numbers.toJson()["deviations"], QJsonValue(QJsonArray{"lost: 3", "added: %1"}));
}

} // namespace
