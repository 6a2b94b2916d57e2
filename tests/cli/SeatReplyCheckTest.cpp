#include "cli/SeatReplyCheck.h"

#include "BeamReplies.h"
#include "CommandFailures.h"
#include "JsonTexts.h"
#include "beam/ORVBeamSDCSeatInfoModel.h"
#include "embedded/ExchangeDocuments.h"
#include "platform/host/IHBXService.h"

using namespace clitest;
using namespace orvcad;

namespace {

class SeatReplyCheckTest : public ::testing::Test
{
protected:
    SeatReplyCheck check(const QJsonObject &document) const
    {
        return SeatReplyCheck(*m_house->service()->model(), document, "seats.json");
    }
    /** The reason for which a single seat is left out; empty for a sound one. */
    std::string leftOut(const QString &key, const QJsonValue &seat) const
    {
        const SeatReplyCheck document = check({{key, QJsonArray{seat}}});
        EXPECT_EQ(document.sound().size() + document.leftOut().size(), 1U);
        return document.leftOut().empty() ? std::string() : document.leftOut().front().reason.toStdString();
    }

private:
    std::unique_ptr<hbx::embedded::HBXProject> m_house = exchangetest::projectOf(exchangetest::kSmallBuilding);
};

TEST_F(SeatReplyCheckTest, foundationsGoOnBeforePilesAndTieBeams)
{
    const SeatReplyCheck document = check({{"etTieBeam", QJsonArray{tieBeam()}},
                                           {"etPile", QJsonArray{"none", pile()}},
                                           {"etIsolatedFD", QJsonArray{with(pile(), "ElementType", 52)}}});
    EXPECT_EQ(document.memberCount(), 4);
    ASSERT_EQ(document.sound().size(), 3U);
    EXPECT_EQ(document.sound()[0].place, "etIsolatedFD[0]");
    EXPECT_EQ(document.sound()[1].place, "etPile[1]");
    EXPECT_EQ(document.sound()[1].seat->EntName, "ZH-1");
    EXPECT_EQ(document.sound()[2].place, "etTieBeam[0]");
    EXPECT_EQ(textOf(document.leftOut()), "etPile[0]: is no object");
}

TEST_F(SeatReplyCheckTest, documentWithoutSeatsIsRefused)
{
    EXPECT_EQ(failureOf([&] {
                  check({{"Beam", QJsonArray()}});
              }),
              "seats.json: has none of the keys \"etIsolatedFD\", \"etPileCap\", \"etPile\" and \"etTieBeam\": no "
              "document of seats");
    EXPECT_EQ(failureOf([&] { check({{"etPile", 1}}); }), "seats.json: etPile: is no array");
}

TEST_F(SeatReplyCheckTest, seatsThatCannotBeUsedAreLeftOut)
{
    EXPECT_EQ(leftOut("etPile", pile()), "");
    EXPECT_EQ(leftOut("etPile", 4), "is no object");
    EXPECT_EQ(leftOut("etPile", with(pile(), "EntName", "")), "has no name");
    EXPECT_EQ(leftOut("etPile", with(pile(), "EntName", QJsonValue::Undefined)), "EntName is missing");
    EXPECT_EQ(leftOut("etPileCap", pile()), "type 54 is no pile cap");
    EXPECT_EQ(leftOut("etPile", with(pile(), "FloorName", "Attic")), "unknown floor \"Attic\" in region \"House\"");
    EXPECT_EQ(leftOut("etPile", with(pile(), "WorldPoly", "")), "WorldPoly is no outline");
    EXPECT_EQ(leftOut("etPile", with(pile(), "WorldPoly", "a box")), "WorldPoly is no outline");
    EXPECT_EQ(leftOut("etPile", with(pile(), "Mirror", 1)), "Mirror is not true or false");
    EXPECT_EQ(leftOut("etPile", with(pile(), "SectionWidth", "400")), "SectionWidth is not a number");
    EXPECT_EQ(leftOut("etTieBeam", with(tieBeam(), "CenterLine", "")), "CenterLine is no curve");
    EXPECT_EQ(leftOut("etTieBeam", with(tieBeam(), "CenterLine", "LINESTRING(0 0, 0 0)")), "CenterLine has no length");
}

TEST_F(SeatReplyCheckTest, outlineThatIsNoneIsLeftOutWithWhatIsWrongAboutIt)
{
    const auto pileOf = [](const char *outline) { return with(pile(), "WorldPoly", outline); };
    EXPECT_EQ(leftOut("etPile", pileOf("POLYGON((0 0, 900 900, 900 0, 0 900, 0 0))")), "WorldPoly crosses itself");
    EXPECT_EQ(leftOut("etPile", pileOf("POLYGON((0 0, 900 0, 900 900, 0 900))")), "WorldPoly has an open ring");
}

TEST_F(SeatReplyCheckTest, sizeBelowZeroIsLeftOut)
{
    EXPECT_EQ(leftOut("etTieBeam", with(tieBeam(), "SectionWidth", -1)), "SectionWidth is below 0");
    EXPECT_EQ(leftOut("etPile", with(pile(), "Height", -1)), "Height is below 0");
}

TEST_F(SeatReplyCheckTest, keyThatNothingReadsIsToldAndTheSeatGoesOn)
{
    const SeatReplyCheck document =
        check({{"etPile", QJsonArray{with(pile(), "SectionHeight", 400)}}, {"etPiles", QJsonArray{pile()}}});
    EXPECT_EQ(document.sound().size(), 1U);
    EXPECT_EQ(textOf(document.leftOut()),
              "etPile[0].SectionHeight: is no key of this record, and not read: SectinoHeight is one\n"
              "etPiles: is no key of this record, and not read: etPile is one");
    EXPECT_FALSE(document.leftOut()[0].isWhole);
}

TEST_F(SeatReplyCheckTest, heightWithAFractionWouldBeReadAsZeroAndIsLeftOut)
{
    EXPECT_EQ(leftOut("etPile", with(pile(), "Height", 2900.5)), "Height is not a whole number of 32 bits");
}

} // namespace
