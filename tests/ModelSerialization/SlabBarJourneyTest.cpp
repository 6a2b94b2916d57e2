#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "ModelSerialization/ORVCADBoardLocalModelTransformHBXService_Sample.h"
#include "ModelSerialization/PlainBarRules.h"
#include "platform/dwgx/DWGXBaseBoxTree.h"
#include "platform/host/IHBXCurState.h"
#include "platform/host/IHBXProperties.h"
#include "support/BuildingHost.h"
#include "tools/SlabBarGenerator.h"

#include <QJsonArray>
#include <QJsonObject>

#include <map>

// Bars over floors of the sample buildings: a reply with slabs and bars goes into the host, slabs first, then the bars of
// slabs with a tree of the floor's slabs, then those of rafts with a tree of its rafts, and comes out again.

namespace {

using Service = ORVCADBoardLocalModelTransformHBXService_Sample;
using Json = ORVCADBoardLocalModelPersistenceService_Sample;
using Model = ORVCADBoardLocalModel_Sample;
using plainbars::Point;
using plainbars::Segment;
using Objects = QList<IHBXElementDrawObj *>;

constexpr double kNear = 1e-4; // mm

struct FloorCase
{
    const char *building;
    const char *region;
    const char *floor;
    std::size_t slabs;
    std::size_t rafts;
};

std::ostream &operator<<(std::ostream &out, const FloorCase &floor)
{
    return out << floor.building << ' ' << floor.floor;
}

void expectNear(const Point &actual, const Point &expected, const QString &what)
{
    EXPECT_NEAR(actual.x, expected.x, kNear) << what.toStdString();
    EXPECT_NEAR(actual.y, expected.y, kNear) << what.toStdString();
}

QString textOf(IHBXElementDrawObj &object, const wchar_t *name)
{
    QString text;
    return object.properties()->asString(text, std::wstring(name));
}
int intOf(IHBXElementDrawObj &object, const wchar_t *name) { return object.properties()->asInt(std::wstring(name)); }
vks::CRefPtr<vks::CPolygon> outlineOf(IHBXElementDrawObj &object)
{
    vks::CRefPtr<vks::CPolygon> outline;
    return object.shape()->worldPoly(outline, true);
}
Segment drawnIn(IHBXElementDrawObj &object)
{
    vks::CRefPtr<vks::CCurve2d> curve;
    return plainbars::segmentOf(*object.properties()->asCurve(curve, std::wstring(L"CurveData")));
}
QString defaultName(const char *prefix, const QString &barInfo)
{
    return QLatin1String(prefix) + barInfo.toUpper().replace('@', '-');
}
int keptUpTo(int last, int value, int other) { return value >= 0 && value <= last ? value : other; }

class SlabBarJourneyTest : public ::testing::TestWithParam<FloorCase>
{
protected:
    SlabBarJourneyTest()
    {
        host.setCurrent(region(), floorName());
        makeReply();
        host.remove({19, 24, 48, 22, 23, 49, 50});
        write(4 | 32, {});
        slabs = onFloor(19);
        rafts = onFloor(48);
        slabBars = write(8, slabs);
        raftBars = write(64, rafts);
        double top = 0.0;
        double bottom = 0.0;
        EXPECT_TRUE(Service::hbx2local(&host.model(), region(), floorName(), top, bottom, &back, Service::Everything));
    }

    static QString region() { return QString::fromUtf8(GetParam().region); }
    static QString floorName() { return QString::fromUtf8(GetParam().floor); }

    /** The floor's slabs and rafts as new ones, with bars over them, in text. */
    void makeReply()
    {
        Model floor;
        double top = 0.0;
        double bottom = 0.0;
        host.remove({22, 23, 49, 50});
        EXPECT_TRUE(Service::hbx2local(&host.model(), region(), floorName(), top, bottom, &floor, Service::Everything));
        SlabBarGenerator generator(11);
        generator.layOverSlabs(floor, floor);
        generator.layOverRafts(floor, floor);
        reply = Json::model2json(&floor, Json::Everything);
        for (auto array = reply.begin(); array != reply.end(); ++array) {
            QJsonArray asNew;
            for (QJsonValue value : array.value().toArray()) {
                QJsonObject object = value.toObject();
                object.insert(QStringLiteral("id"), -1);
                asNew.append(object);
            }
            array.value() = asNew;
        }
    }

    using Ids = std::map<qint64, QUuid>;

