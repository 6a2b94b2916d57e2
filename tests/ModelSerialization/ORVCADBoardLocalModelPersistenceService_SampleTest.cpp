#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"

#include "ModelSerialization/SlabPersistenceFixture.h"

#include <cmath>
#include <limits>

namespace {

class ORVCADBoardLocalModelPersistenceServiceTest : public SlabPersistenceFixture
{
protected:
    QStringList keysWritten(int parts) const { return written(parts).keys(); }
    /** How many elements of the sample are read; it has one of each kind. */
    static std::size_t countRead(int parts)
    {
        Model target;
        EXPECT_TRUE(Service::json2model(sample(), &target, parts));
        return target.objects().size();
    }
    static std::vector<int> kindsRead(int parts)
    {
        Model target;
        EXPECT_TRUE(Service::json2model(sample(), &target, parts));
        std::vector<int> kinds;
        for (const Object *object : target.objects())
            kinds.push_back(object->type());
        return kinds;
    }
};

const QStringList kSupportKeys{"axisGrids", "beams", "columns", "walls"};

// ---- Parts

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, eachPartWritesItsArraysEvenIfEmpty)
{
    EXPECT_EQ(keysWritten(Service::Rafts), QStringList{"rafts"});
    EXPECT_EQ(keysWritten(Service::Boards), (QStringList{"board_holes", "boards"}));
    EXPECT_EQ(keysWritten(Service::RaftBars),
              (QStringList{"raft_main_forced_bars", "raft_negative_forced_bars", "raft_straddle_main_forced_bars"}));
    EXPECT_EQ(keysWritten(Service::BoardBars),
              (QStringList{"forced_bars", "negative_forced_bars", "straddle_forced_bars"}));
    EXPECT_EQ(written(Service::Rafts), parsed(R"({"rafts": []})"));
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, supportsAndAxisNetsAreWrittenTogether)
{
    EXPECT_EQ(keysWritten(Service::Supports), kSupportKeys);
    EXPECT_EQ(keysWritten(Service::AxisNets), kSupportKeys);
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, partsAreWrittenByEqualityNotByBit)
{
    for (const int parts : {0, 1, 6, 12, 254, 255, -1})
        EXPECT_EQ(keysWritten(parts), kSupportKeys) << parts;
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, everythingWritesAllArraysAxisNetsIncluded)
{
    EXPECT_EQ(keysWritten(Service::Everything), sample().keys());
    EXPECT_EQ(sample().size(), 13);
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, partsAreReadByBit)
{
    EXPECT_EQ(kindsRead(Service::Supports), (std::vector<int>{1, 2, 128}));
    EXPECT_EQ(kindsRead(Service::Boards), (std::vector<int>{4, 8}));
    EXPECT_EQ(kindsRead(Service::BoardBars), (std::vector<int>{64, 16, 32}));
    EXPECT_EQ(kindsRead(Service::Rafts), (std::vector<int>{512}));
    EXPECT_EQ(kindsRead(Service::RaftBars), (std::vector<int>{4096, 1024, 2048}));
    EXPECT_EQ(kindsRead(Service::AxisNets), (std::vector<int>{256}));
    EXPECT_EQ(kindsRead(Service::Rafts | Service::Boards), (std::vector<int>{4, 8, 512}));
    EXPECT_EQ(countRead(0), 0U);
    EXPECT_EQ(countRead(1 | 16), 0U);
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, everythingIsReadWithoutAxisNets)
{
    EXPECT_EQ(kindsRead(Service::Everything), (std::vector<int>{1, 2, 128, 4, 8, 64, 16, 32, 4096, 1024, 2048, 512}));
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, allBitsAreReadInTheirOrder)
{
    EXPECT_EQ(kindsRead(254), (std::vector<int>{1, 2, 128, 4, 8, 64, 16, 32, 4096, 1024, 2048, 256, 512}));
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, readingAddsToWhatTheModelHolds)
{
    add<Model::Board>();
    EXPECT_TRUE(Service::json2model(sample(), &model, Service::Boards));
    EXPECT_TRUE(Service::json2model(sample(), &model, Service::Boards));
    EXPECT_EQ(model.boards().size(), 3U);
    EXPECT_EQ(model.boardHoles().size(), 2U);
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, nullModelGivesTheEmptyObjectAndTakesNothing)
{
    EXPECT_EQ(Service::model2json(nullptr, Service::Everything), QJsonObject());
    EXPECT_TRUE(Service::json2model(sample(), nullptr, kAll));
}

