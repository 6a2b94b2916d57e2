#include "cli/ReplyReading.h"

#include "IdentifyInputModel/Wall/WallKeys.h"
#include "beam/BeamKeys.h"
#include "cli/BeamReplyCheck.h"
#include "cli/DocumentReading.h"
#include "cli/ImpliedBuilding.h"
#include "cli/Message.h"
#include "cli/OpeningReplyCheck.h"
#include "cli/SeatReplyCheck.h"
#include "cli/SlabReplyCheck.h"
#include "cli/WallReplyCheck.h"
#include "doorwindow/DoorWindowKeys.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXService.h"
#include "slab/SlabKeys.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

namespace orvcad {

namespace {

using Findings = std::vector<CheckFinding>;

QJsonObject objectOf(const QByteArray &text) { return QJsonDocument::fromJson(text).object(); }

QString textIn(const QJsonObject &object, QLatin1String key) { return object.value(key).toString(); }

/** What a check of a reply left out, but for what a fault is the reason of.
 *  @param above  path in front of the places of the check */
template <typename LeftOuts>
Findings findingsOf(const LeftOuts &leftOut, const QString &above, const JsonTree &document, const FaultyValues &faults)
{
    Findings findings;
    for (const LeftOut &entry : leftOut) {
        CheckFinding finding =
            findingOfReader(document, CheckFinding::Weight::Dropped, above + entry.place, entry.reason);
        if (!faults.touch(finding.node))
            findings.push_back(std::move(finding));
    }
    return findings;
}

/** The members of a reply of openings, and what they need. */
class ImpliedByOpenings
{
public:
    ImpliedByOpenings(const JsonTree &document, const QJsonArray &members, const FaultyValues &faults)
    {
        for (int i = 0; i < members.size(); ++i) {
            const QJsonObject member = members.at(i).toObject();
            const bool isSound = faults.isEmpty() || !faults.touch(document.find(OpeningReplyCheck::placeOf(i)));
            m_building.addFloor(regionOf(member), floorOf(member));
            if (isSound && member.contains(doorwindow::key::elementId))
                m_made.insert({regionOf(member), floorOf(member), textIn(member, doorwindow::key::name)});
        }
        for (const QJsonValue member : members)
            addDoorOf(member.toObject());
    }
    const ImpliedBuilding &building() const { return m_building; }

private:
    static QString regionOf(const QJsonObject &member) { return textIn(member, doorwindow::key::regionName); }
    static QString floorOf(const QJsonObject &member) { return textIn(member, doorwindow::key::floorName); }

    /** An element that the reply makes as soon as its fault is gone is taken for made. */
    void addDoorOf(const QJsonObject &member)
    {
        const QString name = textIn(member, doorwindow::key::elementName);
        if (!m_made.contains({regionOf(member), floorOf(member), name}))
            m_building.addDoor(regionOf(member), floorOf(member), name);
    }

