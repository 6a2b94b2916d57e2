#include "ModelSerialization/ORVCADBeamHBXModelConvertService.h"
#include "ModelSerialization/ORVCADBeamLocalModel2HBXService.h"
#include "beam/ORVCADBeamCollectDataModel.h"
#include "support/BuildingHost.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>

namespace {

const QSet<qint64> kBeamTypes{15, 17, 47};
constexpr double kNear = 1.0; // mm: geometry text has six digits

/** All beams of a building as the text that the recognition side gets. */
QByteArray exported(const BuildingHost &building)
{
    building.makeCurrent();
    ORVCADBeamCollectDataModel collected;
    collected.setBeamIdentifyInfo(ORVCADBeamHBXModelConvertService().convertHBXToCollectDataModel(
        &building.model(), building.floorIds(), kBeamTypes));
    return QJsonDocument(collected.toJsonObj()).toJson();
}

QJsonArray beamsOf(const QByteArray &text)
{
    const QJsonObject document = exchangetest::parsed(text);
    QJsonArray beams;
    for (const char *key : {"Beam", "LinkBeam", "FDBeam"})
        for (const QJsonValue beam : document.value(QLatin1String(key)).toArray())
            beams.append(beam);
    return beams;
}

/** Makes every beam of a text in a building. */
void applied(const QByteArray &text, const BuildingHost &building)
{
    ORVCADBeamLocalModel2HBXService service(building.service());
    for (const QJsonValue json : beamsOf(text)) {
        auto beam = std::make_shared<BeamModelDataInfo>();
        beam->fromJson(json.toObject());
        EXPECT_TRUE(service.reconstructBeam(beam)) << beam->elementInfo->Name.toStdString();
    }
}

QByteArray textOf(const QJsonValue &value) { return QJsonDocument(value.toObject()).toJson(); }

/** Spans are worked out from geometry that was rounded on the way: numbers may differ by what the digits leave open. */
void expectSameSpans(const QJsonArray &actual, const QJsonArray &expected)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (int i = 0; i < actual.size(); ++i) {
        QJsonObject span = actual[i].toObject();
        QJsonObject other = expected[i].toObject();
        EXPECT_NEAR(span["SpanLength"].toDouble(), other["SpanLength"].toDouble(), kNear);
        EXPECT_NEAR(span["StartElev"].toDouble(), other["StartElev"].toDouble(), 1e-3);
        EXPECT_NEAR(span["EndElev"].toDouble(), other["EndElev"].toDouble(), 1e-3);
        const QStringList measures = span["SpanA1_A4"].toString().split(',');
        const QStringList otherMeasures = other["SpanA1_A4"].toString().split(',');
        for (int k = 0; k < 4; ++k)
            EXPECT_NEAR(measures.value(k).toInt(), otherMeasures.value(k).toInt(), 1);
        for (const char *key : {"SpanLength", "StartElev", "EndElev", "SpanA1_A4"}) {
            span.remove(QLatin1String(key));
            other.remove(QLatin1String(key));
        }
        EXPECT_EQ(span, other);
    }
}

/** The placed beams of an element, which stand in no particular order, by their segments. */
QList<QJsonObject> placedBeams(const QJsonValue &beam)
{
    QList<QJsonObject> edos;
    for (const QJsonValue edo : beam["EDOInfo"].toArray())
        edos.append(edo.toObject());
    std::sort(edos.begin(), edos.end(), [](const QJsonObject &a, const QJsonObject &b) {
        return QJsonDocument(a["BeamSegmentInfo"].toArray()).toJson() <
               QJsonDocument(b["BeamSegmentInfo"].toArray()).toJson();
    });
    return edos;
}

void expectSameBeam(const QJsonValue &actual, const QJsonValue &expected)
{
    EXPECT_EQ(textOf(actual["ElementInfo"]).toStdString(), textOf(expected["ElementInfo"]).toStdString());
    const QList<QJsonObject> edos = placedBeams(actual);
    const QList<QJsonObject> others = placedBeams(expected);
    ASSERT_EQ(edos.size(), others.size());
    for (int i = 0; i < edos.size(); ++i) {
        EXPECT_EQ(edos[i]["BeamSegmentInfo"], others[i]["BeamSegmentInfo"]);
        expectSameSpans(edos[i]["BeamSpanInfo"].toArray(), others[i]["BeamSpanInfo"].toArray());
    }
}

struct BuildingCase
{
    const char *name;
    int elements;
    int placed;
};
class RealBuildingRoundTripTest : public ::testing::TestWithParam<BuildingCase>
{};

TEST_P(RealBuildingRoundTripTest, beamsGoOutAndIntoACopyWithoutBeamsAndAreTheSame)
{
    const BuildingHost original(GetParam().name);
    const QByteArray out = exported(original);
    EXPECT_EQ(beamsOf(out).size(), GetParam().elements);
    EXPECT_EQ(original.places(kBeamTypes).size(), static_cast<std::size_t>(GetParam().placed));

    const BuildingHost copy(GetParam().name);
    copy.remove(kBeamTypes);
    ASSERT_TRUE(copy.places(kBeamTypes).empty());
    ASSERT_TRUE(beamsOf(exported(copy)).isEmpty());
    applied(out, copy);
    const QByteArray again = exported(copy);
    ASSERT_EQ(beamsOf(again).size(), beamsOf(out).size());
    for (int i = 0; i < beamsOf(out).size(); ++i)
        expectSameBeam(beamsOf(again)[i], beamsOf(out)[i]);

    BuildingHost::expectSamePlaces(copy.places(kBeamTypes), original.places(kBeamTypes), kNear);
}

