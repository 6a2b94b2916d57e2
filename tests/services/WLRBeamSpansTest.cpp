#include "platform/services/WLRBeamSpans.h"

#include "host/Lifetime.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

class NoSpans : public WLRBeamSpans
{
public:
    explicit NoSpans(bool &isGone) : m_lifetime(isGone) {}

    int count() const override { return 0; }
    IWLRBeamSpan *span(int /*position*/) override { return nullptr; }

private:
    Lifetime m_lifetime;
};

TEST(WLRBeamSpansTest, callerWhoDeletesASetDestroysItWhole)
{
    bool isGone = false;
    std::unique_ptr<WLRBeamSpans> spans = std::make_unique<NoSpans>(isGone);
    EXPECT_EQ(spans->span(spans->count()), nullptr);
    spans.reset();
    EXPECT_TRUE(isGone);
}

} // namespace
