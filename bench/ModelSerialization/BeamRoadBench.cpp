#include "BeamRecords.h"
#include "ModelSerialization/ORVCADBeamHBXModelConvertService.h"
#include "ModelSerialization/ORVCADBeamLocalModel2HBXService.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"
#include "support/RatioBench.h"

#include <cstdlib>

// How the cost of a beam grows with the number of beams on its floor: out of the host, where its spans are cut at the columns
// under it, into text, out of text, and into a host. The last two are timed apart: what is freed of a text leaves holes in the
// heap, and a host that is filled from many texts in turn would be strewn over them.

using hbx::embedded::HBXProject;
using hbx::embedded::ProjectError;

namespace {

QJsonObject columnAt(double x, double y)
{
    const QJsonObject shape{{"kind", "point"}, {"outline", QJsonValue()}, {"insertPoint", QJsonArray{x, y}}};
    return {{"shape", shape}};
}

/** A floor with two columns under each of so many beams that are not there yet. */
QByteArray columnsText(int beams)
{
    QJsonArray columns;
    for (int beam = 0; beam < beams; ++beam) {
        columns.append(columnAt(bench::startX(beam), bench::startY(beam)));
        columns.append(columnAt(bench::startX(beam) + bench::kPieces * bench::kPieceLength, bench::startY(beam)));
    }
    const QJsonObject properties{{"SectionWidth", 500}, {"SectionHeight", 500}};
    const QJsonObject column{{"name", "KZ"}, {"type", 25}, {"properties", properties}, {"drawObjects", columns}};
    const QJsonObject floor{
        {"name", "Level 1"}, {"code", "1"}, {"bottomElev", 0}, {"height", 3.3}, {"elements", QJsonArray{column}}};
    const QJsonObject region{{"name", "House"}, {"floors", QJsonArray{floor}}};
    const QJsonObject building{
        {"format", "hbx-project"}, {"version", 1}, {"name", "Beams"}, {"regions", QJsonArray{region}}};
    return QJsonDocument(building).toJson();
}

constexpr int kAllBeams = 10000; // in every run, however many stand in one building

/** The four roads for buildings with so many beams each. */
class BeamRoads
{
public:
    explicit BeamRoads(int beamsOfOne) : m_building(columnsText(beamsOfOne)), m_text(textOf(beamsOfOne))
    {
        for (int beam = 0; beam < kAllBeams; beam += beamsOfOne)
            m_beams.push_back(bench::beamRecords(beamsOfOne));
    }

    bench::Work convert()
    {
        return {[this] { fill(); }, [this] { convertAll(); }};
    }
    bench::Work write()
    {
        return [this] {
            for (const auto &beams : m_beams)
                bench::keep(bench::beamText(beams));
        };
    }
    bench::Work read()
    {
        return [this] {
            for (std::size_t i = 0; i < m_beams.size(); ++i)
                bench::keep(bench::beamsOf(m_text));
        };
    }
    bench::Work rebuild()
    {
        return {[this] { clear(); }, [this] { rebuildAll(); }};
    }
    /** Aborts when not every beam spans from the one of its columns to the other: the figures would say nothing. */
    void check()
    {
        fill();
        for (const auto &project : m_projects)
            for (const auto &beam : converted(*project))
                if (beam->edoInfos.size() != 1 || beam->edoInfos[0]->segments.size() != bench::kPieces ||
                    beam->edoInfos[0]->spans.size() != 1)
                    std::abort();
    }

private:
    static QByteArray textOf(int beams) { return bench::beamText(bench::beamRecords(beams)); }
    void clear()
    {
        m_isFilled = false;
        m_projects.clear();
        for (std::size_t i = 0; i < m_beams.size(); ++i) {
            ProjectError error;
            m_projects.push_back(HBXProject::fromJson(m_building, QStringLiteral("beams.json"), error));
            if (!m_projects.back())
                std::abort();
        }
    }
    void fill()
    {
        if (m_isFilled)
            return;
        clear();
        rebuildAll();
        m_isFilled = true;
    }
    void rebuildAll()
    {
        for (std::size_t i = 0; i < m_beams.size(); ++i) {
            ORVCADBeamLocalModel2HBXService service(m_projects[i]->service());
            for (const auto &beam : m_beams[i])
                if (!service.reconstructBeam(beam))
                    std::abort();
        }
    }
    void convertAll()
    {
        for (const auto &project : m_projects)
            bench::keep(converted(*project));
    }
    static ORVCADBeamHBXModelConvertService::Beams converted(HBXProject &project)
    {
        project.makeCurrent();
        IHBXModel *model = project.service()->model();
        const IHBXFloor *floor = model->regions()->at(0)->floors()->at(0);
        return ORVCADBeamHBXModelConvertService().convertHBXToCollectDataModel(model, {floor->id()}, {15});
    }

    QByteArray m_building;
    QByteArray m_text;
    std::vector<ORVCADBeamCollectDataModel::Beams> m_beams; ///< of each building
    std::vector<std::unique_ptr<HBXProject>> m_projects;
    bool m_isFilled = false;
};

void compare(bench::RatioTable &table, const char *name, bench::Work (BeamRoads::*road)(), BeamRoads &large,
             BeamRoads &small)
{
    constexpr double kFlat = 1.3;
    table.growth(name, kAllBeams, (large.*road)(), kAllBeams, (small.*road)(), kFlat);
}

} // namespace

int main()
{
    BeamRoads small(100);
    BeamRoads middle(1000);
    BeamRoads large(kAllBeams);
    for (BeamRoads *roads : {&small, &middle, &large})
        roads->check();

    bench::RatioTable table("10,000 beams of four pieces in larger buildings, against 100 in each of 100 buildings",
                            bench::Time::Cpu);
    compare(table, "out of the host, 1,000 a building", &BeamRoads::convert, middle, small);
    compare(table, "out of the host, 10,000 a building", &BeamRoads::convert, large, small);
    compare(table, "records to text, 1,000 a building", &BeamRoads::write, middle, small);
    compare(table, "records to text, 10,000 a building", &BeamRoads::write, large, small);
    compare(table, "text to records, 1,000 a building", &BeamRoads::read, middle, small);
    compare(table, "text to records, 10,000 a building", &BeamRoads::read, large, small);
    compare(table, "records into the host, 1,000 a building", &BeamRoads::rebuild, middle, small);
    compare(table, "records into the host, 10,000 a building", &BeamRoads::rebuild, large, small);
    return table.print();
}