    /** Writes parts of the reply with a tree of plates; what the reply held of them stays in m_given. */
    Ids write(int parts, const Objects &plates)
    {
        given.push_back(std::make_unique<Model>());
        EXPECT_TRUE(Json::json2model(reply, given.back().get(), parts));
        const std::unique_ptr<dwgx::DWGXBaseBoxTree> tree(dwgx::DWGXBaseBoxTree::createObject());
        for (IHBXElementDrawObj *plate : plates) {
            vks::CBox2<double> box;
            tree->add(plate->shape()->box(box, true), plate);
        }
        return Service::local2hbx(given.back().get(), host.service(), tree.get(), region(), floorName());
    }
    const Model &givenSlabBars() const { return *given[1]; }
    const Model &givenRaftBars() const { return *given[2]; }

    Objects onFloor(qint64 type) const
    {
        Objects out;
        host.service()->curState()->floor()->drawObjsOfTypes(out, {type}, true);
        return out;
    }

    /** Host object, what the reply held of it, and what came back. */
    template <typename Bar> struct Trip
    {
        IHBXElementDrawObj *object;
        const Bar *out;
        const Bar *in;
    };
    using List = std::vector<const Model::ForcedBar *> (Model::*)() const;

    /** The trips of all bars of a kind that the host took, in the order of ids. Each came back once. */
    template <typename Bar>
    std::vector<Trip<Bar>> trips(const std::vector<const Bar *> &out, const std::vector<const Bar *> &in,
                                 const Ids &ids)
    {
        std::map<QUuid, const Bar *> byUuid;
        for (const Bar *bar : out)
            byUuid[bar->recongnizedID] = bar;
        std::map<qint64, std::vector<const Bar *>> byId;
        for (const Bar *bar : in)
            byId[bar->elementId].push_back(bar);
        std::vector<Trip<Bar>> all;
        for (const auto &[id, uuid] : ids) {
            if (byUuid.count(uuid) == 0)
                continue; // of another kind
            EXPECT_EQ(byId[id].size(), 1U) << id;
            if (byId[id].size() == 1)
                all.push_back({host.model().drawObjects()->drawObjById(id), byUuid[uuid], byId[id].front()});
        }
        EXPECT_EQ(all.size(), in.size());
        return all;
    }

    // ---- Area bars

