#include "platform/embedded/HBXFloors.h"

#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXFloorsTest : public EmbeddedBuilding
{};

TEST_F(HBXFloorsTest, floorsAreFoundByNameAndCode)
{
    IHBXFloors *floors = model().regions()->at(0)->floors();
    EXPECT_EQ(floors->count(), 2);
    EXPECT_EQ(floors->find(QStringLiteral("F2")), floors->at(1));
    EXPECT_EQ(floors->findByCode(QStringLiteral("2")), floors->at(1));
    EXPECT_EQ(floors->find(QStringLiteral("2")), nullptr);
    EXPECT_EQ(floors->findByCode(QString()), nullptr);
}

TEST_F(HBXFloorsTest, positionsBeyondTheEndAreNull)
{
    IHBXFloors *floors = model().regions()->at(0)->floors();
    EXPECT_EQ(floors->at(2), nullptr);
    EXPECT_EQ(floors->at(-1), nullptr);
}

TEST_F(HBXFloorsTest, ofTwoFloorsWithOneNameTheFirstCounts)
{
    ProjectRecord record = emptyHouse();
    record.floors[1].name = QStringLiteral("F1");
    record.floors[1].code = QStringLiteral("1");
    store.load(record);
    IHBXFloors *floors = model().regions()->at(0)->floors();
    EXPECT_EQ(floors->count(), 2);
    EXPECT_EQ(floors->find(QStringLiteral("F1")), floors->at(0));
    EXPECT_EQ(floors->findByCode(QStringLiteral("1")), floors->at(0));
}

} // namespace
} // namespace hbx::embedded
