#include "cli/ProcessFloor.h"

#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "ModelSerialization/SlabFloor.h"
#include "support/ChildRun.h"
#include "support/ForkedRun.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <csignal>
#include <cstdio>

namespace bench {

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Persistence = ORVCADBoardLocalModelPersistenceService_Sample;

constexpr int kLimitSeconds = 300; // what takes longer hangs
constexpr std::size_t kOfSlab = 8; // draw objects: the slab, two beams, some five bars
constexpr int kMostShown = 120;    // bytes of what a process said

const QString kFloor = QStringLiteral("Level 1");

/** Children that are made and end while one of these lives stay out of what the system tells of this process's children,
 *  of which it keeps the largest. */
class UntoldChildren
{
public:
    UntoldChildren() : m_before(std::signal(SIGCHLD, SIG_IGN)) {}
    ~UntoldChildren() { std::signal(SIGCHLD, m_before); }
    UntoldChildren(const UntoldChildren &) = delete;
    UntoldChildren &operator=(const UntoldChildren &) = delete;

private:
    void (*m_before)(int);
};

QJsonObject beamOf(const Model::Beam &beam)
{
    const auto start = beam.line->StartPoint();
    const auto end = beam.line->EndPoint();
    const QString axis = QStringLiteral("LINESTRING(%1 %2, %3 %4)").arg(start.x).arg(start.y).arg(end.x).arg(end.y);
    return {{"shape", QJsonObject{{"kind", "line"}, {"axis", axis}, {"width", beam.width}}}};
}

/** One floor with the beams of a model on it, as hbx-project. */
QJsonObject buildingOf(const Model &model)
{
    QJsonArray drawObjs;
    for (const Model::Beam *beam : model.beams())
        drawObjs.append(beamOf(*beam));
    const QJsonObject element{{"name", "KL1"},
                              {"type", 15},
                              {"subType", 3},
                              {"properties", QJsonObject{{"SectionWidth", 250}, {"SectionHeight", 500}}},
                              {"drawObjects", drawObjs}};
    const QJsonObject floor{
        {"name", kFloor}, {"code", "1"}, {"bottomElev", 0}, {"height", 3}, {"elements", QJsonArray{element}}};
    const QJsonObject region{{"name", "House"}, {"floors", QJsonArray{floor}}};
    return {{"format", "hbx-project"}, {"version", 1}, {"name", "Slabs"}, {"regions", QJsonArray{region}}};
}

bool writeJson(const QString &path, const QJsonObject &json)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(json).toJson()) > 0;
}

} // namespace

ProcessFloor::ProcessFloor(std::size_t drawObjs)
{
    const UntoldChildren untold;
    runForked(&m_made, sizeof m_made, [&] {
        std::signal(SIGCHLD, SIG_DFL); // its own children do tell how they end
        const QString failure = make(drawObjs, m_made);
        std::snprintf(m_made.failure, sizeof m_made.failure, "%s", qUtf8Printable(failure));
    });
}

QString ProcessFloor::make(std::size_t drawObjs, Made &made) const
{
    Model slabs;
    Model bars;
    addSlabFloor(slabs, static_cast<int>(drawObjs / kOfSlab));
    addSlabBars(slabs, bars);
    const auto members = slabs.boards().size() + bars.objects().size();
    made = {static_cast<double>(members + slabs.beams().size()), static_cast<double>(members), {}};
    const QJsonObject building = buildingOf(slabs);
    QJsonObject reply = Persistence::model2json(&slabs, Persistence::Boards);
    const QJsonObject replyBars = Persistence::model2json(&bars, Persistence::BoardBars);
    for (auto array = replyBars.begin(); array != replyBars.end(); ++array)
        reply.insert(array.key(), array.value());
    if (!writeJson(path("building.json"), building) || !writeJson(path("reply.json"), reply))
        return QStringLiteral("its files cannot be written");
    QString failure = orvcad({"project", "import", path("building.json"), "-o", path("beams.hbxdb")});
    if (!failure.isEmpty() || !QFile::copy(path("beams.hbxdb"), fullProject()))
        return failure;
    // Some values are told to come out as others, so it is not the reply itself that is the payload.
    orvcad({"slab", "apply", fullProject(), path("reply.json"), "--floor", kFloor});
    return orvcad({"slab", "export", fullProject(), "--floor", kFloor, "-o", payload()});
}

double ProcessFloor::payloadBytes() const { return static_cast<double>(QFileInfo(payload()).size()); }

QString ProcessFloor::exportSlabs() const
{
    return orvcad({"slab", "export", fullProject(), "--floor", kFloor, "-o", path("exported.json")});
}

void ProcessFloor::emptyWorkProject() const
{
    QFile::remove(path("work.hbxdb"));
    QFile::copy(path("beams.hbxdb"), path("work.hbxdb"));
}

QString ProcessFloor::applySlabs() const
{
    return orvcad({"slab", "apply", path("work.hbxdb"), payload(), "--floor", kFloor, "--as-new"});
}

QString ProcessFloor::orvcad(const QStringList &arguments) const
{
    const QString program = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath() + QStringLiteral("/orvcad");
    const ChildCost cost = runChild(program, arguments, path("orvcad"), kLimitSeconds);
    if (cost.exitCode == 0)
        return {};
    return QStringLiteral("exit code %1: %2")
        .arg(cost.exitCode)
        .arg(QString::fromUtf8((cost.err + cost.out).left(kMostShown)).simplified());
}

} // namespace bench
