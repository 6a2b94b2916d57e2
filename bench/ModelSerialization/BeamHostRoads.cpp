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
#include "suite/ConversionBounds.h"
#include "suite/Families.h"

#include <cstdlib>
#include <memory>

// Beams of four pieces: out of the host, where their spans are cut at the columns under them, and into a host.

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

/** Buildings with so many beams each. */
class Buildings
{
public:
    explicit Buildings(const bench::Load &load) : m_building(columnsText(static_cast<int>(load.size)))
    {
        // Each building has records of its own: shared ones would stay in the caches where they are few.
        while (m_beams.size() < load.documents)
            m_beams.push_back(bench::beamRecords(static_cast<int>(load.size)));
    }

    void clear()
    {
        m_isFilled = false;
        m_projects.clear();
        while (m_projects.size() < m_beams.size()) {
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
            m_projects[i]->makeCurrent();
            ORVCADBeamLocalModel2HBXService service(m_projects[i]->service());
            for (const auto &beam : m_beams[i])
                if (!service.reconstructBeam(beam))
                    std::abort();
        }
    }
    void forget() { m_converted.clear(); }
    void convertAll()
    {
        for (const auto &project : m_projects)
            m_converted.push_back(converted(*project));
    }
    /** Whether not every beam spans from the one of its columns to the other. */
    QString wrong()
    {
        fill();
        for (const auto &project : m_projects)
            for (const auto &beam : converted(*project))
                if (beam->edoInfos.size() != 1 || beam->edoInfos[0]->segments.size() != bench::kPieces ||
                    beam->edoInfos[0]->spans.size() != 1)
                    return QStringLiteral("a beam is not as it was");
        return {};
    }

private:
    static ORVCADBeamHBXModelConvertService::Beams converted(HBXProject &project)
    {
        project.makeCurrent();
        IHBXModel *model = project.service()->model();
        const IHBXFloor *floor = model->regions()->at(0)->floors()->at(0);
        return ORVCADBeamHBXModelConvertService().convertHBXToCollectDataModel(model, {floor->id()}, {15});
    }

    QByteArray m_building;
    std::vector<ORVCADBeamCollectDataModel::Beams> m_beams; ///< of each building
    std::vector<std::unique_ptr<HBXProject>> m_projects;
    std::vector<ORVCADBeamCollectDataModel::Beams> m_converted;
    bool m_isFilled = false;
};

bench::Sides writing(const bench::Load &load)
{
    const auto buildings = std::make_shared<Buildings>(load);
    return {bench::Work([buildings] { buildings->clear(); }, [buildings] { buildings->rebuildAll(); }),
            {},
            static_cast<double>(load.items()),
            0.0,
            [buildings] { return buildings->wrong(); }};
}

bench::Sides reading(const bench::Load &load)
{
    const auto buildings = std::make_shared<Buildings>(load);
    return {bench::Work([buildings] { buildings->forget(); }, [buildings] { buildings->convertAll(); }),
            {},
            static_cast<double>(load.items()),
            0.0,
            [buildings] { return buildings->wrong(); }};
}

} // namespace

bench::Roads bench::beamHostRoads()
{
    return {{"beams into the host", "", kSizes, kFlatConversion, &writing, Time::Cpu, Small::Many},
            {"beams out of the host", "", kSizes, kFlatConversion, &reading, Time::Cpu, Small::Many}};
}