    ImpliedBuilding m_building;
    QSet<QStringList> m_made; // by region, floor and name
};

/** A key that is none shifts the numbers of the walls behind it. */
bool hasGaps(const QJsonObject &map)
{
    for (int number = 0; number < wallCount(map); ++number)
        if (!map.contains(wallElementKey(number)) || !map.contains(wallPiecesKey(number)))
            return true;
    return map.size() % 2 != 0;
}

/** Walls of a name that one before has on its floor. The host has each name once. */
std::vector<LeftOut> namesakesIn(const WallReplyCheck &check)
{
    std::vector<LeftOut> namesakes;
    QHash<QStringList, QString> places; // by region, floor and name
    for (const WallReplyCheck::Member &member : check.sound()) {
        const QString name = member.text(wall::key::entName);
        const QStringList identity{member.text(wall::key::region), member.text(wall::key::floorCode), name};
        const auto before = places.constFind(identity);
        if (before == places.constEnd())
            places.insert(identity, member.place);
        else
            namesakes.push_back({member.place + QLatin1Char('.') + wall::key::entName, name,
                                 Message::tr("is the name of %1, too: the wall is made under another one").arg(*before),
                                 false});
    }
    return namesakes;
}

Findings readWallsOf(const WallKind &kind, const QJsonObject &reply, const JsonTree &document,
                     const FaultyValues &faults)
{
    const QJsonObject map = kind.mapIn(reply);
    const QString above = QStringLiteral("%1.%2.").arg(kind.reply, wall::reply::elementsAndEdos);
    if (map.isEmpty() || (hasGaps(map) && faults.touch(document.find(above + kind.document))))
        return {};
    ImpliedBuilding building;
    for (const QJsonValue element : map)
        building.addFloor(textIn(element.toObject(), wall::key::region),
                          textIn(element.toObject(), wall::key::floorCode));
    const auto project = building.project();
    const WallReplyCheck check(*project->service()->model(), kind, reply, QString());
    Findings findings = findingsOf(check.leftOut(), above, document, faults);
    const Findings renamed = findingsOf(namesakesIn(check), above, document, faults);
    findings.insert(findings.end(), renamed.begin(), renamed.end());
    return findings;
}

/** Of a reply in arrays by type.
 *  @param floorKeys  object in a member that names region and floor; empty for the member itself */
template <typename Check>
Findings readArrays(const std::vector<ReplyArray> &arrays, QLatin1String placeKey, const JsonTree &document,
                    const QByteArray &text, const FaultyValues &faults)
{
    const QJsonObject reply = objectOf(text);
    if (!faults.isEmpty() || reply.isEmpty()) // the fault of a member may show in another one of its name
        return {};
    ImpliedBuilding building;
    for (const ReplyArray &array : arrays) {
        for (const QJsonValue member : reply.value(array.key).toArray()) {
            const QJsonObject object = member.toObject();
            const QJsonObject place = placeKey.isEmpty() ? object : object.value(placeKey).toObject();
            building.addFloor(textIn(place, beam::key::regionName), textIn(place, beam::key::floorName));
        }
    }
    const auto project = building.project();
    const Check check(*project->service()->model(), reply, QString());
    return findingsOf(check.leftOut(), QString(), document, faults);
}

} // namespace

Findings readOpenings(const JsonTree &document, const QByteArray &text, const FaultyValues &faults)
{
    const QJsonObject section = objectOf(text).value(doorwindow::key::reply).toObject();
    const QJsonArray members = section.value(doorwindow::key::elementsAndEdos).toArray();
    const auto project = ImpliedByOpenings(document, members, faults).building().project();
    const OpeningReplyCheck check(*project->service()->model(), members);
    return findingsOf(check.leftOut(), QString(), document, faults);
}

Findings readWalls(const JsonTree &document, const QByteArray &text, const FaultyValues &faults)
{
    const QJsonObject reply = objectOf(text);
    Findings findings;
    for (const WallKind &kind : wallKinds()) {
        const Findings found = readWallsOf(kind, reply, document, faults);
        findings.insert(findings.end(), found.begin(), found.end());
    }
    return findings;
}

Findings readSlabs(const JsonTree &document, const QByteArray &text, const FaultyValues &faults)
try {
    const QJsonObject whole = objectOf(text);
    const SlabReplyCheck check(slabModelOf(whole, QString()));
    const bool isInIo = whole.contains(slab::key::model);
    return findingsOf(check.leftOut(), isInIo ? QString(slab::key::model) + QLatin1Char('.') : QString(), document,
                      faults);
} catch (const CommandFailure &) { // no model to read, which is a fault
    return {};
}

Findings readBeams(const JsonTree &document, const QByteArray &text, const FaultyValues &faults)
{
    return readArrays<BeamReplyCheck>(beamArrays(), beam::key::elementInfo, document, text, faults);
}

Findings readSeats(const JsonTree &document, const QByteArray &text, const FaultyValues &faults)
{
    return readArrays<SeatReplyCheck>(seatArrays(), QLatin1String(), document, text, faults);
}

} // namespace orvcad
