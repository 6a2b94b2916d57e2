#include "cli/BeamInput.h"

#include "beam/BeamIdentifyInput.h"
#include "beam/ORVCADBeamIdentifyInputModel.h"
#include "cli/ProjectInfo.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXRegion.h"

#include <QJsonArray>
#include <QMap>
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

QJsonArray seatsByType(const ORVCADBeamIdentifyInputModel &input)
{
    QMap<int, int> counts;
    for (const ORVBeamSeatInfoModel *seat : input.beamSeatInfos)
        ++counts[seat->seatElementType];
    QJsonArray json;
    for (auto type = counts.cbegin(); type != counts.cend(); ++type)
        json.append(QJsonObject{{"type", type.key()}, {"title", typeTitle(type.key())}, {"count", type.value()}});
    return json;
}

int codeCount(const ORVCADBeamIdentifyInputModel &input)
{
    int count = 0;
    for (const QStringList &codes : input.strRawBeamCodes)
        count += codes.size();
    return count;
}

} // namespace

BeamInput::BeamInput(hbx::embedded::HBXProject &project, const IHBXFloor &floor)
{
    project.makeCurrent();
    project.setCurrent(floor.region()->name(), floor.name());
    const Gathered gathered(createBeamIdentifyInputModel(project.service(), false));
    ORVCADBeamIdentifyInputModel input;
    copy(*gathered, input);
    m_document = input.toJson();
    m_summary = {{"floor", floor.name()},
                 {"seats", seatsByType(input)},
                 {"axisLines", static_cast<int>(input.axisLines.size())},
                 {"beamCodes", codeCount(input)}};
}

QString BeamInput::text() const
{
    QStringList kinds;
    int seats = 0;
    for (const QJsonValue kind : m_summary["seats"].toArray()) {
        seats += kind["count"].toInt();
        kinds.append(counted(kind["count"].toInt(), kind["title"].toString()));
    }
    const QString listed = kinds.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(kinds.join(QStringLiteral(", ")));
    return QStringLiteral("%1%2, %3 and %4 of %5")
        .arg(counted(seats, QStringLiteral("seat")), listed,
             counted(m_summary["axisLines"].toInt(), QStringLiteral("axis line")),
             counted(m_summary["beamCodes"].toInt(), QStringLiteral("beam code")), m_summary["floor"].toString());
}

} // namespace orvcad
