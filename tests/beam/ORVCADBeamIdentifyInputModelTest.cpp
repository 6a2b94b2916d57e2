#include "beam/ORVCADBeamIdentifyInputModel.h"

#include "RecordChecks.h"

#include <QJsonArray>

namespace {

using Model = ORVCADBeamIdentifyInputModel;

const QByteArray kFilled = R"({"curFloorHeight": 3.1, "bIsCurFloorFD": true, "curFloorBtmElev": -0.05,
    "nCurFloorID": 5000000000, "strRawBeamCodes": [["KL", "KZL"], [], ["L"]], "bIs11or16G": true,
    "beamSeatInfos": [], "axisLines": ["0,0,6000,0", "0,0,0.5,100,0"], "strBeamLineLayerName": "a",
    "strBeamBorderLayerName": "b", "strBeamJZBZLayerName": "c", "strBeamYWBZLayerName": "d"})";

void read(Model &model, const QJsonObject &json) { Model::fromJson(&model, json); }

TEST(ORVCADBeamIdentifyInputModelTest, newModelIsEmpty)
{
    expectSameJson(Model().toJson(), jsonOf(R"({"curFloorHeight": 0, "bIsCurFloorFD": false, "curFloorBtmElev": 0,
        "nCurFloorID": 0, "strRawBeamCodes": [], "bIs11or16G": false, "beamSeatInfos": [], "axisLines": [],
        "strBeamLineLayerName": "", "strBeamBorderLayerName": "", "strBeamJZBZLayerName": "",
        "strBeamYWBZLayerName": ""})"));
}

TEST(ORVCADBeamIdentifyInputModelTest, eachKeyIsReadAndWritten)
{
    Model model;
    read(model, jsonOf(kFilled));
    EXPECT_EQ(model.curFloorHeight, 3.1);
    EXPECT_TRUE(model.bIsCurFloorFD);
    EXPECT_EQ(model.curFloorBtmElev, -0.05);
    EXPECT_EQ(model.strRawBeamCodes, (QList<QStringList>{{"KL", "KZL"}, {}, {"L"}}));
    EXPECT_TRUE(model.bIs11or16G);
    ASSERT_EQ(model.axisLines.size(), 2U);
    EXPECT_EQ(model.axisLines[0]->Type(), 1);
    EXPECT_EQ(model.axisLines[1]->Type(), 2);
    EXPECT_EQ(model.strBeamLineLayerName, L"a");
    EXPECT_EQ(model.strBeamBorderLayerName, L"b");
    EXPECT_EQ(model.strBeamJZBZLayerName, L"c");
    EXPECT_EQ(model.strBeamYWBZLayerName, L"d");
    expectSameJson(model.toJson(), jsonOf(kFilled));
}

TEST(ORVCADBeamIdentifyInputModelTest, floorIdAbove32BitsSurvivesARoundTrip)
{
    Model model;
    read(model, jsonOf(kFilled));
    EXPECT_EQ(model.nCurFloorID, 5000000000);
    Model again;
    read(again, model.toJson());
    EXPECT_EQ(again.nCurFloorID, 5000000000);
}

TEST(ORVCADBeamIdentifyInputModelTest, floorIdIsReadFromATextOfDigits)
{
    Model model;
    read(model, {{"nCurFloorID", "5000000000"}});
    EXPECT_EQ(model.nCurFloorID, 5000000000);
    read(model, {{"nCurFloorID", "first"}});
    EXPECT_EQ(model.nCurFloorID, 0);
}

TEST(ORVCADBeamIdentifyInputModelTest, missingAndMistypedKeysGiveZeroFalseAndEmptyText)
{
    Model model;
    model.curFloorHeight = 3.0;
    model.bIsCurFloorFD = true;
    model.nCurFloorID = 7;
    model.strBeamJZBZLayerName = L"c";
    read(model, {});
    expectSameJson(model.toJson(), Model().toJson());
    model.bIs11or16G = true;
    read(model, jsonOf(R"({"curFloorHeight": "3", "bIs11or16G": 1, "strRawBeamCodes": "KL", "beamSeatInfos": 1,
        "axisLines": {}, "strBeamLineLayerName": 1})"));
    expectSameJson(model.toJson(), Model().toJson());
}

TEST(ORVCADBeamIdentifyInputModelTest, readingAddsToCodesSeatsAndAxisLines)
{
    const QJsonObject json =
        jsonOf(R"({"strRawBeamCodes": [["KL"]], "beamSeatInfos": [{"nEDOID": 7}], "axisLines": ["0,0,6000,0"]})");
    Model model;
    read(model, json);
    const ORVBeamSeatInfoModel *first = model.beamSeatInfos[0];
    read(model, json);
    EXPECT_EQ(model.strRawBeamCodes, (QList<QStringList>{{"KL"}, {"KL"}}));
    ASSERT_EQ(model.beamSeatInfos.size(), 2);
    EXPECT_EQ(model.beamSeatInfos[0], first);
    EXPECT_EQ(model.beamSeatInfos[1]->nEDOID, 7);
    EXPECT_EQ(model.axisLines.size(), 2U);
}

TEST(ORVCADBeamIdentifyInputModelTest, seatsAreWrittenInListOrderWithoutNullOnes)
{
    Model model;
    model.beamSeatInfos = {new ORVBeamSeatInfoModel, nullptr, new ORVBeamSeatInfoModel};
    model.beamSeatInfos[2]->nEDOID = 9;
    EXPECT_EQ(model.toJson()["beamSeatInfos"].toArray(),
              (QJsonArray{model.beamSeatInfos[0]->toJson(), model.beamSeatInfos[2]->toJson()}));
}

TEST(ORVCADBeamIdentifyInputModelTest, badAxisLineIsANullOneSoThatTheOthersKeepTheirPlaces)
{
    Model model;
    read(model, jsonOf(R"({"axisLines": ["bad", "0,0,6000,0", 5]})"));
    ASSERT_EQ(model.axisLines.size(), 3U);
    EXPECT_FALSE(model.axisLines[0]);
    EXPECT_TRUE(model.axisLines[1]);
    EXPECT_EQ(model.toJson()["axisLines"].toArray(), (QJsonArray{"", "0,0,6000,0", ""}));
}

TEST(ORVCADBeamIdentifyInputModelTest, copySharesTheSeatsAndAMoveHandsThemOver)
{
    Model model;
    model.beamSeatInfos = {new ORVBeamSeatInfoModel};
    Model copy = model;
    EXPECT_EQ(copy.beamSeatInfos, model.beamSeatInfos);
    copy.beamSeatInfos.clear(); // else both would delete it
    const Model moved = std::move(model);
    EXPECT_EQ(moved.beamSeatInfos.size(), 1);
}

TEST(ORVCADBeamIdentifyInputModelTest, nullTargetIsLeftAlone) { Model::fromJson(nullptr, jsonOf(kFilled)); }

} // namespace
