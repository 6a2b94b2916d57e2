#include "cli/OpeningReplyCheck.h"

#include "cli/ExpectedValue.h"
#include "cli/FloorLookup.h"
#include "cli/Message.h"
#include "cli/OpeningTypes.h"
#include "cli/UnreadKeys.h"
#include "doorwindow/DoorWindowKeys.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"

#include <QStringList>

using namespace doorwindow;

namespace orvcad {

namespace {

// Without what is required an opening would have no size or no place.
constexpr KeyKind kElementKeys[] = {
    {key::name, Expected::Text},
    {key::elementType, Expected::Integer},
    {key::elementSubType, Expected::Integer},
    {key::height, Expected::Integer, true},
    {key::width, Expected::Integer, true},
    {key::heightFromFloor, Expected::Integer},
    {key::floorName, Expected::Text},
    {key::regionName, Expected::Text},
};
constexpr KeyKind kPlacedKeys[] = {
    {key::elementName, Expected::Text},        {key::x, Expected::Number, true}, {key::y, Expected::Number, true},
    {key::heightFromFloor, Expected::Integer}, {key::floorName, Expected::Text}, {key::regionName, Expected::Text},
};

template <std::size_t Count> QString wrongKeyOf(const QJsonObject &member, const KeyKind (&keys)[Count])
{
    for (const KeyKind &expected : keys) {
        const bool isThere = member.contains(expected.key);
        if (!isThere && expected.isRequired)
            return Message::tr("%1 is missing").arg(expected.key);
        if (isThere && !fits(member[expected.key], expected.kind))
            return Message::tr("%1 is not %2").arg(expected.key, wordFor(expected.kind));
    }
    return {};
}

template <std::size_t Count> QStringList keysOf(const KeyKind (&keys)[Count])
{
    QStringList known;
    for (const KeyKind &expected : keys)
        known.append(expected.key);
    return known;
}

/** Keys of an element or of a placed object, whichever the member is. */
const QStringList &keysOf(const QJsonObject &member)
{
    static const QStringList ofElement = QStringList(key::elementId) + keysOf(kElementKeys);
    static const QStringList ofPlaced = keysOf(kPlacedKeys);
    return member.contains(key::elementId) ? ofElement : ofPlaced;
}

QString elementNameOf(const QJsonObject &member)
{
    return member[member.contains(key::elementId) ? key::name : key::elementName].toString();
}

} // namespace

QString OpeningReplyCheck::LeftOut::text() const
{
    return Message::tr("member %1%2 (%3): %4")
        .arg(index)
        .arg(place.mid(placeOf(index).size()), name.isEmpty() ? Message::tr("no name") : shortened(name), reason);
}

QJsonObject OpeningReplyCheck::LeftOut::toJson() const
{
    QJsonObject json = orvcad::LeftOut::toJson();
    json["index"] = index;
    return json;
}

QString OpeningReplyCheck::placeOf(int index)
{
    return QStringLiteral("%1.%2[%3]").arg(key::reply, key::elementsAndEdos).arg(index);
}

OpeningReplyCheck::LeftOut OpeningReplyCheck::leftOut(int index, orvcad::LeftOut told)
{
    LeftOut leftOut;
    static_cast<orvcad::LeftOut &>(leftOut) = std::move(told);
    leftOut.index = index;
    return leftOut;
}

OpeningReplyCheck::OpeningReplyCheck(IHBXModel &model, const QJsonArray &members)
    : m_model(model), m_memberCount(members.size())
{
    noteElementPlaces(members);
    for (int index = 0; index < members.size(); ++index) {
        const QJsonObject member = members[index].toObject();
        const QString reason = members[index].isObject() ? whyNot(index, member) : Message::tr("is no object");
        if (reason.isEmpty())
            take(index, member);
        else
            m_leftOut.push_back(leftOut(index, {placeOf(index), elementNameOf(member), reason}));
    }
}

void OpeningReplyCheck::take(int index, const QJsonObject &member)
{
    m_sound.append(member);
    m_soundPlaces.push_back(index);
    std::vector<orvcad::LeftOut> unread;
    leaveOutUnread(member, keysOf(member), placeOf(index), elementNameOf(member), unread);
    for (const orvcad::LeftOut &key : unread)
        m_leftOut.push_back(leftOut(index, key));
}

void OpeningReplyCheck::noteElementPlaces(const QJsonArray &members)
{
    for (int index = 0; index < members.size(); ++index) {
        const QJsonObject member = members[index].toObject();
        QString reason;
        IHBXFloor *floor = member.contains(key::elementId) ? floorOf(member, reason) : nullptr;
        const PlacedName place(floor ? floor->id() : 0, elementNameOf(member));
        if (floor && !m_elementPlaces.contains(place))
            m_elementPlaces.insert(place, index);
    }
}

QString OpeningReplyCheck::whyNot(int index, const QJsonObject &member)
{
    const bool isElement = member.contains(key::elementId);
    QString wrong = isElement ? wrongKeyOf(member, kElementKeys) : wrongKeyOf(member, kPlacedKeys);
    if (!wrong.isEmpty())
        return wrong;
    return isElement ? whyNotElement(member) : whyNotPlaced(index, member);
}

IHBXFloor *OpeningReplyCheck::floorOf(const QJsonObject &member, QString &reason) const
{
    return floorOfCode(m_model, member[key::regionName].toString(), member[key::floorName].toString(), reason);
}

QString OpeningReplyCheck::whyNotElement(const QJsonObject &member)
{
    const QString name = member[key::name].toString();
    if (name.isEmpty())
        return Message::tr("has no name");
    const int elementType = member[key::elementType].toInt();
    if (!isOpening(elementType))
        return Message::tr("type %1 is no door or window (4, 5, 6, 7)").arg(elementType);
    QString reason;
    IHBXFloor *floor = floorOf(member, reason);
    if (!floor)
        return reason;
    const PlacedName place(floor->id(), name);
    if (m_soundElements.contains(place))
        return Message::tr("member %1 has that name on the floor already").arg(m_elementPlaces.value(place));
    if (m_model.elements()->findElement(name, floor->id(), -1, true, 0))
        return Message::tr("the floor has an element of that name already; it is kept as it is");
    m_soundElements.insert(place);
    return {};
}

QString OpeningReplyCheck::whyNotPlaced(int index, const QJsonObject &member) const
{
    QString reason;
    IHBXFloor *floor = floorOf(member, reason);
    if (!floor)
        return reason;
    const QString name = member[key::elementName].toString();
    const PlacedName place(floor->id(), name);
    if (m_soundElements.contains(place))
        return {};
    const IHBXElement *element = m_model.elements()->findElement(name, floor->id(), -1, true, 0);
    if (element)
        return isOpening(element->type()) ? QString() : Message::tr("element \"%1\" is no door or window").arg(name);
    const int elementPlace = m_elementPlaces.value(place, -1);
    if (elementPlace > index)
        return Message::tr("its element \"%1\" stands behind it, as member %2")
            .arg(name, QString::number(elementPlace));
    if (elementPlace >= 0)
        return Message::tr("its element \"%1\", member %2, was left out").arg(name, QString::number(elementPlace));
    return Message::tr("the floor has no element \"%1\", and the reply makes none").arg(name);
}

} // namespace orvcad
