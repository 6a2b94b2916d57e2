#include "BeamReplies.h"
#include "CliFixture.h"

using namespace clitest;

namespace {

class BeamCommandsTest : public CliFixture
{
protected:
    Result apply(const QJsonArray &beams, const QString &key = "Beam", const QStringList &flags = {"--json"})
    {
        importSmallHouse();
        write("reply.json", QJsonObject{{key, beams}});
        return run(QStringList{"beam", "apply", "house.hbxdb", "reply.json"} + flags);
    }
    /** Placed beams of the applied project. */
    QJsonArray placed()
    {
        EXPECT_EQ(run({"project", "export", "house.hbxdb", "-o", "out.json"}).exitCode, 0);
        for (const QJsonValue each : readJson("out.json")["regions"][0]["floors"][0]["elements"].toArray())
            if (each["type"] == 15)
                return each["drawObjects"].toArray();
        return {};
    }
};

TEST_F(BeamCommandsTest, applyMakesElementChainsAndSpansAndSaves)
{
    const Result result = apply({beam(element(), {chain({segment(0), segment(1)}, 2), chain({segment(4)})})});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    const QJsonValue json = result.json();
    EXPECT_EQ(keys(json), "beams,doubled,leftOut,made,members,project,reused,saved");
    EXPECT_EQ(json["made"], QJsonValue(QJsonObject{{"elements", 1}, {"chains", 2}, {"segments", 3}, {"spans", 3}}));
    EXPECT_EQ(json["beams"][0], QJsonValue(QJsonObject{{"place", "Beam[0]"},
                                                       {"name", "KL-1"},
                                                       {"type", 15},
                                                       {"floor", "Level 1"},
                                                       {"element", "made"},
                                                       {"chains", 2},
                                                       {"segments", 3},
                                                       {"spans", 3},
                                                       {"stopped", 0}}));
    EXPECT_EQ(json["saved"], true);
    const QJsonArray objects = placed();
    ASSERT_EQ(objects.size(), 3);
    EXPECT_EQ(objects.at(0)["spans"].toArray().size(), 2);
    EXPECT_EQ(objects.at(0)["spans"][0]["TopThroughBar"], "2C25");
    EXPECT_EQ(objects.at(0)["next"], 1);
    EXPECT_TRUE(objects.at(1)["spans"].isUndefined());
    EXPECT_EQ(objects.at(2)["spans"].toArray().size(), 1);
}

TEST_F(BeamCommandsTest, fileOfSpansBesideTheProgramIsNotWritten)
{
    importSmallHouse();
    write("reply.json", QJsonObject{{"Beam", QJsonArray{beam(element(), {chain({segment(0)})})}}});
    // A program of its own, since others write that file beside theirs.
    ASSERT_TRUE(QFile::copy(QStringLiteral(ORVCAD_PROGRAM), path("orvcad")));
    ASSERT_EQ(QProcess::execute(path("orvcad"), {"beam", "apply", path("house.hbxdb"), path("reply.json"), "--quiet"}),
              0);
    EXPECT_EQ(placed().size(), 1);
    EXPECT_FALSE(exists("BeamSpanInfo.json"));
}

TEST_F(BeamCommandsTest, chainWithAGapStopsThereAndSaysSo)
{
    const Result result = apply({beam(element(), {chain({segment(0), segment(2)}), chain({segment(4)})})});
    EXPECT_EQ(result.exitCode, 3);
    const QJsonValue json = result.json();
    EXPECT_EQ(json["beams"][0]["stopped"], 1);
    EXPECT_EQ(json["beams"][0]["chains"], 1);
    EXPECT_EQ(json["beams"][0]["segments"], 2);
    EXPECT_EQ(json["leftOut"][0]["place"], "Beam[0].EDOInfo[0]");
    EXPECT_EQ(json["leftOut"][0]["reason"], "stopped behind 1 of 2 segments, which stay unlinked: the numbers of its "
                                            "segments do not follow one another");
    EXPECT_TRUE(placed().at(0)["spans"].isUndefined());
}

TEST_F(BeamCommandsTest, elementThatTheFloorHasIsReusedAndDoubledBeamsAreTold)
{
    const QJsonArray beams{beam(element(), {chain({segment(0)})})};
    ASSERT_EQ(apply(beams).exitCode, 0);
    const Result again = run({"beam", "apply", "house.hbxdb", "reply.json", "--json"});
    EXPECT_EQ(again.json()["reused"], 1);
    EXPECT_EQ(QJsonValue(again.json())["beams"][0]["element"], "reused");
    EXPECT_EQ(again.json()["doubled"], 1);
    const Result third = run({"beam", "apply", "house.hbxdb", "reply.json"});
    EXPECT_TRUE(third.out.contains("1 object made where the same one stands already: was this applied before?"))
        << third.out.toStdString();
}

TEST_F(BeamCommandsTest, summaryNamesEachBeam)
{
    const Result result = apply({beam(element(), {chain({segment(0)})}), 7}, "Beam", {});
    EXPECT_EQ(result.out.toStdString(),
              "2 beams read: 1 element, 1 chain of 1 segment, 1 span made (and 0 elements reused), 1 left out\n"
              "  KL-1 (beam) on Level 1: made, 1 chain of 1 segment, 1 span\n"
              "  left out: Beam[1] (no name): is no object\n");
}

TEST_F(BeamCommandsTest, everyArrayTakesTheBeamsOfItsType)
{
    EXPECT_EQ(apply({beam(element(17), {})}, "LinkBeam").exitCode, 0);
    EXPECT_EQ(apply({beam(element(47), {})}, "FDBeam").exitCode, 0);
}

TEST_F(BeamCommandsTest, outlineAndSegmentWithoutAnAxisAreTaken)
{
    const QJsonObject outlined = with(element(), "SectionPoly", "0,0;300,0;300,600;0,600;");
    EXPECT_EQ(apply({beam(with(outlined, "ElementSubType", 11), {})}).exitCode, 0);
    EXPECT_EQ(apply({beam(with(outlined, "ElementSubType", 12), {})}).exitCode, 0); // made as 11
    EXPECT_EQ(apply({beam(element(), {chain({segment(0), with(segment(1), "WordLine", "")})})}).exitCode, 0);
}

TEST_F(BeamCommandsTest, elevationThatTheHostRefusesIsTold)
{
    const Result result = apply({beam(element(), {chain({segment(0), with(segment(1), "EndPtTopElev", "roof")})})});
    EXPECT_EQ(result.exitCode, 3);
    const QJsonArray leftOut = result.json()["leftOut"].toArray();
    ASSERT_EQ(leftOut.size(), 1) << result.out.toStdString();
    EXPECT_EQ(leftOut[0].toObject()["place"], "Beam[0]");
    const QString reason = leftOut[0].toObject()["reason"].toString();
    EXPECT_TRUE(reason.startsWith("a value was refused: ")) << reason.toStdString();
    EXPECT_TRUE(reason.contains("roof")) << reason.toStdString();
}

TEST_F(BeamCommandsTest, strictApplySavesNothingWhenSomethingIsLeftOut)
{
    importSmallHouse();
    const QByteArray before = read("house.hbxdb");
    write("reply.json", QJsonObject{{"Beam", QJsonArray{beam(element(), {chain({segment(0)})}), 1}}});
    const Result result = run({"beam", "apply", "house.hbxdb", "reply.json", "--strict"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_TRUE(result.out.contains("Nothing was saved (--strict).")) << result.out.toStdString();
    EXPECT_EQ(read("house.hbxdb"), before);
}

TEST_F(BeamCommandsTest, documentThatIsNoReplyIsRefusedAndChangesNothing)
{
    importSmallHouse();
    const QByteArray before = read("house.hbxdb");
    for (const QByteArray &reply : {QByteArray("{}"), QByteArray("[]"), QByteArray(R"({"Beam": {}})"), QByteArray(),
                                    QByteArray("no json"), QByteArray(R"({"eDoorWin": {}})")}) {
        write("reply.json", reply);
        refusal({"beam", "apply", "house.hbxdb", "reply.json"}, "reply.json");
        EXPECT_EQ(read("house.hbxdb"), before);
    }
    write("reply.json", QByteArray(R"({"FDBeam": 3})"));
    EXPECT_EQ(refusal({"beam", "apply", "house.hbxdb", "reply.json"}, "reply.json")["place"], "FDBeam");
}

TEST_F(BeamCommandsTest, exportWritesOneFloorARegionOrAll)
{
    importSample("precast-hall"); // beams: 1 element in 3 places, 8 in 20, 1 in 10
    const QJsonObject one =
        run({"beam", "export", "house.hbxdb", "--floor", "Ground floor", "-o", "one.json", "--json"}).json();
    EXPECT_EQ(keys(one), "chains,elements,floors,output,segments,spans");
    EXPECT_EQ(one["elements"], 8);
    EXPECT_EQ(one["segments"], 20);
    const QJsonObject all = run({"beam", "export", "house.hbxdb", "-o", "all.json", "--json"}).json();
    EXPECT_EQ(all["elements"], 10);
    EXPECT_EQ(all["segments"], 33);
    EXPECT_EQ(all["floors"], 3);
    EXPECT_EQ(keys(readJson("all.json").object()), "Beam,FDBeam,LinkBeam");
    EXPECT_EQ(readJson("all.json")["Beam"].toArray().size(), 10);
    const Result unknown = run({"beam", "export", "house.hbxdb", "--floor", "Attic"});
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_TRUE(unknown.err.contains("known floors: \"Foundation\"")) << unknown.err.toStdString();
}

TEST_F(BeamCommandsTest, exportToStandardOutputKeepsTheSummaryApart)
{
    importSample("duplex-apartment");
    const Result result = run({"beam", "export", "house.hbxdb", "--floor", "Level 1"});
    EXPECT_TRUE(QJsonDocument::fromJson(result.out).object().contains("Beam"));
    EXPECT_EQ(result.err.toStdString().rfind("Wrote 2 elements, 4 chains of 4 segments, ", 0), 0U)
        << result.err.toStdString();
}

TEST_F(BeamCommandsTest, identifyInputTellsTheFloorItsSeatsAndAxes)
{
    importSample("precast-hall"); // Ground floor: 50 wall pieces, 20 beams, 24 columns, bottom 0, height 4.96
    const Result result =
        run({"beam", "identify-input", "house.hbxdb", "--floor", "Ground floor", "-o", "in.json", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(keys(result.json()), "axisLines,beamCodes,floor,output,seats");
    const QJsonObject input = readJson("in.json").object();
    EXPECT_EQ(keys(input),
              "axisLines,bIs11or16G,bIsCurFloorFD,beamSeatInfos,curFloorBtmElev,curFloorHeight,nCurFloorID,"
              "strBeamBorderLayerName,strBeamJZBZLayerName,strBeamLineLayerName,strBeamYWBZLayerName,"
              "strRawBeamCodes");
    EXPECT_EQ(input["curFloorBtmElev"], 0);
    EXPECT_EQ(input["beamSeatInfos"].toArray().size(), 94);
    EXPECT_EQ(input["axisLines"].toArray().size(), result.json()["axisLines"].toInt());
    EXPECT_EQ(input["strRawBeamCodes"].toArray().size(), 10);
    const QJsonObject column = input["beamSeatInfos"][0].toObject();
    EXPECT_EQ(column["seatElementType"], 25);
    EXPECT_EQ(column["bIsColumn"], true);
    EXPECT_FALSE(column["ipWorldPoly"].toString().isEmpty());
}

TEST_F(BeamCommandsTest, identifyInputNeedsAFloor)
{
    importSmallHouse();
    EXPECT_EQ(run({"beam", "identify-input", "house.hbxdb"}).exitCode, 1);
    EXPECT_EQ(run({"beam"}).exitCode, 1);
    EXPECT_EQ(run({"beam", "seats"}).exitCode, 1);
}

} // namespace
