#include "SlabCliFixture.h"

#include <QUuid>

namespace {

using SlabCommandsTest = SlabCliFixture;

// ---- export

TEST_F(SlabCommandsTest, exportWritesTheWholeModelWithHostIds)
{
    const Result result = run({"slab", "export", "house.hbxdb", "--floor", "F", "-o", "payload.json", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    const QJsonValue json = result.json();
    EXPECT_EQ(keys(json), "arrays,floor,output");
    EXPECT_EQ(json["arrays"]["boards"], 1);
    EXPECT_EQ(json["arrays"]["rafts"], 0);
    const QJsonValue document = readJson("payload.json").object();
    EXPECT_EQ(document.toObject().size(), 13);
    EXPECT_GT(document["boards"][0]["id"].toInt(), 0);
    EXPECT_EQ(document["boards"][0]["elev"], 3);
}

TEST_F(SlabCommandsTest, partsArePickedByTheSumOfTheirNumbers)
{
    const QPair<const char *, std::string> cases[] = {
        {"4", "board_holes,boards"},
        {"32", "rafts"},
        {"36", "board_holes,boards,rafts"},
        {"8", "forced_bars,negative_forced_bars,straddle_forced_bars"},
        {"64", "raft_main_forced_bars,raft_negative_forced_bars,raft_straddle_main_forced_bars"},
        {"2", "axisGrids,beams,columns,walls"},
        {"128", "axisGrids,beams,columns,walls"},
        {"6", "axisGrids,beams,board_holes,boards,columns,walls"},
        {"5", "board_holes,boards"},  // 1 stands for nothing
        {"20", "board_holes,boards"}, // and so does 16
    };
    for (const auto &each : cases)
        EXPECT_EQ(keys(exported({"--parts", each.first})), each.second) << each.first;
    for (const char *everything : {"126", "127", "254", "110"}) {
        const QJsonValue document = exported({"--parts", everything});
        EXPECT_EQ(document.toObject().size(), 13) << everything;
        EXPECT_GT(document["boards"][0]["id"].toInt(), 0) << everything;
    }
    EXPECT_EQ(exported({"--parts", "4"})["boards"][0]["id"], -1); // ids only with everything
}

TEST_F(SlabCommandsTest, numberThatNamesNoPartIsWrongUsage)
{
    for (const char *parts : {"0", "1", "16", "17", "256", "-4", "four", "99999999999"}) {
        const Result result = run({"slab", "export", "house.hbxdb", "--floor", "F", QString("--parts=") + parts});
        EXPECT_EQ(result.exitCode, 1) << parts;
        EXPECT_TRUE(result.err.left(40).contains("--parts")) << result.err.toStdString();
    }
}

TEST_F(SlabCommandsTest, exportWithADrawingIsTheWholeIoDocument)
{
    ASSERT_EQ(run({"drawing", "make", "house.hbxdb", "--floor", "F", "-o", "plan.cadi2"}).exitCode, 0);
    const QJsonValue document = exported({"--drawing", "plan.cadi2"});
    EXPECT_EQ(keys(document), "drawing,model,options,state");
    EXPECT_EQ(document["drawing"]["drawing_name"], "plan");
    EXPECT_EQ(document["state"]["floor_name"], "F");
    EXPECT_EQ(document["state"]["floor_topElev"], 3);
    EXPECT_EQ(document["model"]["boards"].toArray().size(), 1);
}

TEST_F(SlabCommandsTest, drawingThatCannotBeReadIsNamed)
{
    const QStringList arguments{"slab", "export", "house.hbxdb", "--floor", "F", "--drawing"};
    refusal(arguments + QStringList{"none.cadi2"}, "none.cadi2");
    write("bad.cadi2", QByteArray("no drawing"));
    refusal(arguments + QStringList{"bad.cadi2"}, "bad.cadi2");
}

TEST_F(SlabCommandsTest, drawingAndPartsExcludeOneAnother)
{
    EXPECT_EQ(run({"slab", "export", "house.hbxdb", "--floor", "F", "--parts", "4", "--drawing", "d.cadi2"}).exitCode,
              1);
}

// ---- apply

TEST_F(SlabCommandsTest, applyMakesSlabsRaftsHolesAndBarsAndSaves)
{
    const Result result = apply({{"boards", QJsonArray{board(1), board(2)}},
                                 {"rafts", QJsonArray{raft()}},
                                 {"board_holes", QJsonArray{hole(11000)}},
                                 {"forced_bars", QJsonArray{bar()}},
                                 {"negative_forced_bars", QJsonArray{negativeBar()}}},
                                {"--ids", "ids.json"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString() << result.out.toStdString();
    const QJsonValue json = result.json();
    EXPECT_EQ(keys(json),
              "arrays,doubled,elementsMade,ids,known,leftOut,made,members,passedOver,project,repeatedIdentities,saved");
    EXPECT_EQ(json["members"], 6);
    EXPECT_EQ(json["made"], 6);
    EXPECT_EQ(json["elementsMade"], 5); // the two slabs share one
    EXPECT_EQ(arrayOf(json, "boards"),
              QJsonValue(QJsonObject{{"array", "boards"}, {"members", 2}, {"made", 2}, {"known", 0}, {"leftOut", 0}}));
    const QJsonValue document = exported();
    EXPECT_EQ(document["boards"].toArray().size(), 3);
    EXPECT_EQ(document["boards"][1]["name"], "B-h100");
    EXPECT_EQ(document["boards"][1]["elev"], 2.95);
    EXPECT_EQ(document["rafts"][0]["name"], "FB-1");
    EXPECT_EQ(document["board_holes"][0]["name"], "BD-800*600");
    EXPECT_EQ(document["forced_bars"][0]["name"], "SLJ-C10-150");
    // The bar found the slab that came in with it.
    EXPECT_EQ(document["forced_bars"][0]["SupportPoly"], board(1)["surface"]);
    EXPECT_EQ(document["negative_forced_bars"][0]["bar_info"], "C8@200");
}

TEST_F(SlabCommandsTest, idMapNamesDrawObjectsAndIdentities)
{
    ASSERT_EQ(apply({{"boards", QJsonArray{board(1), board(2)}}}, {"--ids", "ids.json"}).exitCode, 0);
    const QJsonObject ids = readJson("ids.json").object();
    ASSERT_EQ(ids.size(), 2);
    const QJsonValue document = exported();
    EXPECT_EQ(ids[QString::number(document["boards"][1]["id"].toInt())], identity(1));
    EXPECT_EQ(ids[QString::number(document["boards"][2]["id"].toInt())], identity(2));
}

TEST_F(SlabCommandsTest, idMapThatCannotBeWrittenSavesNothing)
{
    const QByteArray before = read("house.hbxdb");
    write("reply.json", QJsonObject{{"boards", QJsonArray{board()}}});
    refusal({"slab", "apply", "house.hbxdb", "--floor", "F", "reply.json", "--ids", "none/ids.json"}, "none/ids.json");
    EXPECT_EQ(read("house.hbxdb"), before);
}

TEST_F(SlabCommandsTest, whatTheHostHasIsPassedOver)
{
    const QJsonValue payload = exported();
    const QByteArray before = read("house.hbxdb");
    const Result result = apply(payload.toObject());
    EXPECT_EQ(result.exitCode, 0) << result.out.toStdString();
    EXPECT_EQ(result.json()["known"], 1);
    EXPECT_EQ(result.json()["made"], 0);
    EXPECT_EQ(exported()["boards"].toArray().size(), 1);
}

TEST_F(SlabCommandsTest, exportIsAReplyElsewhereWithAsNew)
{
    const QJsonValue payload = exported();
    write("payload.json", payload.toObject());
    ASSERT_EQ(run({"project", "import", sample("duplex-apartment"), "-o", "other.hbxdb"}).exitCode, 0);
    const Result result = run({"slab", "apply", "other.hbxdb", "--floor", "Level 2", "payload.json", "--as-new",
                               "--ids", "ids.json", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.out.toStdString();
    EXPECT_EQ(result.json()["made"], 1);
    const QJsonObject ids = readJson("ids.json").object();
    ASSERT_EQ(ids.size(), 1);
    EXPECT_FALSE(QUuid(ids.begin()->toString()).isNull());
    EXPECT_NE(ids.begin()->toString(), payload["boards"][0]["recongnizedID"].toString());
}

TEST_F(SlabCommandsTest, asNewOverItselfIsRefusedByTheHostWithItsReason)
{
    const QJsonValue payload = exported();
    const int id = payload["boards"][0]["id"].toInt();
    const Result result = apply(payload.toObject(), {"--as-new"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(
        leftOut(result),
        QStringLiteral("boards[0]: the host refused it: The draw object is the same as draw object %1 of \"B-h120\".")
            .arg(id)
            .toStdString());
    EXPECT_EQ(exported()["boards"].toArray().size(), 1);
}

TEST_F(SlabCommandsTest, ioDocumentIsAReplyToo)
{
    const Result result = apply({{"model", QJsonObject{{"boards", QJsonArray{board()}}}}, {"options", QJsonObject()}});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(result.json()["made"], 1);
}

TEST_F(SlabCommandsTest, strictSavesNothingWhenAMemberIsLeftOut)
{
    const QByteArray before = read("house.hbxdb");
    const Result result = apply({{"boards", QJsonArray{board(), 7}}}, {"--strict", "--ids", "ids.json"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.json()["saved"], false);
    EXPECT_EQ(read("house.hbxdb"), before);
    EXPECT_FALSE(exists("ids.json"));
    EXPECT_EQ(apply({{"boards", QJsonArray{board()}}}, {"--strict"}).exitCode, 0);
    EXPECT_EQ(exported()["boards"].toArray().size(), 2);
}

TEST_F(SlabCommandsTest, summaryForPeopleTellsArrayByArray)
{
    write("reply.json", QJsonObject{{"boards", QJsonArray{board(), 7}}, {"walls", QJsonArray{QJsonObject()}}});
    const Result result = run({"slab", "apply", "house.hbxdb", "--floor", "F", "reply.json"});
    EXPECT_EQ(result.out.toStdString(), "2 members read: 1 made in 1 new element, 0 in the host already, 1 left out\n"
                                        "  2 slabs: 1 made, 0 in the host already, 1 left out\n"
                                        "  passed over: 1 member of supports and axis grids, which no reply makes\n"
                                        "  left out: boards[1] (no name): is no object\n");
}

TEST_F(SlabCommandsTest, negativeBarsThatStandThereAlreadyAreTold)
{
    // Outside of the slab the level of a bar is 0, which the bars that are there have, too: they are compared.
    const QJsonObject outside = with(negativeBar(), "line", "LINESTRING(-9000 0, -9000 9000)");
    ASSERT_EQ(apply({{"negative_forced_bars", QJsonArray{outside}}}).exitCode, 0);
    const Result again = apply({{"negative_forced_bars", QJsonArray{outside}}});
    EXPECT_EQ(again.exitCode, 3);
    EXPECT_EQ(leftOut(again), "negative_forced_bars[0]: it lies over another negative bar at the level of its slab");
    // Bars of rafts are compared with those of slabs alone, so they come in twice.
    ASSERT_EQ(
        apply({{"raft_negative_forced_bars", QJsonArray{with(outside, "line", "LINESTRING(-7000 0, -7000 900)")}}})
            .exitCode,
        0);
    const Result twice =
        apply({{"raft_negative_forced_bars", QJsonArray{with(outside, "line", "LINESTRING(-7000 0, -7000 900)")}}});
    EXPECT_EQ(twice.exitCode, 0);
    EXPECT_EQ(twice.json()["doubled"], 1);
}

// ---- what the host refuses

TEST_F(SlabCommandsTest, refusalsOfTheHostAreToldWithTheirReasons)
{
    const QJsonObject bowTie = with(board(), "surface", "POLYGON((0 20000, 900 20900, 900 20000, 0 21900, 0 20000))");
    const QPair<QJsonObject, std::string> cases[] = {
        {{{"boards", QJsonArray{bowTie}}},
         "boards[0]: the host refused it: The outline of the draw object crosses or overlaps itself."},
        {{{"board_holes", QJsonArray{hole(-50000)}}},
         "board_holes[0]: no slab and no raft of the floor holds its middle"},
        {{{"forced_bars", QJsonArray{with(bar(), "bar_info", "many")}}},
         "forced_bars[0]: bar_info \"many\" tells no bars"},
        {{{"negative_forced_bars", QJsonArray{with(negativeBar(), "bar_info", "")}}},
         "negative_forced_bars[0]: bar_info \"\" tells no bars"},
        {{{"negative_forced_bars", QJsonArray{negativeBar(), negativeBar(81)}}},
         "negative_forced_bars[1]: it lies over another negative bar at the level of its slab"},
        {{{"forced_bars", QJsonArray{with(bar(), "bar_info", QString(1000, 'x'))}}},
         "forced_bars[0]: bar_info \"" + std::string(60, 'x') + "…\" tells no bars"},
    };
    for (const auto &each : cases) {
        SetUp();
        const Result result = apply(each.first);
        EXPECT_EQ(result.exitCode, 3) << result.err.toStdString();
        EXPECT_EQ(leftOut(result), each.second);
    }
}

} // namespace
