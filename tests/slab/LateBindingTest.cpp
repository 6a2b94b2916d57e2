#include "slab/ORVCADBoardLocalModel_Sample.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>

// The properties of an element are bound when one is first asked for; nobody may see that.

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Names = std::vector<QString>;

const QString kThickness = QStringLiteral("厚度");
const Names kBoardNames{"厚度", "名称", "类型", "顶标高"};

class LateBindingTest : public ::testing::Test
{
protected:
    LateBindingTest() { board.thickness = 120.0; }

    Model::Board board;
};

TEST_F(LateBindingTest, everyFirstQuestionFindsTheProperties)
{
    EXPECT_TRUE(Model::Board().hasProperty(kThickness));
    EXPECT_EQ(Model::Board().propertyNames(), kBoardNames);
    EXPECT_EQ(Model::Board().properties().size(), 4U);
    EXPECT_EQ(Model::Board().property(kThickness, Any(7.0)).to<double>(), 0.0);
    EXPECT_EQ(board[kThickness].to<double>(), 120.0);
}

TEST_F(LateBindingTest, constantElementIsAskedToo)
{
    const Model::Board constant;
    EXPECT_EQ(constant.propertyNames(), kBoardNames);
}

TEST_F(LateBindingTest, firstWriteReachesTheField)
{
    board.setProperty(kThickness, 90.0);
    EXPECT_EQ(board.thickness, 90.0);
}

TEST_F(LateBindingTest, childInheritsWhatNobodyAskedTheParentFor)
{
    auto *child = new cv::Object_AI(&board);
    EXPECT_EQ(child->inherited_property(kThickness).to<double>(), 120.0);
}

TEST_F(LateBindingTest, deletedPropertyStaysAway)
{
    board.deleteProperty(kThickness);
    EXPECT_FALSE(board.hasProperty(kThickness));
    EXPECT_TRUE(board.hasProperty(QStringLiteral("名称")));
}

TEST_F(LateBindingTest, propertyBoundByAnotherStaysBoundToIt)
{
    double other = 5.0;
    board.setProperty(kThickness, [&other] { return Any(other); }, {});
    EXPECT_EQ(board.property(kThickness).to<double>(), 5.0);
    EXPECT_EQ(board.propertyNames(), kBoardNames);
}

TEST_F(LateBindingTest, copyIsBoundToTheFieldsOfTheElement)
{
    const cv::Object_AI copy(board);
    board.thickness = 90.0;
    EXPECT_EQ(copy.property(kThickness).to<double>(), 90.0);
}

TEST_F(LateBindingTest, assignedPropertiesTakeThePlaceOfThoseThatNobodyAskedFor)
{
    cv::Object_AI plain;
    plain.setProperty(QStringLiteral("only"), 1);
    static_cast<cv::Object_AI &>(board) = plain;
    EXPECT_EQ(board.propertyNames(), Names{"only"});
}

TEST_F(LateBindingTest, assignedFromAnElementThatNobodyAsked)
{
    cv::Object_AI plain;
    plain = static_cast<const cv::Object_AI &>(board);
    EXPECT_EQ(plain.property(kThickness).to<double>(), 120.0);
}

TEST_F(LateBindingTest, movedElementLeavesNoProperties)
{
    const Model::Board moved(std::move(board));
    EXPECT_TRUE(board.propertyNames().empty()); // NOLINT(bugprone-use-after-move): what is left of it counts
    EXPECT_EQ(moved.property(kThickness).to<double>(), 120.0);
}

TEST_F(LateBindingTest, movedElementKeepsPropertiesThatItWasGiven)
{
    board.setProperty(QStringLiteral("own"), 3);
    const Model::Board moved(std::move(board));
    EXPECT_EQ(moved.property(QStringLiteral("own")).to<int>(), 3);
    EXPECT_EQ(moved.propertyNames().size(), 5U);
}

TEST_F(LateBindingTest, propertiesAreExchangedWithAMovedObject)
{
    cv::Object_AI plain;
    plain.setProperty(QStringLiteral("only"), 1);
    plain = std::move(static_cast<cv::Object_AI &>(board));
    EXPECT_EQ(plain.property(kThickness).to<double>(), 120.0);
    EXPECT_EQ(board.propertyNames(), Names{"only"}); // NOLINT(bugprone-use-after-move): it got the other's
}

TEST_F(LateBindingTest, callbackBeforeTheEndSeesThePropertyNames)
{
    Names names;
    auto dying = std::make_unique<Model::Board>();
    cv::Object_AI *object = dying.get();
    dying->setCallbackBeforeDestroyed([&names, object] { names = object->propertyNames(); });
    dying.reset();
    EXPECT_EQ(names, kBoardNames);
}

TEST_F(LateBindingTest, elementThatNobodyAskedDiesQuietly)
{
    auto dying = std::make_unique<Model::Board>();
    dying->setCallbackBeforeDestroyed([] {});
    dying.reset();
}

} // namespace
