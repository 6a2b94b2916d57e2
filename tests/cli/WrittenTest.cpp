#include "cli/Written.h"

#include "TestFiles.h"
#include "cli/Arguments.h"

using namespace orvcad;

namespace {

class WrittenTest : public TestFiles
{
protected:
    static Arguments to(const QString &output)
    {
        Arguments arguments;
        arguments.output = output.toStdString();
        return arguments;
    }
};

TEST_F(WrittenTest, documentGoesIntoTheOutputAndTheSummaryNamesIt)
{
    const Summary summary =
        writeDocument(to(path("a.svg")), QByteArray("<svg/>"), {"Drew it", {{"drawn", 3}}, kLeftOut});
    EXPECT_EQ(clitest::fileContent(path("a.svg")), "<svg/>");
    EXPECT_EQ(summary.text, "Drew it");
    EXPECT_EQ(summary.json, (QJsonObject{{"drawn", 3}, {"output", path("a.svg")}}));
    EXPECT_EQ(summary.exitCode, kLeftOut);
    EXPECT_FALSE(summary.documentOnStdout);
}

TEST_F(WrittenTest, documentWithoutAnOutputGoesToStandardOutputAndTheSummaryTells)
{
    ::testing::internal::CaptureStdout();
    const Summary summary = writeDocument(to({}), QJsonObject{{"a", 1}}, {"Wrote it", {}});
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "{\n    \"a\": 1\n}\n");
    EXPECT_EQ(summary.json, (QJsonObject{{"output", ""}}));
    EXPECT_TRUE(summary.documentOnStdout);
}

} // namespace
