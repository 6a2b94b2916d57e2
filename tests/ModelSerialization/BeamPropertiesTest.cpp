#include "ModelSerialization/BeamProperties.h"
#include "ModelSerialization/SeatProperties.h"

#include "beam/BeamEntInfo.h"
#include "beam/BeamSegmentInfo.h"
#include "beam/LinkBeamEntInfo.h"
#include "beam/ORVBeamSDCSeatInfoModel.h"
#include "platform/embedded/HBXPropertyCatalogue.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <memory>

namespace {

using beam::SeatStep;
using beam::WriteStep;

constexpr WriteStep kEntSteps[] = {WriteStep::AxisOffset, WriteStep::Type,       WriteStep::SpanCount,
                                   WriteStep::Section,    WriteStep::BarsOfKind, WriteStep::CommonBars};
constexpr WriteStep kSegmentSteps[] = {WriteStep::Width, WriteStep::AxisOffset, WriteStep::Elevations};

std::unique_ptr<BaseBeamEntInfo> entOf(qint64 type)
{
    std::unique_ptr<BaseBeamEntInfo> ent;
    if (type == 17)
        ent = std::make_unique<LinkBeamEntInfo>();
    else
        ent = std::make_unique<BeamEntInfo>();
    ent->ElementType = type;
    return ent;
}

/** Name, kind and flag of each row. */
QStringList rowsOf(const std::vector<PropertyText> &texts)
{
    QStringList rows;
    for (const PropertyText &text : texts)
        rows.append(QString("%1 %2 %3")
                        .arg(QString::fromStdWString(text.name))
                        .arg(static_cast<int>(text.type))
                        .arg(text.flag ? "true" : "false"));
    return rows;
}

QStringList entRows(qint64 type)
{
    QStringList rows;
    for (const WriteStep step : kEntSteps)
        rows += rowsOf(beam::entPropertyTexts(*entOf(type), step));
    return rows;
}

const QStringList kOffsets{"AxisOffset 2 true", "AxisOffset_JZBZ 2 true"};
const QStringList kSizes{"SectionWidth 1 true", "SectionHeight 1 true"};
const QStringList kSpannedBars{"TopThroughBar 0 true", "BottomThroughBar 0 true", "SideBar 0 true"};
const QStringList kLinkBars{"TopHoriBar 0 true", "BottomHoriBar 0 true", "SideBarAL 0 true"};
const QStringList kCommonBars{"HoopBar 0 true", "Limb 0 true", "TieBar 0 true"};

TEST(BeamPropertiesTest, stepsOfABeamWriteItsRows)
{
    EXPECT_EQ(entRows(15),
              kOffsets + QStringList({"Type1 1 true", "SpanCount 0 true"}) + kSizes + kSpannedBars + kCommonBars);
}

TEST(BeamPropertiesTest, stepsOfAFoundationBeamWriteItsRows)
{
    EXPECT_EQ(entRows(47),
              kOffsets + QStringList({"Type 1 false", "SpanCount 0 true"}) + kSizes + kSpannedBars + kCommonBars);
}

TEST(BeamPropertiesTest, stepsOfALinkBeamWriteItsRows)
{
    EXPECT_EQ(entRows(17), kOffsets + kSizes + kLinkBars + kCommonBars);
}

TEST(BeamPropertiesTest, stepsOfASegmentWriteItsRows)
{
    QStringList rows;
    for (const WriteStep step : kSegmentSteps)
        rows += rowsOf(beam::segmentPropertyTexts(BeamSegmentInfo(), step));
    EXPECT_EQ(rows, QStringList("SectionWidth 1 true") + kOffsets +
                        QStringList({"StartPtTopElev 0 true", "EndPtTopElev 0 true"}));
}

TEST(BeamPropertiesTest, elevationsOfAnElementAreNeverWritten)
{
    for (const qint64 type : {15, 17, 47})
        for (const QString &row : entRows(type))
            EXPECT_FALSE(row.contains("Elev")) << row.toStdString();
    EXPECT_TRUE(beam::entPropertyTexts(*entOf(15), WriteStep::Elevations).empty());
}

struct NumberCase
{
    double value;
    const char *text;
};
class BeamNumberTextTest : public ::testing::TestWithParam<NumberCase>
{};

TEST_P(BeamNumberTextTest, numbersTravelWithSixSignificantDigits)
{
    auto ent = entOf(15);
    ent->AxisOffset = GetParam().value;
    EXPECT_EQ(beam::entPropertyTexts(*ent, WriteStep::AxisOffset)[0].value, GetParam().text);
}
INSTANTIATE_TEST_SUITE_P(Numbers, BeamNumberTextTest,
                         ::testing::Values(NumberCase{0.0, "0"}, NumberCase{300.0, "300"}, NumberCase{300.5, "300.5"},
                                           NumberCase{1234.5678, "1234.57"}, NumberCase{1.5e6, "1.5e+06"},
                                           NumberCase{-0.00001, "-1e-05"}));

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

// --- the embedded host has all of them

bool isKnown(qint64 type, const std::wstring &name)
{
    return hbx::embedded::HBXPropertyCatalogue::instance().find(type, std::wstring_view(name), true) != nullptr;
}

TEST(BeamPropertiesTest, hostKnowsAllThatAreReadAndWritten)
{
    for (const qint64 type : {15, 17, 47}) {
        for (const WriteStep step : kEntSteps)
            for (const PropertyText &text : beam::entPropertyTexts(*entOf(type), step))
                EXPECT_TRUE(isKnown(type, text.name))
                    << type << ' ' << QString::fromStdWString(text.name).toStdString();
        for (const WriteStep step : kSegmentSteps)
            for (const PropertyText &text : beam::segmentPropertyTexts(BeamSegmentInfo(), step))
                EXPECT_TRUE(isKnown(type, text.name))
                    << type << ' ' << QString::fromStdWString(text.name).toStdString();
        for (const wchar_t *name : {L"SectionTypeID", L"SectionPoly", L"InsertPt"})
            EXPECT_TRUE(isKnown(type, name)) << type;
    }
    EXPECT_TRUE(isKnown(15, L"SpanCount") && isKnown(47, L"SpanCount"));
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
