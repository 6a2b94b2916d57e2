#include "platform/host/HBXModelException.h"

#include <gtest/gtest.h>

namespace {

TEST(HBXModelExceptionTest, reasonIsToldAsItWasGiven)
{
    const QString reason = QStringLiteral("\"KL1\" 的名称已存在");
    EXPECT_EQ(HBXModelException(reason).reason(), reason);
    EXPECT_EQ(HBXModelException(QString()).reason(), QString(""));
}

TEST(HBXModelExceptionTest, whatIsTheReasonInUtf8)
{
    EXPECT_STREQ(HBXModelException(QStringLiteral("层顶")).what(), "\xE5\xB1\x82\xE9\xA1\xB6");
}

TEST(HBXModelExceptionTest, isCaughtAsARuntimeErrorAndKeepsItsReasonWhenCopied)
{
    try {
        throw HBXModelException(QStringLiteral("the name is taken"));
    } catch (const std::runtime_error &error) {
        const auto *caught = dynamic_cast<const HBXModelException *>(&error);
        ASSERT_NE(caught, nullptr);
        EXPECT_EQ(HBXModelException(*caught).reason(), "the name is taken");
    }
}

} // namespace
