#include "IdentifyInputModel/Wall/JsonWall2HBX.h"
#include "IdentifyInputModel/Wall/ORVCADWallBrickDataOutputModel.h"
#include "IdentifyInputModel/Wall/ORVCADWallForceDataOutputModel.h"
#include "IdentifyInputModel/Wall/WallStructsFromHbx.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXProperties.h"
#include "support/BuildingHost.h"

#include <QJsonObject>

#include <map>
#include <tuple>

namespace {

constexpr double kSixDigits = 1e-5; // of a coordinate: half a unit of its last digit

const wchar_t *const kElevations[] = {L"StartPtBottomElev", L"EndPtBottomElev", L"StartPtTopElev", L"EndPtTopElev"};

/** A placed wall as the host has it, whatever the roads say of it. */
struct Wall
{
    double thickness = 0.0;
    int curveType = 0; ///< 0: none
    double length = 0.0;
    std::vector<double> points; ///< start, middle, end
    std::vector<double> elevations;
};

/** Walls by region, floor and name, in the order of their placing. */
using Walls = std::map<std::tuple<QString, QString, QString>, std::vector<Wall>>;

Wall wallOf(IHBXElement &element, IHBXElementDrawObj &object)
{
    Wall wall;
    wall.thickness = element.properties()->asDouble(std::wstring(L"Thickness"));
    for (const wchar_t *name : kElevations)
        wall.elevations.push_back(object.properties()->asDouble(std::wstring(name)));
    vks::CRefPtr<vks::CCurve2d> axis;
    dynamic_cast<IHBXCustomLineSolidShape &>(*object.shape()).worldLine(axis, IHBXModel::g_bDefaultAutoCalc);
    if (!axis)
        return wall;
    wall.curveType = axis->Type();
    wall.length = axis->Length();
    for (const double part : {0.0, 0.5, 1.0}) {
        const vks::CVec2<double> point = axis->GetPoint(axis->StartT() + part * (axis->EndT() - axis->StartT()));
        wall.points.insert(wall.points.end(), {point.x, point.y});
    }
    return wall;
}

Walls wallsOf(const BuildingHost &host, qint64 type)
{
    Walls walls;
    for (IHBXElement *element : host.elements({type})) {
        QString name;
        QString code;
        auto &placed = walls[{element->region()->name(), element->floor()->code(code), element->name(name)}];
        QList<IHBXElementDrawObj *> objects;
        element->drawObjs(objects, 0);
        for (IHBXElementDrawObj *object : qAsConst(objects))
            placed.push_back(wallOf(*element, *object));
    }
    return walls;
}

void expectSame(const std::vector<double> &found, const std::vector<double> &wanted, double tolerance)
{
    ASSERT_EQ(found.size(), wanted.size());
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_NEAR(found[i], wanted[i], tolerance) << i;
}

void expectSame(const Wall &found, const Wall &wanted)
{
    EXPECT_EQ(found.thickness, wanted.thickness);
    EXPECT_EQ(found.curveType, wanted.curveType);
    double greatest = 1.0;
    for (const double coordinate : wanted.points)
        greatest = std::max(greatest, std::fabs(coordinate));
    // The middle of an arc hangs on its bulge, so it moves by the error of three numbers.
    expectSame(found.points, wanted.points, 3 * kSixDigits * greatest);
    EXPECT_NEAR(found.length, wanted.length, 3 * kSixDigits * greatest);
    expectSame(found.elevations, wanted.elevations, kSixDigits);
}

template <typename Output, typename Record, typename Load, typename Set>
QJsonObject documentOf(const BuildingHost &host, qint64 type, Load load, Set set)
{
    Output output;
    for (IHBXElement *element : host.elements({type})) {
        auto *record = new Record;
        load(element, record);
        QList<IHBXElementDrawObj *> objects;
        element->drawObjs(objects, 0);
        EXPECT_FALSE(objects.isEmpty());
        for (IHBXElementDrawObj *object : qAsConst(objects)) {
            IdentifyResultData piece;
            EXPECT_TRUE(loadORVCADWallEdoIdentifyResStructFromHbx(record->width, record->entName, object, &piece));
            (output.*set)(record, piece);
        }
    }
    QJsonObject walls;
    output.saveToJson("ElementsAndEdos", &walls);
    return walls;
}

QJsonObject replyOf(const BuildingHost &host, qint64 type)
{
    if (type == 0)
        return {{"eWall", documentOf<ORVCADWallForceDataOutputModel, ORVCADCloudEntForceWallStruct>(
                              host, type, loadORVCADCloudEntForceWallStructFromHbx,
                              &ORVCADWallForceDataOutputModel::setForceWallIdentifyData)}};
    return {{"eBrickWall", documentOf<ORVCADWallBrickDataOutputModel, ORVCADCloudEntBrickWallStruct>(
                               host, type, loadORVCADCloudEntBrickWallStructFromHbx,
                               &ORVCADWallBrickDataOutputModel::setBrickWallIdentifyData)}};
}

struct Road
{
    const char *building;
    qint64 type;
    std::size_t elements; ///< counted in the building file
    std::size_t pieces;
};
class WallRoundTripTest : public ::testing::TestWithParam<Road>
{};

TEST_P(WallRoundTripTest, wallsOfAllFloorsComeBackIntoACopyWithoutWalls)
{
    const Road &road = GetParam();
    const BuildingHost original(road.building);
    const Walls wanted = wallsOf(original, road.type);
    const BuildingHost copy(road.building);
    copy.remove({0, 1003});
    ASSERT_TRUE(wallsOf(copy, road.type).empty());

    const QJsonObject reply = replyOf(original, road.type);
    EXPECT_FALSE(road.type == 0 ? jsonForceWall2HBX(copy.service(), reply) : jsonBrickWall2HBX(copy.service(), reply));

    const Walls found = wallsOf(copy, road.type);
    EXPECT_EQ(wanted.size(), road.elements);
    EXPECT_EQ(found.size(), road.elements);
    std::size_t pieces = 0;
    for (const auto &[place, walls] : wanted) {
        const auto same = found.find(place);
        ASSERT_NE(same, found.end()) << std::get<2>(place).toStdString();
        ASSERT_EQ(same->second.size(), walls.size());
        pieces += walls.size();
        for (std::size_t i = 0; i < walls.size(); ++i)
            expectSame(same->second[i], walls[i]);
    }
    EXPECT_EQ(pieces, road.pieces);
}

TEST_P(WallRoundTripTest, wallsThatAreThereAlreadyComeInUnderUniqueNames)
{
    const Road &road = GetParam();
    const BuildingHost host(road.building);
    const QJsonObject reply = replyOf(host, road.type);
    road.type == 0 ? jsonForceWall2HBX(host.service(), reply) : jsonBrickWall2HBX(host.service(), reply);
    const Walls walls = wallsOf(host, road.type);
    EXPECT_EQ(walls.size(), 2 * road.elements);
    for (const auto &wall : walls) {
        auto [region, floor, name] = wall.first;
        const QString twin = name.endsWith("-1") ? name : name + "-1";
        EXPECT_EQ(walls.count({region, floor, twin}), 1U) << name.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Buildings, WallRoundTripTest,
                         ::testing::Values(Road{"duplex-apartment", 0, 2, 7}, Road{"duplex-apartment", 1003, 11, 49},
                                           Road{"masonry-block", 1003, 15, 154}, Road{"precast-hall", 0, 6, 72},
                                           Road{"made-building", 0, 2, 3}, Road{"made-building", 1003, 5, 5}));

TEST(WallRoundTripOfArcsTest, madeBuildingHasAWallAlongAnArc)
{
    const BuildingHost host("made-building");
    int arcs = 0;
    for (const qint64 type : {0, 1003})
        for (const auto &wall : wallsOf(host, type))
            for (const Wall &piece : wall.second)
                arcs += piece.curveType == 2 ? 1 : 0;
    EXPECT_EQ(arcs, 1);
}

} // namespace
