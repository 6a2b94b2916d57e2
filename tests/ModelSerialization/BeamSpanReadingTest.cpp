#include "ModelSerialization/BeamSpanReading.h"

#include "beam/BeamSpanInfo.h"
#include "platform/services/IWLRBeamSpan.h"
#include "platform/services/TBeamHaunchingBarInfo.h"
#include "platform/services/TWLRCustomHoopBars.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace {

/** A span of a host: each question is written down, and gives a value that names it. */
class AskedSpan : public IWLRBeamSpan
{
public:
    mutable QStringList asked;
    QString failing; ///< the question that throws
    bool hasBars = true;
    TBeamHaunchingBarInfo haunch{{TBarTypeObj("2C12"), TBarTypeObj("3C14")},
                                 {TBarTypeObj("4C16"), TBarTypeObj("5C18")}};
    std::unique_ptr<IWLRCustomHoopBars> hoops = std::make_unique<TWLRCustomHoopBars>("A10@50");

    int spanIndex() const override { return note("index") ? 3 : 0; }
    double startElev() const override { return note("start") ? 6.9 : 0; }
    double endElev() const override { return note("end") ? 6.4 : 0; }
    double spanLength(int mode) const override { return note(QString("length %1").arg(mode)) ? 5000.5 : 0; }
    int measure(int number, int mode) const override
    {
        return note(QString("A%1 %2").arg(number).arg(mode)) ? number * -100 : 0;
    }
    QString section() const override { return text("section"); }
    double axisOffset() const override { return note("offset") ? 25.5 : 0; }
    const TBarTypeObj *bar(Bar which) const override
    {
        m_bar = TBarTypeObj(text(QString("bar %1").arg(which)));
        return hasBars ? &m_bar : nullptr;
    }
    int hoopBarLimbCount() const override { return note("limbs") ? 4 : 0; }
    QString secBeamWidth() const override { return text("secondary width"); }
    QString hangBarAnchor() const override { return text("anchor"); }
    QString denseLength() const override { return text("dense"); }
    QString haunchingLength() const override { return text("haunch length"); }
    QString haunchingHeight() const override { return text("haunch height"); }
    const TBeamHaunchingBarInfo *haunchingBarInfo(int mode) const override
    {
        note(QString("haunch bars %1").arg(mode));
        return hasBars ? &haunch : nullptr;
    }
    const IWLRCustomHoopBars *customHoopBars() const override
    {
        note("hoops");
        return hoops.get();
    }

private:
    bool note(const QString &question) const
    {
        asked.append(question);
        if (question == failing)
            throw std::runtime_error("cannot be read");
        return true;
    }
    QString text(const QString &question) const { return note(question) ? question : QString(); }

    mutable TBarTypeObj m_bar;
};

TEST(BeamSpanReadingTest, everyFieldHasItsValue)
{
    const AskedSpan span;
    const auto record = beam::getBeamSpanInfo(&span);
    EXPECT_EQ(record->SpanIndex, 3);
    EXPECT_EQ(record->StartElev, 6.9);
    EXPECT_EQ(record->EndElev, 6.4);
    EXPECT_EQ(record->SpanLength, 5000.5);
    EXPECT_EQ(record->SpanA1_A4, "-100,-200,-300,-400");
    EXPECT_EQ(record->Section, "section");
    EXPECT_EQ(record->AxisOffset, 25.5);
    EXPECT_EQ(record->TopThroughBar, "bar 0");
    EXPECT_EQ(record->LeftSupportBar, "bar 1");
    EXPECT_EQ(record->SpanBar, "bar 2");
    EXPECT_EQ(record->RightSupportBar, "bar 3");
    EXPECT_EQ(record->BottomThroughBar, "bar 4");
    EXPECT_EQ(record->BottomBar, "bar 5");
    EXPECT_EQ(record->SideBar, "bar 6");
    EXPECT_EQ(record->SideLabelBar, "bar 7");
    EXPECT_EQ(record->TieBar, "bar 8");
    EXPECT_EQ(record->HoopBar, "bar 9");
    EXPECT_EQ(record->HoopBarLimbCount, 4);
    EXPECT_EQ(record->SecBeamWidth, "secondary width");
    EXPECT_EQ(record->SecBeamAddBar, "bar 10");
    EXPECT_EQ(record->HangBar, "bar 11");
    EXPECT_EQ(record->HangBarAnchor, "anchor");
    EXPECT_EQ(record->DenseLength, "dense");
    EXPECT_EQ(record->HaunchingLength, "haunch length");
    EXPECT_EQ(record->HaunchingHeight, "haunch height");
    EXPECT_EQ(record->HaunchingBarInfo, "2C123C14;4C165C18");
    EXPECT_EQ(record->OtherHoopBars, "A10@50");
}

