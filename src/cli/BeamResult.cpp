#include "cli/BeamResult.h"

#include "beam/BeamKeys.h"
#include "beam/ORVCADBeamIdentifyResultModel.h"
#include "cli/Command.h"
#include "cli/Counted.h"
#include "cli/Files.h"
#include "cli/JsonDifference.h"
#include "cli/Message.h"
#include "cli/TextTable.h"
#include "cli/TypeTitles.h"
#include "cli/UnreadKeys.h"

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
    /** The document as it is written from what was read. */
    QJsonObject written() const { return m_model.toJson(); }

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
        row += TextTable::padded(texts[i], kWidths[i], TextTable::Align::Left) + QLatin1Char(' ');
    for (const QString &number : numbers)
        row += TextTable::padded(number, 9, TextTable::Align::Right);
    return row;
}

QString tableRow(const BeamResult::Label &label)
{
    QStringList numbers;
    for (const int number : {label.runs, label.segments, label.drawObjects, label.found, label.lost})
        numbers.append(QString::number(number));
    return tableRow({label.name.isEmpty() ? Message::tr("(no name)") : label.name, shownTypeTitle(label.type),
                     label.section, label.spans},
                    numbers);
}

/** Whether a value is read as another one; lines have more than one form, and identities, too. */
bool isReadAsAnother(const JsonDifference &difference)
{
    if (difference.before.isUndefined())
        return false;
    const QString before = difference.before.toString();
    const QString after = difference.after.toString();
    const bool isLine = difference.keys.last() == beam::key::line && !after.isEmpty();
    // A text that is no identity names no segment: the seat is lost and counted so.
    const bool isLostSeat = difference.keys.last() == beam::key::seatSegmentId && difference.before.isString();
    return !isLine && !isLostSeat && (QUuid(before).isNull() || QUuid(before) != QUuid(after));
}

QString howRead(const JsonDifference &difference, const QJsonObject &pattern)
{
    if (difference.after.isUndefined())
        return difference.keys.size() == 1 ? whyUnread(difference.keys.last(), pattern.keys())
                                           : Message::tr("is not read");
    if (difference.after.isArray())
        return difference.before.isArray() ? Message::tr("is not read whole") : Message::tr("is no array");
    const QString read = difference.after.toVariant().toString();
    return read.isEmpty() ? Message::tr("is not what is read here, and reads as nothing")
                          : Message::tr("is not what is read here, and reads as %1").arg(read);
}

/** What of a label is not read as it stands, with its places. */
QStringList changedIn(const QJsonObject &label, const QJsonObject &written, const QString &place)
{
    QStringList changed;
    for (const JsonDifference &difference : differencesBetween(label, written))
        if (isReadAsAnother(difference))
            changed.append(QStringLiteral("%1.%2: %3").arg(place, difference.place, howRead(difference, written)));
    return changed;
}

} // namespace

QString BeamResult::table() const
{
    QStringList lines{
        tableRow({Message::tr("label"), Message::tr("type"), Message::tr("section"), Message::tr("spans")},
                 {Message::tr("runs"), Message::tr("pieces"), Message::tr("seats"), Message::tr("to make"),
                  Message::tr("lost")})};
    int seats = 0;
    int open = 0;
    for (const Label &label : labels) {
        lines.append(tableRow(label));
        seats += label.drawObjects + label.open();
        open += label.open();
    }
    lines.append(
        Message::tr("%1, %2: %3 resolved, %4 not")
            .arg(counted(static_cast<int>(labels.size()), Message::tr("label")), counted(seats, Message::tr("seat")))
            .arg(seats - open)
            .arg(open));
    for (const QString &place : leftOut)
        lines.append(Message::tr("left out: %1").arg(place));
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
                             labels.isUndefined() ? Message::tr("is missing: no result of beams")
                                                  : Message::tr("is no array"));
    BeamResult result;
    result.leftOut += unreadIn(document, {beam::key::labels});
    QJsonArray records;
    QStringList places;
    for (int i = 0; i < labels.toArray().size(); ++i) {
        const QJsonValue label = labels.toArray().at(i);
        const QString place = QStringLiteral("%1[%2]").arg(beam::key::labels).arg(i);
        if (!label.isObject()) {
            result.leftOut.append(place + QStringLiteral(": ") + Message::tr("is no object"));
            continue;
        }
        records.append(label);
        places.append(place);
    }
    const ReadResult read(QJsonObject{{beam::key::labels, records}});
    const QJsonArray written = read.written().value(beam::key::labels).toArray();
    for (int i = 0; i < records.size(); ++i)
        result.leftOut += changedIn(records.at(i).toObject(), written.at(i).toObject(), places.at(i));
    const QSet<QUuid> segments = segmentIds(read.labels());
    for (const ORVCADBeamEdoInfoTmp *label : read.labels())
        result.labels.push_back(labelOf(*label, segments));
    return result;
}

} // namespace orvcad
