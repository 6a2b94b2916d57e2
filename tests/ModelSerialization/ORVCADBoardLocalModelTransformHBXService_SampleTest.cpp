#include "ModelSerialization/ORVCADBoardLocalModelTransformHBXService_Sample.h"

#include "ModelSerialization/SlabWriterFixture.h"
#include "support/BuildingHost.h"

#include <set>

namespace {

using Service = ORVCADBoardLocalModelTransformHBXService_Sample;

class SlabTransformTest : public SlabWriterFixture
{
protected:
    /** One element of each kind, which lie in one another. */
    void addOneOfEach()
    {
        addLineBar<Model::RaftNegativeForcedBar>({8000, 0}, {8000, 4000}, 900, 800);
        addBar<Model::RaftMainStraddleForcedBar>(area());
        addBar<Model::RaftMainForcedBar>(area());
        addBar<Model::StraddleForcedBar>(area());
        addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 900, 800);
        addBar<Model::ForcedBar>(area());
        add<Model::BoardHole>()->surface = shapes::rectangle(1000, 1000, 400, 300);
        add<Model::Raft>()->surface = area();
        add<Model::Board>()->surface = area();
        addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 900, 800)->elementId = 4711;
        add<Model::Column>()->surface = area();
    }
    static PolygonPtr area() { return shapes::rectangle(0, 0, 4000, 3000); }
};

TEST_F(SlabTransformTest, kindsAreWrittenInTheirOrderWhateverTheirOrderInTheModel)
{
    addOneOfEach();
    RecordingHost host(*store.service());
    Service::local2hbx(&local, host.service(), slabs.get(), "House", "F1");
    EXPECT_EQ(host.calls().filter("setName"),
              (QStringList{R"(setName("B-h0"))", R"(setName("FB-0"))", R"(setName("BD-400*300"))",
                           R"(setName("SLJ-C12-150"))", R"(setName("FJ-C8-200"))", R"(setName("KBSLJ-C12-150"))",
                           R"(setName("FBZJ-C12-150"))", R"(setName("KFBZJ-C12-150"))", R"(setName("FBFJ-C8-200"))"}));
}

TEST_F(SlabTransformTest, mapTellsWhatEachNewObjectStandsFor)
{
    addOneOfEach();
    write();
    ASSERT_EQ(ids.size(), 9U);
    std::set<QUuid> told;
    for (const auto &[id, uuid] : ids) {
        EXPECT_TRUE(drawObjs().drawObjById(id));
        told.insert(uuid);
    }
    std::set<QUuid> added;
    for (const Model::Object *object : local.objects())
        if (object->elementId < 1 && object->type() != Model::Object::ColumnKind)
            added.insert(object->recongnizedID);
    EXPECT_EQ(told, added);
    EXPECT_EQ(ids.at(only(23)->id()), local.negativeForcedBars()[0]->recongnizedID);
}

TEST_F(SlabTransformTest, noBatchIsOpened)
{
    addOneOfEach();
    RecordingHost host(*store.service());
    Service::local2hbx(&local, host.service(), slabs.get(), "House", "F1");
    EXPECT_EQ(host.calls().filter("Batch"), QStringList());
}

TEST_F(SlabTransformTest, barsAreLinkedWithTheSlabsOfTheTreeAlone)
{
    addOneOfEach();
    write();
    for (IHBXElementDrawObj *bar : written(22))
        EXPECT_TRUE(bar->properties()->isNull(L"ReinforcementInfo"));
    EXPECT_EQ(intOf(only(23), L"DependSlabID"), -1);
}

TEST_F(SlabTransformTest, idsAreAddedToTheMapOfTheCaller)
{
    add<Model::Board>()->surface = area();
    const QUuid before = QUuid::createUuid();
    ids[-5] = before;
    Service::localBoard2HBX(&local, &model(), store.service()->curState(), "House", "F1", ids);
    EXPECT_EQ(ids.size(), 2U);
    EXPECT_EQ(ids.at(-5), before);
}

TEST_F(SlabTransformTest, floorIsTheOneThatIsNamed)
{
    addOneOfEach();
    write("House", "F2");
    EXPECT_EQ(ids.size(), 9U);
    EXPECT_TRUE(written(19).isEmpty());
    EXPECT_EQ(written(19, "F2").size(), 1);
}

