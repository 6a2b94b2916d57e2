#include "cli/UsageFault.h"

#include "cli/CommandLine.h"

#include <CLI/CLI.hpp>

#include <QCoreApplication>
#include <QHash>
#include <QTranslator>

#include <gtest/gtest.h>

#include <ostream>
#include <utility>

using orvcad::CommandLine;
using orvcad::UsageFault;

namespace {

/** While it lives, messages are what a test gives for their English. */
class GivenMessages : public QTranslator
{
public:
    explicit GivenMessages(QHash<QString, QString> byEnglish) : m_byEnglish(std::move(byEnglish))
    {
        QCoreApplication::installTranslator(this);
    }
    bool isEmpty() const override { return false; }
    QString translate(const char * /*context*/, const char *english, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        return m_byEnglish.value(QString::fromUtf8(english));
    }

private:
    QHash<QString, QString> m_byEnglish;
};

/** What is said of arguments. */
QString said(const std::string &arguments)
{
    CommandLine line;
    try {
        line.app().parse(arguments, false);
    } catch (const CLI::ParseError &error) {
        return UsageFault(line.app(), error).message();
    }
    return QStringLiteral("nothing");
}

struct Fault
{
    const char *arguments;
    const char *english;
    const char *form;
    const char *formInChinese;
    const char *chinese;
};

std::ostream &operator<<(std::ostream &stream, const Fault &fault) { return stream << fault.arguments; }

class UsageFaultTest : public ::testing::TestWithParam<Fault>
{};

TEST_P(UsageFaultTest, staysAsItIsInEnglish) { EXPECT_EQ(said(GetParam().arguments), GetParam().english); }

TEST_P(UsageFaultTest, isSaidInTheLanguageOfTheUserWithItsNamesAndValues)
{
    const GivenMessages chinese({{GetParam().form, GetParam().formInChinese}});
    EXPECT_EQ(said(GetParam().arguments), GetParam().chinese);
}

constexpr Fault kFaults[] = {
    {"slab", "A subcommand is required", "A subcommand is required", "缺少子命令", "缺少子命令"},
    {"slab export a.hbxdb", "--floor is required", "%1 is required", "缺少 %1", "缺少 --floor"},
    {"check", "[KIND] FILE is required", "%1 is required", "缺少 %1", "缺少 [KIND] FILE"},
    {"slab export a.hbxdb --floor 1 --parts 2 --drawing a.cadi2", "--parts excludes --drawing", "%1 excludes %2",
     "有 %2 时不能有 %1", "有 --drawing 时不能有 --parts"},
    {"wall reply a.hbxdb --kind stone", "--kind: stone not in {brick,force}", "%1: %2 not in {%3}",
     "%1: {%3} 中没有 %2", "--kind: {brick,force} 中没有 stone"},
    {"wall reply a.hbxdb --kind %3\\1", "--kind: %3\\1 not in {brick,force}", "%1: %2 not in {%3}",
     "%1: {%3} 中没有 %2", "--kind: {brick,force} 中没有 %3\\1"},
    {"draw a.hbxdb --floor 1 --format png --width 5", "--width: Value 5 not in range 100 to 10000",
     "%1: Value %2 not in range %3 to %4", "%1: 范围为 %3 到 %4, 不含 %2", "--width: 范围为 100 到 10000, 不含 5"},
    {"slab export a.hbxdb --floor", "--floor: 1 required TEXT missing", "%1: %2 required %3 missing",
     "%1: 缺少 %2 个值 %3", "--floor: 缺少 1 个值 TEXT"},
    {"slab export a.hbxdb --floor 1 --floor 2", "--floor: At Most 1 required but received 2",
     "%1: At Most %2 required but received %3", "%1: 给出 %3 个, 至多 %2 个", "--floor: 给出 2 个, 至多 1 个"},
    {"slab export a.hbxdb --floor 1 --parts all", "Could not convert: --parts = all", "Could not convert: %1 = %2",
     "无法换算: %1 = %2", "无法换算: --parts = all"},
};
INSTANTIATE_TEST_SUITE_P(OfArguments, UsageFaultTest, ::testing::ValuesIn(kFaults));

TEST(UsageFaultOfUnknownArgumentsTest, firstOneThatNothingTookIsToldBeforeWhatIsMissing)
{
    EXPECT_EQ(said("slab export a.hbxdb --storey 1"), "\"--storey\" is not understood here");
    const GivenMessages chinese({{"\"%1\" is not understood here", "此处不识别 \"%1\""}});
    EXPECT_EQ(said("slab export a.hbxdb --storey 1"), "此处不识别 \"--storey\"");
}

TEST(UsageFaultOfUnknownArgumentsTest, verbOrOptionThatIsLikelyMeantIsTold)
{
    EXPECT_EQ(said("slab expotr a.hbxdb"), "\"expotr\" is not understood here; \"export\" may be meant");
    EXPECT_EQ(said("drw a.hbxdb"), "\"drw\" is not understood here; \"draw\" may be meant");
    EXPECT_EQ(said("slab export a.hbxdb --flor=1"), "\"--flor=1\" is not understood here; \"--floor\" may be meant");
    EXPECT_EQ(said("slab export a.hbxdb --floor 1 --quite"),
              "\"--quite\" is not understood here; \"--quiet\" may be meant");
}

TEST(UsageFaultOfUnknownArgumentsTest, hiddenVerbsAndVerbsOfOtherGroupsAreNotTold)
{
    EXPECT_EQ(said("complet"), "\"complet\" is not understood here");
    EXPECT_EQ(said("exprt a.hbxdb"), "\"exprt\" is not understood here");
}

TEST(UsageFaultOfUnknownSentencesTest, staysAsItIs)
{
    const GivenMessages chinese({{"%1 is required", "缺少 %1"}});
    EXPECT_EQ(said("copy a.hbxdb --to-floor 1"), "--floor is required behind the first project");
}

} // namespace
