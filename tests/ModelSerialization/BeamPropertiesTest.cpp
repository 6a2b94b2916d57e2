#include "ModelSerialization/BeamProperties.h"

#include "ModelSerialization/PropertyRows.h"
#include "beam/BeamEntInfo.h"
#include "beam/BeamSegmentInfo.h"
#include "beam/LinkBeamEntInfo.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using beam::WriteStep;
using propertyrows::isKnown;
using propertyrows::kOffsets;
using propertyrows::kSizes;
using propertyrows::rowsOf;

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

QStringList entRows(qint64 type)
{
    QStringList rows;
    for (const WriteStep step : kEntSteps)
        rows += rowsOf(beam::entPropertyTexts(*entOf(type), step));
    return rows;
}

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

} // namespace
