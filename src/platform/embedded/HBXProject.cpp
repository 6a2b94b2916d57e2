#include "platform/embedded/HBXProject.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/HBXDatabaseFile.h"
#include "platform/embedded/HBXExchangeReader.h"
#include "platform/embedded/HBXExchangeWriter.h"
#include "platform/embedded/HBXModelStore.h"

#include <QStringList>

#include <optional>

namespace hbx::embedded {
namespace {

HBXProject *s_current = nullptr;

/** What a save writes of the changes that the model tells. */
ProjectUpdate updateOf(const HBXModelStore &store, const ProjectChanges &changes)
{
    ProjectUpdate update;
    static_cast<ProjectSettings &>(update.content) = store.settings();
    update.content.nextId = changes.nextId;
    update.hasOptions = changes.options;
    update.hasMaterials = changes.materials;
    update.removedElements = changes.removedElements;
    update.removedDrawObjs = changes.removedDrawObjs;
    for (const qint64 id : changes.changedElements)
        if (auto element = store.elementRecord(id))
            update.content.elements.push_back(std::move(*element));
    for (const qint64 id : changes.changedDrawObjs)
        if (auto drawObj = store.drawObjRecord(id))
            update.content.drawObjs.push_back(std::move(*drawObj));
    return update;
}

} // namespace

QString ProjectError::text() const
{
    QStringList parts{file, place, reason};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(": "));
}

struct HBXProject::State
{
    HBXModelStore store;
    std::optional<HBXDatabaseFile> file; ///< absent until the project has one
};

HBXProject::HBXProject(const QString &name) : m_state(std::make_unique<State>()) { m_state->store.setName(name); }

HBXProject::~HBXProject()
{
    if (s_current == this)
        s_current = nullptr;
}

std::unique_ptr<HBXProject> HBXProject::open(const QString &path, ProjectError &error)
{
    HBXDatabaseFile file(path);
    std::optional<ProjectRecord> record = file.read(error);
    if (!record)
        return nullptr;
    auto project = std::make_unique<HBXProject>();
    project->m_state->store.load(std::move(*record));
    project->m_state->file = std::move(file);
    project->makeCurrent();
    return project;
}

std::unique_ptr<HBXProject> HBXProject::fromJson(const QByteArray &json, const QString &fileName, ProjectError &error)
{
    std::optional<ProjectRecord> record = HBXExchangeReader::read(json, fileName, error);
    if (!record)
        return nullptr;
    auto project = std::make_unique<HBXProject>();
    project->m_state->store.load(std::move(*record));
    project->makeCurrent();
    return project;
}

bool HBXProject::save(ProjectError &error)
{
    if (!m_state->file) {
        error = {name(), QString(), dwgx::Reason::tr("has no file yet")};
        return false;
    }
    error = {};
    const ProjectChanges changes = store().takeChanges();
    if (changes.isEmpty() || m_state->file->save(updateOf(store(), changes), error))
        return true;
    store().giveBackChanges(changes);
    return false;
}

bool HBXProject::saveAs(const QString &path, ProjectError &error)
{
    HBXDatabaseFile file(path);
    if (!file.create(store().snapshot(), error))
        return false;
    store().takeChanges(); // all of them stand in the new file
    m_state->file = std::move(file);
    return true;
}

QByteArray HBXProject::toJson() const { return HBXExchangeWriter::write(store().snapshot()); }

QString HBXProject::name() const { return store().name(); }

QString HBXProject::source() const { return store().source(); }

QString HBXProject::path() const { return m_state->file ? m_state->file->path() : QString(); }

IHBXService *HBXProject::service() const { return store().service(); }

HBXJournal &HBXProject::journal() const { return store().journal(); }

bool HBXProject::setCurrent(const QString &regionName, const QString &floorName)
{
    return store().setCurrent(regionName, floorName);
}

void HBXProject::makeCurrent() { s_current = this; }

HBXProject *HBXProject::current() { return s_current; }

HBXModelStore &HBXProject::store() const { return m_state->store; }

} // namespace hbx::embedded