TEST_F(SlabTransformTest, unknownPlaceIsLeftAlone)
{
    addOneOfEach();
    write("Nowhere", "F1");
    EXPECT_TRUE(ids.empty());
    write("House", "Nowhere");
    EXPECT_TRUE(ids.empty());
    EXPECT_EQ(elements().count(), 0);
}

TEST_F(SlabTransformTest, nothingIsWrittenOfNothing)
{
    EXPECT_TRUE(Service::local2hbx(nullptr, store.service(), slabs.get(), "House", "F1").empty());
    EXPECT_TRUE(Service::local2hbx(&local, nullptr, slabs.get(), "House", "F1").empty());
    EXPECT_TRUE(Service::local2hbx(&local, store.service(), nullptr, "House", "F1").empty());
    EXPECT_EQ(elements().count(), 0);
}

TEST_F(SlabTransformTest, stateAndTreeMayBeMissing)
{
    addOneOfEach();
    Service::localBoard2HBX(&local, &model(), nullptr, "House", "F1", ids);
    Service::localRaft2HBX(&local, &model(), nullptr, "House", "F1", ids);
    Service::localBoardHole2HBX(&local, &model(), nullptr, "House", "F1", ids);
    Service::localForceBar2HBX(&local, store.service(), nullptr, "House", "F1", ids);
    EXPECT_EQ(ids.size(), 4U);
    EXPECT_EQ(only(19)->status()->layer(), 0);
}

TEST_F(SlabTransformTest, brokenElementsAmongThousandsCostNothingElse)
{
    std::size_t sound = 0;
    for (int i = 0; i < 1000; ++i) {
        const double x = 5000.0 * i;
        const bool isBroken = i % 7 == 3;
        auto *board = add<Model::Board>();
        board->surface = isBroken ? nullptr : shapes::rectangle(x, 0, 4000, 3000);
        auto *bar = addBar<Model::ForcedBar>(shapes::rectangle(x, 0, 4000, 3000));
        bar->barInfo = isBroken ? "no bars" : "C12@150";
        addLineBar<Model::NegativeForcedBar>({x, 0}, {x, 3000}, 900, isBroken ? 0 : 800)->line =
            isBroken ? CurvePtr() : CurvePtr(new vks::CLine2d(Point(x, 0), Point(x, 3000)));
        sound += isBroken ? 0 : 3;
    }
    write();
    EXPECT_EQ(ids.size(), sound);
    EXPECT_EQ(drawObjs().count(), static_cast<int>(sound));
    EXPECT_EQ(elements().count(), 3);
}

// ---- Sample buildings

struct FloorCase
{
    const char *building;
    const char *region;
    const char *from;
    const char *to;
    qint64 type; // 19 or 48
    int count;
};

/** The slabs or rafts of one floor of a building, carried to another one through the local model. */
class SlabFloorCopyTest : public ::testing::TestWithParam<FloorCase>
{
protected:
    using Model = ORVCADBoardLocalModel_Sample;
    using Access = ORVCADBoardLocalModelTestAccess;

    QList<IHBXElementDrawObj *> objects(const char *floorName, qint64 type)
    {
        IHBXRegion *region = host.model().regions()->find(QString::fromUtf8(GetParam().region));
        QList<IHBXElementDrawObj *> out;
        region->floors()->find(QString::fromUtf8(floorName))->drawObjsOfTypes(out, {type}, true);
        return out;
    }
    static vks::CRefPtr<vks::CPolygon> outlineOf(IHBXElementDrawObj *object)
    {
        vks::CRefPtr<vks::CPolygon> outline;
        return object->shape()->worldPoly(outline, true);
    }
    static double elevation(IHBXElementDrawObj *object, const wchar_t *name)
    {
        return object->properties()->asDouble(std::wstring(name));
    }
    static double thicknessOf(IHBXElementDrawObj *object)
    {
        return -dynamic_cast<IHBXFaceSolidShape *>(object->shape())->height();
    }
    void addCopyOf(IHBXElementDrawObj *object)
    {
        if (GetParam().type == 19) {
            auto *board = Access::add<Model::Board>(local);
            board->surface = outlineOf(object);
            board->thickness = thicknessOf(object);
            board->elev = elevation(object, L"TopElev") / 1000;
        } else {
            auto *raft = Access::add<Model::Raft>(local);
            raft->surface = outlineOf(object);
            raft->thickness = thicknessOf(object);
            raft->topElev = elevation(object, L"TopElev") / 1000;
            raft->bottomElev = elevation(object, L"BottomElev") / 1000;
        }
    }

