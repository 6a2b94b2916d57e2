#include "cli/Beams.h"

#include "ModelSerialization/ORVCADBeamHBXModelConvertService.h"
#include "ModelSerialization/ORVCADBeamLocalModel2HBXService.h"
#include "beam/BeamKeys.h"
#include "beam/ORVCADBeamCollectDataModel.h"
#include "cli/BeamReplyCheck.h"
#include "cli/Counted.h"
#include "cli/ElementRemoval.h"
#include "cli/FloorLookup.h"
#include "cli/Message.h"
#include "cli/ReplyWriting.h"
#include "cli/TypeTitles.h"
#include "platform/embedded/HBXModelStore.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/HBXBatch.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXService.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <map>

using hbx::embedded::HBXProject;

namespace orvcad {

namespace {

using Service = ORVCADBeamLocalModel2HBXService;

/** What orders the chains of an element: their axes, and where these are the same, all the rest. */
QByteArray orderOf(const BeamEdoInfo &chain)
{
    QString axes;
    for (const auto &segment : chain.segments)
        axes += segment->WordLine + QLatin1Char('\n');
    return axes.toUtf8() + QJsonDocument(chain.toJsonObj()).toJson(QJsonDocument::Compact);
}

void sortChains(BeamModelDataInfo &beam)
{
    std::multimap<QByteArray, std::shared_ptr<BeamEdoInfo>> sorted;
    for (const auto &chain : beam.edoInfos)
        sorted.emplace(orderOf(*chain), chain);
    beam.edoInfos.clear();
    for (const auto &entry : sorted)
        beam.edoInfos.push_back(entry.second);
}

void count(const BeamModelDataInfo &beam, BeamCounts &counts)
{
    ++counts.elements;
    counts.chains += static_cast<int>(beam.edoInfos.size());
    for (const auto &chain : beam.edoInfos) {
        counts.segments += static_cast<int>(chain->segments.size());
        counts.spans += static_cast<int>(chain->spans.size());
    }
}

std::vector<QJsonObject> spanObjects(const BeamEdoInfo &chain)
{
    std::vector<QJsonObject> spans;
    for (const auto &span : chain.spans)
        spans.push_back(span->toJsonObj());
    return spans;
}

/** What stopped a chain, by the numbers of the service. */
QString stopReason(int result)
{
    switch (result) {
    case Service::kSegmentsNotConsecutive:
        return Message::tr("the numbers of its segments do not follow one another");
    case Service::kNoDrawObj:
        return Message::tr("the host made no draw object");
    case Service::kNoLineShape:
        return Message::tr("the draw object is no line");
    case Service::kSizesNotWritten:
        return Message::tr("the host took neither width nor offset");
    case Service::kElevationsNotWritten:
        return Message::tr("the host took neither elevation");
    default:
        return Message::tr("result %1").arg(result);
    }
}

/** Writes beams one by one and keeps account. */
class BeamWriter
{
public:
    explicit BeamWriter(HBXProject &project, BeamOutcome &outcome)
        : m_project(project), m_model(*project.service()->model()), m_service(project.service()), m_outcome(outcome)
    {}

    void write(const BeamReplyCheck::Member &member)
    {
        const std::size_t journalBefore = m_project.journal().entries().size();
        BaseBeamEntInfo &record = *member.beam->elementInfo;
        BeamOutcome::Beam beam;
        beam.place = member.place;
        beam.name = record.Name;
        beam.type = record.ElementType;
        beam.floor = record.FloorName;
        const int elementsBefore = m_model.elements()->count();
        IHBXElement *element = nullptr;
        const bool isWritten = m_service.localModel2BeamEnt(&record, element);
        beam.isReused = m_model.elements()->count() == elementsBefore;
        if (isWritten)
            for (std::size_t i = 0; i < member.chains.size(); ++i)
                writeChain(*member.beam->edoInfos[i], member.chains[i], *element, beam);
        else if (element)
            for (const int chain : member.chains)
                leaveOutPart(chainPlace(beam, chain), beam.name,
                             Message::tr("was not made, since the host did not take the element whole"));
        else
            leaveOut(beam.place, beam.name, Message::tr("the host made no element"));
        for (const QString &reason : refusedSince(m_project, journalBefore))
            leaveOutPart(beam.place, beam.name, Message::tr("a value was refused: %1").arg(reason));
        if (element)
            m_outcome.beams.push_back(beam);
    }

