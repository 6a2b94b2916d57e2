#include "platform/services/TWLRCustomHoopBars.h"

#include "host/Lifetime.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

/** Hoop bars that a host keeps in another way. */
class OtherHoopBars : public IWLRCustomHoopBars
{
public:
    explicit OtherHoopBars(bool &isGone) : m_lifetime(isGone) {}

private:
    Lifetime m_lifetime;
};

TEST(TWLRCustomHoopBarsTest, textIsKeptAsItIs)
{
    EXPECT_EQ(TWLRCustomHoopBars(" A8@100/200(2) ").getAsString(), " A8@100/200(2) ");
    EXPECT_EQ(TWLRCustomHoopBars(QString()).getAsString(), QString());
}

TEST(TWLRCustomHoopBarsTest, barsOfATextAreToldFromOthersByTheirClass)
{
    bool isGone = false;
    const OtherHoopBars other(isGone);
    const TWLRCustomHoopBars ofText("A8@100");
    const IWLRCustomHoopBars *bars = &ofText;
    ASSERT_NE(dynamic_cast<const TWLRCustomHoopBars *>(bars), nullptr);
    EXPECT_EQ(dynamic_cast<const TWLRCustomHoopBars *>(bars)->getAsString(), "A8@100");
    bars = &other;
    EXPECT_EQ(dynamic_cast<const TWLRCustomHoopBars *>(bars), nullptr);
}

TEST(TWLRCustomHoopBarsTest, spanThatDropsItsBarsDestroysThemWhole)
{
    bool isGone = false;
    std::unique_ptr<IWLRCustomHoopBars> bars = std::make_unique<OtherHoopBars>(isGone);
    bars.reset();
    EXPECT_TRUE(isGone);
}

} // namespace
