#include "beam/BeamIdentifyInput.h"
#include "support/BuildingHost.h"

#include <QMap>

namespace {

const QList<int> kSeatTypes{25, 26, 1002, 0, 1003, 54, 52, 53, 15, 17, 18}; // in the order of the seats

/** Whether a placed object of a building file has a place in the plan: an axis, an outline or, from its element, a size. */
bool hasOutline(const QJsonValue &object, const QJsonValue &element)
{
    const QJsonValue shape = object["shape"];
    if (shape["kind"] == "line")
        return shape["axis"].isString();
    const QJsonValue properties = element["properties"];
    for (const QJsonValue &child : object["children"].toArray())
        if (child["shape"]["outline"].isString())
            return true;
    return shape["outline"].isString() || properties["SectionPoly"].isString() ||
           properties["SectionWidth"].isDouble() || properties["Width"].isDouble() || properties["Radius"].isDouble();
}

/** A column of the section that is none. */
bool isSkipped(const QJsonValue &object, int type)
{
    return type == 25 && object["section"]["number"].toInt() == 124 && object["section"]["kind"].toInt() == 8;
}

/** Seats by type on each floor of a building file, in the file's order of floors. */
QList<QMap<int, int>> countedInFile(const char *building)
{
    QList<QMap<int, int>> floors;
    const QJsonObject document = exchangetest::parsed(exchangetest::building(building));
    for (const QJsonValue region : document["regions"].toArray())
        for (const QJsonValue floor : region["floors"].toArray()) {
            floors.append(QMap<int, int>());
            for (const QJsonValue element : floor["elements"].toArray()) {
                const int type = element["type"].toInt();
                for (const QJsonValue object : element["drawObjects"].toArray())
                    if (kSeatTypes.contains(type) && hasOutline(object, element) && !isSkipped(object, type))
                        ++floors.last()[type];
            }
        }
    return floors;
}

class SeatCountTest : public ::testing::TestWithParam<const char *>
{};

TEST_P(SeatCountTest, everyFloorGivesTheSeatsThatItsBuildingFileHas)
{
    const BuildingHost building(GetParam());
    const QList<QMap<int, int>> expected = countedInFile(GetParam());
    int number = 0;
    int seats = 0;
    IHBXRegions &regions = *building.model().regions();
    for (int i = 0; i < regions.count(); ++i)
        for (int k = 0; k < regions.at(i)->floors()->count(); ++k) {
            const IHBXFloor *floor = regions.at(i)->floors()->at(k);
            ORVCADBeamSDCIdentifyInputModel input(false);
            getBeamSeatInfo(input, &building.model(), {floor->id()});
            QMap<int, int> counts;
            QList<int> order;
            for (const ORVBeamSDCSeatInfoModel *seat : input.beamSeatInfos) {
                ++counts[seat->seatElementType];
                order.append(kSeatTypes.indexOf(seat->seatElementType));
                EXPECT_EQ(seat->FloorName, floor->name());
                EXPECT_TRUE(seat->ipWorldPoly);
            }
            EXPECT_TRUE(std::is_sorted(order.begin(), order.end())) << floor->name().toStdString();
            EXPECT_EQ(counts, expected.value(number++)) << floor->name().toStdString();
            seats += input.beamSeatInfos.size();
        }
    EXPECT_EQ(number, expected.size());
    EXPECT_GT(seats, 0);
}
INSTANTIATE_TEST_SUITE_P(Buildings, SeatCountTest,
                         ::testing::Values("duplex-apartment", "precast-hall", "masonry-block", "made-building"));

} // namespace
