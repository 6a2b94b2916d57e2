#include "cli/RecordTour.h"

#include "CommandFailures.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using orvcad::RecordTour;
using orvcad::TourStep;

namespace {

class RecordTourTest : public ::testing::Test
{
protected:
    QString path(const char *name) const { return QDir(m_directory.path()).filePath(QLatin1String(name)); }

    QTemporaryDir m_directory;
    RecordTour tour{m_directory.path()};
};

TEST_F(RecordTourTest, drawingSetIsPutIntoTheDirectoryAndTold)
{
    const TourStep step = tour.showDrawings();
    EXPECT_EQ(step.typed, "drawings show hall-drawings.json");
    EXPECT_FALSE(step.outcome.isEmpty());
    EXPECT_TRUE(QFile::exists(path("hall-drawings.json")));
}

TEST_F(RecordTourTest, columnsAreFoundSoundAndSurviveBeingWrittenAgain)
{
    const TourStep step = tour.checkColumns();
    EXPECT_EQ(step.typed, "column check hall-columns.json");
    EXPECT_TRUE(QFile::exists(path("hall-columns.json")));
    EXPECT_TRUE(tour.isSame()) << step.outcome.toStdString();
}

TEST_F(RecordTourTest, exampleThatAUserChangedIsPutThereAnew)
{
    tour.showDrawings();
    QFile file(path("hall-drawings.json"));
    const qint64 size = file.size();
    ASSERT_TRUE(file.resize(3));
    tour.showDrawings();
    EXPECT_EQ(QFile(path("hall-drawings.json")).size(), size);
}

TEST_F(RecordTourTest, directoryThatCannotBeMadeIsNamed)
{
    QFile file(path("a file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const RecordTour lost(path("a file"));
    EXPECT_EQ(clitest::failureOf([&lost] { lost.showDrawings(); }),
              (path("a file") + ": the directory cannot be made").toStdString());
}

} // namespace