// ---- Elements

/** The keys that do not come back as they are written are tested one by one below. */
TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, everyKeyReadsBackExceptThoseThatAreMeantNotTo)
{
    ASSERT_TRUE(Service::json2model(sample(), &model, kAll));
    const QJsonObject again = written();
    const QJsonObject before = sample();
    const QMap<QString, QStringList> lost{
        {"boards", {"type"}},
        {"negative_forced_bars", {"state_descript"}},
        {"straddle_forced_bars", {"state_descript", "SupportPolys"}},
        {"raft_negative_forced_bars", {"state_descript"}},
        {"raft_straddle_main_forced_bars", {"state_descript"}},
        {"beams", {"id", "name"}},
        {"walls", {"id"}},
        {"columns", {"id"}},
    };
    for (const QString &array : before.keys()) {
        const QJsonObject expected = before[array].toArray()[0].toObject();
        const QJsonObject found = again[array].toArray()[0].toObject();
        EXPECT_EQ(found.keys(), expected.keys());
        for (const QString &key : expected.keys()) {
            if (!lost[array].contains(key)) {
                EXPECT_EQ(found[key], expected[key]) << qPrintable(array + " " + key);
            }
        }
    }
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, raftIsReadFromItsKeys)
{
    readObject("rafts", sampleObject("rafts"));
    const Model::Raft *raft = model.rafts().at(0);
    EXPECT_EQ(raft->elementId, 1);
    EXPECT_EQ(raft->recongnizedID, QUuid("{00000000-0000-0000-0000-000000000001}"));
    EXPECT_EQ(raft->name, "FB1");
    EXPECT_EQ(textOf(raft->surface), "POLYGON((0 0, 9000 0, 9000 6000, 0 6000, 0 0))");
    EXPECT_EQ(raft->thickness, 600);
    EXPECT_EQ(raft->topElev, -3.2);
    EXPECT_EQ(raft->bottomElev, -3.8);
    EXPECT_EQ(raft->stateDescript, "on piles");
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, thicknessOfRaftsIsWrittenWithoutItsSign)
{
    add<Model::Raft>()->thickness = -0.12;
    EXPECT_EQ(writtenObject("rafts")["thinkness"], 0.12);
    Model target;
    ASSERT_TRUE(Service::json2model(written(), &target, Service::Rafts));
    EXPECT_EQ(target.rafts().at(0)->thickness, 0.12);
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, thicknessOfRaftsIsReadWithItsSign)
{
    readSampleWith("rafts", {{"thinkness", -600}});
    EXPECT_EQ(model.rafts().at(0)->thickness, -600);
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, thicknessOfBoardsIsWrittenWithItsSign)
{
    add<Model::Board>()->thickness = -0.12;
    EXPECT_EQ(writtenObject("boards")["thinkness"], -0.12);
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, typeOfBoardsIsWrittenAndNeverRead)
{
    add<Model::Board>()->boardType = static_cast<Model::Board::Types>(7);
    EXPECT_EQ(writtenObject("boards")["type"], 7);
    Model target;
    ASSERT_TRUE(Service::json2model(written(), &target, Service::Boards));
    EXPECT_EQ(target.boards().at(0)->boardType, 0);
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, boardAndHoleAreReadFromTheirKeys)
{
    ASSERT_TRUE(Service::json2model(sample(), &model, Service::Boards));
    const Model::Board *board = model.boards().at(0);
    EXPECT_EQ(board->elementId, 2);
    EXPECT_EQ(board->name, "LB1");
    EXPECT_EQ(textOf(board->surface), "POLYGON((0 0, 4000 0, 4000 3000, 0 3000, 0 0))");
    EXPECT_EQ(board->thickness, -120);
    EXPECT_EQ(board->elev, 2.95);
    EXPECT_EQ(board->stateDescript, "h=120");
    const Model::BoardHole *hole = model.boardHoles().at(0);
    EXPECT_EQ(hole->elementId, 3);
    EXPECT_EQ(hole->recongnizedID, QUuid("{00000000-0000-0000-0000-000000000003}"));
    EXPECT_EQ(hole->barInfo, "2C12");
    EXPECT_EQ(hole->stateDescript, "shaft");
    EXPECT_EQ(hole->longSpanReinforceBar, "2C14");
    EXPECT_EQ(hole->shortSpanReinforceBar, "2C16");
    EXPECT_EQ(hole->obliqueReinforceBar, "2C10");
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, supportsAreReadFromTheirKeys)
{
    ASSERT_TRUE(Service::json2model(sample(), &model, Service::Supports));
    const Model::Beam *beam = model.beams().at(0);
    EXPECT_EQ(textOf(beam->line), "LINESTRING(0 0, 4000 0)");
    EXPECT_EQ(beam->width, 250);
    EXPECT_EQ(beam->distanceToLeft, 125);
    EXPECT_EQ(beam->supportType, 2);
    EXPECT_EQ(beam->startTopElev, 2.95);
    EXPECT_EQ(beam->endTopElev, 3.05);
    const Model::Wall *wall = model.walls().at(0);
    EXPECT_EQ(wall->name, "Q1");
    EXPECT_EQ(textOf(wall->line), "CIRCULARSTRING(100 0, 0 100, -100 0)");
    EXPECT_EQ(wall->distanceToLeft, 90);
    EXPECT_EQ(wall->width, 200);
    EXPECT_EQ(wall->supportType, 1);
    const Model::Column *column = model.columns().at(0);
    EXPECT_EQ(column->name, "KZ1");
    EXPECT_EQ(column->recongnizedID, QUuid("{00000000-0000-0000-0000-00000000000c}"));
    EXPECT_EQ(textOf(column->surface), "POLYGON((-200 -200, 200 -200, 200 200, -200 200, -200 -200))");
    EXPECT_EQ(column->topElev, 3.6);
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, idsOfSupportsAreWrittenAsNumbersAndReadFromText)
{
    add<Model::Beam>()->elementId = 10;
    add<Model::Wall>()->elementId = 11;
    add<Model::Column>()->elementId = 12;
    EXPECT_EQ(writtenObject("beams")["id"], 10);
    Model target;
    ASSERT_TRUE(Service::json2model(written(), &target, Service::Supports));
    EXPECT_EQ(target.beams().at(0)->elementId, 0);
    EXPECT_EQ(target.walls().at(0)->elementId, 0);
    EXPECT_EQ(target.columns().at(0)->elementId, 0);

    readObject("beams", {{"id", "9007199254740993"}});
    readObject("walls", {{"id", "-5"}});
    readObject("columns", {{"id", "0x10"}});
    EXPECT_EQ(model.beams().at(1)->elementId, 9007199254740993);
    EXPECT_EQ(model.walls().at(1)->elementId, -5);
    EXPECT_EQ(model.columns().at(1)->elementId, 0);
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, nameOfBeamsIsReadAsOneCharacterOfThatCode)
{
    readObject("beams", sampleObject("beams"));
    EXPECT_EQ(model.beams().at(0)->name, QString(QChar(0)));
    EXPECT_EQ(model.beams().at(0)->name.size(), 1);
    for (const auto &[number, code] : std::initializer_list<std::pair<double, int>>{
             {65, 65}, {66.9, 66}, {200, 200}, {256, 0}, {-1, 0}, {1e300, 0}}) {
        readObject("beams", {{"name", number}});
        EXPECT_EQ(model.beams().back()->name, QString(QChar(code))) << number;
    }
    readObject("beams", {});
    EXPECT_EQ(model.beams().back()->name, QString(QChar(0)));
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, namesOfSupportsAreWrittenAsText)
{
    add<Model::Beam>()->name = "KL1";
    add<Model::Wall>()->name = "Q1";
    add<Model::Column>()->name = "KZ1";
    EXPECT_EQ(writtenObject("beams")["name"], "KL1");
    EXPECT_EQ(writtenObject("walls")["name"], "Q1");
    EXPECT_EQ(writtenObject("columns")["name"], "KZ1");
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, elevationsOfWallsAreNeitherWrittenNorRead)
{
    auto *wall = add<Model::Wall>();
    wall->wallStartTopElev = 1;
    wall->wallEndTopElev = 2;
    wall->startTopElev = 3;
    wall->endTopElev = 4;
    EXPECT_EQ(writtenObject("walls").keys(),
              (QStringList{"distance_to_left", "id", "line", "name", "recongnizedID", "type", "width"}));
    readSampleWith("walls", {{"start_point_top_elev", 5}, {"end_point_top_elev", 6}});
    EXPECT_EQ(model.walls().at(1)->wallStartTopElev, 0);
    EXPECT_EQ(model.walls().at(1)->startTopElev, 0);
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, typeOfColumnsIsTheirKindAndReadIntoIt)
{
    EXPECT_EQ(add<Model::Column>()->type(), 128);
    EXPECT_EQ(writtenObject("columns")["type"], 128);
    readSampleWith("columns", {{"type", 4}});
    EXPECT_EQ(model.columns().at(1)->type(), 4);
    EXPECT_EQ(model.findObjects(4).size(), 1U);
    readObject("columns", {});
    EXPECT_EQ(model.columns().at(2)->type(), 0);
}

