#include "cli/WallReplyCheck.h"

#include "IdentifyInputModel/Wall/WallKeys.h"
#include "cli/FloorLookup.h"
#include "cli/MemberKinds.h"
#include "cli/Message.h"
#include "cli/UnreadKeys.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace wall;

namespace orvcad {

namespace {

/** What a text of a record is used for. */
enum class Use {
    Name,         ///< must arrive as it is
    Bars,         ///< is cut where the form cuts it
    Whole,        ///< a number
    WholeOrEmpty, ///< or nothing
};

struct KeyRule
{
    QLatin1String key;
    Use use;
    bool isRequired = false;
};
constexpr KeyRule kElementKeys[] = {
    {key::entName, Use::Name, true},    {key::elementType, Use::Whole, true},
    {key::elementSubType, Use::Whole},  {key::width, Use::Whole, true},
    {key::floorCode, Use::Name, true},  {key::region, Use::Name, true},
    {key::material, Use::WholeOrEmpty}, {key::throughBar, Use::Bars},
    {key::transverseBar, Use::Bars},    {key::tieBar, Use::Bars},
    {key::hreBar, Use::Bars},           {key::vreBar, Use::Bars},
};
constexpr KeyRule kPieceKeys[] = {
    {key::pieceLine, Use::Name, true}, {key::startTopElev, Use::Name},  {key::startBottomElev, Use::Name},
    {key::endTopElev, Use::Name},      {key::endBottomElev, Use::Name},
};
constexpr int kNoWidth = -1; // stands for a thickness that is not written

const QRegularExpression &separator()
{
    static const QRegularExpression pattern(QStringLiteral("[/:]"));
    return pattern;
}

bool isWholeText(const QString &text)
{
    bool isWhole = false;
    text.toInt(&isWhole);
    return isWhole;
}

QString whyNotValue(const QJsonValue &value, const KeyRule &rule)
{
    const QString text = value.toString();
    if (!value.isString())
        return Message::tr("%1 is not text").arg(rule.key);
    if (rule.use == Use::Name && text.contains(separator()))
        return Message::tr("%1 holds \"/\" or \":\", which cuts it").arg(rule.key);
    const bool isNumber = rule.use == Use::Whole || (rule.use == Use::WholeOrEmpty && !text.isEmpty());
    return isNumber && !isWholeText(text) ? Message::tr("%1 is not the text of a whole number").arg(rule.key)
                                          : QString();
}

/** Keys of the records that tell where a wall comes from and what it was recognised by; nothing is written of them. */
const QStringList kUnusedElementKeys{key::edoId, key::typePropertyValue};
const QStringList kUnusedPieceKeys{key::pieceWidth, key::pieceText, key::pieceEntName, key::piecePolygon,
                                   key::floorCode,  key::region,    key::segments};

/** What the walls of one kind alone have. */
const QStringList kBrickKeys{key::material, key::throughBar, key::transverseBar};
const QStringList kForceKeys{key::tieBar, key::hreBar, key::vreBar};

template <std::size_t Count> QStringList keysOf(const KeyRule (&rules)[Count], QStringList unused)
{
    for (const KeyRule &rule : rules)
        unused.append(rule.key);
    return unused;
}

QStringList elementKeysOf(const WallKind &kind)
{
    QStringList keys = keysOf(kElementKeys, kUnusedElementKeys);
    for (const QString &other : kind.isBrick() ? kForceKeys : kBrickKeys)
        keys.removeOne(other);
    return keys;
}

template <std::size_t Count> QString whyNotRecord(const QJsonObject &record, const KeyRule (&rules)[Count])
{
    for (const KeyRule &rule : rules) {
        const bool isThere = record.contains(rule.key);
        if (!isThere && rule.isRequired)
            return Message::tr("%1 is missing").arg(rule.key);
        QString reason = isThere ? whyNotValue(record.value(rule.key), rule) : QString();
        if (!reason.isEmpty())
            return reason;
    }
    return {};
}

/** The record with the keys that are used, and nothing behind a separator. */
template <std::size_t Count> QJsonObject used(const QJsonObject &record, const KeyRule (&rules)[Count])
{
    QJsonObject kept;
    for (const KeyRule &rule : rules)
        if (record.contains(rule.key))
            kept[rule.key] = record.value(rule.key).toString().section(separator(), 0, 0);
    return kept;
}

QString whyNotPiece(const QJsonValue &value)
{
    if (!value.isObject())
        return Message::tr("is no object");
    const QJsonObject piece = value.toObject();
    QString reason = whyNotRecord(piece, kPieceKeys);
    return reason.isEmpty() ? whyNotAxis(key::pieceLine, piece.value(key::pieceLine).toString()) : reason;
}

/** The object of that key; throws naming the place. */
QJsonObject objectIn(const QJsonObject &object, const QString &key, const QString &place, const QString &file,
                     const WallKind &kind)
{
    if (!object.value(key).isObject())
        throw CommandFailure(kBadInput, file, place,
                             Message::tr("no object of that key: no reply of %1").arg(Message::tr(kind.titles)));
    return object.value(key).toObject();
}

} // namespace

QString cutName(const QJsonObject &element)
{
    for (const KeyRule &rule : kElementKeys)
        if (rule.use == Use::Name && element.value(rule.key).toString().contains(separator()))
            return whyNotValue(element.value(rule.key), rule);
    return {};
}

QStringList cutBars(const QJsonObject &element)
{
    QStringList cuts;
    for (const KeyRule &rule : kElementKeys) {
        const QString text = element.value(rule.key).toString();
        if (rule.use == Use::Bars && text.contains(separator()))
            cuts.append(Message::tr("%1 \"%2\" is cut to \"%3\"").arg(rule.key, text, text.section(separator(), 0, 0)));
    }
    return cuts;
}

WallReplyCheck::WallReplyCheck(IHBXModel &model, const WallKind &kind, const QJsonObject &reply, const QString &file)
    : m_model(model), m_kind(kind)
{
    const QString above = QStringLiteral("%1.%2").arg(kind.reply, reply::elementsAndEdos);
    const QJsonObject walls = objectIn(reply, kind.reply, kind.reply, file, kind);
    const QJsonObject document = objectIn(walls, reply::elementsAndEdos, above, file, kind);
    const QJsonObject map = objectIn(document, kind.document, above + '.' + kind.document, file, kind);
    m_memberCount = wallCount(map);
    for (int number = 0; number < m_memberCount; ++number)
        look(map, number);
    lookForUnread(map);
    std::stable_sort(m_sound.begin(), m_sound.end(),
                     [](const Member &a, const Member &b) { return a.edoId < b.edoId; });
}

void WallReplyCheck::look(const QJsonObject &map, int number)
{
    const QString above = m_kind.document + QLatin1Char('.');
    const QJsonValue element = map.value(wallElementKey(number));
    const QJsonValue pieces = map.value(wallPiecesKey(number));
    Member member;
    member.place = above + wallElementKey(number);
    member.edoId = element.toObject().value(key::edoId).toString().toLongLong();
    member.element = used(element.toObject(), kElementKeys);
    const QString name = element.toObject().value(key::entName).toString();
    QString reason = whyNot(element, pieces);
    // By its record, as the reader compares them: the one that is read later replaces the other.
    const QByteArray record = QJsonDocument(element.toObject()).toJson(QJsonDocument::Compact);
    if (reason.isEmpty() && m_places.contains(record))
        reason = Message::tr("is the same element as %1").arg(m_places.value(record));
    if (!reason.isEmpty())
        return leaveOut(member.place, name, reason);
    m_places.insert(record, member.place);
    leaveOutUnread(element.toObject(), elementKeysOf(m_kind), member.place, name, m_leftOut);
    for (const QString &cut : cutBars(element.toObject()))
        leaveOutPart(member.place, name, cut);
    lookAtPieces(pieces.toArray(), above + wallPiecesKey(number), member);
    m_sound.push_back(member);
}

void WallReplyCheck::lookAtPieces(const QJsonArray &pieces, const QString &place, Member &member)
{
    for (int i = 0; i < pieces.size(); ++i) {
        const QString piecePlace = QStringLiteral("%1[%2]").arg(place).arg(i);
        const QString reason = whyNotPiece(pieces.at(i));
        if (!reason.isEmpty()) {
            leaveOutPart(piecePlace, member.text(key::entName), reason);
            ++member.leftOut;
            continue;
        }
        leaveOutUnread(pieces.at(i).toObject(), keysOf(kPieceKeys, kUnusedPieceKeys), piecePlace,
                       member.text(key::entName), m_leftOut);
        member.pieces.append(used(pieces.at(i).toObject(), kPieceKeys));
        member.piecePlaces.append(piecePlace);
    }
}

void WallReplyCheck::lookForUnread(const QJsonObject &map)
{
    QSet<QString> read;
    for (int number = 0; number < m_memberCount; ++number)
        read << wallElementKey(number) << wallPiecesKey(number);
    for (const QString &key : map.keys())
        if (!read.contains(key))
            leaveOutPart(m_kind.document + QLatin1Char('.') + key, {},
                         Message::tr("is not read: half of the %1 keys are entries, counted from 0").arg(map.size()));
}

QString WallReplyCheck::whyNot(const QJsonValue &element, const QJsonValue &pieces) const
{
    if (!element.isObject())
        return element.isUndefined() ? Message::tr("is missing") : Message::tr("is no object");
    if (!pieces.isArray())
        return Message::tr("its pieces are no array");
    const QJsonObject record = element.toObject();
    QString reason = whyNotRecord(record, kElementKeys);
    if (!reason.isEmpty())
        return reason;
    const auto text = [&record](QLatin1String key) { return record.value(key).toString(); };
    if (text(key::elementType).toInt() != m_kind.elementType)
        return Message::tr("type %1 is no %2 (%3)")
            .arg(text(key::elementType), Message::tr(m_kind.title))
            .arg(m_kind.elementType);
    if (text(key::entName).isEmpty())
        return Message::tr("has no name");
    const int width = text(key::width).toInt();
    if (width <= 0 && width != kNoWidth)
        return Message::tr("width is not above 0");
    floorOfCode(m_model, text(key::region), text(key::floorCode), reason);
    return reason;
}

void WallReplyCheck::leaveOut(const QString &place, const QString &name, const QString &reason)
{
    m_leftOut.push_back({place, name, reason});
}

void WallReplyCheck::leaveOutPart(const QString &place, const QString &name, const QString &reason)
{
    m_leftOut.push_back({place, name, reason, false});
}

} // namespace orvcad
