#include "platform/dwgx/DWGXObject.h"

#include <gtest/gtest.h>

namespace {

TEST(DWGXObjectTest, newObjectHasNoExtensionData) { EXPECT_EQ(dwgx::DWGXObject().getCADExtData(), nullptr); }

// That replaced and attached data is destroyed, and only once, the sanitizers tell.
TEST(DWGXObjectTest, attachedDataBelongsToTheObjectAndIsDestroyedWhenReplaced)
{
    dwgx::DWGXObject object;
    object.setCADExtData(new HBXCADExtData);
    auto *second = new HBXCADExtData;
    object.setCADExtData(second);
    EXPECT_EQ(object.getCADExtData(), second);
}

TEST(DWGXObjectTest, attachingTheAttachedDataChangesNothing)
{
    dwgx::DWGXObject object;
    auto *data = new HBXCADExtData;
    object.setCADExtData(data);
    object.setCADExtData(data);
    data->setValue("scale", "100");
    EXPECT_EQ(object.getCADExtData()->value("scale"), "100");
}

TEST(DWGXObjectTest, nullDetaches)
{
    dwgx::DWGXObject object;
    object.setCADExtData(new HBXCADExtData);
    object.setCADExtData(nullptr);
    EXPECT_EQ(object.getCADExtData(), nullptr);
}

TEST(DWGXObjectTest, movedObjectTakesItsDataAlong)
{
    dwgx::DWGXObject object;
    auto *data = new HBXCADExtData;
    object.setCADExtData(data);
    const dwgx::DWGXObject moved(std::move(object));
    EXPECT_EQ(moved.getCADExtData(), data);
}

TEST(HBXCADExtDataTest, unknownNameGivesTheEmptyText) { EXPECT_EQ(HBXCADExtData().value("scale"), QString()); }

TEST(HBXCADExtDataTest, emptyTextTakesTheNameAway)
{
    HBXCADExtData data;
    data.setValue("scale", "100");
    data.setValue("scale", "");
    EXPECT_TRUE(data.values().isEmpty());
}

} // namespace
