#include "platform/services/CDatabase.h"

#include "host/Lifetime.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

class EmptyDatabase : public vks::CDatabase
{
public:
    explicit EmptyDatabase(bool &isGone) : m_lifetime(isGone) {}

    vks::CDBTable *GetTable(const QString & /*name*/) override { return nullptr; }

private:
    Lifetime m_lifetime;
};

TEST(CDatabaseTest, hostThatDropsItsDatabaseDestroysItWhole)
{
    bool isGone = false;
    std::unique_ptr<vks::CDatabase> database = std::make_unique<EmptyDatabase>(isGone);
    EXPECT_EQ(database->GetTable("CADIdentifyOption"), nullptr);
    database.reset();
    EXPECT_TRUE(isGone);
}

} // namespace
