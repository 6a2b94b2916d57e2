#include "LargeBuilding.h"
#include "cli/CliFixture.h"
#include "platform/embedded/HBXProject.h"

#include <QElapsedTimer>

#include <chrono>
#include <iostream>
#include <random>
#include <thread>

#include <sys/stat.h>

using hbx::embedded::HBXProject;
using hbx::embedded::ProjectError;

namespace {

constexpr int kWalls = 20000;
constexpr int kDoors = 2000;
constexpr unsigned kSeed = 20261121;

/** How long a save writes into the file itself, about. */
constexpr double kWritingMs = 3;

/** Kills of commands that replace a whole file, for each ten of those of a save. */
constexpr int kReplacingKills = 3;

int killCount()
{
    const int asked = qEnvironmentVariableIntValue("ORVCAD_CRASH_KILLS");
    return asked > 0 ? asked : 20;
}

void sleepMs(double duration) { std::this_thread::sleep_for(std::chrono::duration<double, std::milli>(duration)); }

class KillTest : public CliFixture
{
protected:
    /** What the kills met. */
    struct Tally
    {
        int oldStates = 0;
        int newStates = 0;
        int inSaves = 0;     ///< with a journal beside the file
        int undone = 0;      ///< of these, with part of the save in the file
        int afterTheEnd = 0; ///< too late: the command was done
    };

    void SetUp() override
    {
        write("large.json", crashtest::largeBuilding(kWalls));
        write("doors.json", crashtest::doorReply(kDoors));
        ASSERT_EQ(run({"project", "import", "large.json", "-o", "old.hbxdb"}).exitCode, 0);
        m_old = read("old.hbxdb");
        m_oldBuilding = buildingIn("old.hbxdb");
        // A kill may come while a command writes its counts for coverage, and half of them would spoil those of others.
        setVariable("GCOV_PREFIX", path("counts"));
    }
    std::string buildingIn(const QString &name) const
    {
        ProjectError error;
        const auto project = HBXProject::open(path(name), error);
        EXPECT_TRUE(project) << error.text().toStdString();
        return project ? project->toJson().toStdString() : std::string();
    }
    QStringList files() const
    {
        QStringList names = QDir(path(".")).entryList(QDir::Files | QDir::Hidden | QDir::System);
        for (const char *input : {"large.json", "doors.json", "old.hbxdb"})
            names.removeAll(input);
        return names;
    }
    void restore()
    {
        QFile::remove(path("house.hbxdb-journal"));
        write("house.hbxdb", m_old);
        m_restored = modified();
    }
    /** When the file was last written, ns. */
    qint64 modified() const
    {
        struct stat info = {};
        stat(qPrintable(path("house.hbxdb")), &info);
        return static_cast<qint64>(info.st_mtim.tv_sec) * 1000000000 + info.st_mtim.tv_nsec;
    }
    bool isSaving() const { return exists("house.hbxdb-journal"); }
    static bool isRunning(QProcess &process)
    {
        return process.state() != QProcess::NotRunning && !process.waitForFinished(0);
    }
    /** False when the command was done before it began to save. */
    bool waitForSave(QProcess &process) const
    {
        while (!isSaving())
            if (!isRunning(process))
                return false;
        return true;
    }

    /** How long the command takes, and its save, ms. */
    struct Course
    {
        double whole = 0;
        double save = 0;
    };
    /** Runs the command undisturbed. */
    Course course(const QStringList &arguments)
    {
        restore();
        QElapsedTimer timer;
        timer.start();
        QProcess process;
        start(process, arguments);
        process.waitForStarted();
        Course taken;
        if (waitForSave(process)) {
            const auto begun = static_cast<double>(timer.nsecsElapsed());
            while (isSaving())
                ;
            taken.save = (static_cast<double>(timer.nsecsElapsed()) - begun) / 1e6;
        }
        const Result result = resultOf(process);
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        taken.whole = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        return taken;
    }

