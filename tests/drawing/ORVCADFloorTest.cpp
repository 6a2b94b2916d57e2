#include "drawing/ORVCADFloor.h"

#include <QJsonDocument>

#include <gmock/gmock.h>

#include <memory>

namespace {

std::unique_ptr<ORVCADFloor> readFrom(const QJsonObject &json)
{
    return std::unique_ptr<ORVCADFloor>(ORVCADFloor::fromJson(json));
}

const QJsonObject kWholeFloor = {{"Name", "F2"},  {"Code", "2"},   {"BottomElev", 3.0},
                                 {"Height", 3.3}, {"StdCount", 4}, {"Remark", "offices"}};

bool isFirst(const char *name, double bottom, double height)
{
    return ORVCADFloor(QString::fromUtf8(name), bottom, height).isFirstFloor();
}

} // namespace

TEST(ORVCADFloorTest, freshFloorHasDefaults)
{
    const ORVCADFloor floor;
    EXPECT_EQ(floor.name(), "");
    EXPECT_EQ(floor.code(), "");
    EXPECT_EQ(floor.btmElev(), 0.0);
    EXPECT_EQ(floor.height(), 0.0);
    EXPECT_EQ(floor.stdCount(), 1);
    EXPECT_EQ(floor.remark(), "");
    EXPECT_EQ(floor.rowID(), 0);
}

TEST(ORVCADFloorTest, shortConstructorStandsForOneStoreyWithoutRemark)
{
    const ORVCADFloor floor(QStringLiteral("F2"), 3.0, 3.3);
    EXPECT_EQ(floor.name(), "F2");
    EXPECT_EQ(floor.code(), "");
    EXPECT_EQ(floor.btmElev(), 3.0);
    EXPECT_EQ(floor.height(), 3.3);
    EXPECT_EQ(floor.stdCount(), 1);
    EXPECT_EQ(floor.remark(), "");
}

TEST(ORVCADFloorTest, longConstructorTakesCountAndRemark)
{
    const ORVCADFloor floor(QStringLiteral("F2"), 3.0, 3.3, 4, QStringLiteral("offices"));
    EXPECT_EQ(floor.stdCount(), 4);
    EXPECT_EQ(floor.remark(), "offices");
    EXPECT_EQ(floor.code(), "");
}

TEST(ORVCADFloorTest, settersSetAndCopiesCopyMemberByMember)
{
    ORVCADFloor floor;
    floor.setName(QStringLiteral("F3"));
    floor.setCode(QStringLiteral("3"));
    floor.setBtmElev(6.5);
    floor.setHeight(2.9);
    floor.setStdCount(2);
    floor.setRemark(QStringLiteral("flats"));
    floor.setRowID(17);
    const ORVCADFloor copy = floor;
    EXPECT_EQ(copy.name(), "F3");
    EXPECT_EQ(copy.code(), "3");
    EXPECT_EQ(copy.btmElev(), 6.5);
    EXPECT_EQ(copy.height(), 2.9);
    EXPECT_EQ(copy.stdCount(), 2);
    EXPECT_EQ(copy.remark(), "flats");
    EXPECT_EQ(copy.rowID(), 17);
}

TEST(ORVCADFloorTest, topIsBottomPlusHeight)
{
    EXPECT_DOUBLE_EQ(ORVCADFloor(QString(), 3.0, 3.5).topElev(), 6.5);
    EXPECT_DOUBLE_EQ(ORVCADFloor(QString(), -6.0, 2.5).topElev(), -3.5);
    EXPECT_DOUBLE_EQ(ORVCADFloor(QString(), 3.0, -1.0).topElev(), 2.0);
}

TEST(ORVCADFloorTest, floorWithoutHeightIsThreeMetresHigh)
{
    EXPECT_DOUBLE_EQ(ORVCADFloor(QString(), 6.0, 0.0).topElev(), 9.0);
    EXPECT_DOUBLE_EQ(ORVCADFloor(QString(), 6.0, 1e-12).topElev(), 9.0);
    EXPECT_LT(ORVCADFloor(QString(), 6.0, 1e-11).topElev(), 6.1);
}

TEST(ORVCADFloorTest, standardCountPlaysNoPartInTheTop)
{
    EXPECT_DOUBLE_EQ(ORVCADFloor(QString(), 3.0, 3.0, 4, QString()).topElev(), 6.0);
}

