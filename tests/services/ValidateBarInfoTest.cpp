#include "platform/services/ValidateBarInfo.h"

#include <gtest/gtest.h>

namespace {

struct BarText
{
    const char *text;
    bool isValid;
};
class ValidateBarInfoTest : public ::testing::TestWithParam<BarText>
{};

TEST_P(ValidateBarInfoTest, textIsJudged)
{
    EXPECT_EQ(ValidateBarInfo(kSlabBarInfo, QString::fromUtf8(GetParam().text)), GetParam().isValid) << GetParam().text;
}
INSTANTIATE_TEST_SUITE_P(Sound, ValidateBarInfoTest,
                         ::testing::Values(BarText{"C12", true}, BarText{"c12@150", true}, BarText{"A6.5@200", true},
                                           BarText{"2C25", true}, BarText{"2C25+2C22", true},
                                           BarText{"G8@100/200", true}, BarText{"4C20/2", true},
                                           BarText{"C10@200+c12@200", true}));
INSTANTIATE_TEST_SUITE_P(Broken, ValidateBarInfoTest,
                         ::testing::Values(BarText{"", false}, BarText{"C", false}, BarText{"12@150", false},
                                           BarText{"H12@150", false}, BarText{"C12@", false}, BarText{"C12@x", false},
                                           BarText{"C12/", false}, BarText{"C12+", false}, BarText{"+C12", false},
                                           BarText{"C 12", false}, BarText{" C12", false}, BarText{"C0", false},
                                           BarText{"0C12", false}, BarText{"C12@0", false},
                                           BarText{"C12@150@150", false}, BarText{"C12/2@150", false},
                                           BarText{"C6.", false}, BarText{"C12@1.5", false}, BarText{"C-12", false},
                                           BarText{"C１２", false}, BarText{"二C12", false}));

TEST(ValidateBarInfoKindTest, kindsAreToldAlike)
{
    EXPECT_TRUE(ValidateBarInfo(static_cast<TBarInfoType>(0), QStringLiteral("C12@150")));
    EXPECT_FALSE(ValidateBarInfo(static_cast<TBarInfoType>(-1), QStringLiteral("bars")));
}

TEST(ValidateBarInfoKindTest, longTextIsJudgedToItsEnd)
{
    const QString groups = QStringLiteral("C12@150+").repeated(100000);
    EXPECT_TRUE(ValidateBarInfo(kSlabBarInfo, groups + QStringLiteral("C12")));
    EXPECT_FALSE(ValidateBarInfo(kSlabBarInfo, groups));
}

} // namespace