// ---- Axis nets

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, axisNetIsReadFromItsKeys)
{
    readObject("axisGrids", sampleObject("axisGrids"));
    const Model::AxisNet *net = model.axisNet().at(0);
    EXPECT_EQ(net->elementId, 13);
    EXPECT_EQ(net->name, "grid");
    EXPECT_TRUE(net->recongnizedID.isNull());
    EXPECT_EQ(textOf(net->surface), "POLYGON((0 0, 8000 0, 8000 6000, 0 6000, 0 0))");
    ASSERT_TRUE(net->axisGrid);
    const AxisGridHalf &u = net->axisGrid->gridU;
    EXPECT_EQ(u.direction, 0);
    EXPECT_EQ(u.start, "1");
    EXPECT_EQ(u.end, "2");
    ASSERT_EQ(u.data.size(), 2U);
    EXPECT_EQ(u.data[0].first, "1");
    EXPECT_EQ(textOf(u.data[0].second), "LINESTRING(0 0, 0 6000)");
    EXPECT_EQ(u.data[1].first, "2");
    EXPECT_EQ(textOf(u.data[1].second), "LINESTRING(4000 0, 4000 6000)");
    const AxisGridHalf &v = net->axisGrid->gridV;
    EXPECT_EQ(v.direction, 1);
    EXPECT_EQ(v.start, "A");
    EXPECT_EQ(v.end, "A");
    ASSERT_EQ(v.data.size(), 1U);
    EXPECT_EQ(textOf(v.data[0].second), "LINESTRING(0 0, 8000 0)");
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, axisItemOfOtherThanTwoPartsIsSkipped)
{
    readObject("axisGrids", {{"U_Data", "1#2$LINESTRING(0 0, 1 0)#3$x$y##$LINESTRING(0 0, 2 0)#5$broken#tail"}});
    const auto &data = model.axisNet().at(0)->axisGrid->gridU.data;
    ASSERT_EQ(data.size(), 3U);
    EXPECT_EQ(data[0].first, "2");
    EXPECT_EQ(data[1].first, "");
    EXPECT_EQ(textOf(data[1].second), "LINESTRING(0 0, 2 0)");
    EXPECT_EQ(data[2].first, "5");
    EXPECT_EQ(data[2].second, nullptr);
    EXPECT_TRUE(model.axisNet().at(0)->axisGrid->gridV.data.empty());
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, axisItemWithTheTextOfAPolygonHasNoCurve)
{
    readObject("axisGrids", {{"V_Data", "A$POLYGON((0 0, 1 0, 1 1, 0 0))"}});
    ASSERT_EQ(model.axisNet().at(0)->axisGrid->gridV.data.size(), 1U);
    EXPECT_EQ(model.axisNet().at(0)->axisGrid->gridV.data[0].second, nullptr);
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, axisNetWithoutAGridIsWrittenAsWithAnEmptyOne)
{
    add<Model::AxisNet>()->elementId = 5;
    const QJsonObject expected = parsed(R"({"id": 5, "name": "", "surface": "", "U_start": "", "U_end": "",
                                            "V_start": "", "V_end": "", "U_Data": "", "V_Data": ""})");
    EXPECT_EQ(writtenObject("axisGrids"), expected);
    Model target;
    ASSERT_TRUE(Service::json2model(written(), &target, kAll));
    ASSERT_TRUE(target.axisNet().at(0)->axisGrid);
    EXPECT_EQ(target.axisNet().at(0)->axisGrid->gridV.direction, 1);
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, eachAxisNetGetsAGridOfItsOwn)
{
    const QJsonObject net = sampleObject("axisGrids");
    ASSERT_TRUE(Service::json2model({{"axisGrids", QJsonArray{net, net}}}, &model, kAll));
    EXPECT_NE(model.axisNet().at(0)->axisGrid, model.axisNet().at(1)->axisGrid);
}