    BuildingHost host{GetParam().building};
    Model local;
};

TEST_P(SlabFloorCopyTest, everySlabArrivesAsItWas)
{
    const auto originals = objects(GetParam().from, GetParam().type);
    ASSERT_EQ(originals.size(), GetParam().count);
    ASSERT_TRUE(objects(GetParam().to, GetParam().type).isEmpty());
    for (IHBXElementDrawObj *original : originals)
        addCopyOf(original);
    const auto ids = Service::local2hbx(&local, host.service(), nullptr, QString::fromUtf8(GetParam().region),
                                        QString::fromUtf8(GetParam().to));
    ASSERT_EQ(ids.size(), static_cast<std::size_t>(originals.size()));
    for (const Model::Object *object : local.findObjects(Model::Object::BoardKind | Model::Object::RaftKind)) {
        const auto told = std::find_if(ids.begin(), ids.end(),
                                       [object](const auto &entry) { return entry.second == object->recongnizedID; });
        ASSERT_NE(told, ids.end());
        IHBXElementDrawObj *copy = host.model().drawObjects()->drawObjById(told->first);
        const auto all = local.objects();
        const auto place = std::find(all.begin(), all.end(), object) - all.begin();
        IHBXElementDrawObj *original = originals[static_cast<int>(place)];
        EXPECT_EQ(outlineOf(copy)->ToText(), outlineOf(original)->ToText());
        EXPECT_NEAR(elevation(copy, L"TopElev"), elevation(original, L"TopElev"), 0.05); // six digits of metres
        EXPECT_NEAR(elevation(copy, L"BottomElev"), elevation(original, L"BottomElev"), 0.05);
        EXPECT_EQ(thicknessOf(copy), std::floor(thicknessOf(original)));
    }
}

INSTANTIATE_TEST_SUITE_P(Buildings, SlabFloorCopyTest,
                         ::testing::Values(FloorCase{"duplex-apartment", "Duplex", "Level 1", "Level 2", 19, 2},
                                           FloorCase{"precast-hall", "Hall", "Ground floor", "Upper part", 19, 29},
                                           FloorCase{"masonry-block", "Block", "Level 1", "Level 5", 19, 21},
                                           FloorCase{"masonry-block", "Block", "Foundation", "Level 1", 48, 56},
                                           FloorCase{"made-building", "主楼", "第1层", "基础层", 19, 3}));

TEST(SlabHolesOfBuildingTest, holesOfAllKindsArriveInTheirSlabs)
{
    using Model = ORVCADBoardLocalModel_Sample;
    const BuildingHost host("made-building");
    IHBXModel &model = host.model();
    const QString region = QStringLiteral("主楼");
    QList<IHBXElementDrawObj *> originals;
    model.regions()->find(region)->floors()->find(QStringLiteral("第1层"))->drawObjsOfTypes(originals, {19, 24}, true);

    Model local;
    int holeCount = 0;
    for (IHBXElementDrawObj *original : qAsConst(originals)) {
        vks::CRefPtr<vks::CPolygon> outline;
        original->shape()->worldPoly(outline, true);
        Model::SectionObject *copy = nullptr;
        if (original->type() == 19)
            copy = ORVCADBoardLocalModelTestAccess::add<Model::Board>(local);
        else
            copy = ORVCADBoardLocalModelTestAccess::add<Model::BoardHole>(local);
        copy->surface = outline;
        copy->name = QString::number(original->id()); // each its own element
        holeCount += original->type() == 24 ? 1 : 0;
    }
    EXPECT_EQ(holeCount, 5);
    const auto ids = Service::local2hbx(&local, host.service(), nullptr, region, QStringLiteral("第2层"));
    EXPECT_EQ(ids.size(), 8U);
    for (const auto &[id, uuid] : ids) {
        IHBXElementDrawObj *copy = model.drawObjects()->drawObjById(id);
        QString name;
        IHBXElementDrawObj *original = model.drawObjects()->drawObjById(copy->element()->name(name).toLongLong());
        vks::CBox2<double> box;
        vks::CBox2<double> expected;
        copy->shape()->box(box, true);
        original->shape()->box(expected, true);
        EXPECT_LE(box.minPt.DistanceTo(expected.minPt), 1.0) << uuid.toString().toStdString();
        EXPECT_LE(box.maxPt.DistanceTo(expected.maxPt), 1.0) << uuid.toString().toStdString();
        EXPECT_EQ(copy->parent() != nullptr, copy->type() == 24);
    }
}

