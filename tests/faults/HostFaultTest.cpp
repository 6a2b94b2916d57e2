#include "embedded/ExchangeDocuments.h"
#include "faults/FaultRoads.h"
#include "faults/ProjectCheck.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"
#include "support/FailingHost.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <map>

// Each road over each building is taken once to count the calls that the host gets, and then again with one of them
// failing, or with all of them failing from there on. Whatever the host does, its brackets are closed, its model is sound
// and the next journey works.

namespace faults {
namespace {

using hbx::embedded::HBXProject;
using Failure = FailingHost::Failure;
using Lasting = FailingHost::Lasting;

constexpr std::size_t kEach = 0;

#ifdef __SANITIZE_ADDRESS__ // every call takes ten times as long
constexpr bool kAreLongJourneysThinned = true;
#else
constexpr bool kAreLongJourneysThinned = false;
#endif

struct Building
{
    QByteArray json;
    std::size_t most; ///< calls that fail one after the other, spread over all of them; kEach: all of them
};

std::vector<Building> buildings(Lasting lasting)
{
    const std::size_t ofSmall = lasting == Lasting::Once ? kEach : 60;
    return {{exchangetest::kSmallBuilding, ofSmall},
            {exchangetest::building("made-building"), 60},
            {exchangetest::building("duplex-apartment"), 15}};
}

std::unique_ptr<HBXProject> opened(const QByteArray &building)
{
    auto project = exchangetest::projectOf(building);
    const auto floors = project->service()->model()->regions();
    IHBXRegion &region = *floors->at(0);
    project->setCurrent(region.name(), region.floors()->at(0)->name());
    return project;
}

/** Without what tells of other objects. */
QJsonObject byItself(QJsonObject drawObj)
{
    QJsonObject properties = drawObj["properties"].toObject();
    for (const char *name : {"ReinforcementInfo", "Catalog", "DependSlabID"})
        properties.remove(QLatin1String(name));
    drawObj["properties"] = properties;
    drawObj.remove(QStringLiteral("key"));
    return drawObj;
}

QByteArray textOf(QJsonObject element)
{
    QJsonArray drawObjs;
    for (const QJsonValue drawObj : element["drawObjects"].toArray())
        drawObjs.append(byItself(drawObj.toObject()));
    element["drawObjects"] = drawObjs;
    return QJsonDocument(element).toJson(QJsonDocument::Compact);
}

/** One text for each element of some types in an exchange document, with its draw objects. */
Records elementsOf(const QByteArray &json, const QSet<qint64> &types)
{
    Records records;
    for (const QJsonValue region : exchangetest::parsed(json)["regions"].toArray())
        for (const QJsonValue floor : region["floors"].toArray())
            for (const QJsonValue element : floor["elements"].toArray())
                if (types.contains(element["type"].toInt()))
                    records.push_back(floor["name"].toString().toUtf8() + ' ' + textOf(element.toObject()));
    return records;
}

Records sorted(Records records)
{
    std::sort(records.begin(), records.end());
    return records;
}

std::size_t countOfLost(const Records &before, const Records &after)
{
    Records lost;
    std::set_difference(before.begin(), before.end(), after.begin(), after.end(), std::back_inserter(lost));
    return lost.size();
}

/** Takes one road over one building with failures, and keeps what went wrong, each with how often. */
class FaultyJourneys
{
public:
    FaultyJourneys(const Road &road, Failure failure, Lasting lasting)
        : m_road(road), m_failure(failure), m_lasting(lasting)
    {
        open();
        m_expected = journey();
        m_elements = elements();
        m_unchanged = m_project->toJson();
        m_calls = m_host->countOf(failure);
    }

    /** @param most  kEach, or how many */
    void takeAll(std::size_t most)
    {
        for (std::size_t number = 1; number <= m_calls; number += stepTo(most))
            take(number);
        if (!m_road.writes() && m_project->toJson() != m_unchanged)
            tell("a road out changes the host");
    }

    std::size_t injected() const { return m_injected; }
    const std::map<QByteArray, int> &wrong() const { return m_wrong; }

private:
    std::size_t stepTo(std::size_t most) const
    {
        if (most == kEach)
            return kAreLongJourneysThinned ? m_road.thinnedBy : 1;
        return std::max<std::size_t>(1, m_calls * m_road.thinnedBy / most);
    }

    void open()
    {
        if (!m_project || m_road.writes())
            m_project = opened(m_road.building);
        m_project->makeCurrent();
        m_project->journal().clear();
        m_host = std::make_unique<FailingHost>(*m_project->service());
        m_journey = m_road.start(*m_host->service());
        m_host->failAt(0, m_failure);
    }

    Records journey() const { return sorted(m_journey()); }
    Records elements() const
    {
        return m_road.writes() ? sorted(elementsOf(m_project->toJson(), m_road.makes)) : Records();
    }

