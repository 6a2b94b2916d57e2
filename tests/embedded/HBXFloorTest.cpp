#include "platform/embedded/HBXFloor.h"

#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXFloorTest : public EmbeddedBuilding
{};

TEST_F(HBXFloorTest, aFloorTellsItsRecord)
{
    ProjectRecord record = emptyHouse();
    record.floors[1].standardFloorCount = 4;
    record.floors[1].foundation = true;
    record.floors[1].remark = QStringLiteral("typical");
    store.load(record);
    QString code;
    IHBXFloor *second = floor("F2");
    EXPECT_EQ(second->id(), 3);
    EXPECT_EQ(second->code(code), QStringLiteral("2"));
    EXPECT_EQ(second->name(), QStringLiteral("F2"));
    EXPECT_EQ(second->bottomElev(), 3.0);
    EXPECT_EQ(second->height(), 3.5);
    EXPECT_EQ(second->topElev(), 6.5);
    EXPECT_EQ(second->standardFloorCount(), 4);
    EXPECT_TRUE(second->flag());
    EXPECT_EQ(second->remark(), QStringLiteral("typical"));
    EXPECT_EQ(second->region(), model().regions()->at(0));
}

TEST_F(HBXFloorTest, drawObjectsOfTypesComeInIdOrder)
{
    IHBXElementDrawObj *first = placed(element(19));
    IHBXElementDrawObj *second = placed(element(15));
    IHBXElementDrawObj *third = placed(element(19));
    placed(element(19, "", "F2"));
    placed(element(25));
    QList<IHBXElementDrawObj *> found{nullptr}; // must be gone afterwards
    floor()->drawObjsOfTypes(found, {15, 19, 22}, true);
    EXPECT_EQ(found, (QList<IHBXElementDrawObj *>{first, second, third}));
}

TEST_F(HBXFloorTest, minusOneAsksForAnyTypeAndNoTypeForNothing)
{
    placed(element(19));
    placed(element(15));
    QList<IHBXElementDrawObj *> found;
    floor()->drawObjsOfTypes(found, {-1, 19}, true);
    EXPECT_EQ(found.size(), 2);
    floor()->drawObjsOfTypes(found, {}, true);
    EXPECT_TRUE(found.isEmpty());
}

TEST_F(HBXFloorTest, anObjectIsFoundOnItsOwnFloorAmongItsTypes)
{
    IHBXElementDrawObj *object = placed(element(19));
    EXPECT_EQ(floor()->findDrawObj(object->id(), {15, 19}), object);
    EXPECT_EQ(floor()->findDrawObj(object->id(), {-1}), object);
    EXPECT_EQ(floor()->findDrawObj(object->id(), {15}), nullptr);
    EXPECT_EQ(floor()->findDrawObj(4711, {-1}), nullptr);
    EXPECT_EQ(floor("F2")->findDrawObj(object->id(), {-1}), nullptr);
}

TEST_F(HBXFloorTest, anObjectThatIsNotEnteredStandsOnNoFloor)
{
    const IHBXElementDrawObj *pending = drawObjs().createDrawObj(floor(), element(19), true);
    EXPECT_EQ(floor()->findDrawObj(pending->id(), {-1}), nullptr);
}

} // namespace
} // namespace hbx::embedded
