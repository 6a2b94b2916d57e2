#include "platform/host/HBXBatch.h"

#include "host/PlainModel.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace {

/** A model that writes down its brackets. */
class BracketModel : public PlainModel
{
public:
    void beginBatch(const std::string &key, bool on) override { calls.push_back((on ? "begin " : "off ") + key); }
    void endBatch(const std::string &key) override { calls.push_back("end " + key); }

    std::vector<std::string> calls;
};

using Calls = std::vector<std::string>;

TEST(HBXBatchTest, bracketIsOpenAsLongAsTheGuardLives)
{
    BracketModel model;
    {
        const HBXBatch batch(model, "walls");
        EXPECT_EQ(model.calls, Calls{"begin walls"});
    }
    EXPECT_EQ(model.calls, (Calls{"begin walls", "end walls"}));
}

TEST(HBXBatchTest, guardsNestByTheirKeys)
{
    BracketModel model;
    {
        const HBXBatch outer(model, "outer");
        const HBXBatch inner(model, "inner");
    }
    EXPECT_EQ(model.calls, (Calls{"begin outer", "begin inner", "end inner", "end outer"}));
}

TEST(HBXBatchTest, exceptionOnTheWayClosesTheBracket)
{
    BracketModel model;
    const auto fail = [&model] {
        const HBXBatch batch(model, "walls");
        throw std::runtime_error("on the way");
    };
    EXPECT_THROW(fail(), std::runtime_error);
    EXPECT_EQ(model.calls, (Calls{"begin walls", "end walls"}));
}

/** A model that fails when a bracket is opened or closed. */
class FailingModel : public PlainModel
{
public:
    void beginBatch(const std::string &key, bool /*on*/) override
    {
        if (key == "closed for ever")
            throw std::runtime_error("no bracket");
    }
    void endBatch(const std::string & /*key*/) override
    {
        ++ends;
        throw std::runtime_error("not closed");
    }

    int ends = 0;
};

TEST(HBXBatchTest, hostThatThrowsAtTheEndIsToldOnceAndEndsNothing)
{
    FailingModel model;
    {
        const HBXBatch batch(model, "walls");
    }
    EXPECT_EQ(model.ends, 1);
}

TEST(HBXBatchTest, exceptionOnTheWayReachesTheCallerWhenTheHostThrowsAtTheEnd)
{
    FailingModel model;
    const auto fail = [&model] {
        const HBXBatch batch(model, "walls");
        throw std::logic_error("on the way");
    };
    EXPECT_THROW(fail(), std::logic_error);
}

TEST(HBXBatchTest, bracketThatCannotBeOpenedIsNotClosed)
{
    FailingModel model;
    EXPECT_THROW(HBXBatch(model, "closed for ever"), std::runtime_error);
    EXPECT_EQ(model.ends, 0);
}

} // namespace