// ---- What all elements have in common

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, freshElementIsWrittenWithItsDefaults)
{
    add<Model::Board>(identity(1));
    EXPECT_EQ(writtenObject("boards"),
              parsed(R"({"id": -1, "recongnizedID": "{00000001-0000-0000-0000-000000000000}", "name": "",
                         "surface": "", "thinkness": 0, "elev": 0, "type": 0, "state_descript": ""})"));
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, idsAreReadWith32Bits)
{
    for (const auto &[number, id] : std::initializer_list<std::pair<QJsonValue, qint64>>{{2147483647, 2147483647},
                                                                                         {-2147483648.0, -2147483648LL},
                                                                                         {2147483648.0, 0},
                                                                                         {1e300, 0},
                                                                                         {1.5, 0},
                                                                                         {"7", 0}}) {
        readObject("boards", {{"id", number}});
        EXPECT_EQ(model.boards().back()->elementId, id);
    }
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, idsAreWrittenWhole)
{
    add<Model::Board>()->elementId = 4503599627370497;
    EXPECT_EQ(writtenObject("boards")["id"].toDouble(), 4503599627370497.0);
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, missingKeysReadAsZeroFalseAndEmpty)
{
    readObject("boards", {});
    const Model::Board *board = model.boards().at(0);
    EXPECT_EQ(board->elementId, 0);
    EXPECT_TRUE(board->recongnizedID.isNull());
    EXPECT_EQ(board->name, "");
    EXPECT_EQ(board->surface, nullptr);
    EXPECT_EQ(board->thickness, 0);
    EXPECT_EQ(board->type(), 4);
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, elementsKeepTheirOrder)
{
    for (int i = 0; i < 5; ++i)
        add<Model::Board>(identity(uint(i)))->name = QString::number(i);
    Model target;
    ASSERT_TRUE(Service::json2model(written(), &target, Service::Boards));
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(target.boards().at(std::size_t(i))->name, QString::number(i));
        EXPECT_EQ(target.boards().at(std::size_t(i))->recongnizedID, identity(uint(i)));
    }
}

TEST_F(ORVCADBoardLocalModelPersistenceServiceTest, outlinesWithArcsAndHolesReadBack)
{
    const char *const text =
        "CURVEPOLYGON(COMPOUNDCURVE(CIRCULARSTRING(0 0, 50 -50, 100 0), (100 0, 100 100, 0 100, 0 0)),"
        "(10 10, 20 10, 20 20, 10 10))";
    add<Model::Board>()->surface = vks::CPolygon::LoadFromString(text);
    EXPECT_EQ(writtenObject("boards")["surface"], QLatin1String(text));
    Model target;
    ASSERT_TRUE(Service::json2model(written(), &target, Service::Boards));
    EXPECT_EQ(textOf(target.boards().at(0)->surface), text);
    EXPECT_EQ(target.boards().at(0)->surface->LoopCount(), 2);
}

} // namespace
