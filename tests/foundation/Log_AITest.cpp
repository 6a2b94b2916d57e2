#include "foundation/Log_AI.h"

#include <QUuid>

#include <gtest/gtest.h>

#include <type_traits>

namespace {

class Log_AITest : public testing::Test
{
protected:
    ~Log_AITest() override { slab.clearLog(); }

    cv::Object_AI slab{QString("slab")};
    cv::Log_AI *log = slab.log("thickness", "no text near", 0.25);
};

TEST_F(Log_AITest, jsonHasTheFourKeys)
{
    const QJsonObject json = log->toJson();
    EXPECT_EQ(json.keys(), (QStringList{"confidenceLevel", "descript", "id", "type"}));
    EXPECT_EQ(json["type"], QJsonValue("thickness"));
    EXPECT_EQ(json["descript"], QJsonValue("no text near"));
    EXPECT_EQ(json["confidenceLevel"], QJsonValue(0.25));
}

TEST_F(Log_AITest, idIsAUuidWithBracesAndEqualToThatOfTheJson)
{
    EXPECT_EQ(log->getLogId(), log->toJson()["id"].toString());
    EXPECT_FALSE(QUuid(log->getLogId()).isNull());
    EXPECT_TRUE(log->getLogId().startsWith('{') && log->getLogId().endsWith('}'));
    EXPECT_EQ(log->getLogId().size(), 38);
    EXPECT_NE(log->getLogId(), slab.log("t", "d", 1.0)->getLogId());
}

TEST_F(Log_AITest, detailsAreWrittenAsText)
{
    EXPECT_EQ(log->setValue("assumed", 120)->setValue("metres", 0.12)->setValue("sure", false), log);
    const QJsonObject json = log->toJson();
    EXPECT_EQ(json["assumed"], QJsonValue("120"));
    EXPECT_EQ(json["metres"], QJsonValue("0.12"));
    EXPECT_EQ(json["sure"], QJsonValue("false"));
    EXPECT_EQ(json.size(), 7);
}

TEST_F(Log_AITest, laterDetailOfOneKeyReplacesTheEarlier)
{
    log->setValue("assumed", 120)->setValue("assumed", 150);
    EXPECT_EQ(log->toJson()["assumed"], QJsonValue("150"));
}

TEST_F(Log_AITest, detailNamedLikeAKeyTakesItsPlaceInTheJsonOnly)
{
    const QString id = log->getLogId();
    log->setValue("type", "other")->setValue("id", 1)->setValue("confidenceLevel", 1);
    EXPECT_EQ(log->toJson()["type"], QJsonValue("other"));
    EXPECT_EQ(log->toJson()["id"], QJsonValue("1"));
    EXPECT_EQ(log->toJson()["confidenceLevel"], QJsonValue("1"));
    EXPECT_EQ(log->getLogId(), id);
}

TEST_F(Log_AITest, onlyObjectsMakeLogs)
{
    EXPECT_FALSE((std::is_constructible_v<cv::Log_AI, QString, QString, double, cv::Object_AI *>));
    EXPECT_FALSE(std::is_copy_constructible_v<cv::Log_AI>);
    EXPECT_FALSE(std::is_move_constructible_v<cv::Log_AI>);
}

} // namespace