TEST_P(RealBuildingRoundTripTest, everyPlacedBeamHasSpansThatCoverIt)
{
    const BuildingHost building(GetParam().name);
    for (const QJsonValue beam : beamsOf(exported(building)))
        for (const QJsonValue edo : beam["EDOInfo"].toArray()) {
            const QJsonArray spans = edo["BeamSpanInfo"].toArray();
            EXPECT_FALSE(spans.isEmpty());
            for (int i = 0; i < spans.size(); ++i) {
                EXPECT_EQ(spans[i]["SpanIndex"].toInt(), i + 1);
                EXPECT_GT(spans[i]["SpanLength"].toDouble(), 0.0);
            }
        }
}
INSTANTIATE_TEST_SUITE_P(Buildings, RealBuildingRoundTripTest,
                         ::testing::Values(BuildingCase{"duplex-apartment", 3, 8}, BuildingCase{"precast-hall", 10, 33},
                                           BuildingCase{"masonry-block", 17, 284}));

/** The made building has what is meant not to come back: a width between whole millimetres, and stored spans, which go to
 *  the file beside the program and not into the host. */
QJsonObject withoutSpansAndFractions(const QJsonValue &beam)
{
    QJsonArray edos;
    for (const QJsonValue edo : beam["EDOInfo"].toArray()) {
        QJsonArray segments;
        for (const QJsonValue segment : edo["BeamSegmentInfo"].toArray()) {
            QJsonObject rounded = segment.toObject();
            rounded["LineWidth"] = std::round(rounded["LineWidth"].toDouble());
            segments.append(rounded);
        }
        edos.append(segments);
    }
    return {{"ElementInfo", beam["ElementInfo"]}, {"EDOInfo", edos}};
}

TEST(MadeBuildingRoundTripTest, beamsOfAllKindsGoOutAndIntoACopyWithoutBeams)
{
    const BuildingHost original("made-building");
    const QByteArray out = exported(original);
    const BuildingHost copy("made-building");
    copy.remove(kBeamTypes);
    applied(out, copy);
    const QJsonArray beams = beamsOf(exported(copy));
    ASSERT_EQ(beams.size(), 6);
    for (int i = 0; i < beams.size(); ++i)
        EXPECT_EQ(textOf(withoutSpansAndFractions(beams[i])).toStdString(),
                  textOf(withoutSpansAndFractions(beamsOf(out)[i])).toStdString());
}

TEST(MadeBuildingRoundTripTest, documentOfItsBeamsIsTheOneThatStandsBesideTheTests)
{
    const BuildingHost building("made-building");
    const QByteArray expected = exchangetest::fileContent(ORVCAD_TEST_DATA "/beams/made-building.json");
    const QJsonArray beams = beamsOf(exported(building));
    ASSERT_EQ(beams.size(), 6);
    ASSERT_EQ(beamsOf(expected).size(), 6);
    for (int i = 0; i < beams.size(); ++i)
        expectSameBeam(beams[i], beamsOf(expected)[i]);
}

TEST(MadeBuildingRoundTripTest, storedSpansGoOutWithTheirBars)
{
    const BuildingHost building("made-building");
    const QJsonValue beam = beamsOf(exported(building)).at(0);
    ASSERT_EQ(beam["ElementInfo"]["Name"].toString(), "KL-1");
    const QJsonArray spans = beam["EDOInfo"][0]["BeamSpanInfo"].toArray();
    ASSERT_EQ(spans.size(), 2);
    EXPECT_EQ(spans[0]["RightSupportBar"].toString(), "6C25/2C25");
    EXPECT_EQ(spans[0]["HaunchingBarInfo"].toString(), "2C12;2C14");
    EXPECT_EQ(spans[0]["SpanA1_A4"].toString(), "250,250,250,250");
    EXPECT_EQ(spans[1]["BottomBar"].toString(), "3C22");
    EXPECT_EQ(spans[1]["EndElev"].toDouble(), 6.4);
    EXPECT_EQ(beam["EDOInfo"][0]["BeamSegmentInfo"].toArray().size(), 2);
}

TEST(MadeBuildingRoundTripTest, beamWithoutAnAxisComesBackWithoutOne)
{
    const BuildingHost building("made-building");
    for (const QJsonValue beam : beamsOf(exported(building))) {
        if (beam["ElementInfo"]["Name"].toString() != "KL-no-axis")
            continue;
        EXPECT_EQ(beam["EDOInfo"][0]["BeamSegmentInfo"][0]["WordLine"].toString(), "");
        EXPECT_TRUE(beam["EDOInfo"][0]["BeamSpanInfo"].toArray().isEmpty());
        return;
    }
    FAIL() << "the building has such a beam";
}

} // namespace