TEST(ORVCADFloorTest, baseFloorIsToldByWordOrCode)
{
    ORVCADFloor floor;
    EXPECT_FALSE(floor.isBaseFloor());
    floor.setName(QStringLiteral("独立基础层"));
    EXPECT_TRUE(floor.isBaseFloor());
    floor.setName(QStringLiteral("基 础"));
    EXPECT_FALSE(floor.isBaseFloor());
    floor.setCode(QStringLiteral("0"));
    EXPECT_TRUE(floor.isBaseFloor());
    floor.setCode(QStringLiteral("00"));
    EXPECT_FALSE(floor.isBaseFloor());
    floor.setName(QStringLiteral("0"));
    EXPECT_FALSE(floor.isBaseFloor());
}

TEST(ORVCADFloorTest, firstFloorIsToldByCodeOrName)
{
    EXPECT_TRUE(isFirst("1", 20.0, 3.0));
    EXPECT_FALSE(isFirst("1F", 20.0, 3.0));
    ORVCADFloor floor(QStringLiteral("top"), 20.0, 3.0);
    floor.setCode(QStringLiteral("1"));
    EXPECT_TRUE(floor.isFirstFloor());
    floor.setCode(QStringLiteral("01"));
    EXPECT_FALSE(floor.isFirstFloor());
}

TEST(ORVCADFloorTest, floorThatSpansZeroIsAFirstFloor)
{
    EXPECT_TRUE(isFirst("any", -0.5, 3.0));
    EXPECT_TRUE(isFirst("any", 0.0, 3.0));
    EXPECT_TRUE(isFirst("any", 1e-12, 3.0));
    EXPECT_FALSE(isFirst("any", 0.001, 3.0));
    EXPECT_FALSE(isFirst("any", -3.0, 3.0));
    EXPECT_TRUE(isFirst("any", -2.9, 0.0)); // three metres where no height is set
}

TEST(ORVCADFloorTest, allFieldsButTheRowAreWritten)
{
    ORVCADFloor floor(QStringLiteral("F2"), 3.0, 3.3, 4, QStringLiteral("offices"));
    floor.setCode(QStringLiteral("2"));
    floor.setRowID(17);
    EXPECT_EQ(floor.toJson(), kWholeFloor);
}

TEST(ORVCADFloorTest, floorIsReadFromItsKeys)
{
    const auto floor = readFrom(kWholeFloor);
    ASSERT_NE(floor, nullptr);
    EXPECT_EQ(floor->name(), "F2");
    EXPECT_EQ(floor->btmElev(), 3.0);
    EXPECT_EQ(floor->height(), 3.3);
    EXPECT_EQ(floor->stdCount(), 4);
    EXPECT_EQ(floor->remark(), "offices");
    EXPECT_EQ(floor->rowID(), 0);
}

TEST(ORVCADFloorTest, codeIsWrittenAndNeverRead)
{
    ORVCADFloor base(QStringLiteral("B"), -3.0, 3.0);
    base.setCode(QStringLiteral("0"));
    EXPECT_EQ(base.toJson().value("Code").toString(), "0");
    const auto back = readFrom(base.toJson());
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(back->code(), "");
    EXPECT_FALSE(back->isBaseFloor());
}

TEST(ORVCADFloorTest, everyKeyButTheCodeIsRequired)
{
    for (const char *key : {"Name", "BottomElev", "Height", "StdCount", "Remark"}) {
        QJsonObject json = kWholeFloor;
        json.remove(QString::fromUtf8(key));
        EXPECT_EQ(readFrom(json), nullptr) << key;
    }
    QJsonObject json = kWholeFloor;
    json.remove("Code");
    EXPECT_NE(readFrom(json), nullptr);
    EXPECT_EQ(readFrom(QJsonObject()), nullptr);
}

TEST(ORVCADFloorTest, typeOfAValueIsNotLookedAt)
{
    const auto floor =
        readFrom({{"Name", 2}, {"BottomElev", "3"}, {"Height", true}, {"StdCount", "4"}, {"Remark", QJsonValue()}});
    ASSERT_NE(floor, nullptr);
    EXPECT_EQ(floor->name(), "");
    EXPECT_EQ(floor->btmElev(), 0.0);
    EXPECT_EQ(floor->height(), 0.0);
    EXPECT_EQ(floor->remark(), "");
}

TEST(ORVCADFloorTest, mistypedStandardCountReadsAsZeroNotAsOne)
{
    for (const auto &count : {QJsonValue("4"), QJsonValue(2.5), QJsonValue(4e9), QJsonValue()}) {
        QJsonObject json = kWholeFloor;
        json.insert("StdCount", count);
        const auto floor = readFrom(json);
        ASSERT_NE(floor, nullptr);
        EXPECT_EQ(floor->stdCount(), 0);
    }
}
