#include "platform/embedded/HBXObjectsById.h"

#include <gtest/gtest.h>

#include <limits>

namespace hbx::embedded {
namespace {

class Interface
{
public:
    virtual ~Interface() = default;
    virtual qint64 id() const = 0;
};

class Thing : public Interface
{
public:
    explicit Thing(qint64 id) : m_id(id) {}
    qint64 id() const override { return m_id; }

private:
    qint64 m_id;
};

TEST(HBXObjectsByIdTest, findsObjectsOfAnyIdAndNoOthers)
{
    const qint64 ids[] = {std::numeric_limits<qint64>::min(), -17, -1, 0, 1, 15, 16, 40,
                          std::numeric_limits<qint64>::max()};
    HBXObjectsById<Thing> things;
    for (const qint64 id : ids)
        EXPECT_EQ(things.add(std::make_unique<Thing>(id)).id(), id);
    for (const qint64 id : ids)
        EXPECT_EQ(things.find(id)->id(), id);
    for (const qint64 id : {-16, -2, 2, 14, 17, 41, 1000})
        EXPECT_EQ(things.find(id), nullptr) << id;
}

TEST(HBXObjectsByIdTest, destroyedObjectsAreGoneAndTheirNeighboursStay)
{
    HBXObjectsById<Thing> things;
    for (const qint64 id : {1, 2, 32})
        things.add(std::make_unique<Thing>(id));
    things.destroy(1);
    things.destroy(3);   // beside another one
    things.destroy(900); // far from all
    things.destroy(32);
    EXPECT_EQ(things.find(1), nullptr);
    EXPECT_EQ(things.find(2)->id(), 2);
    EXPECT_EQ(things.find(32), nullptr);
    EXPECT_EQ(things.add(std::make_unique<Thing>(1)).id(), 1);
    things.clear();
    EXPECT_EQ(things.find(2), nullptr);
}

TEST(HBXObjectsByIdTest, ownTellsTheObjectItselfFromOthersOfItsId)
{
    HBXObjectsById<Thing> things;
    Interface &mine = things.add(std::make_unique<Thing>(5));
    Thing other(5);
    EXPECT_EQ(things.own(&mine), &mine);
    EXPECT_EQ(things.own<Interface>(&other), nullptr);
    EXPECT_EQ(things.own<Interface>(nullptr), nullptr);
}

} // namespace
} // namespace hbx::embedded
