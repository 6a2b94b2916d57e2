#include "cli/Files.h"

#include "CommandFailures.h"
#include "TestFiles.h"

using clitest::failureOf;
using namespace orvcad;

namespace {

using FilesTest = TestFiles;

TEST_F(FilesTest, fileIsReadWhole)
{
    EXPECT_EQ(readFile(fileOf("a.bin", QByteArray("a\0b\r\n", 5))), QByteArray("a\0b\r\n", 5));
}

TEST_F(FilesTest, fileThatCannotBeReadIsNamed)
{
    const std::string missing = path("none.json").toStdString();
    EXPECT_EQ(failureOf([&] { readFile(path("none.json")); }), missing + ": No such file or directory");
    EXPECT_EQ(failureOf([&] { readFile(path(".")); }), path(".").toStdString() + ": is a directory");
}

TEST_F(FilesTest, fileThatIsNoJsonIsToldWithLineAndColumn)
{
    const QString file = fileOf("a.json", "{\n  \"a\": 1,\n  \"b\" 2\n}");
    EXPECT_EQ(failureOf([&] { readJsonFile(file); }),
              file.toStdString() + ": line 3, column 7: not JSON: Missing a colon after a name of object member.");
    const QString first = fileOf("b.json", "{7}");
    EXPECT_EQ(failureOf([&] { readJsonFile(first); }),
              first.toStdString() + ": line 1, column 2: not JSON: Missing a name for object member.");
}

TEST_F(FilesTest, documentNestedDeeperThanQtFollowsIsToldWithThePlaceWhereItStops)
{
    const auto nested = [](int depth) { return QByteArray(depth, '[') + QByteArray(depth, ']'); };
    EXPECT_TRUE(readJsonFile(fileOf("a.json", nested(1024))).isArray());
    const QString file = fileOf("b.json", nested(1025));
    EXPECT_EQ(failureOf([&] { readJsonFile(file); }),
              file.toStdString() + ": line 1, column 1026: not JSON: too deeply nested document");
}

TEST_F(FilesTest, documentThatWouldBeReadOtherwiseThanItStandsIsRefused)
{
    const QString twice = fileOf("a.json", "{\"a\": {\"b\": 1},\n \"a\": 2}");
    EXPECT_EQ(failureOf([&] { readJsonFile(twice); }),
              twice.toStdString() + ": line 2, column 5: \"a\" stands twice in one object");
    const QString large = fileOf("b.json", "{\"id\": 9007199254740993}");
    EXPECT_EQ(failureOf([&] { readJsonFile(large); }),
              large.toStdString() +
                  ": line 1, column 8: the number 9007199254740993 would be read as 9007199254740992");
    EXPECT_TRUE(readJsonFile(large, LargeNumbers::Taken).isObject());
}

TEST_F(FilesTest, emptyFileIsToldAsSuch)
{
    const QString file = fileOf("a.json", " \n\t");
    EXPECT_EQ(failureOf([&] { readJsonFile(file); }), file.toStdString() + ": the file is empty");
}

TEST_F(FilesTest, documentThatIsNoObjectIsRefusedByItsName)
{
    EXPECT_EQ(readJsonObject(fileOf("a.json", R"({"a": 1})"), "floors document"), (QJsonObject{{"a", 1}}));
    const QString file = fileOf("b.json", "[]");
    EXPECT_EQ(failureOf([&] { readJsonObject(file, "floors document"); }),
              file.toStdString() + ": no floors document: its top is no object");
}

TEST_F(FilesTest, resultGoesIntoItsFileAndNothingIsLeftBesideIt)
{
    EXPECT_FALSE(writeResult(fileOf("a.txt", "old content"), QByteArray("new")));
    EXPECT_EQ(clitest::fileContent(path("a.txt")), "new");
    EXPECT_FALSE(writeResult(path("a.json"), QJsonObject{{"b", 1}}));
    EXPECT_EQ(clitest::fileContent(path("a.json")), "{\n    \"b\": 1\n}\n");
    EXPECT_EQ(QDir(path(".")).entryList(QDir::Files | QDir::Hidden), (QStringList{"a.json", "a.txt"}));
}

TEST_F(FilesTest, resultWithoutAFileGoesToStandardOutput)
{
    for (const char *standardOutput : {"", "-"}) {
        ::testing::internal::CaptureStdout();
        EXPECT_TRUE(writeResult(standardOutput, QByteArray("bytes")));
        EXPECT_EQ(::testing::internal::GetCapturedStdout(), "bytes");
    }
}

TEST_F(FilesTest, resultThatCannotBeWrittenIsNamed)
{
    const QString nowhere = path("no/such/directory.json");
    EXPECT_EQ(
        failureOf([&] { writeResult(nowhere, QByteArray("x")); }).find(nowhere.toStdString() + ": cannot be written: "),
        0U);
}

TEST_F(FilesTest, pendingResultTakesItsPlaceWhenItIsCommitted)
{
    const QString file = fileOf("a.txt", "old content");
    {
        PendingResult result(file, "new");
        EXPECT_FALSE(result.isOnStandardOutput());
        EXPECT_EQ(clitest::fileContent(file), "old content");
        result.commit();
        EXPECT_EQ(clitest::fileContent(file), "new");
    }
    {
        const PendingResult givenUp(file, "newer");
    }
    EXPECT_EQ(clitest::fileContent(file), "new");
    EXPECT_EQ(QDir(path(".")).entryList(QDir::Files | QDir::Hidden), QStringList("a.txt"));
}

TEST_F(FilesTest, directoryIsMadeForAPath)
{
    EXPECT_EQ(fileIn(path("a/b"), "c.json"), path("a/b/c.json"));
    EXPECT_TRUE(QDir(path("a/b")).exists());
    const QString file = fileOf("taken", "x");
    EXPECT_EQ(failureOf([&] { fileIn(file, "c.json"); }), file.toStdString() + ": the directory cannot be made");
}

} // namespace
