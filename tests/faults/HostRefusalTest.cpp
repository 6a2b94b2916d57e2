#include "embedded/ExchangeDocuments.h"
#include "faults/FaultRoads.h"
#include "faults/ProjectCheck.h"
#include "platform/host/HBXModelException.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXService.h"
#include "support/RecordingHost.h"

#include <algorithm>
#include <stdexcept>

// What a host did once that ended the process, lost what it should not, or left something behind.

namespace faults {
namespace {

using Nothing = RecordingHost::Nothing;

Road roadOver(const std::vector<NamedRoad> &roads, const std::string &name, const QByteArray &building)
{
    const auto named =
        std::find_if(roads.begin(), roads.end(), [&](const NamedRoad &road) { return road.name == name; });
    return named->over(building);
}

/** A road over a building whose host is told what to refuse. */
class RefusingHost
{
public:
    explicit RefusingHost(const Road &road)
        : m_project(exchangetest::projectOf(road.building)), host(*m_project->service()),
          journey(road.start(*host.service()))
    {
        m_project->setCurrent(QStringLiteral("House"), QStringLiteral("Level 1"));
    }

    /** Calls whose lines begin so throw. */
    template <typename Exception> void refuse(const QStringList &beginnings, const Exception &exception)
    {
        host.beforeCall([beginnings, exception](const QString &call) {
            const auto begins = [&call](const QString &beginning) { return call.startsWith(beginning); };
            if (std::any_of(beginnings.begin(), beginnings.end(), begins))
                throw exception;
        });
    }
    /** The call of that number of an operation is refused in the host's own way. */
    void refuseOne(const char *operation, int number)
    {
        host.answerInstead([operation, left = number](const char *called, Nothing /*allowed*/) mutable {
            if (QLatin1String(called) == QLatin1String(operation) && --left == 0)
                throw HBXModelException(QStringLiteral("refused"));
            return false;
        });
    }
    /** Every second answer of an operation is null. */
    void giveEverySecondTime(const char *operation)
    {
        host.answerInstead([operation, asked = 0](const char *called, Nothing allowed) mutable {
            return allowed == Nothing::Null && QLatin1String(called) == QLatin1String(operation) && ++asked % 2 == 0;
        });
    }

    int elementCount() const { return m_project->service()->model()->elements()->count(); }
    const hbx::embedded::HBXProject &project() const { return *m_project; }

private:
    std::unique_ptr<hbx::embedded::HBXProject> m_project;

public:
    RecordingHost host;
    Journey journey;
};

Road smallRoadIn(const char *name) { return roadOver(roadsIn(), name, exchangetest::kSmallBuilding); }

TEST(HostRefusalTest, bracketThatTheHostDoesNotCloseEndsNothing)
{
    RefusingHost refusing(smallRoadIn("beamsIn"));
    refusing.refuse({"createElement", "endBatch"}, std::runtime_error("lost"));
    EXPECT_THROW(refusing.journey(), std::runtime_error);
    EXPECT_TRUE(refusing.host.openBrackets().empty());
}

TEST(HostRefusalTest, slabThatTheHostDoesNotTakeBackEndsNothing)
{
    RefusingHost refusing(smallRoadIn("platesIn"));
    refusing.refuse({"checkDrawObj", "removeDrawObj", "removeElement"}, std::runtime_error("lost"));
    EXPECT_THROW(refusing.journey(), std::runtime_error);
    EXPECT_EQ(brokenLink(refusing.project()), QString());
}

TEST(HostRefusalTest, linkThatTheHostDoesNotTakeBackEndsNothing)
{
    RefusingHost refusing(smallRoadIn("barsIn"));
    bool isRefused = false;
    refusing.host.beforeCall([&isRefused](const QString &call) {
        isRefused = isRefused || call.startsWith("checkDrawObj");
        if (isRefused)
            throw std::runtime_error("lost"); // from the first check on
    });
    EXPECT_THROW(refusing.journey(), std::runtime_error);
    EXPECT_TRUE(isRefused);
}

TEST(HostRefusalTest, elementWithoutDrawObjectsGoesAgainWhateverTheHostThrows)
{
    RefusingHost refusing(smallRoadIn("platesIn"));
    const int before = refusing.elementCount();
    refusing.refuse({"createDrawObj"}, std::runtime_error("lost"));
    EXPECT_THROW(refusing.journey(), std::runtime_error);
    EXPECT_EQ(refusing.elementCount(), before);
}

TEST(HostRefusalTest, slabElementThatTheHostRefusesLeavesTheOthers)
{
    const Road road = roadOver(roadsIn(), "platesIn", exchangetest::building("made-building"));
    RefusingHost whole(road);
    whole.journey();
    RefusingHost refusing(road);
    refusing.refuseOne("createElement", 2); // the first is of a slab without an outline, which the host refuses anyway
    EXPECT_NO_THROW(refusing.journey());
    EXPECT_EQ(refusing.elementCount(), whole.elementCount() - 1);
}

TEST(HostRefusalTest, wallWhoseNameTheHostDoesNotTellLeavesTheOthers)
{
    const Road road = roadOver(roadsIn(), "brickWallsIn", exchangetest::building("made-building"));
    RefusingHost refusing(road);
    refusing.refuseOne("name", 1);
    EXPECT_NO_THROW(refusing.journey());
    const QStringList &calls = refusing.host.calls();
    const auto isPlaced = [](const QString &call) { return call.startsWith("addDrawObj"); };
    EXPECT_EQ(std::count_if(calls.begin(), calls.end(), isPlaced), 4); // of the five walls, each of one piece
}

TEST(HostRefusalTest, whatIsThereOnlyEverySecondTimeIsLeftOut)
{
    for (const char *operation : {"properties", "shape", "floor", "region"})
        for (const auto *roads : {&roadsIn(), &roadsOut()})
            for (const NamedRoad &road : *roads) {
                RefusingHost refusing(road.over(exchangetest::kSmallBuilding));
                refusing.giveEverySecondTime(operation);
                EXPECT_NO_THROW(refusing.journey()) << road.name << ' ' << operation;
                EXPECT_EQ(brokenLink(refusing.project()), QString()) << road.name << ' ' << operation;
            }
}

} // namespace
} // namespace faults
