#include "platform/embedded/HBXDatabaseFile.h"
#include "platform/embedded/HBXExchangeReader.h"
#include "platform/embedded/HBXProject.h"
#include "suite/Families.h"
#include "support/BareDatabase.h"
#include "support/Building.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <cstdlib>
#include <memory>
#include <vector>

// Import, export, open and save of a project, against the floors under them: the JSON of Qt alone, and the same rows
// through the bare C API of SQLite. An item is a draw object.

namespace {

using bench::Load;
using bench::Sides;
using hbx::embedded::HBXDatabaseFile;
using hbx::embedded::HBXExchangeReader;
using hbx::embedded::HBXProject;
using hbx::embedded::ProjectError;
using hbx::embedded::ProjectRecord;

// Bounds.
constexpr double kSave = 1.3;
constexpr double kOpen = 1.3;
constexpr double kCheck = 0.4;
constexpr double kGrowth = 1.3;
constexpr double kImportGrowth = 1.8; // what the parser makes of a large building leaves the caches

constexpr std::size_t kSampleDrawObjs = 641;
constexpr unsigned kSeed = 1;

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        std::abort();
    return file.readAll();
}

// Where a building comes from: its exchange document, of so many draw objects.
using Source = QByteArray (*)(std::size_t drawObjs);

/** The largest building of the tests, which has one size. */
QByteArray sampleBuilding(std::size_t /*drawObjs*/)
{
    return bytesOf(QStringLiteral(ORVCAD_TEST_DATA "/buildings/masonry-block.json"));
}

QByteArray generatedBuilding(std::size_t drawObjs)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("building.json"));
    bench::Building(static_cast<int>(drawObjs), kSeed).write(path);
    return bytesOf(path);
}

/** A building, as often as a load has documents: in files of their own, and in memory once they are read. What was read
 *  stays until the next run, so that many small buildings take as much memory as a large one. */
class Projects
{
public:
    Projects(const Load &load, Source source) : m_json(source(load.size))
    {
        const auto project = HBXExchangeReader::read(m_json, QString(), m_error);
        if (!project)
            std::abort();
        m_record = *project;
        for (std::size_t i = 0; i < load.documents; ++i)
            m_paths.append(m_folder.filePath(QString::number(i)));
        createFile(m_paths.first());
        for (const QString &path : qAsConst(m_paths))
            QFile::copy(m_paths.first(), path);
        m_tables = bench::bareTablesOf(m_paths.first());
    }

    double drawObjs() const { return static_cast<double>(m_record.drawObjs.size()) * m_paths.size(); }
    double jsonBytes() const { return static_cast<double>(m_json.size()) * m_paths.size(); }
    double fileBytes() const { return static_cast<double>(QFileInfo(m_paths.first()).size()) * m_paths.size(); }
    QString differenceFrom(const Load &load) const
    {
        return drawObjs() == static_cast<double>(load.items())
                   ? QString()
                   : QStringLiteral("the building has %1 draw objects").arg(m_record.drawObjs.size());
    }

    void clear()
    {
        m_records.clear();
        m_projects.clear();
    }
    void importAll()
    {
        for (int i = 0; i < m_paths.size(); ++i)
            m_records.push_back(HBXExchangeReader::read(m_json, QString(), m_error));
    }
    void importToModels()
    {
        for (int i = 0; i < m_paths.size(); ++i)
            m_projects.push_back(HBXProject::fromJson(m_json, QString(), m_error));
    }
    void parseJson()
    {
        for (int i = 0; i < m_paths.size(); ++i)
            bench::keep(m_document = QJsonDocument::fromJson(m_json));
    }
    void exportAll()
    {
        for (const auto &project : m_projects)
            bench::keep(project->toJson());
    }
    void writeJson()
    {
        for (int i = 0; i < m_paths.size(); ++i)
            bench::keep(m_document.toJson());
    }
    void save() { createFile(m_paths.first()); }
    void saveBare() { bench::writeBare(barePath(), m_tables); }
    void removeBare() { QFile::remove(barePath()); }
    void open()
    {
        for (const QString &path : qAsConst(m_paths))
            m_records.push_back(HBXDatabaseFile(path).read(m_error));
    }
    void openToModels()
    {
        for (const QString &path : qAsConst(m_paths))
            m_projects.push_back(HBXProject::open(path, m_error));
    }
    void check()
    {
        for (const QString &path : qAsConst(m_paths))
            bench::checkBare(path);
    }
    /** The check has a ceiling of its own, so it stands on both sides of the ratio of reading. */
    void openBare()
    {
        for (const QString &path : qAsConst(m_paths)) {
            bench::checkBare(path);
            bench::readBare(path);
        }
    }

private:
    QString barePath() const { return m_folder.filePath(QStringLiteral("bare")); }
    void createFile(const QString &path)
    {
        if (!HBXDatabaseFile(path).create(m_record, m_error))
            std::abort();
    }

