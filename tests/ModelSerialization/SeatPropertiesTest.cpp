#include "ModelSerialization/SeatProperties.h"

#include "ModelSerialization/PropertyRows.h"
#include "beam/ORVBeamSDCSeatInfoModel.h"

#include <gtest/gtest.h>

namespace {

using beam::SeatStep;
using propertyrows::isKnown;
using propertyrows::kOffsets;
using propertyrows::kSizes;
using propertyrows::rowsOf;

QStringList seatRows(SeatStep step) { return rowsOf(beam::seatPropertyTexts(ORVBeamSDCSeatInfoModel(), step)); }

TEST(SeatPropertiesTest, stepsWriteTheirRows)
{
    EXPECT_EQ(seatRows(SeatStep::FoundationHeight), QStringList{"Height 1 true"});
    EXPECT_EQ(seatRows(SeatStep::FoundationPlace), (QStringList{"TopElev 0 true", "BottomElev 0 true"}));
    EXPECT_EQ(seatRows(SeatStep::PileKind), (QStringList{"Type1 1 false", "TopElev 0 false"}));
    EXPECT_EQ(seatRows(SeatStep::PileWidth), QStringList{"SectionWidth 1 false"});
    EXPECT_EQ(seatRows(SeatStep::PileDepth), QStringList{"SectionHeight 1 false"});
    EXPECT_EQ(seatRows(SeatStep::PileHeight), QStringList{"Height 1 false"});
    EXPECT_EQ(seatRows(SeatStep::PilePlace), QStringList{"TopElev 0 true"});
    EXPECT_EQ(seatRows(SeatStep::TieBeamSection), kSizes);
    EXPECT_EQ(seatRows(SeatStep::TieBeamPlace),
              QStringList({"StartPtTopElev 0 true", "EndPtTopElev 0 true"}) + kOffsets);
}

/** The values of a step, in order. */
QStringList valuesOf(const ORVBeamSDCSeatInfoModel &seat, SeatStep step)
{
    QStringList values;
    for (const PropertyText &text : beam::seatPropertyTexts(seat, step))
        values.append(text.value);
    return values;
}

TEST(SeatPropertiesTest, valuesAreThoseOfTheSeat)
{
    ORVBeamSDCSeatInfoModel seat;
    seat.Type = "3";
    seat.Height = 750.0;
    seat.SectionWidth = 250;
    seat.TopElev = "-1.5";
    seat.BtmElev = "-2.25";
    seat.AxisOffset = 12.5;
    EXPECT_EQ(valuesOf(seat, SeatStep::FoundationHeight), QStringList{"750"});
    EXPECT_EQ(valuesOf(seat, SeatStep::PileKind), (QStringList{"3", "-1.5"}));
    EXPECT_EQ(valuesOf(seat, SeatStep::PileWidth), QStringList{"250"});
    EXPECT_EQ(valuesOf(seat, SeatStep::FoundationPlace), (QStringList{"-1.5", "-2.25"}));
}

TEST(SeatPropertiesTest, elevationsOfATieBeamAreThoseOfItsTopAtBothEnds)
{
    ORVBeamSDCSeatInfoModel seat;
    seat.TopElev = "3.6";
    seat.BtmElev = "3.9";
    seat.AxisOffset = 12.5;
    EXPECT_EQ(valuesOf(seat, SeatStep::TieBeamPlace), (QStringList{"3.6", "3.9", "12.5", "12.5"}));
}

TEST(SeatPropertiesTest, elevationsOfTheDrawObjectAreNotWritten)
{
    ORVBeamSDCSeatInfoModel seat;
    seat.EDOTopElev = "1.0";
    seat.EDOBtmElev = "2.0";
    for (const SeatStep step : {SeatStep::FoundationPlace, SeatStep::PilePlace})
        EXPECT_EQ(valuesOf(seat, step).join(QString()), "");
}

struct SeatCase
{
    qint64 type;
    std::vector<SeatStep> steps;
    bool hasOutline;
};
class SeatCatalogueTest : public ::testing::TestWithParam<SeatCase>
{};

TEST_P(SeatCatalogueTest, hostKnowsAllThatAreWritten)
{
    for (const SeatStep step : GetParam().steps)
        for (const PropertyText &text : beam::seatPropertyTexts(ORVBeamSDCSeatInfoModel(), step))
            EXPECT_TRUE(isKnown(GetParam().type, text.name)) << QString::fromStdWString(text.name).toStdString();
    for (const wchar_t *name : {L"SectionTypeID", L"SectionPoly", L"InsertPt"})
        EXPECT_TRUE(!GetParam().hasOutline || isKnown(GetParam().type, name));
}
INSTANTIATE_TEST_SUITE_P(Types, SeatCatalogueTest,
                         ::testing::Values(SeatCase{52, {SeatStep::FoundationHeight, SeatStep::FoundationPlace}, false},
                                           SeatCase{53, {SeatStep::FoundationHeight, SeatStep::FoundationPlace}, false},
                                           SeatCase{82, {SeatStep::FoundationHeight}, true},
                                           SeatCase{83, {SeatStep::FoundationHeight}, true},
                                           SeatCase{54,
                                                    {SeatStep::PileKind, SeatStep::PileWidth, SeatStep::PileDepth,
                                                     SeatStep::PileHeight, SeatStep::PilePlace},
                                                    true},
                                           SeatCase{18, {SeatStep::TieBeamSection, SeatStep::TieBeamPlace}, true}));

} // namespace
