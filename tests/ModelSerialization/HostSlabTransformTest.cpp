#include "ModelSerialization/HostSlabTransform.h"

#include "ModelSerialization/SlabReaderFixture.h"
#include "slab/SlabIOModelFixture.h"
#include "support/RecordingHost.h"

#include <QSet>

namespace {

using Service = ORVCADBoardLocalModelTransformHBXService_Sample;
using Model = ORVCADBoardLocalModel_Sample;
using Kinds = Model::Object::Types;

class HostSlabTransformTest : public SlabReaderFixture
{
protected:
    /** One object of each type that may be asked for, all of them linked and drawn so that they come in. */
    void putOneOfEach()
    {
        for (qint64 type : {0, 1, 15, 17, 18, 19, 24, 25, 26, 47, 48, 74, 202})
            placed(element(type, QByteArray::number(type)));
        for (qint64 type : {22, 49}) {
            areaBar(type, QByteArray::number(type) + " single");
            setNumbers(areaBar(type, QByteArray::number(type) + " straddling"), {{L"Type", 1}});
        }
        for (qint64 type : {23, 50})
            lineBar(type, QByteArray::number(type));
    }
    QStringList names() const
    {
        QStringList out;
        for (const Model::Object *object : local.objects())
            out.append(object->name);
        return out;
    }
};

// ---- Region and floor

TEST_F(HostSlabTransformTest, elevationsOfTheFloorComeInMetres)
{
    ASSERT_TRUE(Service::hbx2local(&model(), "House", "F2", topElev, btmElev, &local, Service::Everything));
    EXPECT_DOUBLE_EQ(topElev, 6.5);
    EXPECT_DOUBLE_EQ(btmElev, 3.0);
}

TEST_F(HostSlabTransformTest, unknownFloorLeavesEverythingAsItWas)
{
    putOneOfEach();
    EXPECT_FALSE(Service::hbx2local(&model(), "House", "F9", topElev, btmElev, &local, Service::Everything));
    EXPECT_TRUE(local.objects().empty());
    EXPECT_DOUBLE_EQ(topElev, -1.0);
    EXPECT_DOUBLE_EQ(btmElev, -1.0);
}

TEST_F(HostSlabTransformTest, unknownRegionLeavesEverythingAsItWas)
{
    putOneOfEach();
    EXPECT_FALSE(Service::hbx2local(&model(), "Garden", "F1", topElev, btmElev, &local, Service::Everything));
    EXPECT_TRUE(local.objects().empty());
    EXPECT_DOUBLE_EQ(topElev, -1.0);
}

TEST_F(HostSlabTransformTest, nullModelsGiveNothing)
{
    EXPECT_FALSE(Service::hbx2local(nullptr, "House", "F1", topElev, btmElev, &local, Service::Everything));
    EXPECT_FALSE(Service::hbx2local(&model(), "House", "F1", topElev, btmElev, nullptr, Service::Everything));
    EXPECT_DOUBLE_EQ(topElev, -1.0);
}

TEST_F(HostSlabTransformTest, otherFloorsStayOut)
{
    placed(element(19, "here"));
    placed(element(19, "above", "F2"));
    placed(element(74, "net above", "F2"));
    ASSERT_TRUE(read());
    EXPECT_EQ(names(), QStringList{"here"});
}

// ---- Parts

struct PartsCase
{
    int parts;
    QStringList names;
};

const QStringList kRafts{"48"};
const QStringList kBoards{"19", "24"};
const QStringList kRaftBars{"49 single", "49 straddling", "50"};
const QStringList kBoardBars{"22 single", "22 straddling", "23"};
const QStringList kSupportsAndNets{"25", "26", "15", "17", "18", "47", "0", "1", "202", "74"};

TEST_F(HostSlabTransformTest, partsAreComparedAsAWhole)
{
    putOneOfEach();
    const PartsCase cases[] = {{32, kRafts},
                               {4, kBoards},
                               {64, kRaftBars},
                               {8, kBoardBars},
                               {2, kSupportsAndNets},
                               {128, kSupportsAndNets},
                               {126, kRafts + kBoards + kRaftBars + kBoardBars + kSupportsAndNets},
                               {4 | 8, kSupportsAndNets},
                               {254, kSupportsAndNets},
                               {0, kSupportsAndNets}};
    for (const PartsCase &each : cases) {
        Model fresh;
        ASSERT_TRUE(Service::hbx2local(&model(), "House", "F1", topElev, btmElev, &fresh,
                                       static_cast<Service::Parts>(each.parts)));
        QStringList found;
        for (const Model::Object *object : fresh.objects())
            found.append(object->name);
        EXPECT_EQ(found, each.names) << each.parts << ": " << found.join(", ").toStdString();
    }
}

TEST_F(HostSlabTransformTest, partsHaveTheirNumbers)
{
    EXPECT_EQ(Service::Supports, 2);
    EXPECT_EQ(Service::Boards, 4);
    EXPECT_EQ(Service::BoardBars, 8);
    EXPECT_EQ(Service::Rafts, 32);
    EXPECT_EQ(Service::RaftBars, 64);
    EXPECT_EQ(Service::AxisNets, 128);
    EXPECT_EQ(Service::Everything, 126);
}

TEST_F(HostSlabTransformTest, everyTypeBecomesItsClass)
{
    putOneOfEach();
    ASSERT_TRUE(read());
    const std::pair<const char *, int> classes[] = {
        {"48", Kinds::RaftKind},
        {"19", Kinds::BoardKind},
        {"24", Kinds::BoardHoleKind},
        {"49 single", Kinds::RaftMainForcedBarKind},
        {"49 straddling", Kinds::RaftMainStraddleForcedBarKind},
        {"50", Kinds::RaftNegativeForcedBarKind},
        {"22 single", Kinds::ForcedBarKind},
        {"22 straddling", Kinds::StraddleForcedBarKind},
        {"23", Kinds::NegativeForcedBarKind},
        {"25", Kinds::ColumnKind},
        {"26", Kinds::ColumnKind},
        {"15", Kinds::BeamKind},
        {"17", Kinds::BeamKind},
        {"18", Kinds::BeamKind},
        {"47", Kinds::BeamKind},
        {"0", Kinds::WallKind},
        {"1", Kinds::WallKind},
        {"202", Kinds::WallKind},
        {"74", Kinds::AxisNetKind},
    };
    const auto objects = local.objects();
    ASSERT_EQ(objects.size(), std::size(classes));
    for (std::size_t i = 0; i < objects.size(); ++i) {
        EXPECT_EQ(objects[i]->name, classes[i].first);
        EXPECT_EQ(objects[i]->type(), classes[i].second) << classes[i].first;
    }
}

TEST_F(HostSlabTransformTest, typesOfOtherSubsystemsStayOut)
{
    for (qint64 type : {4, 5, 6, 7, 52, 53, 54, 75, 1001, 1002, 1003})
        placed(element(type));
    ASSERT_TRUE(read());
    EXPECT_TRUE(local.objects().empty());
}

TEST_F(HostSlabTransformTest, elementsComeBehindWhatTheModelHolds)
{
    placed(element(19, "B"));
    ASSERT_TRUE(read());
    ASSERT_TRUE(read(Service::Boards));
    EXPECT_EQ(names(), (QStringList{"B", "B"}));
}

// ---- Ids

TEST_F(HostSlabTransformTest, boardsAloneHaveNoIds)
{
    placed(element(19));
    ASSERT_TRUE(read(Service::Boards));
    EXPECT_EQ(only(local.boards()).elementId, -1);
}

TEST_F(HostSlabTransformTest, everythingHasIdsButSupports)
{
    putOneOfEach();
    ASSERT_TRUE(read());
    for (const Model::Object *object : local.objects()) {
        const bool isSupport = (object->type() & (Kinds::ColumnKind | Kinds::BeamKind | Kinds::WallKind)) != 0;
        if (isSupport) {
            EXPECT_EQ(object->elementId, -1) << object->name.toStdString();
            continue;
        }
        IHBXElementDrawObj *of = drawObjs().drawObjById(object->elementId);
        ASSERT_TRUE(of) << object->name.toStdString();
        EXPECT_EQ(nameOf(of->element()), object->name);
    }
}

TEST_F(HostSlabTransformTest, partsHaveNoIdsButAxisNets)
{
    putOneOfEach();
    for (int parts : {32, 4, 64, 8, 2})
        ASSERT_TRUE(read(parts));
    EXPECT_EQ(local.objects().size(), 19U);
    for (const Model::Object *object : local.objects())
        EXPECT_EQ(object->elementId > 0, object->type() == Kinds::AxisNetKind) << object->name.toStdString();
}

TEST_F(HostSlabTransformTest, identitiesAreFreshAndThoseOfAxisNetsNull)
{
    putOneOfEach();
    ASSERT_TRUE(read());
    ASSERT_TRUE(read());
    std::set<QUuid> identities;
    for (const Model::Object *object : local.objects()) {
        EXPECT_EQ(object->recongnizedID.isNull(), object->type() == Kinds::AxisNetKind) << object->name.toStdString();
        identities.insert(object->recongnizedID);
    }
    EXPECT_EQ(identities.size(), 2U * 18U + 1U); // null among them
}

TEST_F(HostSlabTransformTest, eachObjectOfAnElementIsAnElement)
{
    IHBXElement *both = element(19, "B");
    placed(both);
    placed(both);
    ASSERT_TRUE(read());
    EXPECT_EQ(names(), (QStringList{"B", "B"}));
}

TEST_F(HostSlabTransformTest, barOfTwoRowsComesInTwice)
{
    areaBar(22, "level", kLinks, "LINESTRING(0 0, 1000 0)");
    areaBar(22, "18 degrees", kLinks, "LINESTRING(0 0, 951.0565 309.017)");
    areaBar(22, "9 degrees", kLinks, "LINESTRING(0 0, 987.6883 156.4345)");
    ASSERT_TRUE(read());
    EXPECT_EQ(rows(local.forcedBars()), (QStringList{"level 0", "9 degrees 1", "18 degrees 0", "9 degrees 1"}));
}

TEST_F(HostSlabTransformTest, rowsOfThreeBarsGoByTheirTexts)
{
    const std::pair<const char *, const char *> bars[] = {{"first", "B"}, {"second", "A"}, {"third", "C"}};
    for (const auto &[name, barInfo] : bars)
        setTexts(areaBar(22, name), {{L"BarInfo", barInfo}});
    ASSERT_TRUE(read());
    EXPECT_EQ(rows(local.forcedBars()), (QStringList{"second 0", "first 1", "third 2"}));
}

// ---- What the host is asked

TEST_F(HostSlabTransformTest, hostIsAskedInOrder)
{
    RecordingHost host(*store.service());
    ASSERT_TRUE(
        Service::hbx2local(host.service()->model(), "House", "F1", topElev, btmElev, &local, Service::Everything));
    const QStringList expected{"findRegion(\"House\")",
                               "findFloor(\"F1\")",
                               "drawObjsOfTypes({48}, true)",
                               "drawObjsOfTypes({19}, true)",
                               "drawObjsOfTypes({24}, true)",
                               "drawObjsOfTypes({49}, true)",
                               "drawObjsOfTypes({50}, true)",
                               "drawObjsOfTypes({22}, true)",
                               "drawObjsOfTypes({23}, true)",
                               "drawObjsOfTypes({25, 26}, true)",
                               "drawObjsOfTypes({15, 17, 18, 47}, true)",
                               "drawObjsOfTypes({0, 1, 202}, true)",
                               "queryDrawObjsOfFloor(2, 74, -1, true)"};
    EXPECT_EQ(host.calls(), expected) << host.calls().join('\n').toStdString();
}

TEST_F(HostSlabTransformTest, readingChangesNothingInTheHost)
{
    putOneOfEach();
    RecordingHost host(*store.service());
    ASSERT_TRUE(
        Service::hbx2local(host.service()->model(), "House", "F1", topElev, btmElev, &local, Service::Everything));
    for (const QString &call : host.calls())
        EXPECT_TRUE(call.startsWith("find") || call.startsWith("drawObjsOfTypes") || call.startsWith("query"))
            << call.toStdString();
}

TEST_F(HostSlabTransformTest, unknownRegionIsNotAskedForFloors)
{
    RecordingHost host(*store.service());
    EXPECT_FALSE(
        Service::hbx2local(host.service()->model(), "Garden", "F1", topElev, btmElev, &local, Service::Everything));
    EXPECT_EQ(host.calls(), QStringList{"findRegion(\"Garden\")"});
}

TEST_F(HostSlabTransformTest, catalogueHasEveryPropertyThatIsRead)
{
    const std::pair<std::vector<qint64>, QStringList> asked[] = {
        {{48}, {"TopElev", "BottomElev", "Remark"}},
        {{19}, {"TopElev", "Remark"}},
        {{24}, {"Remark", "LongSpanReinforcedBar", "ShortSpanReinforcedBar", "ObliqueReinforcedBar"}},
        {{49, 22},
         {"Type", "Position", "BarInfo", "CurveData", "Remark", "LeftHook", "RightHook", "LeftLabel", "RightLabel",
          "LabelPosition", "ReinforcementInfo"}},
        {{22, 23}, {"DistributedBar", "SaddleBarLineCount"}},
        {{50, 23},
         {"LabelPosition", "IncludeSupport", "LeftLabel", "RightLabel", "CurveData", "LeftHook", "RightHook", "BarInfo",
          "Remark"}},
        {{25, 26}, {"TopElev"}},
        {{15, 47, 17, 18, 0, 202, 1}, {"StartPtTopElev", "EndPtTopElev"}},
        {{74}, {"Remark"}},
    };
    for (const auto &[types, names] : asked)
        for (qint64 type : types)
            for (const QString &name : names)
                EXPECT_TRUE(placed(element(type))->properties()->hasProperty(name.toStdWString()))
                    << type << ' ' << name.toStdString();
}

// ---- With a drawing

class HostSlabDrawingTest : public SlabIOModelFixture
{
protected:
    HostSlabDrawingTest()
    {
        hbx::embedded::ProjectRecord record = hbx::embedded::emptyHouse();
        record.options = {{"AutoIdentifyBackstrapsSetting", "default bar", "C8@200"},
                          {"BeamSetting", "beam code", "KL"},
                          {"AutoIdentifyBackstrapsSetting", "layer", ""},
                          {"AutoIdentifyBackstrapsSetting", "default bar", "never read"}};
        store.load(record);
        IHBXModel &house = *store.service()->model();
        IHBXFloor *floor = house.regions()->at(0)->floors()->at(0);
        IHBXElement *slab = house.elements()->createElement(19, 0, floor, "B");
        house.drawObjects()->addDrawObj(house.drawObjects()->createDrawObj(floor, slab, true));
        IOAccess::values(io.options())["from before"] = "x";
    }
    template <typename Drawing> bool read(const Drawing &drawing, const char *floor = "F1")
    {
        return Service::hbx2local(store.service()->model(), "House", floor, drawing, &io);
    }
    using Options = std::map<QString, QString>;
    void expectAllRead() const
    {
        ASSERT_EQ(io.boards().size(), 1U);
        EXPECT_GT(io.boards()[0]->elementId, 0);
        ASSERT_TRUE(io.drawing());
        EXPECT_EQ(io.drawing()->getTitle(), "plan");
        EXPECT_EQ(io.currentRegionName(), "House");
        EXPECT_EQ(io.currentFloorName(), "F1");
        EXPECT_DOUBLE_EQ(io.currentFloorTopElev(), 3.0);
        EXPECT_DOUBLE_EQ(io.currentFloorBtmElev(), 0.0);
        EXPECT_EQ(IOAccess::values(io.options()), (Options{{"default bar", "C8@200"}, {"layer", ""}}));
    }
    void expectNothingButBoards(std::size_t boards) const
    {
        EXPECT_EQ(io.boards().size(), boards);
        EXPECT_FALSE(io.drawing());
        EXPECT_EQ(io.currentFloorName(), "");
        EXPECT_TRUE(std::isnan(io.currentFloorTopElev()));
        EXPECT_EQ(io.options().value("from before"), "x");
    }

