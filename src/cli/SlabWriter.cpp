#include "cli/SlabWriter.h"

#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "ModelSerialization/ORVCADBoardLocalModelTransformHBXService_Sample.h"
#include "cli/Message.h"
#include "platform/dwgx/DWGXBaseBoxTree.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXService.h"
#include "platform/host/IHBXShape.h"
#include "platform/host/WorldOutline.h"
#include "platform/services/HBXElementTypes.h"
#include "platform/services/ValidateBarInfo.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"
#include "slab/SlabKeys.h"

#include <QHash>
#include <QJsonArray>

#include <memory>

using hbx::embedded::HBXProject;
using hbx::embedded::JournalEntry;

namespace orvcad {

namespace {

using Member = SlabReplyCheck::Member;
using Members = SlabWriter::Members;
using Persistence = ORVCADBoardLocalModelPersistenceService_Sample;
using BoxTree = std::unique_ptr<dwgx::DWGXBaseBoxTree>;

constexpr int kAllBits = Persistence::Everything;

BoxTree treeOf(IHBXFloor &floor, const QSet<qint64> &types)
{
    BoxTree tree(dwgx::DWGXBaseBoxTree::createObject());
    QList<IHBXElementDrawObj *> objects;
    if (!types.isEmpty())
        floor.drawObjsOfTypes(objects, types, true);
    for (IHBXElementDrawObj *object : qAsConst(objects))
        if (const auto outline = hbx::worldOutline(object->shape()))
            tree->add(outline->Box(), object);
    return tree;
}

QJsonObject documentOf(const Members &members)
{
    QHash<QString, QJsonArray> arrays;
    for (const Member *member : members)
        arrays[member->array->key].append(member->json);
    QJsonObject document;
    for (auto array = arrays.cbegin(); array != arrays.cend(); ++array)
        document.insert(array.key(), array.value());
    return document;
}

/** What the host refused since its journal had so many entries; empty for nothing. */
QString refusal(const HBXProject &project, std::size_t entries)
{
    const auto &journal = project.journal().entries();
    for (std::size_t i = entries; i < journal.size(); ++i)
        if (journal[i].kind == JournalEntry::kCheckRefused || journal[i].kind == JournalEntry::kWriteThrew)
            return Message::tr("the host refused it: %1").arg(journal[i].reason);
    return {};
}

/** Why a member that the host was not even asked about did not come in. */
QString unasked(const Member &member)
{
    const qint64 type = member.array->type;
    if (type == hbx::type::slabHole)
        return Message::tr("no slab and no raft of the floor holds its middle");
    const QString barInfo = member.json.value(slab::key::barInfo).toString();
    if (member.array->required.contains(slab::key::barInfo) && !ValidateBarInfo(kSlabBarInfo, barInfo.toUpper()))
        return Message::tr("bar_info \"%1\" tells no bars").arg(shortened(barInfo));
    if (member.array->geometry == SlabArray::Geometry::Line)
        return Message::tr("it lies over another negative bar at the level of its slab");
    return Message::tr("the host made no draw object");
}

} // namespace

void SlabWriter::write(const Members &members, const QSet<qint64> &under)
{
    if (members.empty())
        return;
    const BoxTree slabs = treeOf(m_floor, under);
    for (const Member *member : run(members, *slabs))
        runAlone(*member, *slabs);
}

int SlabWriter::madeOf(const SlabArray &array) const
{
    const auto made = m_made.find(&array);
    return made == m_made.end() ? 0 : made->second;
}

Members SlabWriter::run(const Members &members, dwgx::DWGXBaseBoxTree &slabs)
{
    ORVCADBoardLocalModel_Sample model;
    Persistence::json2model(documentOf(members), &model, kAllBits);
    const IdMap written = ORVCADBoardLocalModelTransformHBXService_Sample::local2hbx(
        &model, m_project.service(), &slabs, m_floor.region()->name(), m_floor.name());
    QHash<QUuid, qint64> places;
    for (const auto &[id, identity] : written)
        places.insert(identity, id);
    Members missing;
    for (const Member *member : members) {
        const auto place = places.find(member->written);
        if (place == places.end()) {
            missing.push_back(member);
            continue;
        }
        m_ids[*place] = member->identity;
        m_membersMade[*place] = member;
        ++m_made[member->array];
    }
    return missing;
}

void SlabWriter::runAlone(const Member &member, dwgx::DWGXBaseBoxTree &slabs)
{
    const std::size_t before = m_project.journal().entries().size();
    if (run({&member}, slabs).empty())
        return;
    const QString refused = refusal(m_project, before);
    m_leftOut.push_back({member.place, member.name, refused.isEmpty() ? unasked(member) : refused});
}

} // namespace orvcad
