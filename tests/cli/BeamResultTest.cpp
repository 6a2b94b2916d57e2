#include "CliFixture.h"

namespace {

using BeamResultTest = CliFixture;

constexpr char kSegment[] = "{11111111-1111-1111-1111-111111111111}";

QJsonObject label()
{
    const QJsonObject run{{"vecSegmentInfo", QJsonArray{QJsonObject{{"id", kSegment}}}}};
    const QJsonArray seats{
        QJsonObject{{"eSeatIDType", 0}, {"nSeatID", 5}}, QJsonObject{{"eSeatIDType", 0}, {"nSeatID", 6}},
        QJsonObject{{"eSeatIDType", 1}, {"nBeamSegmentInfoID", kSegment}},
        QJsonObject{{"eSeatIDType", 1}, {"nBeamSegmentInfoID", "no id"}}, QJsonObject{{"eSeatIDType", 0}}};
    return {{"strName", "KL-1"},
            {"nElementType", 15},
            {"strSection", "300*600"},
            {"strSpanDesc", "(2A)"},
            {"edoInfos", QJsonArray{run, run}},
            {"seatEdoIDList", seats}};
}

TEST_F(BeamResultTest, seatsAreToldAsResolvedOrNot)
{
    write("result.json", QJsonObject{{"elementInfoList", QJsonArray{label()}}});
    const Result result = run({"beam", "result", "result.json", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    const QJsonObject seats{{"resolved", 2}, {"toMake", 1}, {"lost", 2}};
    EXPECT_EQ(result.json().value("labels")[0], QJsonValue(QJsonObject{{"name", "KL-1"},
                                                                       {"type", 15},
                                                                       {"section", "300*600"},
                                                                       {"spans", "(2A)"},
                                                                       {"runs", 2},
                                                                       {"segments", 2},
                                                                       {"seats", seats}}));
    const Result table = run({"beam", "result", "result.json"});
    EXPECT_TRUE(table.out.contains("1 label, 5 seats: 2 resolved, 3 not")) << table.out.toStdString();
    EXPECT_EQ(table.out.count('\n'), 3);
}

TEST_F(BeamResultTest, labelWithoutANameIsToldAsSuchInTheTable)
{
    QJsonObject nameless = label();
    nameless["strName"] = "";
    write("result.json", QJsonObject{{"elementInfoList", QJsonArray{nameless}}});
    EXPECT_TRUE(run({"beam", "result", "result.json"}).out.contains("\n(no name) "));
    EXPECT_EQ(run({"beam", "result", "result.json", "--json"}).json()["labels"].toArray().at(0)["name"], "");
}

TEST_F(BeamResultTest, columnsStandBelowEachOtherBesideChineseNames)
{
    QJsonObject named = label();
    named["strName"] = QStringLiteral("框架梁");
    write("result.json", QJsonObject{{"elementInfoList", QJsonArray{named, label()}}});
    const QByteArray table = run({"beam", "result", "result.json"}).out;
    EXPECT_TRUE(table.contains("\n框架梁               beam               300*600 ")) << table.toStdString();
    EXPECT_TRUE(table.contains("\nKL-1                 beam               300*600 ")) << table.toStdString();
}

TEST_F(BeamResultTest, labelThatIsNoRecordIsLeftOut)
{
    write("result.json", QJsonObject{{"elementInfoList", QJsonArray{"KL-1", label()}}});
    const Result result = run({"beam", "result", "result.json", "--json"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.json()["labels"].toArray().size(), 1);
    EXPECT_EQ(result.json()["leftOut"], QJsonValue(QJsonArray{"elementInfoList[0]: is no object"}));
}

TEST_F(BeamResultTest, valuesThatAreReadAsOthersAreTold)
{
    QJsonObject odd = label();
    odd["strName"] = 5;
    odd["nElementType"] = 15.5;
    odd["StrSection"] = "200*400";
    odd["edoInfos"] = QJsonArray{7};
    write("result.json", QJsonObject{{"elementInfoList", QJsonArray{odd}}, {"labels", QJsonArray()}});
    const Result result = run({"beam", "result", "result.json", "--json"});
    EXPECT_EQ(result.exitCode, 3);
    QStringList leftOut;
    for (const QJsonValue line : result.json()["leftOut"].toArray())
        leftOut.append(line.toString());
    EXPECT_EQ(leftOut.join('\n').toStdString(),
              "labels: is no key of this record, and not read\n"
              "elementInfoList[0].StrSection: is no key of this record, and not read: strSection is one\n"
              "elementInfoList[0].edoInfos[0]: is not what is read here, and reads as nothing\n"
              "elementInfoList[0].nElementType: is not what is read here, and reads as 0\n"
              "elementInfoList[0].strName: is not what is read here, and reads as nothing");
}

TEST_F(BeamResultTest, documentThatIsNoResultIsRefused)
{
    write("result.json", QByteArray("{}"));
    EXPECT_EQ(refusal({"beam", "result", "result.json"}, "result.json")["place"], "elementInfoList");
    write("result.json", QByteArray(R"({"elementInfoList": {}})"));
    EXPECT_EQ(refusal({"beam", "result", "result.json"}, "result.json")["reason"], "is no array");
    write("result.json", QByteArray("{"));
    refusal({"beam", "result", "result.json"}, "result.json");
    refusal({"beam", "result", "nowhere.json"}, "nowhere.json");
}

} // namespace
