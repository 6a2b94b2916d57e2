#include "slab/SlabModelFixture.h"
#include "support/VirtualSlot.h"

// The virtual operations of an element are part of the interface by their order, as those of its bases are.

namespace {

using Object = ORVCADBoardLocalModel_Sample::Object;
using slots::kFirstBehindDestructor;
using slots::slotOf;

TEST(BoardLocalModelVirtualOrderTest, shapeStandsBehindSavingLogs)
{
    EXPECT_EQ(slotOf(&cv::Object_AI::saveLog), kFirstBehindDestructor + 5);
    EXPECT_EQ(slotOf(&Object::shape), kFirstBehindDestructor + 6);
}

} // namespace