TEST(BeamSpanReadingTest, spanIsAskedInOrderOfTheFields)
{
    const AskedSpan span;
    beam::getBeamSpanInfo(&span);
    const QStringList expected{"index",  "start", "end",           "length 1",        "A1 1",          "A2 1",
                               "A3 1",   "A4 1",  "section",       "offset",          "bar 0",         "bar 1",
                               "bar 2",  "bar 3", "bar 4",         "bar 5",           "bar 6",         "bar 7",
                               "bar 8",  "bar 9", "limbs",         "secondary width", "bar 10",        "bar 11",
                               "anchor", "dense", "haunch length", "haunch height",   "haunch bars 0", "hoops"};
    EXPECT_EQ(span.asked, expected) << span.asked.join('\n').toStdString();
}

TEST(BeamSpanReadingTest, exceptionEndsTheReadingAndKeepsWhatWasRead)
{
    AskedSpan span;
    span.failing = "bar 2";
    const auto record = beam::getBeamSpanInfo(&span);
    EXPECT_EQ(record->SpanLength, 5000.5);
    EXPECT_EQ(record->LeftSupportBar, "bar 1");
    EXPECT_EQ(record->SpanBar, "");
    EXPECT_EQ(record->RightSupportBar, "");
    EXPECT_EQ(record->HoopBarLimbCount, 0);
}

TEST(BeamSpanReadingTest, missingBarsAreEmptyTexts)
{
    AskedSpan span;
    span.hasBars = false;
    span.hoops = nullptr;
    const auto record = beam::getBeamSpanInfo(&span);
    EXPECT_EQ(record->HoopBar, "");
    EXPECT_EQ(record->HaunchingBarInfo, "");
    EXPECT_EQ(record->OtherHoopBars, "");
    EXPECT_EQ(record->HaunchingHeight, "haunch height");
}

class OtherHoops : public IWLRCustomHoopBars
{};

TEST(BeamSpanReadingTest, hoopBarsThatAreNoTextAreLeftOut)
{
    AskedSpan span;
    span.hoops = std::make_unique<OtherHoops>();
    EXPECT_EQ(beam::getBeamSpanInfo(&span)->OtherHoopBars, "");
}

TEST(BeamSpanReadingTest, missingSpanGivesAFreshRecord)
{
    EXPECT_EQ(beam::getBeamSpanInfo(nullptr)->toJsonObj(), BeamSpanInfo().toJsonObj());
}

struct HaunchCase
{
    BarTypeObjList left;
    BarTypeObjList right;
    const char *text;
};
class HaunchBarTextTest : public ::testing::TestWithParam<HaunchCase>
{};

TEST_P(HaunchBarTextTest, rightBarsWithoutLeftOnesAreNotTold)
{
    AskedSpan span;
    span.haunch = TBeamHaunchingBarInfo(GetParam().left, GetParam().right);
    EXPECT_EQ(beam::getHaunchingBarInfo(&span), GetParam().text);
}
INSTANTIATE_TEST_SUITE_P(Bars, HaunchBarTextTest,
                         ::testing::Values(HaunchCase{{}, {}, ""}, HaunchCase{{}, {TBarTypeObj("2C12")}, ""},
                                           HaunchCase{{TBarTypeObj("2C12")}, {}, "2C12"},
                                           HaunchCase{{TBarTypeObj("2C12")}, {TBarTypeObj("3C14")}, "2C12;3C14"},
                                           HaunchCase{{TBarTypeObj("")}, {TBarTypeObj("3C14")}, ";3C14"}));

TEST(BeamSpanReadingTest, missingSpanHasNoHaunchBars) { EXPECT_EQ(beam::getHaunchingBarInfo(nullptr), ""); }

} // namespace
