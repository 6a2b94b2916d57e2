#include "cli/BeamResult.h"

#include "beam/BeamKeys.h"
#include "beam/ORVCADBeamIdentifyResultModel.h"
#include "cli/Command.h"
#include "cli/Counted.h"
#include "cli/Files.h"
#include "cli/TypeTitles.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

namespace orvcad {

namespace {

/** A read document with all its records: the labels give up what they hold, and nobody else has it here. */
class ReadResult
{
public:
    explicit ReadResult(const QJsonObject &document) { ORVCADBeamIdentifyResultModel::fromJson(&m_model, document); }
    ~ReadResult()
    {
        for (const ORVCADBeamEdoInfoTmp *label : m_model.getElementInfo()) {
            for (const ORVCADBeamEDOInfo *run : label->edoInfos)
                qDeleteAll(run->vecSegmentInfo);
            qDeleteAll(label->edoInfos);
            qDeleteAll(label->seatEdoIDList);
        }
    }
    ReadResult(const ReadResult &) = delete;
    ReadResult &operator=(const ReadResult &) = delete;

    QList<ORVCADBeamEdoInfoTmp *> labels() const { return m_model.getElementInfo(); }

private:
    ORVCADBeamIdentifyResultModel m_model;
};

QSet<QUuid> segmentIds(const QList<ORVCADBeamEdoInfoTmp *> &labels)
{
    QSet<QUuid> ids;
    for (const ORVCADBeamEdoInfoTmp *label : labels)
        for (const ORVCADBeamEDOInfo *run : label->edoInfos)
            for (const ORVCADBeamSegmentInfo *segment : run->vecSegmentInfo)
                ids.insert(segment->id);
    ids.remove(QUuid()); // names nothing
    return ids;
}

void countSeat(const ORVCADBeamSeatInfo &seat, const QSet<QUuid> &segments, BeamResult::Label &label)
{
    if (seat.eSeatIDType == kSeatIsDrawObj && seat.nSeatID > 0)
        ++label.drawObjects;
    else if (seat.eSeatIDType == kSeatIsSegment && segments.contains(seat.nBeamSegmentInfoID))
        ++label.found;
    else
        ++label.lost;
}

BeamResult::Label labelOf(const ORVCADBeamEdoInfoTmp &record, const QSet<QUuid> &segments)
{
    BeamResult::Label label;
    label.name = record.strName;
    label.type = record.nElementType;
    label.section = record.strSection;
    label.spans = record.strSpanDesc;
    label.runs = record.edoInfos.size();
    for (const ORVCADBeamEDOInfo *run : record.edoInfos)
        label.segments += static_cast<int>(run->vecSegmentInfo.size());
    for (const ORVCADBeamSeatInfo *seat : record.seatEdoIDList)
        countSeat(*seat, segments, label);
    return label;
}

QString tableRow(const QStringList &texts, const QStringList &numbers)
{
    constexpr int kWidths[] = {20, 18, 12, 6};
    QString row;
    for (int i = 0; i < texts.size(); ++i)
        row += texts[i].leftJustified(kWidths[i]) + QLatin1Char(' ');
    for (const QString &number : numbers)
        row += number.rightJustified(9);
    return row;
}

QString tableRow(const BeamResult::Label &label)
{
    QStringList numbers;
    for (const int number : {label.runs, label.segments, label.drawObjects, label.found, label.lost})
        numbers.append(QString::number(number));
    return tableRow({label.name.isEmpty() ? QStringLiteral("(no name)") : label.name, typeTitle(label.type),
                     label.section, label.spans},
                    numbers);
}

} // namespace

QString BeamResult::table() const
{
    QStringList lines{tableRow({"label", "type", "section", "spans"}, {"runs", "pieces", "seats", "to make", "lost"})};
    int seats = 0;
    int open = 0;
    for (const Label &label : labels) {
        lines.append(tableRow(label));
        seats += label.drawObjects + label.open();
        open += label.open();
    }
    lines.append(QStringLiteral("%1, %2: %3 resolved, %4 not")
                     .arg(counted(static_cast<int>(labels.size()), QStringLiteral("label")),
                          counted(seats, QStringLiteral("seat")))
                     .arg(seats - open)
                     .arg(open));
    for (const QString &place : leftOut)
        lines.append(QStringLiteral("left out: ") + place);
    return lines.join('\n');
}

QJsonObject BeamResult::toJson() const
{
    QJsonArray list;
    for (const Label &label : labels) {
        const QJsonObject seats{{"resolved", label.drawObjects}, {"toMake", label.found}, {"lost", label.lost}};
        list.append(QJsonObject{{"name", label.name},
                                {"type", label.type},
                                {"section", label.section},
                                {"spans", label.spans},
                                {"runs", label.runs},
                                {"segments", label.segments},
                                {"seats", seats}});
    }
    return {{"labels", list}, {"leftOut", QJsonArray::fromStringList(leftOut)}};
}

BeamResult readBeamResult(const QString &path)
{
    const QJsonObject document = readJsonFile(path).object();
    const QJsonValue labels = document.value(beam::key::labels);
    if (!labels.isArray())
        throw CommandFailure(kBadInput, path, beam::key::labels,
                             labels.isUndefined() ? QStringLiteral("is missing: no result of beams")
                                                  : QStringLiteral("is no array"));
    BeamResult result;
    QJsonArray records;
    for (int i = 0; i < labels.toArray().size(); ++i) {
        const QJsonValue label = labels.toArray().at(i);
        if (label.isObject())
            records.append(label);
        else
            result.leftOut.append(QStringLiteral("%1[%2]: is no object").arg(beam::key::labels).arg(i));
    }
    const ReadResult read(QJsonObject{{beam::key::labels, records}});
    const QSet<QUuid> segments = segmentIds(read.labels());
    for (const ORVCADBeamEdoInfoTmp *label : read.labels())
        result.labels.push_back(labelOf(*label, segments));
    return result;
}

} // namespace orvcad