    void finish() {}

private:
    static QString chainPlace(const BeamOutcome::Beam &beam, int position)
    {
        return QStringLiteral("%1.%2[%3]").arg(beam.place, beam::key::edoInfos).arg(position);
    }
    void writeChain(BeamEdoInfo &chain, int position, IHBXElement &element, BeamOutcome::Beam &beam)
    {
        const int before = m_model.drawObjects()->count();
        const int result = m_service.localModel2BeamEdo(&chain, &element);
        const int made = m_model.drawObjects()->count() - before;
        beam.segments += made;
        if (result != Service::kDone) {
            ++beam.stopped;
            leaveOutPart(
                chainPlace(beam, position), beam.name,
                Message::tr("stopped behind %1 of %2, which stay unlinked: %3")
                    .arg(made)
                    .arg(counted(static_cast<int>(chain.segments.size()), Message::tr("segment")), stopReason(result)));
            return;
        }
        ++beam.chains;
        // Ids only ever grow: the first object made is the head.
        m_project.store().setSpans(m_model.drawObjects()->at(before), spanObjects(chain));
        beam.spans += static_cast<int>(chain.spans.size());
    }
    void leaveOut(const QString &place, const QString &name, const QString &reason)
    {
        m_outcome.leftOut.push_back({place, name, reason});
    }
    void leaveOutPart(const QString &place, const QString &name, const QString &reason)
    {
        m_outcome.leftOut.push_back({place, name, reason, false});
    }

    HBXProject &m_project;
    IHBXModel &m_model;
    Service m_service;
    BeamOutcome &m_outcome;
};

} // namespace

const QSet<qint64> &beamTypes()
{
    static const QSet<qint64> types = [] {
        QSet<qint64> all;
        for (const ReplyArray &array : beamArrays())
            all.insert(array.elementType);
        return all;
    }();
    return types;
}

QString BeamCounts::text() const
{
    return Message::tr("%1, %2 of %3, %4")
        .arg(counted(elements, Message::tr("element")), counted(chains, Message::tr("chain")),
             counted(segments, Message::tr("segment")), counted(spans, Message::tr("span")));
}

QJsonObject BeamCounts::toJson() const
{
    return {{"elements", elements}, {"chains", chains}, {"segments", segments}, {"spans", spans}};
}

QString BeamOutcome::Beam::text() const
{
    const QString stops = stopped ? Message::tr(", %1 stopped").arg(counted(stopped, Message::tr("chain"))) : QString();
    return Message::tr("%1 (%2) on %3: %4, %5 of %6, %7%8")
        .arg(name, shownTypeTitle(type), floor, isReused ? Message::tr("reused") : Message::tr("made"),
             counted(chains, Message::tr("chain")), counted(segments, Message::tr("segment")),
             counted(spans, Message::tr("span")), stops);
}

QJsonObject BeamOutcome::Beam::toJson() const
{
    return {{"place", place},
            {"name", name},
            {"type", type},
            {"floor", floor},
            {"element", isReused ? "reused" : "made"},
            {"chains", chains},
            {"segments", segments},
            {"spans", spans},
            {"stopped", stopped}};
}

int BeamOutcome::reused() const
{
    return static_cast<int>(std::count_if(beams.begin(), beams.end(), [](const Beam &beam) { return beam.isReused; }));
}

BeamCounts BeamOutcome::made() const
{
    BeamCounts sum;
    for (const Beam &beam : beams) {
        sum.elements += beam.isReused ? 0 : 1;
        sum.chains += beam.chains;
        sum.segments += beam.segments;
        sum.spans += beam.spans;
    }
    return sum;
}

QString BeamOutcome::headline() const
{
    return Message::tr("%1 read: %2 made (and %3 reused), %4")
        .arg(counted(members, Message::tr("beam")), made().text())
        .arg(counted(reused(), Message::tr("element")), leftOutCount(leftOut));
}

QString BeamOutcome::text() const
{
    QStringList lines;
    for (const Beam &beam : beams)
        lines.append(beam.text());
    return headline() + cutLines(lines) + leftOutLines(leftOut) + doubledLine(doubled);
}

QJsonObject BeamOutcome::toJson() const
{
    QJsonArray list;
    for (const Beam &beam : beams)
        list.append(beam.toJson());
    return {{"members", members}, {"made", made().toJson()}, {"reused", reused()},
            {"doubled", doubled}, {"beams", list},           {"leftOut", orvcad::toJson(leftOut)}};
}

QJsonObject beamDocument(HBXProject &project, const std::vector<IHBXFloor *> &floors, BeamCounts &counts)
{
    project.makeCurrent(); // stored spans are asked of the current project
    const auto beams = ORVCADBeamHBXModelConvertService().convertHBXToCollectDataModel(project.service()->model(),
                                                                                       idsOf(floors), beamTypes());
    for (const auto &beam : beams) {
        sortChains(*beam);
        count(*beam, counts);
    }
    ORVCADBeamCollectDataModel collected;
    collected.setBeamIdentifyInfo(beams);
    return collected.toJsonObj();
}

BeamOutcome applyBeams(HBXProject &project, const QJsonObject &reply, const QString &file)
{
    const BeamReplyCheck check(*project.service()->model(), reply, file);
    return writeSound<BeamOutcome, BeamWriter>(project, check, "orvcad beam apply");
}

int removeBeams(HBXProject &project, const IHBXFloor &floor)
{
    return removeElements(*project.service()->model(), {floor.id()}, beamTypes(), "orvcad remove beams");
}

} // namespace orvcad
