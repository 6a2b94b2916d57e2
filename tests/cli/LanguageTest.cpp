#include "cli/Language.h"

#include "CliFixture.h"

using orvcad::Language;

namespace {

/** A user who reads Chinese. */
class LanguageTest : public CliFixture
{
protected:
    void SetUp() override { setVariable("LANGUAGE", "zh_CN"); }
};

TEST(Language, IsTheFirstOneThatThereAreMessagesIn)
{
    EXPECT_EQ(Language::chosen({"zh-Hans-CN", "zh-CN", "zh"}), "zh");
    EXPECT_EQ(Language::chosen({"fr-FR", "zh-CN", "en-US"}), "zh");
    EXPECT_EQ(Language::chosen({"zh"}), "zh");
}

TEST(Language, OfUsersWhoPreferEnglishIsEnglish)
{
    EXPECT_EQ(Language::chosen({"en-US", "zh-CN"}), "en");
    EXPECT_EQ(Language::chosen({"en"}), "en");
}

TEST(Language, OfUsersWhoseLanguageIsUnknownIsEnglish)
{
    EXPECT_EQ(Language::chosen({"fr-FR"}), "en");
    EXPECT_EQ(Language::chosen({"C"}), "en");
    EXPECT_EQ(Language::chosen({}), "en");
    EXPECT_EQ(Language::chosen({"zha-CN"}), "en"); // Zhuang
}

TEST_F(LanguageTest, summaryOfACommandIsInTheLanguageOfTheUser)
{
    importSmallHouse();
    const Result result = run({"wall", "export", "house.hbxdb", "--kind", "brick", "--floor", "1", "-o", "walls.json"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.out.contains(u8"已写出")) << result.out.toStdString();
    EXPECT_FALSE(result.out.contains("Wrote")) << result.out.toStdString();
}

TEST_F(LanguageTest, errorNamesFilePlaceAndReasonInTheLanguageOfTheUser)
{
    write("empty.json", QByteArray());
    EXPECT_EQ(run({"project", "import", "empty.json", "-o", "house.hbxdb"}).err,
              QByteArray(u8"orvcad: empty.json: 文件为空\n"));
    EXPECT_EQ(run({"project", "info", "gone.hbxdb"}).err, QByteArray(u8"orvcad: gone.hbxdb: 不存在\n"));
    EXPECT_EQ(run({"project", "info", "gone.hbxdb"}).exitCode, 2);
}

TEST_F(LanguageTest, helpIsInTheLanguageOfTheUser)
{
    const QByteArray help = run({"slab", "export", "--help"}).out;
    EXPECT_TRUE(help.contains(u8"项目文件")) << help.toStdString();
    EXPECT_TRUE(help.contains("--floor")) << help.toStdString();
    for (const char *english : {"Usage", "Options", "REQUIRED", "Project file", "Print this help"})
        EXPECT_FALSE(help.contains(english)) << english << '\n' << help.toStdString();
}

TEST_F(LanguageTest, whatMachinesReadStaysAsItIs)
{
    importSmallHouse();
    const QStringList info{"project", "info", "house.hbxdb", "--json"};
    const QStringList failure{"project", "info", "gone.hbxdb", "--json"};
    const QStringList usage{"project", "info", "--json"};
    const std::vector<Result> inChinese{run(info), run(failure), run(usage)};
    setVariable("LANGUAGE", "en");
    EXPECT_EQ(inChinese[0].out, run(info).out);
    EXPECT_EQ(inChinese[1].err, run(failure).err);
    EXPECT_EQ(inChinese[2].err, run(usage).err);
}

TEST_F(LanguageTest, isReadFromTheVariablesOfTheLocale)
{
    const auto isChinese = [this] { return run({"--help"}).out.contains(u8"建筑"); };
    setVariable("LANGUAGE", "");
    setVariable("LC_ALL", "");
    setVariable("LC_MESSAGES", "");
    setVariable("LANG", "zh_CN.UTF-8");
    EXPECT_TRUE(isChinese());
    setVariable("LC_MESSAGES", "en_US.UTF-8");
    EXPECT_FALSE(isChinese());
    setVariable("LC_ALL", "zh_SG.UTF-8");
    EXPECT_TRUE(isChinese());
    setVariable("LC_ALL", "C");
    EXPECT_FALSE(isChinese());
}

} // namespace
