#pragma once

#include "cli/CliFixture.h"

#include <QMap>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

namespace crashtest {

/** Files of a folder, hidden ones too, with what they hold. */
using Files = QMap<QString, QByteArray>;

inline Files filesIn(const QString &folder)
{
    Files files;
    const QDir directory(folder);
    for (const QString &name : directory.entryList(QDir::Files | QDir::Hidden | QDir::System))
        files[name] = clitest::fileContent(directory.filePath(name));
    return files;
}

/** Names of the files that differ, are new or gone. */
inline std::string changesOf(const Files &before, const Files &after)
{
    QStringList changes;
    for (const QString &name : before.keys())
        if (!after.contains(name))
            changes.append(name + " is gone");
        else if (after[name] != before[name])
            changes.append(name + " is changed");
    for (const QString &name : after.keys())
        if (!before.contains(name))
            changes.append(name + " is new");
    return changes.join(", ").toStdString();
}

/** In the child: files may grow to so many bytes, and what goes beyond fails. */
inline void limitFiles(rlim_t bytes)
{
    const rlimit limit{bytes, bytes};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &limit);
}

constexpr unsigned kNobody = 65534;

/** In the child: takes away the rights of root, which no mode of a file stops. */
inline void dropRights()
{
    if (geteuid() == 0 && (setgid(kNobody) != 0 || setuid(kNobody) != 0))
        _exit(127);
}

/** A command that writes a file, in a folder that makeHouse() has filled. */
struct Writer
{
    const char *name;
    QStringList arguments;
    const char *file; ///< that it names when it cannot write
};

inline void PrintTo(const Writer &writer, std::ostream *out) { *out << writer.name; }

inline const QString kRegion = QStringLiteral("主楼");

inline const Writer kWriters[] = {
    {"openingApply", {"opening", "apply", "house.hbxdb", "openings.json"}, "house.hbxdb"},
    {"slabApply",
     {"slab", "apply", "house.hbxdb", "--region", kRegion, "--floor", "1", "slabs.json", "--as-new"},
     "house.hbxdb"},
    {"beamApply", {"beam", "apply", "house.hbxdb", "beams.json"}, "house.hbxdb"},
    {"seatsApply", {"beam", "seats", "apply", "house.hbxdb", "seats.json"}, "house.hbxdb"},
    {"brickWallApply", {"wall", "apply", "house.hbxdb", "--kind", "brick", "brick.json"}, "house.hbxdb"},
    {"forceWallApply", {"wall", "apply", "house.hbxdb", "--kind", "force", "force.json"}, "house.hbxdb"},
    {"projectImport", {"project", "import", "house.json", "-o", "house.hbxdb"}, "house.hbxdb"},
    {"projectExport", {"project", "export", "house.hbxdb", "-o", "result"}, "result"},
    {"slabExport", {"slab", "export", "house.hbxdb", "--region", kRegion, "--floor", "1", "-o", "result"}, "result"},
    {"drawingMake", {"drawing", "make", "house.hbxdb", "--region", kRegion, "--floor", "1", "-o", "result"}, "result"},
    {"draw", {"draw", "house.hbxdb", "--region", kRegion, "--floor", "1", "-o", "result"}, "result"},
};

/** Runs commands that cannot do what they should, and looks at every file of their folder. */
class FileHarmFixture : public CliFixture
{
protected:
    QString folder() const { return path("."); }

    /** A project with walls, beams, slabs, foundations, doors; the building it was made of, a reply for each road, and a
     *  result of an earlier day. */
    void makeHouse();

    /** For commands that may not write what they would: on a build that counts for coverage, counts that are written in part
     *  would spoil those of other commands, and some that cannot be written are told; so theirs go to a folder that anybody
     *  may write in, where nobody reads them. */
    void leaveCountsOut()
    {
        QDir().mkpath(path("counts"));
        EXPECT_EQ(chmod(qPrintable(path("counts")), 0777), 0);
        setVariable("GCOV_PREFIX", path("counts"));
    }

    /** Puts every file back as it was, and takes away what is new. */
    void restore(const Files &files) const
    {
        const Files now = filesIn(folder());
        for (const QString &name : now.keys())
            if (!files.contains(name))
                QFile::remove(path(name));
        for (auto file = files.begin(); file != files.end(); ++file)
            if (now.value(file.key()) != file.value())
                write(file.key(), file.value());
    }
    /** Does something with each of the writers, in a folder that is as it was for the first. */
    template <typename Action> void forEachWriter(const Action &act) const
    {
        const Files files = filesIn(folder());
        for (const Writer &writer : kWriters) {
            SCOPED_TRACE(writer.name);
            act(writer);
            restore(files);
        }
    }
    /** The size that the writer's file has when it is done, bytes. */
    qint64 sizeOfResult(const Writer &writer) const
    {
        const Files files = filesIn(folder());
        EXPECT_NE(run(writer.arguments).exitCode, 2);
        const qint64 size = QFileInfo(path(writer.file)).size();
        restore(files);
        return size;
    }

    /** The command fails with exit code 2, one plain line about that file, and all files are as they were. */
    void expectUnharmed(const Writer &writer, const Process::Preparation &inChild) const
    {
        const Files before = filesIn(folder());
        const Result result = run(writer.arguments, inChild);
        EXPECT_EQ(result.exitCode, 2) << result.out.toStdString() << result.err.toStdString();
        expectPlainMessage(result, writer.file);
        EXPECT_EQ(changesOf(before, filesIn(folder())), "");
    }
    static void expectPlainMessage(const Result &result, const QByteArray &file)
    {
        EXPECT_EQ(result.out.toStdString(), "");
        EXPECT_TRUE(result.err.startsWith("orvcad: " + file + ": ")) << result.err.toStdString();
        EXPECT_EQ(result.err.count('\n'), 1) << result.err.toStdString();
    }
};

inline void FileHarmFixture::makeHouse()
{
    write("house.json", clitest::fileContent(sample("made-building")));
    importSample("made-building");
    const QStringList exports[] = {
        {"opening", "export", "house.hbxdb", "-o", "openings.json"},
        {"slab", "export", "house.hbxdb", "--region", kRegion, "--floor", "1", "-o", "slabs.json"},
        {"beam", "export", "house.hbxdb", "-o", "beams.json"},
        {"beam", "seats", "export", "house.hbxdb", "-o", "seats.json"},
        {"wall", "reply", "house.hbxdb", "--kind", "brick", "-o", "brick.json"},
        {"wall", "reply", "house.hbxdb", "--kind", "force", "-o", "force.json"},
    };
    for (const QStringList &arguments : exports)
        ASSERT_EQ(run(arguments).exitCode, 0) << arguments.join(' ').toStdString();
    write("result", QByteArray("of yesterday\n"));
}

/** The name of a case out of its parameter. */
template <typename Parameter> std::string nameOf(const ::testing::TestParamInfo<Parameter> &info)
{
    return info.param.name;
}

} // namespace crashtest
