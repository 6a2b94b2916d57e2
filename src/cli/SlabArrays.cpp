#include "cli/SlabArrays.h"

#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "cli/Counted.h"
#include "cli/Message.h"
#include "platform/services/HBXElementTypes.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"
#include "slab/SlabKeys.h"

#include <QJsonArray>

using namespace slab;

namespace orvcad {

namespace {

using Persistence = ORVCADBoardLocalModelPersistenceService_Sample;

/** Keys that may hold anything: nothing that is written into a host is read from them. */
const QStringList kPassedOver{key::stateDescript, key::supportPoly, key::supportPolys};

SlabArray areaBars(QLatin1String array, int part, const char *title, qint64 type, QLatin1String number)
{
    return {array,
            part,
            title,
            type,
            SlabArray::Geometry::Outline,
            {key::surface, key::directionX, key::directionY, key::barInfo},
            {key::id, key::rowNumber, number}};
}

SlabArray lineBars(QLatin1String array, int part, const char *title, qint64 type)
{
    return {array,
            part,
            title,
            type,
            SlabArray::Geometry::Line,
            {key::line, key::barInfo},
            {key::id, key::rowNumber, key::labelPosition}};
}

/** The member that the service writes for an object without keys. */
QJsonObject emptyMember(const SlabArray &array)
{
    ORVCADBoardLocalModel_Sample model;
    Persistence::json2model({{array.key, QJsonArray{QJsonObject()}}}, &model, array.part);
    const QJsonObject document = Persistence::model2json(&model, static_cast<Persistence::Parts>(array.part));
    return document.value(array.key).toArray().at(0).toObject();
}

} // namespace

QLatin1String SlabArray::geometryKey() const { return geometry == Geometry::Line ? key::line : key::surface; }

QJsonObject SlabArray::pattern() const
{
    QJsonObject member = emptyMember(*this);
    for (const QString &passedOver : kPassedOver)
        member.remove(passedOver);
    if (part == Persistence::Boards)
        member.remove(key::type); // never read
    return member;
}

QStringList SlabArray::keys() const { return emptyMember(*this).keys(); }

const std::vector<SlabArray> &slabArrays()
{
    namespace type = hbx::type;
    constexpr auto outline = SlabArray::Geometry::Outline;
    static const std::vector<SlabArray> arrays{
        {key::boards,
         Persistence::Boards,
         QT_TRANSLATE_NOOP("orvcad", "slab"),
         type::slab,
         outline,
         {key::surface, key::thickness, key::elev},
         {key::id}},
        {key::rafts,
         Persistence::Rafts,
         QT_TRANSLATE_NOOP("orvcad", "raft"),
         type::raft,
         outline,
         {key::surface, key::thickness, key::topElev, key::bottomElev},
         {key::id}},
        {key::boardHoles,
         Persistence::Boards,
         QT_TRANSLATE_NOOP("orvcad", "slab opening"),
         type::slabHole,
         outline,
         {key::surface},
         {key::id}},
        areaBars(key::forcedBars, Persistence::BoardBars, QT_TRANSLATE_NOOP("orvcad", "slab bar"), type::slabBar,
                 key::forcedType),
        lineBars(key::negativeForcedBars, Persistence::BoardBars, QT_TRANSLATE_NOOP("orvcad", "slab negative bar"),
                 type::slabNegativeBar),
        areaBars(key::straddleForcedBars, Persistence::BoardBars, QT_TRANSLATE_NOOP("orvcad", "straddling slab bar"),
                 type::slabBar, key::labelPosition),
        areaBars(key::raftMainForcedBars, Persistence::RaftBars, QT_TRANSLATE_NOOP("orvcad", "raft bar"), type::raftBar,
                 key::forcedType),
        areaBars(key::raftStraddleMainForcedBars, Persistence::RaftBars,
                 QT_TRANSLATE_NOOP("orvcad", "straddling raft bar"), type::raftBar, key::labelPosition),
        lineBars(key::raftNegativeForcedBars, Persistence::RaftBars, QT_TRANSLATE_NOOP("orvcad", "raft negative bar"),
                 type::raftNegativeBar),
        {key::columns, Persistence::Supports, QT_TRANSLATE_NOOP("orvcad", "column")},
        {key::beams, Persistence::Supports, QT_TRANSLATE_NOOP("orvcad", "beam")},
        {key::walls, Persistence::Supports, QT_TRANSLATE_NOOP("orvcad", "wall")},
        {key::axisGrids, Persistence::AxisNets, QT_TRANSLATE_NOOP("orvcad", "axis grid")},
    };
    return arrays;
}

QString slabCountsText(const QJsonObject &model)
{
    QStringList parts;
    for (const SlabArray &array : slabArrays())
        if (const int count = model.value(array.key).toArray().size())
            parts.append(counted(count, Message::tr(array.title)));
    return parts.isEmpty() ? Message::tr("nothing") : parts.join(QStringLiteral(", "));
}

QJsonObject slabCounts(const QJsonObject &model)
{
    QJsonObject counts;
    for (const SlabArray &array : slabArrays())
        if (model.contains(array.key))
            counts.insert(array.key, model.value(array.key).toArray().size());
    return counts;
}

} // namespace orvcad
