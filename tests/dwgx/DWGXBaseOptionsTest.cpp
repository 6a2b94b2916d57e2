#include "platform/dwgx/DWGXBaseOptions.h"

#include "host/Lifetime.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

/** Options of which one is set. */
class OneOption : public dwgx::DWGXBaseOptions
{
public:
    explicit OneOption(bool &isGone) : m_lifetime(isGone) {}

    int intOption(const QString &label) const override { return label == "width" ? 900 : 0; }

private:
    Lifetime m_lifetime;
};

TEST(DWGXBaseOptionsTest, ownerWhoDropsOptionsDestroysThemWhole)
{
    bool isGone = false;
    std::unique_ptr<const dwgx::DWGXBaseOptions> options = std::make_unique<OneOption>(isGone);
    EXPECT_EQ(options->intOption("width"), 900);
    EXPECT_EQ(options->intOption("no such label"), 0);
    options.reset();
    EXPECT_TRUE(isGone);
}

} // namespace
