#include "platform/embedded/HBXModel.h"

#include <algorithm>

namespace hbx::embedded {
namespace {

template <typename Record> qint64 greatestId(const std::vector<Record> &records)
{
    qint64 greatest = 0;
    for (const Record &record : records)
        greatest = std::max<qint64>(greatest, record.id);
    return greatest;
}

qint64 firstFreeId(const ProjectRecord &record)
{
    return std::max({record.nextId, greatestId(record.regions) + 1, greatestId(record.floors) + 1,
                     greatestId(record.elements) + 1, greatestId(record.drawObjs) + 1});
}

/** Units after everything else: their parents stand then. */
std::vector<const ElementRecord *> parentsFirst(const std::vector<ElementRecord> &records)
{
    std::vector<const ElementRecord *> ordered;
    ordered.reserve(records.size());
    for (const ElementRecord &record : records)
        ordered.push_back(&record);
    std::stable_partition(ordered.begin(), ordered.end(),
                          [](const ElementRecord *record) { return !isUnitType(record->type); });
    return ordered;
}

} // namespace

HBXModel::HBXModel(vks::CDatabase &database, HBXJournal &journal)
    : m_database(database), m_journal(journal), m_elements(*this), m_drawObjs(*this), m_check(*this)
{}

HBXModel::~HBXModel() = default;

void HBXModel::beginBatch(const std::string &key, bool)
{
    m_openBatches.push_back(key);
    m_journal.add({JournalEntry::kBracketOpened, 0, QString::fromStdString(key), QString()});
}

void HBXModel::endBatch(const std::string &key)
{
    const auto innermost = std::find(m_openBatches.rbegin(), m_openBatches.rend(), key);
    if (innermost == m_openBatches.rend())
        return;
    m_openBatches.erase(std::next(innermost).base());
    m_journal.add({JournalEntry::kBracketClosed, 0, QString::fromStdString(key), QString()});
}

void HBXModel::refresh(int) {}

void HBXModel::load(ProjectRecord &record)
{
    m_drawObjs.clear();
    m_elements.clear();
    m_changes = {};
    m_openBatches.clear();
    m_nextId = firstFreeId(record);
    m_regions.load(std::move(record.regions), std::move(record.floors));
    for (const ElementRecord *element : parentsFirst(record.elements))
        m_elements.load(*element);
    m_drawObjs.load(record.drawObjs);
}

void HBXModel::save(ProjectRecord &record) const
{
    for (const auto &region : m_regions.all()) {
        record.regions.push_back(region->record());
        for (int i = 0; i < region->floors()->count(); ++i)
            record.floors.push_back(region->floors()->at(i)->record());
    }
    std::sort(record.floors.begin(), record.floors.end(),
              [](const FloorRecord &a, const FloorRecord &b) { return a.id < b.id; });
    record.elements.reserve(static_cast<std::size_t>(m_elements.all().count()));
    m_elements.all().forEach([&](const HBXElement &element) { record.elements.push_back(element.record()); });
    record.drawObjs.reserve(static_cast<std::size_t>(m_drawObjs.all().count()));
    m_drawObjs.all().forEach([&](const HBXElementDrawObj &object) { record.drawObjs.push_back(object.record()); });
    record.nextId = m_nextId;
}

} // namespace hbx::embedded
