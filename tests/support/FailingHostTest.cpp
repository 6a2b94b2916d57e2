#include "support/FailingHost.h"

#include "platform/host/HBXModelException.h"
#include "platform/host/IHBXCheck.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "support/HouseFixture.h"

#include <stdexcept>

namespace {

using Failure = FailingHost::Failure;
using Lasting = FailingHost::Lasting;

class FailingHostTest : public HouseFixture
{
protected:
    FailingHostTest() { load(wall("Q", 1003, "0 0, 5000 0")); }

    IHBXModel &failingModel() { return *host().service()->model(); }
    FailingHost &host()
    {
        if (!m_host)
            m_host = std::make_unique<FailingHost>(*service());
        return *m_host;
    }

private:
    std::unique_ptr<FailingHost> m_host;
};

TEST_F(FailingHostTest, withoutACommandEveryCallReachesTheHost)
{
    IHBXRegion *house = failingModel().regions()->find("House");
    ASSERT_TRUE(house);
    EXPECT_EQ(house->name(), "House");
    EXPECT_TRUE(host().failed().empty());
}

TEST_F(FailingHostTest, readsAndChangesAreCountedAlike)
{
    failingModel().regions()->find("House")->name(); // model, regions, find, name
    EXPECT_EQ(host().countOf(Failure::RuntimeError), 4U);
    EXPECT_EQ(host().countOf(Failure::Null), 1U); // find
    EXPECT_EQ(host().countOf(Failure::False), 0U);
}

TEST_F(FailingHostTest, callOfTheNumberThrowsAndTheNextOneWorks)
{
    IHBXModel &model = failingModel();
    host().failAt(2, Failure::HostException);
    IHBXRegions *regions = model.regions();
    EXPECT_THROW(regions->count(), HBXModelException);
    EXPECT_EQ(regions->count(), 1);
    EXPECT_EQ(host().failed(), std::vector<QByteArray>{"count"});
}

TEST_F(FailingHostTest, exceptionsAreThoseThatTheCommandNames)
{
    IHBXModel &model = failingModel();
    host().failAt(1, Failure::RuntimeError);
    EXPECT_THROW(model.regions(), std::runtime_error);
    host().failAt(1, Failure::OutOfMemory);
    EXPECT_THROW(model.regions(), std::bad_alloc);
}

TEST_F(FailingHostTest, nullComesOnlyWhereTheInterfaceHasIt)
{
    IHBXModel &model = failingModel();
    host().failAt(1, Failure::Null);
    IHBXRegions *regions = model.regions(); // never null
    ASSERT_TRUE(regions);
    EXPECT_FALSE(regions->find("House"));
    EXPECT_TRUE(regions->find("House"));
}

TEST_F(FailingHostTest, falseComesFromACheckThatTheHostWouldPass)
{
    IHBXElementDrawObj *wall = placed(1003).at(0);
    HBXCheckError error;
    std::map<qint64, QString> collisions;
    ASSERT_TRUE(model().checker()->checkDrawObj(wall, error, collisions));
    host().failAt(1, Failure::False);
    EXPECT_FALSE(failingModel().checker()->checkDrawObj(wall, error, collisions));
}

TEST_F(FailingHostTest, geometryIsNullOnCommand)
{
    IHBXElementDrawObj *wall = failingModel().drawObjects()->drawObjById(placed(1003).at(0)->id());
    auto *shape = dynamic_cast<IHBXCustomLineSolidShape *>(wall->shape());
    ASSERT_TRUE(shape);
    host().failAt(1, Failure::Null);
    vks::CRefPtr<vks::CCurve2d> axis;
    EXPECT_FALSE(shape->worldLine(axis, true));
    EXPECT_TRUE(shape->worldLine(axis, true));
}

TEST_F(FailingHostTest, lastingFailureStaysUntilTheNextCommand)
{
    IHBXModel &model = failingModel();
    host().failAt(2, Failure::RuntimeError, Lasting::FromThenOn);
    EXPECT_NO_THROW(model.regions());
    EXPECT_THROW(model.regions(), std::runtime_error);
    EXPECT_THROW(model.elements(), std::runtime_error);
    host().failAt(0, Failure::RuntimeError);
    EXPECT_NO_THROW(model.elements());
}

TEST_F(FailingHostTest, bracketThatCannotBeOpenedIsNotOpen)
{
    IHBXModel &model = failingModel();
    host().failAt(1, Failure::RuntimeError);
    EXPECT_THROW(model.beginBatch("a", true), std::runtime_error);
    EXPECT_TRUE(host().recording().openBrackets().empty());
}

TEST_F(FailingHostTest, bracketsAreKeptByKey)
{
    IHBXModel &model = failingModel();
    model.beginBatch("a", true);
    model.beginBatch("b", true);
    EXPECT_EQ(host().recording().openBrackets(), (std::vector<std::string>{"a", "b"}));
    model.endBatch("b");
    EXPECT_TRUE(host().recording().bracketsNest());
    model.endBatch("b");
    EXPECT_FALSE(host().recording().bracketsNest());
}

} // namespace
