#include "cli/SlabReplyCheck.h"

#include "cli/ExpectedValue.h"
#include "cli/MemberKinds.h"
#include "cli/Message.h"
#include "cli/UnreadKeys.h"
#include "encoding/GeometryFields.h"
#include "platform/geometry/KernelTolerance.h"
#include "slab/SlabKeys.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

using namespace slab;

namespace orvcad {

namespace {

constexpr double kShortestDirection = 1e-9; // of a vector whose length does not count
constexpr double kFarthestLabel = 1e9;      // mm: beyond it coordinates lose what a bar is drawn by

QString whyNotGeometry(const SlabArray &array, const QString &text)
{
    if (array.geometry == SlabArray::Geometry::Outline)
        return encoding::KernelText::polygon(text) ? QString() : Message::tr("surface is no outline");
    const auto line = encoding::KernelText::curve(text);
    if (!line)
        return Message::tr("line is no curve");
    return line->Length() > vks::g_DistEpsilon ? QString() : Message::tr("line has no length");
}

/** What keeps a bar from being drawn: along its direction, or to both sides of its line, through the point of its label. */
QString whyNotDrawn(const SlabArray &array, const QJsonObject &member)
{
    const auto number = [&member](QLatin1String key) { return member.value(key).toDouble(); };
    if (!array.required.contains(key::barInfo))
        return {};
    if (array.geometry == SlabArray::Geometry::Line) {
        if (number(key::leftStretchLength) + number(key::rightStretchLength) <= vks::g_DistEpsilon)
            return Message::tr("it stretches to neither side of its line");
    } else if (std::hypot(number(key::directionX), number(key::directionY)) <= kShortestDirection) {
        return Message::tr("its direction has no length");
    }
    for (const QLatin1String key : {key::refPointX, key::refPointY})
        if (std::fabs(number(key)) > kFarthestLabel)
            return Message::tr("%1 lies beyond %2 m").arg(key, QString::number(kFarthestLabel / 1000, 'f', 0));
    return {};
}

QString whyNot(const SlabArray &array, const QJsonValue &value, const QJsonObject &pattern)
{
    const QJsonObject member = value.toObject();
    if (!value.isObject())
        return Message::tr("is no object");
    QString wrong = wrongKey(member, pattern, array.whole, array.required);
    if (wrong.isEmpty())
        wrong = whyNotGeometry(array, member.value(array.geometryKey()).toString());
    return wrong.isEmpty() ? whyNotDrawn(array, member) : wrong;
}

bool hasAnyArray(const QJsonObject &model)
{
    return std::any_of(slabArrays().begin(), slabArrays().end(),
                       [&model](const SlabArray &array) { return model.contains(array.key); });
}

} // namespace

QJsonObject slabModelOf(const QJsonObject &document, const QString &file)
{
    if (!document.contains(key::model)) {
        if (!hasAnyArray(document))
            throw CommandFailure(kBadInput, file, {},
                                 Message::tr("has neither \"model\" nor an array of slabs, rafts, holes or bars: no "
                                             "reply of slabs"));
        return document;
    }
    if (!document.value(key::model).isObject())
        throw CommandFailure(kBadInput, file, key::model, Message::tr("is no object"));
    return document.value(key::model).toObject();
}

SlabReplyCheck::SlabReplyCheck(const QJsonObject &model)
{
    QStringList known;
    for (const SlabArray &array : slabArrays()) {
        known.append(array.key);
        if (model.contains(array.key))
            look(array, model.value(array.key));
    }
    leaveOutUnread(model, known, {}, {}, m_leftOut);
}

void SlabReplyCheck::look(const SlabArray &array, const QJsonValue &value)
{
    const QJsonArray members = value.toArray();
    if (!value.isArray())
        m_leftOut.push_back({array.key, {}, Message::tr("is no array"), false});
    if (!array.isMade()) {
        m_passedOver += members.size();
        return;
    }
    const QJsonObject pattern = array.pattern();
    Count count{&array, members.size()};
    int index = 0;
    for (const QJsonValue member : members)
        look(array, index++, member, pattern, count);
    m_counts.push_back(count);
}

void SlabReplyCheck::look(const SlabArray &array, int index, const QJsonValue &value, const QJsonObject &pattern,
                          Count &count)
{
    const QJsonObject member = value.toObject();
    const QString place = QStringLiteral("%1[%2]").arg(array.key).arg(index);
    const QJsonValue id = member.value(key::id);
    if (fits(id, Expected::Integer) && id.toInt() > 0) { // in the host already, however it looks here
        ++count.known;
        return;
    }
    const QString reason = whyNot(array, value, pattern);
    const QString name = member.value(key::name).toString();
    if (!reason.isEmpty())
        return m_leftOut.push_back({place, name, reason});
    leaveOutUnread(member, array.keys(), place, name, m_leftOut);
    const QString identity = member.value(key::recongnizedID).toString();
    if (!identity.isEmpty() && QUuid(identity).isNull())
        m_leftOut.push_back({place + u'.' + key::recongnizedID, name, Message::tr("is no identity"), false});
    take(array, place, member);
}

void SlabReplyCheck::take(const SlabArray &array, const QString &place, QJsonObject json)
{
    const QUuid identity(json.value(key::recongnizedID).toString());
    const QUuid written = QUuid::createUuid();
    json.insert(key::recongnizedID, written.toString());
    if (!identity.isNull() && m_identities.contains(identity))
        ++m_repeated;
    m_identities.insert(identity);
    m_sound.push_back({&array, place, json.value(key::name).toString(), identity, written, json});
}

} // namespace orvcad
