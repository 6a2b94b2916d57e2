#include "platform/embedded/HBXModelStore.h"

#include "platform/embedded/HBXOptionDatabase.h"
#include "platform/embedded/HBXService.h"

#include <utility>

namespace hbx::embedded {

struct HBXModelStore::State
{
    State() : database(settings.options), service(database, journal) {}

    HBXModel &model() { return *service.model(); }
    HBXElementDrawObj *chainHeadOf(IHBXElementDrawObj *drawObj)
    {
        HBXElementDrawObj *object = model().drawObjects()->own(drawObj);
        return object ? static_cast<HBXElementDrawObj *>(object->chainHead()) : nullptr;
    }

    ProjectSettings settings;
    bool isHeaderChanged = false;
    bool areOptionsChanged = false;
    bool areMaterialsChanged = false;
    HBXJournal journal;
    HBXOptionDatabase database;
    HBXService service;
};

namespace {

/** Sets a value and its mark; an equal value changes nothing. */
void setMarked(QString &value, const QString &wanted, bool &isChanged)
{
    isChanged = isChanged || value != wanted;
    value = wanted;
}

} // namespace

HBXModelStore::HBXModelStore() : m_state(std::make_unique<State>()) {}

HBXModelStore::~HBXModelStore() = default;

void HBXModelStore::load(ProjectRecord record)
{
    m_state->service.curState()->select(nullptr, nullptr);
    m_state->service.curState()->setLayer(0);
    m_state->journal.clear();
    m_state->settings = static_cast<ProjectSettings &>(record);
    m_state->isHeaderChanged = m_state->areOptionsChanged = m_state->areMaterialsChanged = false;
    m_state->model().load(record);
}

ProjectRecord HBXModelStore::snapshot() const
{
    ProjectRecord record;
    static_cast<ProjectSettings &>(record) = m_state->settings;
    m_state->model().save(record);
    return record;
}

std::optional<ElementRecord> HBXModelStore::elementRecord(qint64 id) const
{
    const HBXElement *element = m_state->model().elements()->elementById(id);
    return element ? std::optional(element->record()) : std::nullopt;
}

std::optional<DrawObjRecord> HBXModelStore::drawObjRecord(qint64 id) const
{
    const HBXElementDrawObj *object = m_state->model().drawObjects()->drawObjById(id);
    return object && object->isEntered() ? std::optional(object->record()) : std::nullopt;
}

ProjectChanges HBXModelStore::takeChanges()
{
    ProjectChanges changes;
    HBXChangeLog &log = m_state->model().changes();
    log.elements.take(changes.changedElements, changes.removedElements);
    log.drawObjs.take(changes.changedDrawObjs, changes.removedDrawObjs);
    changes.header = std::exchange(m_state->isHeaderChanged, false);
    changes.options = std::exchange(m_state->areOptionsChanged, false);
    changes.materials = std::exchange(m_state->areMaterialsChanged, false);
    changes.nextId = m_state->model().nextId();
    return changes;
}

void HBXModelStore::giveBackChanges(const ProjectChanges &changes)
{
    HBXChangeLog &log = m_state->model().changes();
    log.elements.giveBack(changes.changedElements, changes.removedElements);
    log.drawObjs.giveBack(changes.changedDrawObjs, changes.removedDrawObjs);
    m_state->isHeaderChanged = m_state->isHeaderChanged || changes.header;
    m_state->areOptionsChanged = m_state->areOptionsChanged || changes.options;
    m_state->areMaterialsChanged = m_state->areMaterialsChanged || changes.materials;
}

IHBXService *HBXModelStore::service() const { return &m_state->service; }

HBXJournal &HBXModelStore::journal() const { return m_state->journal; }

const std::vector<std::string> &HBXModelStore::openBatches() const { return m_state->model().openBatches(); }

bool HBXModelStore::setCurrent(const QString &regionName, const QString &floorName)
{
    HBXRegion *region = m_state->model().regions()->find(regionName);
    HBXFloor *floor = region ? region->floors()->find(floorName) : nullptr;
    if (floor)
        m_state->service.curState()->select(region, floor);
    return floor != nullptr;
}

void HBXModelStore::setCurrentLayer(int layer) { m_state->service.curState()->setLayer(layer); }

const ProjectSettings &HBXModelStore::settings() const { return m_state->settings; }

const QString &HBXModelStore::name() const { return m_state->settings.name; }

void HBXModelStore::setName(const QString &name) { setMarked(m_state->settings.name, name, m_state->isHeaderChanged); }

const QString &HBXModelStore::source() const { return m_state->settings.source; }

const QString &HBXModelStore::planeRule() const { return m_state->settings.planeRule; }

void HBXModelStore::setPlaneRule(const QString &rule)
{
    setMarked(m_state->settings.planeRule, rule, m_state->isHeaderChanged);
}

const std::vector<OptionRecord> &HBXModelStore::options() const { return m_state->settings.options; }

void HBXModelStore::setOptions(std::vector<OptionRecord> options)
{
    m_state->settings.options = std::move(options);
    m_state->areOptionsChanged = true;
}

const std::vector<MaterialRecord> &HBXModelStore::materials() const { return m_state->settings.materials; }

void HBXModelStore::setMaterials(std::vector<MaterialRecord> materials)
{
    m_state->settings.materials = std::move(materials);
    m_state->areMaterialsChanged = true;
}

std::vector<QJsonObject> HBXModelStore::spans(IHBXElementDrawObj *drawObj) const
{
    const HBXElementDrawObj *head = m_state->chainHeadOf(drawObj);
    return head ? head->spans() : std::vector<QJsonObject>();
}

bool HBXModelStore::setSpans(IHBXElementDrawObj *drawObj, std::vector<QJsonObject> spans)
{
    HBXElementDrawObj *head = m_state->chainHeadOf(drawObj);
    if (head)
        head->setSpans(std::move(spans));
    return head != nullptr;
}

} // namespace hbx::embedded