    static bool names(IHBXElementDrawObj &object, const IHBXElementDrawObj &other)
    {
        return (';' + textOf(object, L"ReinforcementInfo")).contains(QStringLiteral(";%1,1;").arg(other.id()));
    }
    static Objects under(IHBXElementDrawObj &bar, const Objects &plates)
    {
        Objects found;
        for (IHBXElementDrawObj *plate : plates) {
            const plainbars::Overlap overlap = plainbars::overlap(*outlineOf(bar), *outlineOf(*plate));
            // Where the plain rule cannot tell, either is right.
            if (overlap == plainbars::Overlap::Clear || (overlap == plainbars::Overlap::Thin && names(bar, *plate)))
                found.append(plate);
        }
        return found;
    }
    static void expectLinks(IHBXElementDrawObj &bar, const Objects &plates)
    {
        const Objects expected = under(bar, plates);
        QString links;
        for (IHBXElementDrawObj *plate : expected) {
            links += QStringLiteral("%1,1;").arg(plate->id());
            EXPECT_TRUE(names(*plate, bar));
        }
        EXPECT_EQ(textOf(bar, L"ReinforcementInfo"), links);
        ASSERT_FALSE(expected.isEmpty());
        QString name;
        const QString catalog = QStringLiteral("%1[%2]").arg(expected[0]->element()->name(name)).arg(expected[0]->id());
        EXPECT_EQ(textOf(bar, L"Catalog"), bar.properties()->hasProperty(L"Catalog") ? catalog : QString());
    }
    template <typename Bar> void expectArea(const Trip<Bar> &trip, const Point &start, const char *prefix)
    {
        const QString what = QString::number(trip.object->id());
        EXPECT_EQ(trip.in->name, defaultName(prefix, trip.out->barInfo));
        EXPECT_EQ(trip.in->barInfo, trip.out->barInfo.toUpper());
        EXPECT_EQ(trip.in->leftHookLength, trip.out->leftHookLength);
        EXPECT_NEAR(trip.in->surface->Area(), trip.out->surface->Area(), 1e-6 * trip.out->surface->Area());
        const Segment drawn = plainbars::through(*trip.out->surface, start, trip.out->direction);
        expectNear(drawnIn(*trip.object).start, drawn.start, what);
        expectNear(drawnIn(*trip.object).end, drawn.end, what);
        expectNear(trip.in->refPoint, drawn.end, what); // meant: the end of "CurveData" counts, not its start
        EXPECT_TRUE(trip.in->refPointValid);
        expectNear(trip.in->direction, trip.out->direction, what);
    }
    template <typename Bar> static Point mainStart(const Bar &bar, const std::array<double, 4> &places)
    {
        if (bar.refPointValid)
            return bar.refPoint;
        const Point across(bar.direction.y, -bar.direction.x);
        const Segment span = plainbars::through(*bar.surface, bar.surface->Barycentre(), across);
        const double part =
            plainbars::rowOffset(bar.rowNumber) + places[static_cast<std::size_t>(keptUpTo(2, bar.forcedType, 3))];
        return span.start + across * (span.start.DistanceTo(span.end) * part);
    }
    template <typename Bar> static Point straddleStart(const Bar &bar)
    {
        return bar.refPointValid ? bar.refPoint : bar.surface->Barycentre();
    }
    template <typename Bar> static void expectRows(const std::vector<Trip<Bar>> &all, const Objects &plates)
    {
        std::vector<plainbars::AreaBar> bars;
        for (const Trip<Bar> &trip : all) {
            plainbars::AreaBar bar{{}, intOf(*trip.object, L"Position"), trip.out->direction, trip.in->barInfo};
            for (const IHBXElementDrawObj *plate : under(*trip.object, plates))
                bar.slabs.insert(plate->id());
            bars.push_back(std::move(bar));
        }
        const std::vector<int> rows = plainbars::rowsOf(bars);
        for (std::size_t i = 0; i < all.size(); ++i)
            EXPECT_EQ(all[i].in->rowNumber, rows[i]) << all[i].object->id();
    }
    template <typename Bar> void expectStraddle(const Trip<Bar> &trip, const char *prefix, int position)
    {
        expectArea(trip, straddleStart(*trip.out), prefix);
        EXPECT_EQ(trip.in->rightHookLength, trip.out->rightHookLength);
        EXPECT_EQ(trip.in->leftStretchLength, trip.out->leftStretchLength);
        EXPECT_EQ(trip.in->rightStretchLength, trip.out->rightStretchLength);
        const int label = trip.out->labelPosition;
        EXPECT_EQ(trip.in->labelPosition, label == 0 || label == 1 || label == 3 ? label : 2);
        EXPECT_EQ(intOf(*trip.object, L"Type"), 1);
        EXPECT_EQ(intOf(*trip.object, L"Position"), position);
    }

    // ---- Line bars

    static double levelOf(IHBXElementDrawObj &slab) { return slab.properties()->asDouble(std::wstring(L"TopElev")); }
    /** The lowest slab under a bar, the first of equals. */
    static IHBXElementDrawObj *slabUnder(const Segment &drawn, const Objects &plates)
    {
        IHBXElementDrawObj *lowest = nullptr;
        for (IHBXElementDrawObj *plate : plates)
            if (plainbars::runsOver(drawn, *outlineOf(*plate)) && (!lowest || levelOf(*plate) < levelOf(*lowest)))
                lowest = plate;
        return lowest;
    }
    template <typename Bar> static Segment drawnAs(const Bar &bar)
    {
        const Segment line = plainbars::segmentOf(*bar.line);
        const Point point = bar.refPointValid ? bar.refPoint : (line.start + line.end) / 2;
        const Point across(line.along().y, -line.along().x);
        return {point - across * bar.leftStretchLength, point + across * bar.rightStretchLength};
    }
    template <typename Bar> void expectLine(const Trip<Bar> &trip, const Objects &plates, const char *prefix)
    {
        const Bar &out = *trip.out;
        const QString what = QString::number(trip.object->id());
        EXPECT_EQ(trip.in->name, defaultName(prefix, out.barInfo));
        EXPECT_EQ(trip.in->barInfo, out.barInfo.toUpper());
        EXPECT_EQ(trip.in->leftHookLength, out.leftHookLength);
        EXPECT_EQ(trip.in->rightHookLength, out.rightHookLength);
        const bool isRightAlone = out.leftStretchLength == 0;
        EXPECT_EQ(trip.in->leftStretchLength, isRightAlone ? out.rightStretchLength : out.leftStretchLength);
        EXPECT_EQ(trip.in->rightStretchLength, isRightAlone ? 0 : out.rightStretchLength);
        const Segment drawn = drawnAs(out);
        expectNear(drawnIn(*trip.object).start, drawn.start, what);
        expectNear(drawnIn(*trip.object).end, drawn.end, what);
        const IHBXElementDrawObj *slab = slabUnder(drawn, plates);
        EXPECT_EQ(intOf(*trip.object, L"DependSlabID"), slab ? slab->id() : -1) << what.toStdString();
        // Drawn from its line on, the bar starts on no side of it, and the line comes in turned.
        const Segment line = plainbars::segmentOf(*out.line);
        expectNear(trip.in->line->StartPoint(), isRightAlone ? line.end : line.start, what);
        expectNear(trip.in->line->EndPoint(), isRightAlone ? line.start : line.end, what);
        EXPECT_TRUE(trip.in->refPointValid);
        expectNear(trip.in->refPoint, out.refPointValid ? out.refPoint : (line.start + line.end) / 2, what);
    }
    template <typename Bar> static void expectLineRows(const std::vector<Trip<Bar>> &all)
    {
        std::vector<plainbars::LineBar> bars;
        for (const Trip<Bar> &trip : all) {
            const Segment line = plainbars::segmentOf(*trip.out->line);
            const bool isOneSided = trip.in->rightStretchLength == 0;
            // The side in the plan: the host's line runs as the reply's does, with the length on its left label.
            const double angle = std::atan2(line.along().y, line.along().x);
            const bool isExchanged = angle < 0.4014 && angle > -3.14159265 + 0.4014;
            bars.push_back({line, isOneSided ? (isExchanged ? 1 : 0) : 2, trip.in->barInfo,
                            static_cast<int>(trip.in->leftStretchLength),
                            static_cast<int>(trip.in->rightStretchLength)});
        }
        const std::vector<int> rows = plainbars::rowsOf(bars);
        for (std::size_t i = 0; i < all.size(); ++i)
            EXPECT_EQ(all[i].in->rowNumber, rows[i]) << all[i].object->id();
    }

