#include "cli/BeamInput.h"

#include "beam/BeamIdentifyInput.h"
#include "beam/ORVCADBeamIdentifyInputModel.h"
#include "cli/Counted.h"
#include "cli/Message.h"
#include "cli/TypeTitles.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXRegion.h"

#include <QJsonArray>
#include <QStringList>

#include <memory>

namespace orvcad {

namespace {

struct FreeInput
{
    void operator()(ORVCADBeamSDCIdentifyInputModel *input) const { freeBeamIdentifyInputModel(input); }
};
using Gathered = std::unique_ptr<ORVCADBeamSDCIdentifyInputModel, FreeInput>;

/** The same data in the records that have the document's form. */
void copy(const ORVCADBeamSDCIdentifyInputModel &from, ORVCADBeamIdentifyInputModel &to)
{
    to.curFloorHeight = from.curFloorHeight;
    to.bIsCurFloorFD = from.bIsCurFloorFD;
    to.curFloorBtmElev = from.curFloorBtmElev;
    to.nCurFloorID = from.nCurFloorID;
    to.strRawBeamCodes = from.strRawBeamCodes;
    to.bIs11or16G = from.bIs11or16G;
    to.axisLines = from.axisLines;
    to.strBeamLineLayerName = from.strBeamLineLayerName;
    to.strBeamBorderLayerName = from.strBeamBorderLayerName;
    to.strBeamJZBZLayerName = from.strBeamJZBZLayerName;
    to.strBeamYWBZLayerName = from.strBeamYWBZLayerName;
    for (const ORVBeamSDCSeatInfoModel *seat : from.beamSeatInfos) {
        auto record = std::make_unique<ORVBeamSeatInfoModel>();
        static_cast<BeamSeatModelFields &>(*record) = *seat;
        to.beamSeatInfos.append(record.release());
    }
}

QMap<int, int> seatsByType(const ORVCADBeamIdentifyInputModel &input)
{
    QMap<int, int> counts;
    for (const ORVBeamSeatInfoModel *seat : input.beamSeatInfos)
        ++counts[seat->seatElementType];
    return counts;
}

int codeCount(const ORVCADBeamIdentifyInputModel &input)
{
    int count = 0;
    for (const QStringList &codes : input.strRawBeamCodes)
        count += codes.size();
    return count;
}

} // namespace

BeamInput::BeamInput(hbx::embedded::HBXProject &project, const IHBXFloor &floor) : m_floor(floor.name())
{
    project.makeCurrent();
    project.setCurrent(floor.region()->name(), m_floor);
    const Gathered gathered(createBeamIdentifyInputModel(project.service(), false));
    ORVCADBeamIdentifyInputModel input;
    copy(*gathered, input);
    m_document = input.toJson();
    m_seats = seatsByType(input);
    m_axisLines = static_cast<int>(input.axisLines.size());
    m_beamCodes = codeCount(input);
}

QString BeamInput::text() const
{
    QStringList kinds;
    int seats = 0;
    for (auto kind = m_seats.cbegin(); kind != m_seats.cend(); ++kind) {
        seats += kind.value();
        kinds.append(counted(kind.value(), shownTypeTitle(kind.key())));
    }
    const QString listed = kinds.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(kinds.join(QStringLiteral(", ")));
    return Message::tr("%1%2, %3 and %4 of %5")
        .arg(counted(seats, Message::tr("seat")), listed, counted(m_axisLines, Message::tr("axis line")),
             counted(m_beamCodes, Message::tr("beam code")), m_floor);
}

QJsonObject BeamInput::summary() const
{
    QJsonArray seats;
    for (auto kind = m_seats.cbegin(); kind != m_seats.cend(); ++kind)
        seats.append(QJsonObject{{"type", kind.key()}, {"title", typeTitle(kind.key())}, {"count", kind.value()}});
    return {{"floor", m_floor}, {"seats", seats}, {"axisLines", m_axisLines}, {"beamCodes", m_beamCodes}};
}

} // namespace orvcad
