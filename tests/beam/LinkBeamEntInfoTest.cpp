#include "beam/LinkBeamEntInfo.h"

#include "RecordChecks.h"

namespace {

const QByteArray kOwn = R"({"TopHoribar": "2C20", "BottomHoriBar": "2C18", "SideBarAL": "C10@200"})";

TEST(LinkBeamEntInfoTest, ownKeysAreReadBesideThoseOfTheBase)
{
    QJsonObject json = jsonOf(kOwn);
    json["Name"] = "LL1";
    LinkBeamEntInfo beam;
    beam.fromJson(json);
    EXPECT_EQ(beam.Name, "LL1");
    EXPECT_EQ(beam.TopHoribar, "2C20");
    EXPECT_EQ(beam.BottomHoriBar, "2C18");
    EXPECT_EQ(beam.SideBarAL, "C10@200");
}

TEST(LinkBeamEntInfoTest, ownKeysAreWrittenBesideThoseOfTheBase)
{
    QJsonObject expected = BaseBeamEntInfo().toJsonObj();
    const QJsonObject own = jsonOf(kOwn);
    for (auto member = own.begin(); member != own.end(); ++member)
        expected.insert(member.key(), member.value());
    LinkBeamEntInfo beam;
    beam.fromJson(own);
    const BaseBeamEntInfo &base = beam;
    expectSameJson(base.toJsonObj(), expected);
    EXPECT_EQ(expected.size(), 17);
}

TEST(LinkBeamEntInfoTest, topHoribarHasASmallBAndBottomHoriBarACapital)
{
    LinkBeamEntInfo beam;
    beam.fromJson({{"TopHoriBar", "2C20"}, {"BottomHoribar", "2C18"}});
    EXPECT_EQ(beam.TopHoribar, "");
    EXPECT_EQ(beam.BottomHoriBar, "");
    EXPECT_TRUE(beam.toJsonObj().contains("TopHoribar"));
    EXPECT_TRUE(beam.toJsonObj().contains("BottomHoriBar"));
    EXPECT_FALSE(beam.toJsonObj().contains("TopHoriBar"));
}

TEST(LinkBeamEntInfoTest, missingAndMistypedKeysGiveEmptyText)
{
    LinkBeamEntInfo beam;
    for (const QJsonObject &json : {QJsonObject(), mistyped(jsonOf(kOwn))}) {
        beam.fromJson(jsonOf(kOwn));
        beam.fromJson(json);
        expectSameJson(beam.toJsonObj(), LinkBeamEntInfo().toJsonObj());
    }
}

} // namespace