    void take(std::size_t number)
    {
        open();
        m_host->failAt(number, m_failure, m_lasting);
        Records records;
        const bool passed = throughTo(records);
        m_injected += m_host->failed().size();
        m_operation = m_host->failed().empty() ? QByteArray("none") : m_host->failed().front();
        checkException(passed);
        checkBrackets();
        if (!passed)
            checkRest(records);
        checkModel();
        takeAgain();
    }

    /** True when an exception reached the caller. */
    bool throughTo(Records &records)
    {
        try {
            records = journey();
            return false;
        } catch (const std::exception &) {
            return true;
        }
    }

    bool isGuarded() const
    {
        if (m_road.caught.contains(m_operation))
            return true;
        const auto &passes = m_road.hostExceptionPasses;
        return m_failure == Failure::HostException && !passes.contains("*") && !passes.contains(m_operation);
    }

    void checkException(bool passed)
    {
        if (passed && (m_failure == Failure::Null || m_failure == Failure::False))
            tell("an exception where the host threw none");
        if (passed && m_lasting == Lasting::Once && isGuarded())
            tell("an exception reached the caller");
    }

    void checkBrackets()
    {
        const auto &failed = m_host->failed();
        if (!m_host->recording().openBrackets().empty() || !m_host->recording().bracketsNest())
            tell("a bracket was not closed by its key");
        if (openBrackets(*m_project) != std::count(failed.begin(), failed.end(), QByteArray("endBatch")))
            tell("the host has a bracket open");
    }

    /** Of what the operation guards one record, or one element, may suffer. */
    void checkRest(const Records &records)
    {
        if (m_lasting != Lasting::Once || m_failure != Failure::HostException || !isGuarded())
            return;
        const Records left = m_road.writes() ? elements() : records;
        const Records &expected = m_road.writes() ? m_elements : m_expected;
        const std::size_t most = m_road.mostSuffering;
        if (countOfLost(expected, left) > most || countOfLost(left, expected) > most)
            tell("more than one suffered");
    }

    void checkModel()
    {
        if (!m_road.writes())
            return;
        if (const QString broken = brokenLink(*m_project); !broken.isEmpty())
            tell(broken.toUtf8());
        if (const QString broken = notReadAgain(m_project->toJson()); !broken.isEmpty())
            tell(broken.toUtf8());
    }

    void takeAgain()
    {
        m_project->makeCurrent();
        m_host->failAt(0, m_failure);
        Records records;
        if (throughTo(records))
            tell("the next journey fails");
        else if (records != m_expected)
            tell("the next journey gives something else");
        if (const QString broken = m_road.writes() ? brokenLink(*m_project) : QString(); !broken.isEmpty())
            tell(broken.toUtf8() + " after the next journey");
    }

    void tell(const QByteArray &what) { ++m_wrong[m_operation + ": " + what]; }

    const Road &m_road;
    const Failure m_failure;
    const Lasting m_lasting;
    std::unique_ptr<HBXProject> m_project;
    std::unique_ptr<FailingHost> m_host;
    Journey m_journey;
    Records m_expected;
    Records m_elements;
    QByteArray m_unchanged;
    std::size_t m_calls = 0;
    std::size_t m_injected = 0;
    QByteArray m_operation; ///< the one that failed first
    std::map<QByteArray, int> m_wrong;
};

using Case = std::tuple<NamedRoad, Failure, Lasting>;
class HostFaultTest : public ::testing::TestWithParam<Case>
{};

TEST_P(HostFaultTest, bracketsAreClosedModelIsSoundAndNextJourneyWorks)
{
    const auto &[named, failure, lasting] = GetParam();
    std::size_t injected = 0;
    for (const Building &building : buildings(lasting)) {
        const Road road = named.over(building.json);
        FaultyJourneys journeys(road, failure, lasting);
        journeys.takeAll(building.most);
        for (const auto &[what, times] : journeys.wrong())
            ADD_FAILURE() << what.toStdString() << ", " << times << " times";
        injected += journeys.injected();
    }
    std::cout << "[  faults  ] " << injected << '\n';
}

std::string caseName(const ::testing::TestParamInfo<Case> &info)
{
    constexpr const char *failures[] = {"Null", "False", "HostException", "RuntimeError", "OutOfMemory"};
    const auto &[road, failure, lasting] = info.param;
    return std::string(road.name) + '_' + failures[static_cast<int>(failure)] +
           (lasting == Lasting::Once ? "_once" : "_fromThenOn");
}

const auto kFailures = ::testing::Values(Failure::Null, Failure::False, Failure::HostException, Failure::RuntimeError,
                                         Failure::OutOfMemory);
const auto kLastings = ::testing::Values(Lasting::Once, Lasting::FromThenOn);

INSTANTIATE_TEST_SUITE_P(Out, HostFaultTest, ::testing::Combine(::testing::ValuesIn(roadsOut()), kFailures, kLastings),
                         caseName);
INSTANTIATE_TEST_SUITE_P(In, HostFaultTest, ::testing::Combine(::testing::ValuesIn(roadsIn()), kFailures, kLastings),
                         caseName);

} // namespace
} // namespace faults
