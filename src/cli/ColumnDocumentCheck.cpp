#include "cli/ColumnDocumentCheck.h"

#include "cli/ColumnRecordLook.h"
#include "cli/JsonDifference.h"
#include "cli/Message.h"

#include <QHash>
#include <QMap>
#include <QStringList>

#include <algorithm>
#include <iterator>

using namespace column;
using dwgx::JsonPlace;

namespace orvcad {

namespace {

template <typename Fields> int knownKeys(const QJsonObject &document)
{
    int count = 0;
    encoding::forEachField(Fields::table, [&](const auto &row) { count += document.contains(row.key) ? 1 : 0; });
    return count;
}

template <typename Record> Record filled(const QJsonObject &document)
{
    Record record;
    record.fromJson(&record, document);
    return record;
}

int lengthOf(const QJsonValue &array) { return array.toArray().size(); }

template <typename List> int sizeOf(const List &list) { return static_cast<int>(list.size()); }

template <typename Fields> QJsonObject contentOf(const QJsonObject &document);

template <> QJsonObject contentOf<ResultModelFields>(const QJsonObject &document)
{
    const auto model = filled<ORVCADAIIdentifyColumnResultModel>(document);
    int toCreate = 0;
    int lines = 0;
    int texts = 0;
    for (const auto &record : model.resultData) {
        toCreate += record->bCreateElement ? 1 : 0;
        lines += sizeOf(record->cadLineIDs);
        texts += sizeOf(record->cadTextIDs);
    }
    return {{"kind", "results"},
            {"drawing", model.drawing},
            {"floorCode", model.floorCode},
            {"columns", sizeOf(model.resultData)},
            {"toCreate", toCreate},
            {"cadLines", lines},
            {"cadTexts", texts}};
}

template <> QJsonObject contentOf<CheckInputFields>(const QJsonObject &document)
{
    const auto model = filled<ORVCADColumnCloudCheckInputModel>(document);
    return {{"kind", "check-input"}, {"floorCode", model.strCurFloorCode}, {"axisLines", sizeOf(model.axisLineList)}};
}

template <> QJsonObject contentOf<SemanticFields>(const QJsonObject &document)
{
    const auto par = filled<ORVCADAIColumnSemnticParsingPar>(document);
    return {{"kind", "semantic-parameters"}, {"floorWords", sizeOf(par.floorWordSetPar)}};
}

template <> QJsonObject contentOf<HoopBarFields>(const QJsonObject &document)
{
    return {{"kind", "hoop-bar-settings"},
            {"hoopPictures", lengthOf(document[key::hoopBarPicInfos])},
            {"hoopSettings", lengthOf(document[key::hoopBarSettings])}};
}

template <> QJsonObject contentOf<IdentifyInputFields>(const QJsonObject &document)
{
    const auto model = filled<ORVCADColumnCloudIdentifyInputModel>(document);
    const QJsonObject hoops = document[key::hoopBarSettingPar].toObject();
    return {{"kind", "identify-input"},
            {"type", model.eType},
            {"columnCodes", sizeOf(model.columnCodes)},
            {"borderLayers", sizeOf(model.borderLayerNames)},
            {"labelLayers", sizeOf(model.labelLayerNames)},
            {"axisLines", sizeOf(model.axisLineList)},
            {"elements", sizeOf(model.elements)},
            {"floorWords", sizeOf(model.oSemnTicParsePar.floorWordSetPar)},
            {"hoopPictures", lengthOf(hoops[key::hoopBarPicInfos])},
            {"hoopSettings", lengthOf(hoops[key::hoopBarSettings])}};
}

template <typename Fields> QJsonObject writtenAgain(const QJsonObject &document)
{
    return filled<typename Fields::Record>(document).toJson();
}

template <> QJsonObject writtenAgain<HoopBarFields>(const QJsonObject &document)
{
    ORVCADColumnHoopBarSettingPar par;
    par.fromJson(document);
    return par.toJson();
}

// Comparison of a document with what is written from it.

/** The pictures of a written par in the order of the document, since they are written in the order of their ids; null for
 *  one that was left out. */
QJsonObject inOrderOf(const QJsonObject &document, QJsonObject par)
{
    QMap<int, QJsonValue> pictures;
    for (const QJsonValue picture : par[key::hoopBarPicInfos].toArray())
        pictures.insert(picture.toObject()[key::id].toInt(), picture);
    QJsonArray ordered;
    for (const QJsonValue picture : document[key::hoopBarPicInfos].toArray()) {
        const QJsonValue written = pictures.take(picture.toObject()[key::id].toInt());
        ordered.append(written.isObject() ? written : QJsonValue(QJsonValue::Null));
    }
    par[key::hoopBarPicInfos] = ordered;
    return par;
}

/** A written document with the pictures of hoops in the order of the one that it was made from. */
QJsonObject withPicturesInOrderOf(const QJsonObject &document, QJsonObject written)
{
    if (written.contains(key::hoopBarPicInfos))
        return inOrderOf(document, written);
    if (written.contains(key::hoopBarSettingPar))
        written[key::hoopBarSettingPar] =
            inOrderOf(document[key::hoopBarSettingPar].toObject(), written[key::hoopBarSettingPar].toObject());
    return written;
}

/** What holds a place, from the place itself up to the document. */
QStringList holdersOf(QString place)
{
    QStringList holders{place};
    while (!place.isEmpty()) {
        place.truncate(std::max(0, std::max(place.lastIndexOf(u'.'), place.lastIndexOf(u'['))));
        holders.append(place);
    }
    return holders;
}

/** For a value that is sound, and has another form when it is written. */
QString howWritten(const JsonDifference &difference)
{
    const QString written = difference.after.toVariant().toString();
    if (difference.after.isString())
        return Message::tr("is written as \"%1\": geometry has one form and six digits").arg(written);
    if (difference.before.isString())
        return Message::tr("is written as the number %1").arg(written);
    return Message::tr("is written as %1: a number has 53 bits")
        .arg(QString::number(difference.after.toDouble(), 'f', 0));
}

// Kinds of records.

/** A document taken as a record of a kind. */
struct Taken
{
    QJsonObject content;
    QJsonObject written; ///< the document as it is written from the record
    ColumnRecordLook look{};
};

template <typename Fields> Taken taken(const QJsonObject &document)
{
    Taken record{contentOf<Fields>(document), writtenAgain<Fields>(document)};
    record.look.lookAtObject(document, Fields::table, JsonPlace());
    return record;
}

struct Kind
{
    const char *title;
    int (*knownKeys)(const QJsonObject &document);
    Taken (*taken)(const QJsonObject &document);
};
template <typename Fields> constexpr Kind kindOf(const char *title)
{
    return {title, knownKeys<Fields>, taken<Fields>};
}

constexpr Kind kKinds[] = {
    kindOf<ResultModelFields>(QT_TRANSLATE_NOOP("orvcad", "results of identification")),
    // Before the order to identify, which has all of its keys but one.
    kindOf<CheckInputFields>(QT_TRANSLATE_NOOP("orvcad", "order to check")),
    kindOf<IdentifyInputFields>(QT_TRANSLATE_NOOP("orvcad", "order to identify")),
    kindOf<HoopBarFields>(QT_TRANSLATE_NOOP("orvcad", "hoop bar settings")),
    kindOf<SemanticFields>(QT_TRANSLATE_NOOP("orvcad", "words of elevations")),
};

// What no table of fields tells.

void checkHoopBars(const QJsonObject &par, const JsonPlace &place, ColumnRecordLook &look)
{
    HoopBarLists lists;
    encoding::readFields(par, HoopBarFields::table, lists);
    const JsonPlace list(place, key::hoopBarPicInfos);
    QMap<qint64, int> first;
    for (int i = 0; i < sizeOf(lists.pictures); ++i) {
        const qint64 id = lists.pictures[static_cast<std::size_t>(i)].id;
        if (first.contains(id))
            look.note(JsonPlace(list, i),
                      Message::tr("has the id %1 of picture %2, and is left out").arg(id).arg(first[id]));
        else
            first.insert(id, i);
    }
}

void checkLimbs(const QJsonObject &document, const JsonPlace &place, ColumnRecordLook &look)
{
    const auto model = filled<ORVCADColumnCloudIdentifyInputModel>(document);
    const JsonPlace list(place, key::elements);
    for (int i = 0; i < sizeOf(model.elements); ++i) {
        const QString limbs = model.elements[static_cast<std::size_t>(i)]->bar.strLimb;
        qint64 bPicture = 0;
        qint64 hPicture = 0;
        if (limbs.isEmpty() ||
            model.oHoopBarSettingPar.parseColumnCombLimbInfo(limbs.toStdWString(), bPicture, hPicture))
            continue;
        const JsonPlace element(list, i);
        const JsonPlace bar(element, key::bar);
        look.note(JsonPlace(bar, key::limb), Message::tr("\"%1\" has no picture in the hoop bar settings").arg(limbs));
    }
}

} // namespace

ColumnDocumentCheck::ColumnDocumentCheck(const QJsonObject &document)
{
    const Kind &best = *std::max_element(std::begin(kKinds), std::end(kKinds), [&](const Kind &a, const Kind &b) {
        return a.knownKeys(document) < b.knownKeys(document);
    });
    if (best.knownKeys(document) == 0)
        return;
    m_title = Message::tr(best.title);
    Taken record = best.taken(document);
    const JsonPlace top;
    checkHoopBars(document, top, record.look);
    checkHoopBars(document[key::hoopBarSettingPar].toObject(), JsonPlace(top, key::hoopBarSettingPar), record.look);
    if (document.contains(key::hoopBarSettingPar))
        checkLimbs(document, top, record.look);
    m_content = record.content;
    m_findings = record.look.findings();
    m_missingKeys = record.look.missingKeys();
    compareWithWritten(document, record.written);
}

void ColumnDocumentCheck::compareWithWritten(const QJsonObject &document, const QJsonObject &written)
{
    QHash<QString, QString> reasons;
    for (const JsonFault &finding : findings())
        reasons.insert(finding.place, finding.reason);
    for (const JsonDifference &difference :
         differencesBetween(document, withPicturesInOrderOf(document, written), AddedKeys::PassedOver)) {
        const QStringList holders = holdersOf(difference.place);
        const auto found = std::find_if(holders.begin(), holders.end(),
                                        [&](const QString &holder) { return reasons.contains(holder); });
        const bool isTold = found != holders.end();
        m_notKept.push_back({difference.place, isTold ? reasons[*found] : howWritten(difference)});
        if (!isTold)
            m_writtenOtherwise.push_back(m_notKept.back());
    }
}

QString ColumnDocumentCheck::contentText() const
{
    QStringList parts;
    for (auto member = m_content.begin(); member != m_content.end(); ++member)
        if (member.key() != QLatin1String("kind"))
            parts.append(QStringLiteral("%1 %2").arg(
                member.key(), member->isString() ? '"' + member->toString() + '"' : member->toVariant().toString()));
    return parts.join(QStringLiteral(", "));
}

QString ColumnDocumentCheck::verdict() const { return writtenAgainText(m_notKept.size()); }

} // namespace orvcad
