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

} // namespace
