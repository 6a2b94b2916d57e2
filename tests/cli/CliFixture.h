#pragma once

#include "JsonTexts.h"
#include "OpeningReplies.h"

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <vector>

using clitest::with;
using clitest::without;
using openingtest::elementMember;
using openingtest::placedMember;

/** Runs the command in a directory of its own. */
class CliFixture : public ::testing::Test
{
protected:
    struct Result
    {
        int exitCode = -1;
        QByteArray out;
        QByteArray err;

        /** The summary of a run with --json. */
        QJsonObject json() const { return QJsonDocument::fromJson(out).object(); }
        QJsonObject error() const { return QJsonDocument::fromJson(err).object()["error"].toObject(); }
    };

    /** A process that is prepared before it becomes the command. */
    class Process : public QProcess
    {
    public:
        using Preparation = std::function<void()>;
        explicit Process(Preparation inChild = {}) : m_inChild(std::move(inChild)) {}

    private:
        void setupChildProcess() override
        {
            if (m_inChild)
                m_inChild();
        }
        Preparation m_inChild;
    };

    void start(QProcess &process, const QStringList &arguments) const
    {
        start(process, QStringLiteral(ORVCAD_PROGRAM), arguments);
    }
    void start(QProcess &process, const QString &program, const QStringList &arguments) const
    {
        process.setWorkingDirectory(m_directory.path());
        process.setProcessEnvironment(m_environment);
        process.start(program, arguments);
    }
    /** What became of a process; exit code -1 for one that crashed or never ended. */
    static Result resultOf(QProcess &process)
    {
        Result result;
        const bool isDone = process.state() == QProcess::NotRunning || process.waitForFinished(120000);
        if (!isDone || process.error() == QProcess::FailedToStart || process.exitStatus() != QProcess::NormalExit)
            return result;
        result.exitCode = process.exitCode();
        result.out = process.readAllStandardOutput();
        result.err = process.readAllStandardError();
        return result;
    }
    /** @param inChild  runs in the process of the command before that begins */
    Result run(const QStringList &arguments, Process::Preparation inChild = {}) const
    {
        Process process(std::move(inChild));
        start(process, arguments);
        return resultOf(process);
    }

    /** Sets a variable of the environment of later runs. */
    void setVariable(const QString &name, const QString &value) { m_environment.insert(name, value); }

    QString path(const QString &name) const { return QDir(m_directory.path()).filePath(name); }
    bool exists(const QString &name) const { return QFile::exists(path(name)); }
    QByteArray read(const QString &name) const { return clitest::fileContent(path(name)); }
    QJsonDocument readJson(const QString &name) const { return QJsonDocument::fromJson(read(name)); }
    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    void write(const QString &name, const QJsonObject &json) const { write(name, QJsonDocument(json).toJson()); }

    /** A run that must end with exit code 2, name that file and give a reason; the error object that it wrote. */
    QJsonObject refusal(const QStringList &arguments, const QString &file) const
    {
        const Result result = run(arguments + QStringList{"--json"});
        EXPECT_EQ(result.exitCode, 2) << arguments.join(' ').toStdString() << '\n' << result.err.toStdString();
        EXPECT_TRUE(result.out.isEmpty()) << result.out.toStdString();
        EXPECT_EQ(result.error()["file"].toString(), file) << result.err.toStdString();
        EXPECT_FALSE(result.error()["reason"].toString().isEmpty()) << result.err.toStdString();
        EXPECT_TRUE(result.error()["message"].toString().startsWith(file)) << result.err.toStdString();
        return result.error();
    }
    /** What a file holds, and how a command refuses it. */
    struct Refused
    {
        QByteArray content;
        const char *place;
        const char *reason;
    };
    /** Each of the contents is refused by the command, which gets the file as its last argument. */
    void expectRefusals(const QStringList &command, const QString &file, const std::vector<Refused> &contents) const
    {
        for (const Refused &refused : contents) {
            write(file, refused.content);
            const QJsonObject error = refusal(command + QStringList{file}, file);
            EXPECT_EQ(error["place"].toString().toStdString(), refused.place) << refused.content.toStdString();
            EXPECT_EQ(error["reason"].toString().toStdString(), refused.reason) << refused.content.toStdString();
        }
    }
    /** A JSON file is refused with line and column wherever it is cut.
     *  @param step  from one cut to the next, bytes */
    void expectRefusalOfCuts(const QStringList &command, const QByteArray &whole, int step) const
    {
        for (int length = 1; length < whole.trimmed().size(); length += step) {
            write("cut.json", whole.left(length));
            const QJsonObject error = refusal(command + QStringList{"cut.json"}, "cut.json");
            EXPECT_TRUE(error["place"].toString().startsWith("line ")) << length;
        }
    }
    /** The members of an object, sorted and with commas between them. */
    static std::string keys(const QJsonValue &object) { return object.toObject().keys().join(',').toStdString(); }

    static QString sample(const QString &building)
    {
        return QStringLiteral(ORVCAD_TEST_DATA "/buildings/") + building + ".json";
    }
    /** Imports a sample building as house.hbxdb. */
    void importSample(const QString &building)
    {
        const Result result = run({"project", "import", sample(building), "-o", "house.hbxdb"});
        ASSERT_EQ(result.exitCode, 0) << result.err.toStdString();
    }
    using TakeFloor = std::function<void(const QString &region, const QJsonObject &floor)>;
    /** Imports the sample buildings one by one as house.hbxdb, and gives their floors as project info tells them. */
    void forEachFloorOfSamples(const TakeFloor &take)
    {
        for (const char *building : {"duplex-apartment", "masonry-block", "precast-hall", "made-building"}) {
            importSample(building);
            const QJsonObject info = run({"project", "info", "house.hbxdb", "--json"}).json();
            for (const QJsonValue region : info["regions"].toArray())
                for (const QJsonValue floor : region["floors"].toArray())
                    take(region["name"].toString(), floor.toObject());
        }
    }
    /** Imports a small building: region "House", floor "Level 1" of code "1", one brick wall along the x axis. */
    void importSmallHouse()
    {
        write("house.json", QByteArray(R"~({"format": "hbx-project", "version": 1, "name": "Small house",
            "regions": [{"name": "House", "floors": [{"name": "Level 1", "code": "1", "bottomElev": 0, "height": 3,
            "elements": [{"name": "Q1", "type": 1003, "properties": {"Thickness": 200}, "drawObjects": [
            {"shape": {"kind": "line", "axis": "LINESTRING(0 0, 5000 0)", "width": 200}}]}]}]}]})~"));
        ASSERT_EQ(run({"project", "import", "house.json", "-o", "house.hbxdb"}).exitCode, 0);
    }

    void writeReply(const QJsonArray &members) const { write("reply.json", openingtest::replyOf(members)); }

private:
    QTemporaryDir m_directory;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};
