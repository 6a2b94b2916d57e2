#include "cli/ColumnDocumentCheck.h"

#include <QMap>

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

} // namespace

template <typename Fields> void ColumnDocumentCheck::check(const QJsonObject &document)
{
    m_content = contentOf<Fields>(document);
    m_look.lookAtObject(document, Fields::table, JsonPlace());
}

ColumnDocumentCheck::ColumnDocumentCheck(const QJsonObject &document)
{
    struct Kind
    {
        const char *title;
        int known;
        void (ColumnDocumentCheck::*check)(const QJsonObject &);
    };
    using Self = ColumnDocumentCheck;
    const Kind kinds[] = {
        {"results of identification", knownKeys<ResultModelFields>(document), &Self::check<ResultModelFields>},
        // Before the order to identify, which has all of its keys but one.
        {"order to check", knownKeys<CheckInputFields>(document), &Self::check<CheckInputFields>},
        {"order to identify", knownKeys<IdentifyInputFields>(document), &Self::check<IdentifyInputFields>},
        {"hoop bar settings", knownKeys<HoopBarFields>(document), &Self::check<HoopBarFields>},
        {"words of elevations", knownKeys<SemanticFields>(document), &Self::check<SemanticFields>},
    };
    const Kind &best = *std::max_element(std::begin(kinds), std::end(kinds),
                                         [](const Kind &a, const Kind &b) { return a.known < b.known; });
    if (best.known == 0)
        return;
    m_title = QString::fromLatin1(best.title);
    (this->*best.check)(document);
    const JsonPlace top;
    checkHoopBars(document, top);
    checkHoopBars(document[key::hoopBarSettingPar].toObject(), JsonPlace(top, key::hoopBarSettingPar));
    if (document.contains(key::hoopBarSettingPar))
        checkLimbs(document, top);
}

void ColumnDocumentCheck::checkHoopBars(const QJsonObject &par, const JsonPlace &place)
{
    HoopBarLists lists;
    encoding::readFields(par, HoopBarFields::table, lists);
    const JsonPlace list(place, key::hoopBarPicInfos);
    QMap<qint64, int> first;
    for (int i = 0; i < sizeOf(lists.pictures); ++i) {
        const qint64 id = lists.pictures[static_cast<std::size_t>(i)].id;
        if (first.contains(id))
            m_look.note(JsonPlace(list, i),
                        QStringLiteral("has the id %1 of picture %2, and is left out").arg(id).arg(first[id]));
        else
            first.insert(id, i);
    }
}

void ColumnDocumentCheck::checkLimbs(const QJsonObject &document, const JsonPlace &place)
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
        m_look.note(JsonPlace(bar, key::limb),
                    QStringLiteral("\"%1\" has no picture in the hoop bar settings").arg(limbs));
    }
}

} // namespace orvcad
