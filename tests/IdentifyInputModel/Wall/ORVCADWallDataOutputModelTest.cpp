#include "IdentifyInputModel/Wall/ORVCADWallDataOutputModel.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace {

/** A kind of walls that tells when it goes. */
class CountedModel : public ORVCADWallDataOutputModel
{
public:
    explicit CountedModel(int &gone) : m_gone(gone) {}
    ~CountedModel() override { ++m_gone; }

private:
    int &m_gone;
};

TEST(ORVCADWallDataOutputModelTest, kindIsDestroyedByItsBase)
{
    int gone = 0;
    std::unique_ptr<ORVCADWallDataOutputModel> model = std::make_unique<CountedModel>(gone);
    model.reset();
    EXPECT_EQ(gone, 1);
}

TEST(ORVCADWallDataOutputModelTest, cannotBeCopiedSinceItsKindsOwnTheirElements)
{
    EXPECT_FALSE(std::is_copy_constructible_v<ORVCADWallDataOutputModel>);
    EXPECT_FALSE(std::is_copy_assignable_v<ORVCADWallDataOutputModel>);
}

} // namespace
