#pragma once

#include "beam/BeamEntInfo.h"
#include "beam/ORVCADBeamCollectDataModel.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>

/** Beams for measurements: each of four pieces of 2 m and two spans, side by side in rows of a hundred, so that a floor with
 *  more of them is larger and not more crowded. */
namespace bench {

constexpr int kPieces = 4;
constexpr double kPieceLength = 2000.0;   // mm
constexpr double kBeamDistance = 10000.0; // mm, from start to start along a row
constexpr double kRowDistance = 3000.0;   // mm
constexpr int kBeamsOfARow = 100;

inline double startX(int beam) { return beam % kBeamsOfARow * kBeamDistance; }
inline double startY(int beam)
{
    const int row = beam / kBeamsOfARow;
    return row * kRowDistance;
}
inline QString beamName(int beam) { return QStringLiteral("KL-%1").arg(beam); }

inline std::shared_ptr<BeamSpanInfo> spanRecord(int index)
{
    auto span = std::make_shared<BeamSpanInfo>();
    span->SpanIndex = index;
    span->StartElev = span->EndElev = 3.3;
    span->SpanA1_A4 = QStringLiteral("250,250,250,250");
    span->SpanLength = kPieceLength * 2;
    span->Section = QStringLiteral("300*600");
    span->TopThroughBar = QStringLiteral("2C25");
    span->LeftSupportBar = QStringLiteral("6C25 4/2");
    span->BottomBar = QStringLiteral("4C22");
    span->HoopBar = QStringLiteral("A8@100/200");
    span->HoopBarLimbCount = 2;
    return span;
}

inline std::shared_ptr<BeamSegmentInfo> segmentRecord(int beam, int index)
{
    auto segment = std::make_shared<BeamSegmentInfo>();
    segment->Index = index;
    const double x = startX(beam) + index * kPieceLength;
    segment->WordLine = QStringLiteral("%1,%2,%3,%2").arg(x).arg(startY(beam)).arg(x + kPieceLength);
    segment->LineWidth = 300.0;
    segment->StartPtTopElev = segment->EndPtTopElev = QStringLiteral("3.3");
    return segment;
}

inline std::shared_ptr<BeamModelDataInfo> beamRecord(int beam)
{
    auto element = std::make_shared<BeamEntInfo>();
    element->Name = beamName(beam);
    element->ElementType = 15;
    element->ElementSubType = 3;
    element->SectionWidth = 300.0;
    element->SectionHeight = 600.0;
    element->FloorName = QStringLiteral("Level 1");
    element->RegionName = QStringLiteral("House");
    element->HoopBar = QStringLiteral("A8@100/200");
    element->LimbCount = QStringLiteral("2");
    element->SpanCount = QStringLiteral("2");
    element->TopThroughBar = QStringLiteral("2C25");

    auto placed = std::make_shared<BeamEdoInfo>();
    for (int index = 0; index < kPieces; ++index)
        placed->segments.push_back(segmentRecord(beam, index));
    placed->spans = {spanRecord(1), spanRecord(2)};

    auto record = std::make_shared<BeamModelDataInfo>();
    record->elementInfo = element;
    record->edoInfos = {placed};
    return record;
}

inline ORVCADBeamCollectDataModel::Beams beamRecords(int count)
{
    ORVCADBeamCollectDataModel::Beams beams;
    for (int beam = 0; beam < count; ++beam)
        beams.push_back(beamRecord(beam));
    return beams;
}

/** The document of the records, as the recognition side gets it. */
inline QByteArray beamText(const ORVCADBeamCollectDataModel::Beams &beams)
{
    ORVCADBeamCollectDataModel collected;
    collected.setBeamIdentifyInfo(beams);
    return QJsonDocument(collected.toJsonObj()).toJson();
}

/** Makes a record of each beam in a document. */
inline ORVCADBeamCollectDataModel::Beams beamsOf(const QByteArray &text)
{
    ORVCADBeamCollectDataModel::Beams beams;
    const QJsonObject document = QJsonDocument::fromJson(text).object();
    for (const QJsonValue beam : document.value(QLatin1String("Beam")).toArray()) {
        beams.push_back(std::make_shared<BeamModelDataInfo>());
        beams.back()->fromJson(beam.toObject());
    }
    return beams;
}

} // namespace bench
