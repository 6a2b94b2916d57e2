#include "foundation/Any.h"
#include "foundation/Object_AI.h"
#include "foundation/TreeNode.h"
#include "support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

// Modules that were built against these classes call their virtual operations by slot, so the order is part of the
// interface.

namespace {

using Tree = gp::TreeNode<cv::Object_AI *>;
using Node = Tree::ChildNode;

using slots::kFirstBehindDestructor;
using slots::slotOf;

/** Shows what is protected. */
struct Open : Tree
{
    using Tree::event;
    using Tree::findInsertPos;
};

TEST(VirtualOrderTest, operationsOfATreeNode)
{
    EXPECT_EQ(slotOf(&Tree::contains), kFirstBehindDestructor);
    EXPECT_EQ(slotOf(static_cast<qint64 (Tree::*)(Node *)>(&Tree::insertChild)), kFirstBehindDestructor + 1);
    EXPECT_EQ(slotOf(static_cast<bool (Tree::*)(std::size_t, Node *)>(&Tree::insertChild)), kFirstBehindDestructor + 2);
    EXPECT_EQ(slotOf(&Open::event), kFirstBehindDestructor + 3);
    EXPECT_EQ(slotOf(&Open::findInsertPos), kFirstBehindDestructor + 4);
}

TEST(VirtualOrderTest, savingLogsStandsBehindThem)
{
    EXPECT_EQ(slotOf(&cv::Object_AI::saveLog), kFirstBehindDestructor + 5);
}

TEST(VirtualOrderTest, operationsOfAHolder)
{
    EXPECT_EQ(slotOf(&Any::Base::clone), kFirstBehindDestructor);
    EXPECT_EQ(slotOf(&Any::Base::text), kFirstBehindDestructor + 1);
}

} // namespace
