#include "cli/Language.h"

#include <gtest/gtest.h>

using orvcad::Language;

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
