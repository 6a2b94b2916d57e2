#include "foundation/DataObject.h"

#include <gmock/gmock.h>

#include <memory>

namespace {

using testing::ElementsAre;
using Hook = gp::Hook<cv::DataObject>;

TEST(DataObjectTest, objectStandsInTwoTrees)
{
    cv::Object_AI model;
    cv::DataObject group;
    auto *object = new cv::DataObject("slab", &model);
    group.hook().appendChild(object->hook().data());

    EXPECT_EQ(object->object().parent(), &model);
    EXPECT_EQ(object->hook().parent(), &group.hook());
    EXPECT_THAT(group.hook().children(), ElementsAre(&object->hook()));
    EXPECT_EQ(group.object().childCount(), 0U);
    EXPECT_EQ(object->hook().owner(), object);
}

TEST(DataObjectTest, hookIsFoundByItsPayload)
{
    cv::DataObject group;
    auto *object = new cv::DataObject;
    Hook *hook = &object->hook();
    EXPECT_TRUE(group.hook().appendChild(hook)) << "a hook is no node by type, its adapter is";
    EXPECT_EQ(group.hook().indexOf(hook), 0);
}

TEST(DataObjectTest, objectThatDiesWithOneParentLeavesTheOther)
{
    auto model = std::make_unique<cv::Object_AI>();
    auto group = std::make_unique<cv::DataObject>();
    group->hook().appendChild((new cv::DataObject(model.get()))->hook().data());
    group->hook().appendChild((new cv::DataObject(model.get()))->hook().data());
    model.reset();
    EXPECT_EQ(group->hook().childCount(), 0U);

    model = std::make_unique<cv::Object_AI>();
    group->hook().appendChild((new cv::DataObject(model.get()))->hook().data());
    group.reset();
    EXPECT_EQ(model->childCount(), 0U);
}

TEST(DataObjectTest, dataObjectIsFoundByNameInTheWholeSubtree)
{
    cv::DataObject root;
    auto *plain = new cv::Object_AI("beam", &root.object());
    auto *deep = new cv::DataObject("beam", plain);
    EXPECT_EQ(root.findDataObject("beam"), deep) << "the object of that name in front is no DataObject";
    auto *direct = new cv::DataObject("beam", &root.object());
    EXPECT_EQ(root.findDataObject("beam"), direct);
    EXPECT_EQ(root.findDataObject("slab"), nullptr);
    EXPECT_EQ(direct->findDataObject("beam"), nullptr);
}

} // namespace
