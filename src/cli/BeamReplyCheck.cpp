#include "cli/BeamReplyCheck.h"

#include "ModelSerialization/BeamSubTypes.h"
#include "beam/BeamKeys.h"
#include "cli/ExpectedValue.h"
#include "cli/FloorLookup.h"
#include "cli/MemberKinds.h"
#include "cli/Message.h"
#include "encoding/GeometryTextReader.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

using namespace beam;

namespace orvcad {

namespace {

/** Sizes travel with six significant digits: the host would get 0 for a larger one, mm. */
constexpr int kSizeLimit = 1000000;
/** Widths of segments travel as whole numbers of 32 bits, mm. */
constexpr double kWidthLimit = 2147483648.0;
constexpr int kSupportNumbers = 4;

const QStringList kElementWhole{key::elementType, key::elementSubType, key::type};
const QStringList kElementRequired{key::name, key::elementType, key::floorName, key::regionName};
const QStringList kSegmentWhole{key::index};
const QStringList kSegmentRequired{key::index, key::wordLine, key::lineWidth};
const QStringList kSpanWhole{key::spanIndex, key::hoopBarLimbCount};
const QStringList kMemberKeys{key::elementInfo, key::edoInfos};
const QStringList kChainKeys{key::segmentInfos, key::spanInfos};

// Fresh records: their keys, and the kind that each value has.

QJsonObject elementPattern(qint64 elementType) { return BeamModelDataInfo::makeElementInfo(elementType)->toJsonObj(); }
const QJsonObject &segmentPattern()
{
    static const QJsonObject pattern = BeamSegmentInfo().toJsonObj();
    return pattern;
}
const QJsonObject &spanPattern()
{
    static const QJsonObject pattern = BeamSpanInfo().toJsonObj();
    return pattern;
}

QString whyNotSize(const QJsonObject &element, QLatin1String key)
{
    const QJsonValue size = element.value(key);
    if (!fits(size, Expected::Integer) || size.toInt() >= kSizeLimit)
        return Message::tr("%1 is not a whole number of millimetres").arg(key);
    return size.toInt() < 0 ? Message::tr("%1 is below 0").arg(key) : QString();
}

QString whyNotSection(const QJsonObject &element)
{
    const QString outline = element.value(key::sectionPoly).toString();
    if (outline.isEmpty()) {
        QString width = whyNotSize(element, key::sectionWidth);
        return width.isEmpty() ? whyNotSize(element, key::sectionHeight) : width;
    }
    const int subType = element.value(key::elementSubType).toInt();
    if (!mayHaveOutline(subTypeMade(element.value(key::elementType).toInt(), subType)))
        return Message::tr("a beam of sub-type %1 has no outline, and %2 is one").arg(subType).arg(key::sectionPoly);
    if (outline.contains(u';') && !outline.endsWith(u';'))
        return Message::tr("%1 does not end in \";\", and its last corner would be lost").arg(key::sectionPoly);
    GeometryTextReader::Polygon polygon;
    return GeometryTextReader::reconstructPoly(outline, polygon)
               ? QString()
               : Message::tr("%1 is no outline").arg(key::sectionPoly);
}

QString whyNotType(qint64 elementType, const ReplyArray &array)
{
    if (elementType == array.elementType)
        return {};
    for (const ReplyArray &other : beamArrays())
        if (other.elementType == elementType)
            return Message::tr("a beam of type %1 belongs into \"%2\"").arg(elementType).arg(other.key);
    return Message::tr("type %1 is no beam (15, 17, 47)").arg(elementType);
}

QString whyNotSegment(const QJsonValue &value)
{
    const QJsonObject segment = value.toObject();
    if (!value.isObject())
        return Message::tr("is no object");
    QString wrong = wrongKey(segment, segmentPattern(), kSegmentWhole, kSegmentRequired);
    if (wrong.isEmpty() && segment.value(key::lineWidth).toDouble() < 0)
        wrong = Message::tr("%1 is below 0").arg(key::lineWidth);
    return wrong.isEmpty() ? whyNotAxis(key::wordLine, segment.value(key::wordLine).toString()) : wrong;
}

QString whyNotSpan(const QJsonValue &value)
{
    return value.isObject() ? wrongKey(value.toObject(), spanPattern(), kSpanWhole, {}) : Message::tr("is no object");
}

/** What of a segment is written as something else; empty for nothing. */
QString changeOfSegment(const QJsonObject &segment)
{
    const double width = segment.value(key::lineWidth).toDouble();
    return std::round(width) == width && width < kWidthLimit
               ? QString()
               : Message::tr("%1 %2 is written as a whole number of millimetres")
                     .arg(key::lineWidth, QString::number(width));
}

QString changeOfSpan(const QJsonObject &span)
{
    const QString supports = span.value(key::spanA1A4).toString();
    const QStringList numbers = supports.split(u',');
    const bool areNumbers = std::all_of(numbers.begin(), numbers.end(), [](const QString &number) {
        bool isNumber = false;
        return std::isfinite(number.toDouble(&isNumber)) && isNumber;
    });
    return supports.isEmpty() || (areNumbers && numbers.size() == kSupportNumbers)
               ? QString()
               : Message::tr("%1 is not four numbers, and is read as such").arg(key::spanA1A4);
}

/** The first reason that an entry of an array gives, with its place. */
template <typename Check> QString whyNotEntries(const QJsonObject &chain, QLatin1String key, Check check)
{
    if (chain.contains(key) && !chain.value(key).isArray())
        return Message::tr("%1 is no array").arg(key);
    const QJsonArray entries = chain.value(key).toArray();
    for (int i = 0; i < entries.size(); ++i) {
        const QString reason = check(entries.at(i));
        if (!reason.isEmpty())
            return QStringLiteral("%1[%2]: %3").arg(key).arg(i).arg(reason);
    }
    return {};
}

QString whyNotChain(const QJsonValue &value)
{
    const QJsonObject chain = value.toObject();
    if (!value.isObject())
        return Message::tr("is no object");
    QString reason = whyNotEntries(chain, key::segmentInfos, whyNotSegment);
    if (!reason.isEmpty())
        return reason;
    if (chain.value(key::segmentInfos).toArray().isEmpty())
        return Message::tr("has no segment");
    return whyNotEntries(chain, key::spanInfos, whyNotSpan);
}

} // namespace

const std::vector<ReplyArray> &beamArrays()
{
    static const std::vector<ReplyArray> arrays{
        {key::beams, type::beam}, {key::linkBeams, type::linkBeam}, {key::foundationBeams, type::foundationBeam}};
    return arrays;
}

BeamReplyCheck::BeamReplyCheck(IHBXModel &model, const QJsonObject &reply, const QString &file) : ArrayReplyCheck(model)
{
    lookThrough(
        reply, file, beamArrays(), Message::tr("reply of beams"),
        [&](const ReplyArray &array, const QString &place, const QJsonValue &member) { look(place, member, array); });
}

void BeamReplyCheck::look(const QString &place, const QJsonValue &value, const ReplyArray &array)
{
    QJsonObject object = value.toObject();
    const QString name = object.value(key::elementInfo).toObject().value(key::name).toString();
    const QString reason = whyNot(value, array);
    if (!reason.isEmpty())
        return leaveOut(place, name, reason);
    const QString elementPlace = QStringLiteral("%1.%2").arg(place, key::elementInfo);
    leaveOutUnread(object, kMemberKeys, place, name, m_leftOut);
    leaveOutUnread(object.value(key::elementInfo).toObject(), elementPattern(array.elementType).keys(), elementPlace,
                   name, m_leftOut);
    noteNamesake(place, object.value(key::elementInfo).toObject());
    Member member{place, std::make_shared<BeamModelDataInfo>(), {}};
    object.insert(key::edoInfos, soundChains(object.value(key::edoInfos).toArray(), name, member));
    member.beam->fromJson(object);
    m_sound.push_back(member);
}

void BeamReplyCheck::noteNamesake(const QString &place, QJsonObject element)
{
    for (const QLatin1String unwritten : {key::startTopElev, key::endTopElev})
        element.remove(unwritten);
    QStringList identity;
    for (const QLatin1String part : {key::regionName, key::floorName, key::name})
        identity.append(element.value(part).toString());
    identity.append(QString::number(element.value(key::elementType).toInt()));
    const auto before = m_elements.constFind(identity);
    if (before != m_elements.constEnd() && before->element != element)
        leaveOutPart(before->place, element.value(key::name).toString(),
                     Message::tr("has the name of %1, whose values take the place of its own").arg(place));
    m_elements.insert(identity, {place, element});
}

QJsonArray BeamReplyCheck::soundChains(const QJsonArray &chains, const QString &name, Member &member)
{
    QJsonArray sound;
    for (int i = 0; i < chains.size(); ++i) {
        const QString place = QStringLiteral("%1.%2[%3]").arg(member.place, key::edoInfos).arg(i);
        const QString reason = whyNotChain(chains.at(i));
        if (!reason.isEmpty()) {
            leaveOutPart(place, name, reason);
            continue;
        }
        lookForParts(chains.at(i).toObject(), place, name);
        sound.append(chains.at(i));
        member.chains.push_back(i);
    }
    return sound;
}

void BeamReplyCheck::lookForParts(const QJsonObject &chain, const QString &place, const QString &name)
{
    leaveOutUnread(chain, kChainKeys, place, name, m_leftOut);
    const auto lookAtEntries = [&](QLatin1String key, const QStringList &known, auto change) {
        int index = 0;
        for (const QJsonValue entry : chain.value(key).toArray()) {
            const QString entryPlace = QStringLiteral("%1.%2[%3]").arg(place, key).arg(index++);
            leaveOutUnread(entry.toObject(), known, entryPlace, name, m_leftOut);
            const QString changed = change(entry.toObject());
            if (!changed.isEmpty())
                leaveOutPart(entryPlace, name, changed);
        }
    };
    lookAtEntries(key::segmentInfos, segmentPattern().keys(), changeOfSegment);
    lookAtEntries(key::spanInfos, spanPattern().keys(), changeOfSpan);
}

QString BeamReplyCheck::whyNot(const QJsonValue &value, const ReplyArray &array) const
{
    const QJsonObject member = value.toObject();
    if (!value.isObject())
        return Message::tr("is no object");
    if (!member.value(key::elementInfo).isObject())
        return Message::tr("%1 is no object").arg(key::elementInfo);
    if (member.contains(key::edoInfos) && !member.value(key::edoInfos).isArray())
        return Message::tr("%1 is no array").arg(key::edoInfos);
    return whyNotElement(member.value(key::elementInfo).toObject(), array);
}

QString BeamReplyCheck::whyNotElement(const QJsonObject &element, const ReplyArray &array) const
{
    QString wrong = wrongKey(element, elementPattern(array.elementType), kElementWhole, kElementRequired);
    if (!wrong.isEmpty())
        return wrong;
    QString wrongType = whyNotType(element.value(key::elementType).toInt(), array);
    if (!wrongType.isEmpty())
        return wrongType;
    if (element.value(key::name).toString().isEmpty())
        return Message::tr("has no name");
    QString reason;
    floorOfNames(m_model, element.value(key::regionName).toString(), element.value(key::floorName).toString(), reason);
    return reason.isEmpty() ? whyNotSection(element) : reason;
}

} // namespace orvcad
