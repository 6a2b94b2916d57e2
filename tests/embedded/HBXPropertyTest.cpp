#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXPropertyTest : public EmbeddedBuilding
{
protected:
    IHBXElementDrawObj *object = placed(element(19));
    IHBXProperties *ofObject = object->properties();
    IHBXProperties *ofElement = object->element()->properties();
    std::shared_ptr<IHBXProperty> property;
};

TEST_F(HBXPropertyTest, aPropertyObjectIsNullForALackingName)
{
    EXPECT_EQ(ofElement->property(property, L"NoSuchName"), nullptr);
    ASSERT_NE(ofElement->property(property, L"Thickness"), nullptr);
    EXPECT_FALSE(property->hasValue());
    EXPECT_EQ(property->intValue(), 0);
    property->setInt(140, true);
    EXPECT_TRUE(property->hasValue());
    EXPECT_EQ(property->intValue(), 140);
    EXPECT_EQ(numberIn(ofElement, L"Thickness"), 140.0);
}

TEST_F(HBXPropertyTest, revertGivesTheValueFromBeforeTheLastWriteBack)
{
    ofElement->property(property, L"Thickness");
    property->setInt(140, true);
    property->setString(QStringLiteral("150"), false);
    property->revert();
    EXPECT_EQ(property->intValue(), 140);
    property->revert(); // nothing more to take back
    EXPECT_EQ(property->intValue(), 140);
}

TEST_F(HBXPropertyTest, revertOfAFirstWriteGivesTheElementsValueBack)
{
    ofElement->setInt(L"Thickness", 120, false);
    ofObject->property(property, L"Thickness")->setInt(90, true);
    property->revert();
    EXPECT_EQ(property->intValue(), 120);
    EXPECT_TRUE(store.drawObjRecord(object->id())->properties.empty());
}

TEST_F(HBXPropertyTest, revertAfterAWriteThatThrewLeavesWhatStood)
{
    ofElement->property(property, L"Thickness")->setInt(140, true);
    EXPECT_THROW(property->setString(QStringLiteral("thick"), false), HBXModelException);
    property->revert();
    EXPECT_EQ(property->intValue(), 140);
}

} // namespace
} // namespace hbx::embedded
