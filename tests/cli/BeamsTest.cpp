#include "cli/Beams.h"

#include "ModelSerialization/ORVCADBeamLocalModel2HBXService.h"
#include "beam/BeamModelDataInfo.h"
#include "cli/FloorLookup.h"
#include "embedded/ExchangeDocuments.h"
#include "platform/embedded/HBXModelStore.h"
#include "platform/host/IHBXService.h"

#include <memory>

using exchangetest::projectOf;
using hbx::embedded::HBXProject;
using hbx::embedded::JournalEntry;
using namespace orvcad;

namespace {

/** A sample building without its beams. */
std::unique_ptr<HBXProject> stripped(const char *building)
{
    auto project = projectOf(exchangetest::building(building));
    for (const IHBXFloor *floor : pickFloors(*project, QString(), QString()))
        removeBeams(*project, *floor);
    return project;
}

QJsonObject exported(const char *building)
{
    BeamCounts counts;
    const auto project = projectOf(exchangetest::building(building));
    return beamDocument(*project, pickFloors(*project, QString(), QString()), counts);
}

/** The same reply, by the one operation that the service offers for a whole beam. */
void reconstructAll(HBXProject &project, const QJsonObject &reply)
{
    ORVCADBeamLocalModel2HBXService service(project.service());
    for (const char *key : {"Beam", "LinkBeam", "FDBeam"})
        for (const QJsonValue json : reply.value(QLatin1String(key)).toArray()) {
            auto beam = std::make_shared<BeamModelDataInfo>();
            beam->fromJson(json.toObject());
            EXPECT_TRUE(service.reconstructBeam(beam));
        }
}

/** The building as a document, without stored spans. */
QByteArray withoutSpans(const HBXProject &project)
{
    hbx::embedded::ProjectRecord record = project.store().snapshot();
    for (hbx::embedded::DrawObjRecord &object : record.drawObjs)
        object.spans.clear();
    const auto copy = projectOf(project.toJson());
    copy->store().load(std::move(record));
    return copy->toJson();
}

class BeamsTest : public ::testing::TestWithParam<const char *>
{};

TEST_P(BeamsTest, outcomeIsThatOfReconstructBeamButForTheSpans)
{
    const QJsonObject reply = exported(GetParam());
    const auto applied = stripped(GetParam());
    const BeamOutcome outcome = applyBeams(*applied, reply, QStringLiteral("reply.json"));
    EXPECT_TRUE(outcome.leftOut.empty());
    EXPECT_EQ(outcome.doubled, 0);
    const auto reconstructed = stripped(GetParam());
    reconstructAll(*reconstructed, reply);
    EXPECT_EQ(withoutSpans(*applied).toStdString(), reconstructed->toJson().toStdString());
}

TEST_P(BeamsTest, everyFloorGivesTheSameDocumentFromTheCopyAsFromTheBuilding)
{
    const auto original = projectOf(exchangetest::building(GetParam()));
    const auto copy = stripped(GetParam());
    for (IHBXFloor *floor : pickFloors(*original, QString(), QString())) {
        BeamCounts counts;
        const QJsonObject reply = beamDocument(*original, {floor}, counts);
        const BeamOutcome outcome = applyBeams(*copy, reply, QStringLiteral("reply.json"));
        EXPECT_TRUE(outcome.leftOut.empty());
        EXPECT_EQ(outcome.made().elements, counts.elements);
        EXPECT_EQ(outcome.made().chains, counts.chains);
        EXPECT_EQ(outcome.made().segments, counts.segments);
        EXPECT_EQ(outcome.made().spans, counts.spans);
    }
    BeamCounts counts;
    const QJsonObject again = beamDocument(*copy, pickFloors(*copy, QString(), QString()), counts);
    EXPECT_EQ(QJsonDocument(again).toJson().toStdString(), QJsonDocument(exported(GetParam())).toJson().toStdString());
}
INSTANTIATE_TEST_SUITE_P(Buildings, BeamsTest, ::testing::Values("duplex-apartment", "precast-hall", "masonry-block"));

TEST(BeamOutcomeTest, madeBuildingComesOutAsReconstructBeamMakesIt)
{
    const QJsonObject reply = exported("made-building");
    const auto applied = stripped("made-building");
    applyBeams(*applied, reply, QStringLiteral("reply.json"));
    const auto reconstructed = stripped("made-building");
    reconstructAll(*reconstructed, reply);
    EXPECT_EQ(withoutSpans(*applied).toStdString(), reconstructed->toJson().toStdString());
}

TEST(BeamOutcomeTest, everythingStandsInOneBatch)
{
    const QJsonObject reply = exported("duplex-apartment");
    const auto project = stripped("duplex-apartment");
    project->journal().clear();
    applyBeams(*project, reply, QStringLiteral("reply.json"));
    QStringList brackets;
    for (const JournalEntry &entry : project->journal().entries())
        if (entry.kind == JournalEntry::kBracketOpened || entry.kind == JournalEntry::kBracketClosed)
            brackets.append(entry.name);
    EXPECT_EQ(brackets, (QStringList{"orvcad beam apply", "orvcad beam apply"}));
}

TEST(BeamOutcomeTest, spansOfTheReplyStandAtTheHeadsOfTheChains)
{
    const QJsonObject reply = exported("made-building");
    const auto project = stripped("made-building");
    applyBeams(*project, reply, QStringLiteral("reply.json"));
    int heads = 0;
    for (const auto &object : project->store().snapshot().drawObjs)
        if (!object.spans.empty()) {
            ++heads;
            EXPECT_EQ(object.spans.front().value("SpanIndex").toInt(), 1);
        }
    EXPECT_EQ(heads, 5); // of six chains; the beam without an axis has no spans
}

} // namespace