    QByteArray m_json;
    ProjectError m_error;
    ProjectRecord m_record;
    QTemporaryDir m_folder;
    QStringList m_paths;
    std::vector<bench::BareTable> m_tables;
    QJsonDocument m_document = QJsonDocument::fromJson(m_json);
    std::vector<std::optional<ProjectRecord>> m_records;
    std::vector<std::unique_ptr<HBXProject>> m_projects;
};

using Operation = void (Projects::*)();

/** One road over projects, whatever building they are of. */
struct ProjectRoad
{
    const char *name;
    const char *floor;
    bench::Bounds bounds;
    Operation ours;
    Operation bare;
    double (Projects::*documentBytes)() const = &Projects::fileBytes;
    Operation prepare = &Projects::clear; ///< before each run of ours
    Operation prepareBare = nullptr;
    bench::Time time = bench::Time::Cpu;
    bench::Small small = bench::Small::Many;
};

const std::vector<ProjectRoad> &projectRoadList()
{
    static const std::vector<ProjectRoad> roads{
        {"imported",
         "JSON parser",
         {0.0, kImportGrowth},
         &Projects::importAll,
         &Projects::parseJson,
         &Projects::jsonBytes},
        {"exported",
         "toJson of the same document",
         {0.0, kGrowth},
         &Projects::exportAll,
         &Projects::writeJson,
         &Projects::jsonBytes,
         nullptr},
        {"saved",
         "the same rows by the C API",
         {kSave},
         &Projects::save,
         &Projects::saveBare,
         &Projects::fileBytes,
         nullptr,
         &Projects::removeBare,
         bench::Time::Wall,    // it waits for the disk,
         bench::Small::Alone}, // for each file as long, however small it is
        {"opened", "check and reading of the rows", {kOpen, kGrowth}, &Projects::open, &Projects::openBare},
        {"opened to the model",
         "check and reading of the rows",
         {0.0, kGrowth},
         &Projects::openToModels,
         &Projects::openBare},
        {"checked",
         "full read",
         {kCheck},
         &Projects::check,
         &Projects::open,
         &Projects::fileBytes,
         nullptr,
         &Projects::clear,
         bench::Time::Cpu,
         bench::Small::Alone}};
    return roads;
}

bench::Work work(const std::shared_ptr<Projects> &projects, Operation prepare, Operation operation)
{
    const auto run = [projects, operation] { (projects.get()->*operation)(); };
    if (!prepare)
        return run;
    return {[projects, prepare] { (projects.get()->*prepare)(); }, run};
}

bench::Road roadOf(const std::string &building, Source source, const std::vector<std::size_t> &sizes,
                   const ProjectRoad &road)
{
    const auto make = [source, road](const Load &load) {
        const auto projects = std::make_shared<Projects>(load, source);
        if (road.ours == &Projects::exportAll)
            projects->importToModels();
        Sides sides{work(projects, road.prepare, road.ours), work(projects, road.prepareBare, road.bare),
                    projects->drawObjs(), (projects.get()->*road.documentBytes)()};
        sides.wrong = [projects, load] { return projects->differenceFrom(load); };
        return sides;
    };
    return {building + ": " + road.name, road.floor, sizes, road.bounds, make, road.time, road.small};
}

} // namespace

bench::Roads bench::projectRoads()
{
    Roads roads;
    for (const ProjectRoad &road : projectRoadList()) {
        roads.push_back(roadOf("project of the sample building", &sampleBuilding, {kSampleDrawObjs}, road));
        roads.push_back(roadOf("project", &generatedBuilding, kSizes, road));
    }
    return roads;
}
