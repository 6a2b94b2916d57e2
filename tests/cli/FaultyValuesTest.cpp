#include "cli/FaultyValues.h"

#include <gtest/gtest.h>

using namespace orvcad;

namespace {

class FaultyValuesTest : public ::testing::Test
{
protected:
    const JsonTree document{R"({"a": [{"b": {"c": 1}}, {"d": 2}], "e": 3})"};

    CheckFinding faultAt(const char *path, const QString &missingKey = {}) const
    {
        CheckFinding finding;
        finding.node = document.find(path);
        finding.missingKey = missingKey;
        return finding;
    }
    /** Which of the values a fault touches. */
    std::string touched(const CheckFinding &fault) const
    {
        const FaultyValues faults(document, {fault});
        std::string paths;
        for (const char *path : {"a", "a[0]", "a[0].b", "a[0].b.c", "a[1]", "a[1].d", "e"})
            paths += faults.touch(document.find(path)) ? std::string(paths.empty() ? "" : " ") + path : std::string();
        return paths;
    }
};

TEST_F(FaultyValuesTest, faultTouchesWhatItStandsInAndWhatStandsInIt)
{
    EXPECT_EQ(touched(faultAt("a[0].b")), "a a[0] a[0].b a[0].b.c");
    EXPECT_EQ(touched(faultAt("e")), "e");
}

TEST_F(FaultyValuesTest, missingKeyLeavesTheOthersAlone) { EXPECT_EQ(touched(faultAt("a[0]", "x")), "a a[0]"); }

TEST_F(FaultyValuesTest, whatIsNoFaultTouchesNothing)
{
    CheckFinding ignored = faultAt("a");
    ignored.weight = CheckFinding::Weight::Ignored;
    EXPECT_EQ(touched(ignored), "");
    EXPECT_TRUE(FaultyValues(document, {ignored}).isEmpty());
    EXPECT_FALSE(FaultyValues(document, {faultAt("a")}).isEmpty());
}

} // namespace
