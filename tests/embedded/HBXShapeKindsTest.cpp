#include "platform/embedded/HBXShapeKinds.h"

#include <gtest/gtest.h>

namespace hbx::embedded {
namespace {

struct TypeKind
{
    qint64 type;
    int kind;
};

class HBXShapeKindsTest : public ::testing::TestWithParam<TypeKind>
{};

TEST_P(HBXShapeKindsTest, followsTheType)
{
    const auto kind = shapeKindOfType(GetParam().type);
    ASSERT_TRUE(kind);
    EXPECT_EQ(*kind, GetParam().kind);
}

INSTANTIATE_TEST_SUITE_P(Types, HBXShapeKindsTest,
                         ::testing::Values(TypeKind{0, 1}, TypeKind{1, 1}, TypeKind{4, 0}, TypeKind{5, 0},
                                           TypeKind{6, 0}, TypeKind{7, 0}, TypeKind{15, 1}, TypeKind{17, 1},
                                           TypeKind{18, 1}, TypeKind{19, 2}, TypeKind{22, 5}, TypeKind{23, 4},
                                           TypeKind{24, 3}, TypeKind{25, 0}, TypeKind{26, 0}, TypeKind{47, 1},
                                           TypeKind{48, 2}, TypeKind{49, 5}, TypeKind{50, 4}, TypeKind{52, 0},
                                           TypeKind{53, 0}, TypeKind{54, 0}, TypeKind{74, 6}, TypeKind{75, 4},
                                           TypeKind{82, 0}, TypeKind{83, 0}, TypeKind{202, 1}, TypeKind{1001, 1},
                                           TypeKind{1002, 0}, TypeKind{1003, 1}));

TEST(HBXShapeKindsOfOtherTypesTest, otherTypesHaveNoShape)
{
    for (const qint64 type : {-1LL, 2LL, 16LL, 84LL, 1000LL, 4294967296LL})
        EXPECT_FALSE(shapeKindOfType(type)) << type;
}

} // namespace
} // namespace hbx::embedded
