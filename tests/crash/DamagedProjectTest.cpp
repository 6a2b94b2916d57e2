#include "Damage.h"
#include "embedded/ProjectFiles.h"

#include <algorithm>
#include <iostream>

using hbx::embedded::HBXProject;
using hbx::embedded::ProjectError;

namespace {

constexpr unsigned kSeed = 20261121;
constexpr int kFiles = 500; ///< of each building
constexpr int kPage = 4096; ///< bytes, as SQLite has them

class DamagedProjectTest : public projecttest::ProjectFileTest, public ::testing::WithParamInterface<const char *>
{
protected:
    /** An object may have been given an outline that the exchange form has no place for, and keeps it in its file. */
    static bool isAboutAnOutline(const ProjectError &error)
    {
        const QStringList outlineFaults{"open ring", "crosses itself", "no area", "of no length",
                                        "a hole that is not inside"};
        return std::any_of(outlineFaults.begin(), outlineFaults.end(),
                           [&error](const QString &fault) { return error.reason.contains(fault); });
    }
    /** Whether it was opened, and then it is sound: what it holds is a building that is read again and stays the same. */
    bool isOpened(int number) const
    {
        ProjectError error;
        const auto project = HBXProject::open(path(), error);
        EXPECT_EQ(project == nullptr, !error.reason.isEmpty()) << number;
        if (!project)
            return false;
        const QByteArray building = project->toJson();
        const auto again = HBXProject::fromJson(building, "again.json", error);
        EXPECT_TRUE(again || isAboutAnOutline(error)) << number << ": " << error.text().toStdString();
        EXPECT_TRUE(!again || again->toJson() == building) << number;
        return true;
    }
};

} // namespace

TEST_P(DamagedProjectTest, isOpenedSoundlyOrRefusedWithItsReason)
{
    makeFile(exchangetest::building(GetParam()));
    const QByteArray whole = bytes();
    crashtest::Damage damage(kSeed, kPage);
    int opened = 0;
    for (int i = 0; i < kFiles; ++i) {
        const QByteArray damaged = damage.done(whole);
        writeFile(damaged);
        opened += isOpened(i) ? 1 : 0;
        ASSERT_TRUE(bytes() == damaged) << i << ": the file was touched";
        ASSERT_EQ(filesInFolder(), QStringList("house.hbxdb")) << i;
    }
    EXPECT_GT(opened, 0);
    EXPECT_LT(opened, kFiles);
    std::cout << GetParam() << ": " << opened << " of " << kFiles << " damaged files opened, the others refused\n";
}

INSTANTIATE_TEST_SUITE_P(Buildings, DamagedProjectTest, ::testing::Values("made-building", "masonry-block"),
                         [](const auto &test) { return std::string(test.param).substr(0, 4); });
