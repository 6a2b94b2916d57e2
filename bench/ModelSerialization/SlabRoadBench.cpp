#include "ModelSerialization/ORVCADBoardLocalModelTransformHBXService_Sample.h"
#include "ModelSerialization/SlabFloor.h"
#include "platform/dwgx/DWGXBaseBoxTree.h"
#include "platform/embedded/HBXProject.h"
#include "platform/geometry/CLine2d.h"
#include "platform/host/IHBXCurState.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXService.h"
#include "platform/host/IHBXShape.h"
#include "support/RatioBench.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdlib>

// How the cost of a slab and of a bar grows with their number on the floor: into the host and out of it.
//
//     SlabRoadBench [slabs]      as many slabs in all instead of 20,000

using hbx::embedded::HBXProject;
using hbx::embedded::ProjectError;

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Service = ORVCADBoardLocalModelTransformHBXService_Sample;
using Tree = std::unique_ptr<dwgx::DWGXBaseBoxTree>;

constexpr int kSmallFloor = 200; // slabs
constexpr double kGrowth = 1.3;

const QString kRegion = QStringLiteral("House");
const QString kFloor = QStringLiteral("Level 1");

QByteArray emptyBuilding()
{
    const QJsonObject floor{{"name", kFloor}, {"code", "1"}, {"bottomElev", 0}, {"height", 3}};
    const QJsonObject region{{"name", kRegion}, {"floors", QJsonArray{floor}}};
    const QJsonObject building{
        {"format", "hbx-project"}, {"version", 1}, {"name", "Slabs"}, {"regions", QJsonArray{region}}};
    return QJsonDocument(building).toJson();
}

/** A building with one floor. */
struct Building
{
    Building()
    {
        ProjectError error;
        project = HBXProject::fromJson(emptyBuilding(), QStringLiteral("slabs.json"), error);
        if (!project || !project->setCurrent(kRegion, kFloor))
            std::abort();
    }
    std::size_t write(const Model &local)
    {
        return Service::local2hbx(&local, project->service(), tree.get(), kRegion, kFloor).size();
    }
    void fillTree()
    {
        QList<IHBXElementDrawObj *> slabs;
        project->service()->curState()->floor()->drawObjsOfTypes(slabs, {19}, true);
        for (IHBXElementDrawObj *slab : qAsConst(slabs)) {
            vks::CBox2<double> box;
            tree->add(slab->shape()->box(box, IHBXModel::g_bDefaultAutoCalc), slab);
        }
    }
    std::size_t read()
    {
        Model local;
        double top = 0.0;
        double bottom = 0.0;
        Service::hbx2local(project->service()->model(), kRegion, kFloor, top, bottom, &local, Service::Everything);
        return local.objects().size();
    }

    std::unique_ptr<HBXProject> project;
    Tree tree{dwgx::DWGXBaseBoxTree::createObject()};
};

/** The roads over so many slabs, in floors of so many each. */
class Roads
{
public:
    Roads(int all, int onAFloor) : m_floors(static_cast<std::size_t>(all / onAFloor))
    {
        Model floor;
        bench::addSlabFloor(floor, onAFloor);
        bench::addSlabFloor(m_slabs, onAFloor);
        bench::addSlabBars(floor, m_bars);
    }

    std::size_t slabCount() const { return m_floors * m_slabs.boards().size(); }
    std::size_t barCount() const { return m_floors * m_bars.objects().size(); }

    bench::Work writeSlabs()
    {
        return {[this] { openAll(); }, [this] { writeAll(m_slabs); }};
    }
    bench::Work writeBars()
    {
        return {[this] { openWithSlabs(); }, [this] { writeAll(m_bars); }};
    }
    bench::Work read()
    {
        openWithSlabs();
        if (writeAll(m_bars) != barCount())
            std::abort(); // the figures would say nothing
        return [this] {
            for (Building &building : m_buildings)
                bench::keep(building.read());
        };
    }
    void close() { m_buildings.clear(); }

private:
    void openAll()
    {
        m_buildings.clear();
        m_buildings.resize(m_floors);
    }
    void openWithSlabs()
    {
        openAll();
        writeAll(m_slabs);
        for (Building &building : m_buildings)
            building.fillTree();
    }
    std::size_t writeAll(const Model &local)
    {
        std::size_t written = 0;
        for (Building &building : m_buildings) {
            building.project->makeCurrent();
            written += building.write(local);
        }
        return written;
    }

    std::size_t m_floors;
    Model m_slabs;
    Model m_bars;
    std::vector<Building> m_buildings;
};

void addRows(bench::RatioTable &table, int all, int onAFloor)
{
    Roads large(all, onAFloor);
    Roads small(all, kSmallFloor);
    const std::string slabs = ", " + std::to_string(onAFloor) + " slabs a floor";
    table.growth("slabs into the host" + slabs, large.slabCount(), large.writeSlabs(), small.slabCount(),
                 small.writeSlabs(), kGrowth);
    table.growth("bars into the host" + slabs, large.barCount(), large.writeBars(), small.barCount(), small.writeBars(),
                 kGrowth);
    table.growth("out of the host" + slabs, large.barCount(), large.read(), small.barCount(), small.read(), kGrowth);
}

/** Top bars alone, each with its neighbours on its line: what is held against all others of the floor. */
class TopBars
{
public:
    explicit TopBars(int count)
    {
        for (int i = 0; i < count; ++i) {
            auto *bar = new Model::NegativeForcedBar(&m_bars);
            const int row = i / 100;
            const vks::CVec2<double> start(i % 100 * 3000.0, row * 2000.0);
            bar->line = vks::CRefPtr<vks::CCurve2d>(new vks::CLine2d(start, start + vks::CVec2<double>(3000, 0)));
            bar->barInfo = QStringLiteral("C8@200");
            bar->leftStretchLength = bar->rightStretchLength = 800;
        }
    }
    bench::Work write()
    {
        return {[this] { m_building = std::make_unique<Building>(); }, [this] { m_building->write(m_bars); }};
    }

private:
    Model m_bars;
    std::unique_ptr<Building> m_building;
};

} // namespace

int main(int count, char **arguments)
{
    const int all = count > 1 ? std::max(kSmallFloor, std::atoi(arguments[1])) : 20000;
    bench::RatioTable table("Slabs with bars, in larger floors against floors of 200 slabs", bench::Time::Cpu);
    for (const int onAFloor : {all / 10, all})
        addRows(table, all, std::max(kSmallFloor, onAFloor));
    TopBars few(5000);
    TopBars many(20000);
    table.growth("top bars into the host, 20,000 / 5,000", 20000, many.write(), 5000, few.write(), kGrowth);
    return table.print();
}
