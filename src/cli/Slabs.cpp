#include "cli/Slabs.h"

#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "cli/Counted.h"
#include "cli/ElementRemoval.h"
#include "cli/Message.h"
#include "cli/SlabReplyCheck.h"
#include "cli/SlabWriter.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/HBXBatch.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXService.h"
#include "platform/services/HBXElementTypes.h"

#include <QJsonArray>

#include <algorithm>

using hbx::embedded::HBXProject;

namespace orvcad {

namespace {

namespace type = hbx::type;
using Parts = ORVCADBoardLocalModelPersistenceService_Sample::Parts;

/** What is written at once, and what its bars are linked with. */
struct Stage
{
    int parts;
    QSet<qint64> under;
};
const std::vector<Stage> &stages()
{
    static const std::vector<Stage> all{
        {Parts::Boards | Parts::Rafts, {}}, {Parts::BoardBars, {type::slab}}, {Parts::RaftBars, {type::raft}}};
    return all;
}

SlabWriter::Members membersOf(const SlabReplyCheck &check, int parts)
{
    SlabWriter::Members members;
    for (const SlabReplyCheck::Member &member : check.sound())
        if (member.array->part & parts)
            members.push_back(&member);
    return members;
}

SlabOutcome outcomeOf(const SlabReplyCheck &check, const SlabWriter &writer)
{
    SlabOutcome outcome;
    outcome.passedOver = check.passedOver();
    outcome.repeated = check.repeated();
    outcome.ids = writer.ids();
    outcome.leftOut = check.leftOut();
    outcome.leftOut.insert(outcome.leftOut.end(), writer.leftOut().begin(), writer.leftOut().end());
    for (const SlabReplyCheck::Count &count : check.counts()) {
        SlabOutcome::Array array{count.array->key, Message::tr(count.array->title), count.members};
        array.made = writer.madeOf(*count.array);
        array.known = count.known;
        array.leftOut = array.members - array.made - array.known;
        outcome.arrays.push_back(array);
    }
    return outcome;
}

} // namespace

QString SlabOutcome::Array::text() const
{
    return Message::tr("%1: %2 made, %3 in the host already, %4 left out")
        .arg(counted(members, title))
        .arg(made)
        .arg(known)
        .arg(leftOut);
}

QJsonObject SlabOutcome::Array::toJson() const
{
    return {{"array", key}, {"members", members}, {"made", made}, {"known", known}, {"leftOut", leftOut}};
}

int SlabOutcome::sum(int Array::*number) const
{
    int total = 0;
    for (const Array &array : arrays)
        total += array.*number;
    return total;
}

QString SlabOutcome::headline() const
{
    return Message::tr("%1 read: %2 made in %3, %4 in the host already, %5")
        .arg(counted(sum(&Array::members), Message::tr("member")))
        .arg(sum(&Array::made))
        .arg(counted(elementsMade, Message::tr("new element")))
        .arg(sum(&Array::known))
        .arg(leftOutCount(leftOut));
}

QString SlabOutcome::text() const
{
    QStringList lines;
    for (const Array &array : arrays)
        if (array.members > 0)
            lines.append(array.text());
    if (passedOver > 0)
        lines.append(Message::tr("passed over: %1 of supports and axis grids, which no reply makes")
                         .arg(counted(passedOver, Message::tr("member"))));
    if (repeated > 0)
        lines.append(Message::tr("%1 with the identity of one before: the id map names both alike")
                         .arg(counted(repeated, Message::tr("member"))));
    return headline() + cutLines(lines) + leftOutLines(leftOut) + doubledLine(doubled);
}

QJsonObject SlabOutcome::toJson() const
{
    QJsonArray list;
    for (const Array &array : arrays)
        list.append(array.toJson());
    return {{"members", sum(&Array::members)},
            {"made", sum(&Array::made)},
            {"known", sum(&Array::known)},
            {"elementsMade", elementsMade},
            {"arrays", list},
            {"passedOver", passedOver},
            {"repeatedIdentities", repeated},
            {"doubled", doubled},
            {"leftOut", orvcad::toJson(leftOut)}};
}

QJsonObject SlabOutcome::idMap() const
{
    QJsonObject map;
    for (const auto &[id, identity] : ids)
        map.insert(QString::number(id), identity.toString());
    return map;
}

QSet<qint64> slabTypes()
{
    QSet<qint64> types;
    for (const SlabArray &array : slabArrays())
        if (array.isMade())
            types.insert(array.type);
    return types;
}

SlabOutcome applySlabs(HBXProject &project, IHBXFloor &floor, const QJsonObject &reply, const QString &file)
{
    IHBXModel &model = *project.service()->model();
    project.makeCurrent();
    project.setCurrent(floor.region()->name(), floor.name());
    const SlabReplyCheck check(slabModelOf(reply, file));
    const int elementsBefore = model.elements()->count();
    const int drawObjsBefore = model.drawObjects()->count();
    const HBXBatch batch(model, "orvcad slab apply");
    SlabWriter writer(project, floor);
    for (const Stage &stage : stages())
        writer.write(membersOf(check, stage.parts), stage.under);
    SlabOutcome outcome = outcomeOf(check, writer);
    for (const LeftOut &changed : changedInHost(project, floor, writer.made()))
        outcome.leftOut.push_back(changed);
    outcome.elementsMade = model.elements()->count() - elementsBefore;
    outcome.doubled = doubledSince(model, drawObjsBefore); // negative bars, which are checked for less
    return outcome;
}

int removeSlabs(HBXProject &project, const IHBXFloor &floor)
{
    return removeElements(*project.service()->model(), {floor.id()}, slabTypes(), "orvcad remove slabs");
}

} // namespace orvcad