    hbx::embedded::HBXModelStore store;
    IOModel io;
};

TEST_F(HostSlabDrawingTest, pathGivesDrawingFloorAndOptions)
{
    ASSERT_TRUE(read(drawingFile("plan.cadi2")));
    expectAllRead();
}

TEST_F(HostSlabDrawingTest, projectWithoutOptionsEmptiesThem)
{
    store.load(hbx::embedded::emptyHouse());
    ASSERT_TRUE(read(drawingFile("plan.cadi2")));
    EXPECT_EQ(IOAccess::values(io.options()), Options());
}

TEST_F(HostSlabDrawingTest, drawingThatCannotBeReadLeavesTheElementsAlone)
{
    EXPECT_FALSE(read(path("missing.cadi2")));
    expectNothingButBoards(1);
}

TEST_F(HostSlabDrawingTest, unknownFloorLeavesTheModelAsItWas)
{
    EXPECT_FALSE(read(drawingFile("plan.cadi2"), "F9"));
    expectNothingButBoards(0);
}

TEST_F(HostSlabDrawingTest, nullModelIsRefused)
{
    EXPECT_FALSE(Service::hbx2local(store.service()->model(), "House", "F1", drawingFile("plan.cadi2"), nullptr));
}

TEST_F(HostSlabDrawingTest, drawingInMemoryComesInAsACopy)
{
    DrawingPtr plan = drawing();
    plan->setFilePath("/somewhere/level.one.dwg");
    ASSERT_TRUE(read(plan.get()));
    expectAllRead();
    EXPECT_NE(io.drawing(), plan.get());
    EXPECT_EQ(QFileInfo(io.drawing()->getFilePath()).fileName(), "level.one.cadi2");
    const auto line = lineOf(*plan);
    plan.reset();
    EXPECT_FALSE(lives(line));
    EXPECT_EQ(io.drawing()->lineCount(), 1);
}

TEST_F(HostSlabDrawingTest, drawingInMemoryLeavesNoFileBehind)
{
    const DrawingPtr plan = drawing();
    ASSERT_TRUE(read(plan.get()));
    EXPECT_EQ(leftovers(), QStringList());
    EXPECT_FALSE(read(plan.get(), "F9"));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(HostSlabDrawingTest, drawingThatCannotBeWrittenEndsBeforeTheHostIsRead)
{
    const DrawingPtr plan = drawing();
    useTemporary(put("no folder", "a file"));
    EXPECT_FALSE(read(plan.get()));
    expectNothingButBoards(0);
}

TEST_F(HostSlabDrawingTest, nullDrawingIsRefused)
{
    EXPECT_FALSE(read(static_cast<dwgx::DWGXModel *>(nullptr)));
    expectNothingButBoards(0);
}

} // namespace
