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
#include "suite/ConversionBounds.h"
#include "suite/Families.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdlib>
#include <deque>
#include <memory>
#include <vector>

// Slabs and their bars: into the host and out of it.

using hbx::embedded::HBXProject;
using hbx::embedded::ProjectError;

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Service = ORVCADBoardLocalModelTransformHBXService_Sample;
using Tree = std::unique_ptr<dwgx::DWGXBaseBoxTree>;

constexpr int kBarsOfASlab = 4; // at least

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
    void read(Model &local)
    {
        double top = 0.0;
        double bottom = 0.0;
        Service::hbx2local(project->service()->model(), kRegion, kFloor, top, bottom, &local, Service::Everything);
    }

    std::unique_ptr<HBXProject> project;
    Tree tree{dwgx::DWGXBaseBoxTree::createObject()};
};

using Models = std::deque<Model>; // which cannot be moved

/** Buildings with a floor of so many slabs each. */
class Floors
{
public:
    enum Bars { kWithoutBars, kWithBars };

    /** Each floor has models of its own: shared ones would stay in the caches where they are small. */
    Floors(std::size_t floors, int slabs, Bars bars) : m_slabs(floors), m_bars(floors)
    {
        for (Model &model : m_slabs)
            bench::addSlabFloor(model, slabs);
        for (std::size_t i = 0; bars == kWithBars && i < floors; ++i)
            bench::addSlabBars(m_slabs[i], m_bars[i]);
    }

    double slabCount() const { return static_cast<double>(m_slabs.size() * m_slabs.front().boards().size()); }
    double barCount() const { return static_cast<double>(m_bars.size() * m_bars.front().objects().size()); }
    double elementCount() const
    {
        return static_cast<double>(m_slabs.size() * m_slabs.front().objects().size()) + barCount();
    }

    void openAll()
    {
        m_buildings.clear();
        m_buildings.resize(m_slabs.size());
    }
    void openWithSlabs()
    {
        openAll();
        writeSlabs();
        for (Building &building : m_buildings)
            building.fillTree();
    }
    void writeSlabs() { writeAll(m_slabs); }
    void writeBars() { writeAll(m_bars); }
    void forget() { m_read.clear(); }
    void readAll()
    {
        for (Building &building : m_buildings)
            building.read(m_read.emplace_back());
    }
    QString wrong()
    {
        openWithSlabs();
        return static_cast<double>(writeAll(m_bars)) == barCount() ? QString()
                                                                   : QStringLiteral("not every bar was placed");
    }

private:
    std::size_t writeAll(const Models &locals)
    {
        std::size_t written = 0;
        for (std::size_t i = 0; i < m_buildings.size(); ++i) {
            m_buildings[i].project->makeCurrent();
            written += m_buildings[i].write(locals[i]);
        }
        return written;
    }

    Models m_slabs; ///< of each floor
    Models m_bars;
    Models m_read;
    std::vector<Building> m_buildings;
};

using FloorsPtr = std::shared_ptr<Floors>;

bench::Sides slabsWritten(const bench::Load &load)
{
    const auto floors = std::make_shared<Floors>(load.documents, static_cast<int>(load.size), Floors::kWithoutBars);
    return {bench::Work([floors] { floors->openAll(); }, [floors] { floors->writeSlabs(); }), {}, floors->slabCount()};
}

FloorsPtr floorsWithBars(const bench::Load &load)
{
    return std::make_shared<Floors>(load.documents, static_cast<int>(load.size) / kBarsOfASlab, Floors::kWithBars);
}

bench::Sides barsWritten(const bench::Load &load)
{
    const FloorsPtr floors = floorsWithBars(load);
    return {bench::Work([floors] { floors->openWithSlabs(); }, [floors] { floors->writeBars(); }),
            {},
            floors->barCount(),
            0.0,
            [floors] { return floors->wrong(); }};
}

bench::Sides elementsRead(const bench::Load &load)
{
    const FloorsPtr floors = floorsWithBars(load);
    return {bench::Work([floors] { floors->forget(); }, [floors] { floors->readAll(); }),
            {},
            floors->elementCount(),
            0.0,
            [floors] { return floors->wrong(); }};
}

/** Top bars alone, each with its neighbours on its line: what is held against all others of the floor. */
class TopBars
{
public:
    explicit TopBars(const bench::Load &load) : m_bars(load.documents)
    {
        for (Model &bars : m_bars)
            add(bars, load.size);
    }
    void open()
    {
        m_buildings.clear();
        m_buildings.resize(m_bars.size());
    }
    void write()
    {
        for (std::size_t i = 0; i < m_buildings.size(); ++i) {
            m_buildings[i].project->makeCurrent();
            m_buildings[i].write(m_bars[i]);
        }
    }

private:
    static void add(Model &bars, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            auto *bar = new Model::NegativeForcedBar(&bars);
            const std::size_t row = i / 100;
            const vks::CVec2<double> start(static_cast<double>(i % 100) * 3000.0, static_cast<double>(row) * 2000.0);
            bar->line = vks::CRefPtr<vks::CCurve2d>(new vks::CLine2d(start, start + vks::CVec2<double>(3000, 0)));
            bar->barInfo = QStringLiteral("C8@200");
            bar->leftStretchLength = bar->rightStretchLength = 800;
        }
    }

    Models m_bars; ///< of each building
    std::vector<Building> m_buildings;
};

bench::Sides topBarsWritten(const bench::Load &load)
{
    const auto bars = std::make_shared<TopBars>(load);
    return {bench::Work([bars] { bars->open(); }, [bars] { bars->write(); }), {}, static_cast<double>(load.items())};
}

} // namespace

bench::Roads bench::slabHostRoads()
{
    return {
        {"slabs into the host", "", kSizes, kFlatConversion, &slabsWritten, Time::Cpu, Small::Many},
        {"bars onto slabs in the host", "", kSizes, kPlacing, &barsWritten, Time::Cpu, Small::Many},
        {"top bars into the host", "", kSizes, kPlacing, &topBarsWritten, Time::Cpu, Small::Many},
        {"slabs, beams and bars out of the host", "", kSizes, kFlatConversion, &elementsRead, Time::Cpu, Small::Many}};
}