    BuildingHost host{GetParam().building};
    QJsonObject reply;
    std::vector<std::unique_ptr<Model>> given; ///< slabs, bars of slabs, bars of rafts
    Objects slabs;
    Objects rafts;
    Ids slabBars;
    Ids raftBars;
    Model back;
};

TEST_P(SlabBarJourneyTest, platesStandBeforeTheirBars)
{
    EXPECT_EQ(static_cast<std::size_t>(slabs.size()), GetParam().slabs);
    EXPECT_EQ(static_cast<std::size_t>(rafts.size()), GetParam().rafts);
    EXPECT_EQ(slabBars.empty(), slabs.isEmpty());
    EXPECT_EQ(raftBars.empty(), rafts.isEmpty());
}

TEST_P(SlabBarJourneyTest, workingBarsComeBack)
{
    const auto all = trips(givenSlabBars().forcedBars(), back.forcedBars(), slabBars);
    EXPECT_EQ(all.size(), givenSlabBars().forcedBars().size());
    for (const auto &trip : all) {
        expectArea(trip, mainStart(*trip.out, {0.25, 0.75, 0.618, 0.382}), "SLJ-");
        expectLinks(*trip.object, slabs);
        EXPECT_EQ(trip.in->rightHookLength, trip.out->leftHookLength) << "meant: both hooks are the left one";
        EXPECT_EQ(trip.in->forcedType, trip.out->forcedType);
        EXPECT_EQ(trip.in->supportPoly->ToText(), outlineOf(*under(*trip.object, slabs).front())->ToText());
    }
    expectRows(all, slabs);
}

TEST_P(SlabBarJourneyTest, straddlingBarsComeBack)
{
    const auto all = trips(givenSlabBars().straddleForcedBars(), back.straddleForcedBars(), slabBars);
    EXPECT_EQ(all.size(), givenSlabBars().straddleForcedBars().size());
    for (const auto &trip : all) {
        expectStraddle(trip, "KBSLJ-", 1);
        expectLinks(*trip.object, slabs);
        EXPECT_EQ(trip.in->distributeBarInfo, trip.out->distributeBarInfo);
        EXPECT_EQ(trip.in->saddleBarlineCount, trip.out->saddleBarlineCount);
        const Objects supports = under(*trip.object, slabs);
        ASSERT_EQ(trip.in->supportPolys.size(), static_cast<std::size_t>(supports.size()));
        for (int i = 0; i < supports.size(); ++i)
            EXPECT_EQ(trip.in->supportPolys[static_cast<std::size_t>(i)]->ToText(), outlineOf(*supports[i])->ToText());
    }
    expectRows(all, slabs);
}

TEST_P(SlabBarJourneyTest, topBarsComeBack)
{
    const auto all = trips(givenSlabBars().negativeForcedBars(), back.negativeForcedBars(), slabBars);
    for (const auto &trip : all) {
        expectLine(trip, slabs, "FJ-");
        EXPECT_EQ(trip.in->distributeBarInfo, trip.out->distributeBarInfo);
        EXPECT_EQ(trip.in->saddleBarlineCount, trip.out->saddleBarlineCount);
        const bool isOneSided = trip.in->rightStretchLength == 0;
        const int label = trip.out->labelPosition;
        EXPECT_EQ(trip.in->labelPosition, isOneSided ? keptUpTo(4, label, 2) : (label == 5 ? 5 : 2));
    }
    expectLineRows(all);
}

TEST_P(SlabBarJourneyTest, topBarsOverOthersStayOut)
{
    // The host gets them by name and text, in the order in which these first come.
    std::map<QString, std::vector<const Model::NegativeForcedBar *>> byText;
    std::vector<QString> texts;
    for (const Model::NegativeForcedBar *bar : givenSlabBars().negativeForcedBars()) {
        if (byText[bar->barInfo.toUpper()].empty())
            texts.push_back(bar->barInfo.toUpper());
        byText[bar->barInfo.toUpper()].push_back(bar);
    }
    std::vector<plainbars::TopBar> bars;
    std::vector<QUuid> uuids;
    for (const QString &text : texts)
        for (const Model::NegativeForcedBar *bar : byText[text]) {
            IHBXElementDrawObj *slab = slabUnder(drawnAs(*bar), slabs);
            bars.push_back({plainbars::segmentOf(*bar->line), drawnAs(*bar), slab ? levelOf(*slab) : 0.0});
            uuids.push_back(bar->recongnizedID);
        }
    std::set<QUuid> written;
    for (const auto &[id, uuid] : slabBars)
        written.insert(uuid);
    const std::vector<bool> expected = plainbars::placesFree(bars);
    for (std::size_t i = 0; i < bars.size(); ++i)
        EXPECT_EQ(written.count(uuids[i]) == 1, expected[i]) << i;
}

TEST_P(SlabBarJourneyTest, barsOfRaftsComeBack)
{
    const auto all = trips(givenRaftBars().raftMainForcedBars(), back.raftMainForcedBars(), raftBars);
    EXPECT_EQ(all.size(), givenRaftBars().raftMainForcedBars().size());
    for (const auto &trip : all) {
        expectArea(trip, mainStart(*trip.out, {0.25, 0.75, 0.5, 0.5}), "FBZJ-");
        expectLinks(*trip.object, rafts);
        EXPECT_EQ(trip.in->rightHookLength, trip.out->leftHookLength) << "meant: both hooks are the left one";
        EXPECT_EQ(trip.in->forcedType, trip.out->forcedType);
    }
    expectRows(all, rafts);
}

TEST_P(SlabBarJourneyTest, barsAcrossRaftsComeBack)
{
    const auto all = trips(givenRaftBars().raftMainStraddleForcedBars(), back.raftMainStraddleForcedBars(), raftBars);
    EXPECT_EQ(all.size(), givenRaftBars().raftMainStraddleForcedBars().size());
    for (const auto &trip : all) {
        expectStraddle(trip, "KFBZJ-", 0);
        expectLinks(*trip.object, rafts);
    }
    expectRows(all, rafts);
}

TEST_P(SlabBarJourneyTest, topBarsOfRaftsComeBack)
{
    const auto all = trips(givenRaftBars().raftNegativeForcedBars(), back.raftNegativeForcedBars(), raftBars);
    EXPECT_EQ(all.size(), givenRaftBars().raftNegativeForcedBars().size()) << "held against no bars of rafts";
    for (const auto &trip : all) {
        expectLine(trip, rafts, "FBFJ-");
        const bool isOneSided = trip.in->rightStretchLength == 0;
        EXPECT_EQ(trip.in->labelPosition, isOneSided ? keptUpTo(4, trip.out->labelPosition, 2) : 2)
            << "meant: never within the support";
    }
    expectLineRows(all);
}

INSTANTIATE_TEST_SUITE_P(Buildings, SlabBarJourneyTest,
                         ::testing::Values(FloorCase{"duplex-apartment", "Duplex", "Level 1", 2, 0},
                                           FloorCase{"duplex-apartment", "Duplex", "T/FDN", 0, 11},
                                           FloorCase{"precast-hall", "Hall", "Ground floor", 29, 0},
                                           FloorCase{"masonry-block", "Block", "Level 1", 21, 0},
                                           FloorCase{"masonry-block", "Block", "Foundation", 0, 56}));

} // namespace
