#include "platform/dwgx/HBXCADIOperator.h"

#include "host/Lifetime.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

/** An operator that refuses everything. */
class RefusingOperator : public HBXCADIOperator
{
public:
    explicit RefusingOperator(bool &isGone) : m_lifetime(isGone) {}

    bool read(const QString & /*path*/, dwgx::DWGXModel * /*model*/) override { return false; }
    bool write(const QString & /*path*/, const dwgx::DWGXModel * /*model*/, const QString & /*title*/,
               const QString & /*remark*/) override
    {
        return false;
    }
    QString lastErrorReason() const override { return "no drawings here"; }
    QString lastErrorPlace() const override { return {}; }

private:
    Lifetime m_lifetime;
};

TEST(HBXCADIOperatorTest, callerWhoDeletesAnOperatorDestroysItWhole)
{
    bool isGone = false;
    std::unique_ptr<HBXCADIOperator> refusing = std::make_unique<RefusingOperator>(isGone);
    EXPECT_FALSE(refusing->read("drawing.cadi2", nullptr));
    EXPECT_EQ(refusing->lastErrorReason(), "no drawings here");
    refusing.reset();
    EXPECT_TRUE(isGone);
}

} // namespace
