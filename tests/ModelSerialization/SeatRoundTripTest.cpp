#include "ModelSerialization/ORVCADBeamLocalModel2HBXService.h"
#include "beam/BeamIdentifyInput.h"
#include "support/BuildingHost.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

using Service = ORVCADBeamLocalModel2HBXService;

constexpr double kNear = 0.001; // mm: seats travel in the kernel's exact text

/** What a kind of seat is written under, and how it is made. */
struct SeatKind
{
    const char *key;
    bool (Service::*reconstruct)(const Service::Seat &);
};
constexpr SeatKind kKinds[] = {{"etIsolatedFD", &Service::reconstructFoundation},
                               {"etPileCap", &Service::reconstructFoundation},
                               {"etPile", &Service::reconstructPile},
                               {"etTieBeam", &Service::reconstructTieBeam}};

/** All seats of a building as text. */
QByteArray exported(const BuildingHost &building)
{
    ORVCADBeamSDCIdentifyInputModel input(false);
    getBeamSeatInfo(input, &building.model(), building.floorIds());
    return QJsonDocument(input.beamSeatInfoToJsonObj()).toJson();
}

/** Makes every seat of a text in a building. @return their number */
int applied(const QByteArray &text, const BuildingHost &building)
{
    Service service(building.service());
    int count = 0;
    for (const SeatKind &kind : kKinds)
        for (const QJsonValue json : exchangetest::parsed(text).value(QLatin1String(kind.key)).toArray()) {
            const auto seat = std::make_shared<ORVBeamSDCSeatInfoModel>();
            seat->fromJson(json.toObject());
            EXPECT_TRUE((service.*kind.reconstruct)(seat)) << kind.key << ' ' << seat->EntName.toStdString();
            ++count;
        }
    return count;
}

struct BuildingCase
{
    const char *name;
    QSet<qint64>
        types; ///< without the foundation (52) of the made building: placed twice and turned, it gets two units,
               ///< which then stand below both
    int seats;
};
class SeatRoundTripTest : public ::testing::TestWithParam<BuildingCase>
{};

TEST_P(SeatRoundTripTest, seatsGoOutAndIntoACopyWithoutThemAndStandWhereTheyStood)
{
    const BuildingHost original(GetParam().name);
    const BuildingHost copy(GetParam().name);
    copy.remove({18, 52, 53, 54});
    ASSERT_TRUE(copy.places({18, 52, 53, 54}).empty());
    EXPECT_EQ(applied(exported(original), copy), GetParam().seats);
    for (const qint64 type : GetParam().types)
        BuildingHost::expectSamePlaces(copy.places({type}), original.places({type}), kNear);
}
INSTANTIATE_TEST_SUITE_P(Buildings, SeatRoundTripTest,
                         ::testing::Values(BuildingCase{"precast-hall", {52, 54}, 72},
                                           BuildingCase{"made-building", {18, 53, 54}, 7},
                                           BuildingCase{"duplex-apartment", {}, 0}));

} // namespace