    /** Waits until the save writes into the file itself; false when the command was done before. */
    bool waitForChange(QProcess &process) const
    {
        while (modified() == m_restored)
            if (!isRunning(process))
                return false;
        return true;
    }
    /** Kills the command at a moment of its course: anywhere, within its save, if it has one, or while that writes. */
    void runAndKill(const QStringList &arguments, const Course &taken, int number, Tally &tally)
    {
        std::uniform_real_distribution<double> part(0.0, 1.0);
        QProcess process;
        start(process, arguments);
        process.waitForStarted();
        const int way = taken.save > 0 ? number % 3 : 0;
        if (way == 1 && waitForSave(process))
            sleepMs(taken.save * part(m_random));
        else if (way == 2 && waitForChange(process))
            sleepMs(kWritingMs * part(m_random));
        else if (way == 0)
            sleepMs(taken.whole * 1.05 * part(m_random));
        process.kill();
        process.waitForFinished();
        tally.afterTheEnd += process.exitStatus() == QProcess::NormalExit ? 1 : 0;
    }
    /** The file is whole, in the state of before or after, and stands alone. */
    void expectOldOrNew(const std::string &after, Tally &tally)
    {
        const QByteArray left = read("house.hbxdb");
        const bool wasSaving = isSaving();
        ProjectError error;
        const auto project = HBXProject::open(path("house.hbxdb"), error);
        ASSERT_TRUE(project) << error.text().toStdString();
        const bool isOld = read("house.hbxdb") == m_old;
        ASSERT_TRUE(isOld || project->toJson().toStdString() == after);
        (isOld ? tally.oldStates : tally.newStates) += 1;
        tally.inSaves += wasSaving ? 1 : 0;
        tally.undone += wasSaving && left != m_old ? 1 : 0;
    }
    static void tell(const char *command, int kills, const Course &taken, const Tally &tally)
    {
        std::cout << command << ": " << kills << " kills in " << taken.whole << " ms (save " << taken.save
                  << " ms): old state " << tally.oldStates << ", new state " << tally.newStates << "; within a save "
                  << tally.inSaves << ", of which to undo " << tally.undone << "; too late " << tally.afterTheEnd
                  << '\n';
    }

    QByteArray m_old;
    qint64 m_restored = 0;
    std::string m_oldBuilding;
    std::mt19937 m_random{kSeed};
};

} // namespace

TEST_F(KillTest, applyThatIsKilledLeavesTheOldOrTheNewState)
{
    const QStringList apply{"opening", "apply", "house.hbxdb", "doors.json"};
    const Course taken = course(apply);
    const std::string after = buildingIn("house.hbxdb");
    ASSERT_NE(after, m_oldBuilding);
    EXPECT_GT(taken.save, 0);
    Tally tally;
    for (int i = 0; i < killCount() && !HasFatalFailure(); ++i) {
        restore();
        runAndKill(apply, taken, i, tally);
        expectOldOrNew(after, tally);
        for (const QString &name : files()) // a journal in which nothing stands yet does not hinder
            EXPECT_TRUE(name == "house.hbxdb" || name == "house.hbxdb-journal") << name.toStdString();
    }
    EXPECT_GT(tally.oldStates, 0);
    EXPECT_GT(tally.inSaves, 0) << "no kill met a save";
    tell("apply", killCount(), taken, tally);

    restore();
    EXPECT_EQ(run(apply).exitCode, 0) << "what a kill has left hinders the next apply";
    EXPECT_EQ(files(), QStringList("house.hbxdb"));
    EXPECT_TRUE(buildingIn("house.hbxdb") == after);
}

TEST_F(KillTest, importThatIsKilledLeavesTheOldOrTheNewProjectAlone)
{
    write("other.json", crashtest::largeBuilding(kWalls / 2));
    const QStringList import{"project", "import", "other.json", "-o", "house.hbxdb"};
    const Course taken = course(import);
    const std::string after = buildingIn("house.hbxdb");
    ASSERT_NE(after, m_oldBuilding);
    const int kills = (killCount() * kReplacingKills + 9) / 10;
    Tally tally;
    for (int i = 0; i < kills && !HasFatalFailure(); ++i) {
        restore();
        runAndKill(import, taken, i, tally);
        expectOldOrNew(after, tally);
        EXPECT_EQ(files(), (QStringList{"house.hbxdb", "other.json"}));
    }
    tell("import", kills, taken, tally);
}

TEST_F(KillTest, exportThatIsKilledLeavesTheOldOrTheNewFileAlone)
{
    restore();
    const QStringList exporting{"project", "export", "house.hbxdb", "-o", "result.json"};
    const Course taken = course(exporting);
    const QByteArray after = read("result.json");
    const QByteArray before("of yesterday\n");
    const int kills = (killCount() * kReplacingKills + 9) / 10;
    Tally tally;
    for (int i = 0; i < kills; ++i) {
        write("result.json", before);
        runAndKill(exporting, taken, i, tally);
        const QByteArray left = read("result.json");
        EXPECT_TRUE(left == before || left == after);
        (left == before ? tally.oldStates : tally.newStates) += 1;
        EXPECT_EQ(files(), (QStringList{"house.hbxdb", "result.json"}));
    }
    tell("export", kills, taken, tally);
}
