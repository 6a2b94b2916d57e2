#include "foundation/Object_AI.h"

#include "foundation/Log_AI.h"

#include <gmock/gmock.h>

#include <memory>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kMany = 200000;

QString descriptOf(const cv::Object_AI *object)
{
    const auto *log = dynamic_cast<const cv::Log_AI *>(object);
    return log ? log->toJson()["descript"].toString() : QString();
}

/** The logs among the direct children. */
std::vector<QString> logsOf(const cv::Object_AI &object)
{
    std::vector<QString> texts;
    for (const cv::Object_AI *child : object.children())
        if (!descriptOf(child).isEmpty())
            texts.push_back(descriptOf(child));
    return texts;
}

class Object_AITest : public testing::Test
{
protected:
    std::unique_ptr<cv::Object_AI> model = std::make_unique<cv::Object_AI>(QString("model"));
    cv::Object_AI *slab = new cv::Object_AI("slab", model.get());
    cv::Object_AI *hole = new cv::Object_AI("hole", slab);
};

using Object_AIDeathTest = Object_AITest;

TEST_F(Object_AITest, logIsTheLastChildOfItsObject)
{
    const cv::Log_AI *log = slab->log("thickness", "no text near", 0.5);
    EXPECT_THAT(slab->children(), ElementsAre(hole, log));
    EXPECT_EQ(log->parent(), slab);
    model->clearLog();
}

TEST_F(Object_AITest, logOnALeafIsClearedFromTheRoot)
{
    hole->log("t", "d", 1.0);
    model->clearLog();
    EXPECT_EQ(hole->childCount(), 0U);
    model.reset();
}

TEST_F(Object_AITest, clearingLeavesEverythingElse)
{
    slab->log("t", "one", 1.0);
    hole->log("t", "two", 1.0);
    auto *behind = new cv::Object_AI("behind", slab);
    slab->clearLog();
    EXPECT_THAT(slab->children(), ElementsAre(hole, behind));
    EXPECT_THAT(model->children(), ElementsAre(slab));
}

TEST_F(Object_AITest, clearingStaysInTheSubtree)
{
    model->log("t", "above", 1.0);
    slab->clearLog();
    EXPECT_THAT(logsOf(*model), ElementsAre("above"));
    model->clearLog();
}

TEST_F(Object_AITest, clearedLogsGoInOrderAndThoseWithLogsUnderThemLast)
{
    std::vector<QString> order;
    const auto logged = [&order](cv::Object_AI *object, const char *text) {
        cv::Log_AI *log = object->log("t", text, 1.0);
        log->setCallbackBeforeDestroyed([&order, text] { order.emplace_back(text); });
        return log;
    };
    logged(logged(logged(model.get(), "a"), "under a"), "under that");
    logged(slab, "b");
    logged(model.get(), "c");
    model->clearLog();
    EXPECT_THAT(order, ElementsAre("c", "b", "under that", "under a", "a"));
}

TEST_F(Object_AITest, raisedLogStandsUnderTheParentAndTheChildCanDie)
{
    slab->log("t", "raised", 1.0);
    slab->raiseLog();
    EXPECT_THAT(logsOf(*slab), IsEmpty());
    EXPECT_THAT(logsOf(*model), ElementsAre("raised"));
    delete slab;
    model->clearLog();
}

TEST_F(Object_AITest, logsFromDeepInTheSubtreeAreRaisedDirectlyUnderTheParentInOrder)
{
    hole->log("t", "deep", 1.0)->log("t", "under a log", 1.0);
    slab->log("t", "direct", 1.0);
    slab->raiseLog();
    EXPECT_THAT(logsOf(*model), ElementsAre("direct", "deep", "under a log"));
    EXPECT_EQ(hole->childCount(), 0U);
    model->clearLog();
}

TEST_F(Object_AITest, raisingOnARootChangesNothing)
{
    model->log("t", "stays", 1.0);
    model->raiseLog();
    EXPECT_THAT(logsOf(*model), ElementsAre("stays"));
    model->clearLog();
}

TEST_F(Object_AITest, raisingUnderAParentWithoutDataChangesNothing)
{
    slab->log("t", "stays", 1.0);
    model->setData(nullptr);
    slab->raiseLog();
    model->setData(model.get());
    EXPECT_THAT(logsOf(*slab), ElementsAre("stays"));
    model->clearLog();
}

TEST_F(Object_AITest, movedObjectTakesItsLogs)
{
    slab->log("t", "moves", 1.0);
    auto *moved = new cv::Object_AI(std::move(*slab));
    EXPECT_THAT(logsOf(*moved), ElementsAre("moves"));
    delete slab;
    model->clearLog();
}

TEST_F(Object_AITest, rootWhoseLogsAreClearedDiesQuietly)
{
    model->log("t", "d", 1.0);
    model->raiseLog();
    model->clearLog();
    model.reset();
}

TEST_F(Object_AIDeathTest, objectThatDiesWithALogEndsTheProcess)
{
    EXPECT_DEATH(
        {
            slab->log("t", "d", 1.0);
            delete slab;
        },
        "There are no saved logs");
}

TEST_F(Object_AIDeathTest, logDeepInTheSubtreeEndsTheProcessToo)
{
    EXPECT_DEATH(
        {
            hole->log("t", "d", 1.0);
            model.reset();
        },
        "There are no saved logs");
}

TEST_F(Object_AIDeathTest, clearedChildWithALogEndsTheProcess)
{
    EXPECT_DEATH(
        {
            hole->log("t", "d", 1.0);
            model->clearChildNodes();
        },
        "There are no saved logs");
}

TEST_F(Object_AIDeathTest, raisingOnARootDoesNotSaveIt)
{
    EXPECT_DEATH(
        {
            model->log("t", "d", 1.0);
            model->raiseLog();
            model.reset();
        },
        "There are no saved logs");
}

TEST_F(Object_AIDeathTest, logThatDiesWithALogUnderItEndsTheProcess)
{
    EXPECT_DEATH(
        {
            cv::Log_AI *log = slab->log("t", "d", 1.0);
            log->log("t", "under it", 1.0);
            delete log;
        },
        "There are no saved logs");
}

TEST_F(Object_AIDeathTest, logMadeWhileTheTreeDiesEndsTheProcess)
{
    EXPECT_DEATH(
        {
            model->setCallbackBeforeDestroyed([this] { hole->log("t", "d", 1.0); });
            model.reset();
        },
        "There are no saved logs");
}

TEST_F(Object_AITest, singleLogMayBeDeletedByHand)
{
    const cv::Log_AI *log = slab->log("t", "d", 1.0);
    delete log;
    EXPECT_THAT(slab->children(), ElementsAre(hole));
}

TEST_F(Object_AITest, wideModelDiesInLinearTimeThoughALogStandsElsewhere)
{
    model->log("t", "elsewhere", 1.0);
    auto wide = std::make_unique<cv::Object_AI>();
    for (int i = 0; i < kMany; ++i)
        new cv::Object_AI(wide.get());
    EXPECT_EQ(wide->children().size(), kMany);
    wide.reset();
    model->clearLog();
}

TEST_F(Object_AITest, deepChainDiesInLinearTimeAndNeedsNoStack)
{
    model->log("t", "elsewhere", 1.0);
    auto top = std::make_unique<cv::Object_AI>();
    for (int i = 1; i < kMany; ++i) {
        auto above = std::make_unique<cv::Object_AI>();
        above->appendChild(top.release());
        top = std::move(above);
    }
    top.reset();
    model->clearLog();
}

} // namespace
