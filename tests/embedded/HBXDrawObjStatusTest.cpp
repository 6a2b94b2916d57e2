#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXDrawObjStatusTest : public EmbeddedBuilding
{};

TEST_F(HBXDrawObjStatusTest, statusKeepsLayerAndState)
{
    IHBXElementDrawObj *object = placed(element(19));
    object->status()->setLayer(3);
    object->status()->setState(1);
    EXPECT_EQ(object->status()->layer(), 3);
    EXPECT_EQ(object->status()->state(), 1);
    EXPECT_EQ(store.drawObjRecord(object->id())->layer, 3);
    EXPECT_EQ(store.drawObjRecord(object->id())->state, 1);
}

TEST_F(HBXDrawObjStatusTest, layerAndStateReadBackFromTheRecordAndAreNoChange)
{
    IHBXElementDrawObj *object = placed(element(19));
    object->status()->setLayer(3);
    object->status()->setState(-1);
    store.load(store.snapshot());
    EXPECT_EQ(drawObjs().at(0)->status()->layer(), 3);
    EXPECT_EQ(drawObjs().at(0)->status()->state(), -1);
    EXPECT_TRUE(store.takeChanges().isEmpty());
}

TEST_F(HBXDrawObjStatusTest, anObjectThatIsNotEnteredKeepsItsStatusAndIsNoChange)
{
    IHBXElement *of = element(19);
    IHBXElementDrawObj *object = drawObjs().createDrawObj(of->floor(), of, true);
    EXPECT_EQ(object->status()->layer(), 0);
    EXPECT_EQ(object->status()->state(), 0);
    store.takeChanges();
    object->status()->setLayer(3);
    EXPECT_TRUE(store.takeChanges().isEmpty());
    drawObjs().addDrawObj(object);
    EXPECT_EQ(store.drawObjRecord(object->id())->layer, 3);
}

} // namespace
} // namespace hbx::embedded
