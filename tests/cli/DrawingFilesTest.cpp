#include "cli/DrawingFiles.h"

#include "CommandFailures.h"
#include "TestFiles.h"

using clitest::failureOf;
using namespace orvcad;

namespace {

using DrawingFilesTest = TestFiles;

constexpr char kDrawing[] = R"~({"format": "cadi2", "version": 1, "title": "Level 1", "remark": "by hand", "layers": [
    {"name": "A-WALL", "color": 7, "lines": [{"id": 1, "curve": "LINESTRING(0 0, 5000 0)"}]}]})~";

TEST_F(DrawingFilesTest, writtenDrawingIsReadAgainWithItsTitleAndRemark)
{
    const auto drawing = readDrawing(fileOf("a.cadi2", kDrawing));
    writeDrawing(path("b.cadi2"), *drawing);
    const auto again = readDrawing(path("b.cadi2"));
    EXPECT_EQ(again->getTitle(), "Level 1");
    EXPECT_EQ(again->getRemark(), "by hand");
    EXPECT_EQ(again->lineCount(), 1);
}

TEST_F(DrawingFilesTest, drawingThatBreaksARuleIsToldWithItsPlace)
{
    const QString file = fileOf("a.cadi2", R"~({"format": "cadi2", "version": 1, "layers": [
        {"name": "A", "color": 1, "lines": [{"id": 1, "curve": "rubbish"}]}]})~");
    const std::string failure = failureOf([&] { readDrawing(file); });
    EXPECT_EQ(failure.find(file.toStdString() + ": layers[0].lines[0].curve: "), 0U) << failure;
}

TEST_F(DrawingFilesTest, fileThatIsMissingOrCannotBeWrittenIsNamed)
{
    const QString missing = path("none.cadi2");
    EXPECT_EQ(failureOf([&] { readDrawing(missing); }).find(missing.toStdString() + ": "), 0U);
    const auto drawing = readDrawing(fileOf("a.cadi2", kDrawing));
    const QString nowhere = path("no/such/a.cadi2");
    EXPECT_EQ(failureOf([&] { writeDrawing(nowhere, *drawing); }).find(nowhere.toStdString() + ": "), 0U);
}

} // namespace
