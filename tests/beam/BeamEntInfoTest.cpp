#include "beam/BeamEntInfo.h"

#include "RecordChecks.h"

namespace {

const QByteArray kOwn = R"({"SpanCount": "3A", "TopThroughBar": "2C25", "BottomThroughBar": "4C22", "SideBar": "G4C12",
                            "Type": 2})";

TEST(BeamEntInfoTest, ownKeysAreReadBesideThoseOfTheBase)
{
    QJsonObject json = jsonOf(kOwn);
    json["Name"] = "KL1";
    BeamEntInfo beam;
    beam.fromJson(json);
    EXPECT_EQ(beam.Name, "KL1");
    EXPECT_EQ(beam.SpanCount, "3A");
    EXPECT_EQ(beam.TopThroughBar, "2C25");
    EXPECT_EQ(beam.BottomThroughBar, "4C22");
    EXPECT_EQ(beam.SideBar, "G4C12");
    EXPECT_EQ(beam.Type, 2);
}

TEST(BeamEntInfoTest, ownKeysAreWrittenBesideThoseOfTheBase)
{
    QJsonObject expected = BaseBeamEntInfo().toJsonObj();
    const QJsonObject own = jsonOf(kOwn);
    for (auto member = own.begin(); member != own.end(); ++member)
        expected.insert(member.key(), member.value());
    BeamEntInfo beam;
    beam.fromJson(own);
    const BaseBeamEntInfo &base = beam;
    expectSameJson(base.toJsonObj(), expected);
    EXPECT_EQ(expected.size(), 19);
}

TEST(BeamEntInfoTest, missingAndMistypedKeysGiveZeroAndEmptyText)
{
    BeamEntInfo beam;
    for (const QJsonObject &json : {QJsonObject(), mistyped(jsonOf(kOwn))}) {
        beam.fromJson(jsonOf(kOwn));
        beam.fromJson(json);
        expectSameJson(beam.toJsonObj(), BeamEntInfo().toJsonObj());
    }
}

TEST(BeamEntInfoTest, copyGoesMemberByMember)
{
    BeamEntInfo beam;
    beam.Name = "KL1";
    BeamEntInfo copy = beam;
    copy.Name = "KL2";
    EXPECT_EQ(beam.Name, "KL1");
}

} // namespace
