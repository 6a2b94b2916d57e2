#include "platform/embedded/HBXWallOptions.h"

#include "platform/embedded/HBXModelStore.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXService.h"
#include "platform/services/HBXOptionNames.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

using hbx::embedded::HBXWallOptions;

namespace {

/** Says "Opening width" for the first label. */
class EnglishLabels : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char * /*hint*/, int /*number*/) const override
    {
        const bool isFirst = qstrcmp(context, "OrvCadIdentiFyWall") == 0 && qstrcmp(text, s_strMaxOpeningWidth) == 0;
        return isFirst ? QStringLiteral("Opening width") : QString();
    }
    bool isEmpty() const override { return false; }
};

class HBXWallOptionsTest : public ::testing::Test
{
protected:
    /** The option, in a building that keeps those rows of the group. */
    static int option(const char *label, const std::vector<std::pair<QString, QString>> &rows = {})
    {
        hbx::embedded::ProjectRecord record;
        record.options.push_back({ptnBeamSetting, QString::fromUtf8(label), "1"}); // another group
        for (const auto &[name, value] : rows)
            record.options.push_back({ptnWallSetting, name, value});
        hbx::embedded::HBXProject project;
        project.store().load(std::move(record));
        return HBXWallOptions(project.service()->model()).intOption(QString::fromUtf8(label));
    }
};

TEST_F(HBXWallOptionsTest, eachLabelHasItsDefault)
{
    EXPECT_EQ(option("最大洞口宽度(mm)"), 2400);
    EXPECT_EQ(option("平行墙线宽度范围(mm)"), 500);
    EXPECT_EQ(option("平行墙线宽度误差范围(mm)"), 5);
    EXPECT_EQ(option("墙端头相交延伸误差范围(mm)"), 200);
    EXPECT_EQ(option("墙端头与门窗相交延伸误差范围(水平)(mm)"), 50);
    EXPECT_EQ(option("墙端头与门窗相交延伸误差范围(垂直)(mm)"), 50);
    EXPECT_EQ(option("unknown"), 0);
}

TEST_F(HBXWallOptionsTest, valueOfTheBuildingCountsAndOfTwoTheFirst)
{
    EXPECT_EQ(option("最大洞口宽度(mm)", {{"最大洞口宽度(mm)", "1800"}, {"最大洞口宽度(mm)", "900"}}), 1800);
    EXPECT_EQ(option("最大洞口宽度(mm)", {{"最大洞口宽度(mm)", "0"}}), 0);
    EXPECT_EQ(option("unknown", {{"unknown", "7"}}), 7);
}

TEST_F(HBXWallOptionsTest, textThatIsNoIntegerCountsAsNotSet)
{
    for (const char *text : {"", "wide", "1.5", "99999999999", "12 mm"})
        EXPECT_EQ(option("平行墙线宽度误差范围(mm)", {{"平行墙线宽度误差范围(mm)", text}}), 5) << text;
    EXPECT_EQ(option("unknown", {{"unknown", "wide"}}), 0);
}

TEST_F(HBXWallOptionsTest, translatedLabelMeansTheSameOption)
{
    EnglishLabels labels;
    QCoreApplication::installTranslator(&labels);
    EXPECT_EQ(option("Opening width", {{"最大洞口宽度(mm)", "1800"}}), 1800);
    EXPECT_EQ(option("最大洞口宽度(mm)"), 2400);
    QCoreApplication::removeTranslator(&labels);
    EXPECT_EQ(option("Opening width"), 0);
}

TEST_F(HBXWallOptionsTest, withoutAModelThereAreTheDefaults)
{
    EXPECT_EQ(HBXWallOptions(nullptr).intOption(QString::fromUtf8(s_strMaxWallLineWidth)), 500);
}

} // namespace
