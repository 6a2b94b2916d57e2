#include "foundation/Log_AI.h"
#include "foundation/Object_AI.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <gmock/gmock.h>

#include <csignal>
#include <string>
#include <sys/resource.h>
#include <vector>

namespace {

using testing::ElementsAre;

const QString kFolder = "E:/orv_2018_AI0529/build/bin/Win32/Release/BoardCheckLog";

/** A model that writes the logs it is told to. */
struct Model : cv::Object_AI
{
    using cv::Object_AI::output;
    void saveLog() override
    {
        ++saved;
        cv::Object_AI::saveLog();
    }
    int saved = 0;
};

QStringList files() { return QDir(kFolder).entryList(QDir::Files, QDir::Name); }

QByteArray textOf(const QString &file)
{
    QFile stored(kFolder + '/' + file);
    return stored.open(QIODevice::ReadOnly) ? stored.readAll() : QByteArray("cannot be read");
}

QStringList descriptsOf(const QString &file)
{
    QStringList texts;
    for (const QJsonValue log : QJsonDocument::fromJson(textOf(file)).array())
        texts.append(log.toObject()["descript"].toString());
    return texts;
}

/** Takes up warnings while it lives. Captured standard output would be a file, for which there may be no room. */
class Warnings
{
public:
    Warnings() : m_before(qInstallMessageHandler(&Warnings::take)) { s_texts.clear(); }
    ~Warnings() { qInstallMessageHandler(m_before); }

    std::vector<std::string> texts() const { return s_texts; }

private:
    static void take(QtMsgType type, const QMessageLogContext &, const QString &text)
    {
        s_texts.push_back((type == QtWarningMsg ? "" : "no warning: ") + text.toStdString());
    }

    static inline std::vector<std::string> s_texts;
    QtMessageHandler m_before;
};

/** Lets no file grow, as on a full disk. */
class NoRoom
{
public:
    NoRoom()
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit none{0, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~NoRoom() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before{};
};

class LogFileTest : public testing::Test
{
protected:
    // Each test looks at what it wrote itself, whether it has a process of its own or not.
    LogFileTest() { QDir("E:").removeRecursively(); }

    Model model;
    cv::Object_AI *slab = new cv::Object_AI("slab", &model);
};

TEST_F(LogFileTest, savedLogsStandInOneFileInTheFixedFolder)
{
    const QJsonObject first = slab->log("thickness", "one", 0.5)->setValue("assumed", 120)->toJson();
    const QJsonObject second = model.log("hole", "two", 1.0)->toJson();
    model.saveLog();
    ASSERT_EQ(files().size(), 1);
    EXPECT_TRUE(QRegularExpression("^\\{[0-9a-f-]{36}\\}\\.json$").match(files()[0]).hasMatch())
        << qPrintable(files()[0]);
    EXPECT_EQ(textOf(files()[0]), QJsonDocument(QJsonArray{second, first}).toJson());
}

TEST_F(LogFileTest, savedLogsAreGoneFromTheTree)
{
    slab->log("t", "one", 0.5);
    model.saveLog();
    EXPECT_EQ(slab->childCount(), 0U);
    EXPECT_THAT(model.children(), ElementsAre(slab));
}

TEST_F(LogFileTest, savingTwiceMakesTwoFilesTheSecondWithAnEmptyArray)
{
    slab->log("t", "one", 0.5);
    model.saveLog();
    const QStringList before = files();
    model.saveLog();
    QStringList added = files();
    added.removeAll(before.value(0));
    ASSERT_EQ(added.size(), 1);
    EXPECT_EQ(textOf(added[0]), "[\n]\n");
    EXPECT_EQ(descriptsOf(before[0]), QStringList("one"));
}

TEST_F(LogFileTest, objectSavesItsOwnSubtreeOnly)
{
    slab->log("t", "below", 0.5);
    model.log("t", "above", 0.5);
    slab->saveLog();
    EXPECT_EQ(descriptsOf(files().value(0)), QStringList("below"));
    EXPECT_EQ(model.childCount(), 2U);
    model.clearLog();
}

TEST_F(LogFileTest, logUnderALogIsSavedWithIt)
{
    slab->log("t", "one", 0.5)->log("t", "under it", 0.5);
    slab->log("t", "two", 0.5);
    model.saveLog();
    EXPECT_EQ(descriptsOf(files().value(0)), (QStringList{"one", "two", "under it"}));
}

TEST_F(LogFileTest, outputWritesTheGivenLogsAndLeavesTheOthers)
{
    cv::Log_AI *one = slab->log("t", "one", 0.5);
    cv::Log_AI *two = slab->log("t", "two", 0.5);
    slab->log("t", "three", 0.5);
    model.output({two, nullptr, one});
    EXPECT_EQ(descriptsOf(files().value(0)), (QStringList{"two", "one"}));
    EXPECT_EQ(slab->childCount(), 1U);
    model.clearLog();
}

TEST_F(LogFileTest, savingIsVirtual)
{
    static_cast<cv::Object_AI &>(model).saveLog();
    EXPECT_EQ(model.saved, 1);
}

TEST_F(LogFileTest, folderThatCannotBeMadeIsAWarningAndTheLogsAreGone)
{
    QFile inTheWay("E:");
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    slab->log("t", "one", 0.5);
    const Warnings warnings;
    model.saveLog();
    EXPECT_THAT(warnings.texts(),
                ElementsAre("fail to create dir: \"E:/orv_2018_AI0529/build/bin/Win32/Release/BoardCheckLog\""));
    EXPECT_EQ(slab->childCount(), 0U);
    inTheWay.remove();
}

TEST_F(LogFileTest, fileThatCannotBeOpenedIsAWarningAndTheLogsAreGone)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(kFolder).path()));
    ASSERT_TRUE(QFile::link("/proc", kFolder)); // nobody can make a file there
    slab->log("t", "one", 0.5);
    const Warnings warnings;
    model.saveLog();
    EXPECT_THAT(warnings.texts(), ElementsAre(testing::MatchesRegex(
                                      "\"E:/.*/BoardCheckLog/\\{[0-9a-f-]+\\}.json\" \"No such file or directory\"")));
    EXPECT_EQ(slab->childCount(), 0U);
    QFile::remove(kFolder);
}

TEST_F(LogFileTest, fileThatIsWrittenShortIsAWarning)
{
    ASSERT_TRUE(QDir().mkpath(kFolder));
    slab->log("t", "one", 0.5);
    const Warnings warnings;
    {
        const NoRoom noRoom;
        model.saveLog();
    }
    EXPECT_THAT(warnings.texts(),
                ElementsAre(testing::MatchesRegex("\"E:/.*/BoardCheckLog/\\{[0-9a-f-]+\\}.json\" \"File too large\"")));
    EXPECT_EQ(slab->childCount(), 0U);
}

} // namespace