/** Bars in the slabs of the hall. */
class SlabBarsOfBuildingTest : public ::testing::Test
{
protected:
    using Model = ORVCADBoardLocalModel_Sample;
    using Access = ORVCADBoardLocalModelTestAccess;

    SlabBarsOfBuildingTest()
    {
        host.setCurrent("Hall", "Ground floor");
        host.service()->curState()->floor()->drawObjsOfTypes(hostSlabs, {19}, true);
        for (IHBXElementDrawObj *slab : qAsConst(hostSlabs)) {
            vks::CBox2<double> box;
            boxTree->add(slab->shape()->box(box, true), slab);
        }
    }

    BuildingHost host{"precast-hall"};
    QList<IHBXElementDrawObj *> hostSlabs;
    std::unique_ptr<dwgx::DWGXBaseBoxTree> boxTree{dwgx::DWGXBaseBoxTree::createObject()};
    Model local;
};

TEST_F(SlabBarsOfBuildingTest, barInEachSlabIsLinkedWithIt)
{
    for (IHBXElementDrawObj *slab : qAsConst(hostSlabs)) {
        auto *bar = Access::add<Model::ForcedBar>(local);
        slab->shape()->worldPoly(bar->surface, true);
        bar->direction = {1, 0};
        bar->barInfo = "C10@150";
    }
    const auto ids = Service::local2hbx(&local, host.service(), boxTree.get(), "Hall", "Ground floor");
    ASSERT_EQ(ids.size(), 29U);
    auto bar = ids.begin(); // ids count up
    for (IHBXElementDrawObj *slab : qAsConst(hostSlabs)) {
        QString links;
        IHBXElementDrawObj *object = host.model().drawObjects()->drawObjById((bar++)->first);
        object->properties()->asString(links, std::wstring(L"ReinforcementInfo"));
        EXPECT_TRUE((';' + links).contains(QStringLiteral(";%1,1;").arg(slab->id()))) << links.toStdString();
        slab->properties()->asString(links, std::wstring(L"ReinforcementInfo"));
        EXPECT_TRUE((';' + links).contains(QStringLiteral(";%1,1;").arg(object->id()))) << links.toStdString();
    }
}

TEST_F(SlabBarsOfBuildingTest, negativeBarDependsOnTheSlabUnderIt)
{
    for (IHBXElementDrawObj *slab : qAsConst(hostSlabs)) {
        vks::CBox2<double> box;
        const auto middle = slab->shape()->box(box, true).Center();
        auto *bar = Access::add<Model::NegativeForcedBar>(local);
        bar->line = vks::CRefPtr<vks::CCurve2d>(
            new vks::CLine2d(middle - vks::CVec2<double>(0, 200), middle + vks::CVec2<double>(0, 200)));
        bar->leftStretchLength = 300;
        bar->rightStretchLength = 300;
        bar->barInfo = "C8@200";
    }
    const auto ids = Service::local2hbx(&local, host.service(), boxTree.get(), "Hall", "Ground floor");
    ASSERT_EQ(ids.size(), 29U);
    auto bar = ids.begin();
    for (IHBXElementDrawObj *slab : qAsConst(hostSlabs)) {
        IHBXElementDrawObj *object = host.model().drawObjects()->drawObjById((bar++)->first);
        EXPECT_EQ(object->properties()->asInt(std::wstring(L"DependSlabID")), slab->id());
    }
}

} // namespace
