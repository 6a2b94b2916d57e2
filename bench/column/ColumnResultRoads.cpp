#include "column/ORVCADAIIdentifyColumnResultModel.h"
#include "encoding/GeometryInfo.h"
#include "encoding/RecordKey.h"
#include "platform/geometry/CLine2d.h"
#include "suite/Families.h"
#include "suite/PayloadBounds.h"
#include "support/JsonWalk.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>
#include <vector>

// Replies of the column service, from records to bytes and back, against plain QJsonObjects with the geometry as text.

namespace {

using namespace encoding; // for ""_key

using Point = vks::CVec2<double>;
using Model = ORVCADAIIdentifyColumnResultModel;

vks::CRefPtr<vks::CPolygon> rectangle(const Point &at, double width, double height)
{
    const Point corners[] = {at, at + Point(width, 0), at + Point(width, height), at + Point(0, height)};
    auto *loop = new vks::CLoop();
    for (std::size_t i = 0; i < std::size(corners); ++i)
        loop->AddCurve(new vks::CLine2d(corners[i], corners[(i + 1) % std::size(corners)]), false);
    vks::CRefPtr<vks::CPolygon> polygon = new vks::CPolygon();
    polygon->AddLoop(loop, true);
    return polygon;
}

dwgx::DWGXColumnInfo *newInfo(const Point &at)
{
    auto *info = new dwgx::DWGXColumnInfo;
    info->dSteelWeight = 125.5;
    info->ePolyType = 1;
    info->eColumnType = 2;
    info->bEdoInfoValid = true;
    info->dAngle = 0.5;
    info->strParam = QStringLiteral("100*5;100*6");
    info->position = at;
    info->insertPt = {250, 300.5};
    info->dWidth = 500;
    info->dHeight = 600;
    info->m_type = 3;
    return info;
}

/** A field of columns on a grid, in tenths of a millimetre. */
Model columns(int count)
{
    Model model;
    model.drawing = QStringLiteral("S-07");
    model.floorCode = QStringLiteral("3");
    for (int i = 0; i < count; ++i) {
        const int row = i / 100;
        const Point at(i % 100 * 600.5, row * 720.3);
        auto record = std::make_shared<ORVCADIdentifyColumnResultData>();
        record->barInfo = {"12C20", "4C22", "2C20", "3C18", "A8@100/200", "4*5", 41, 62};
        record->pfnSection = QStringLiteral("500*600");
        record->columnInfo = newInfo(at);
        record->poly = rectangle({}, 500, 600);
        record->cadPoly = rectangle(at, 500.2, 600.1);
        record->columnName = QStringLiteral("KZ-%1").arg(i % 40);
        record->floorCode = model.floorCode;
        record->cadLineIDs = {i * 4, i * 4 + 1, i * 4 + 2, i * 4 + 3};
        record->cadTextIDs = {1'000'000 + i};
        record->bCreateElement = i % 2 == 0;
        model.resultData.push_back(std::move(record));
    }
    return model;
}

QByteArray written(const Model &model) { return QJsonDocument(model.toJson()).toJson(); }

/** The geometry of a record, written beforehand. */
struct Texts
{
    QString poly;
    QString cadPoly;
    QString position;
    QString insertPt;
};

std::vector<Texts> textsOf(const Model &model)
{
    std::vector<Texts> texts;
    for (const QJsonValue value : model.toJson()["resultData"].toArray()) {
        const QJsonObject record = value.toObject();
        const QJsonObject info = record["columnInfo"].toObject();
        texts.push_back({record["poly"].toString(), record["cadPoly"].toString(), info["position"].toString(),
                         info["insertPt"].toString()});
    }
    return texts;
}

QJsonObject barByHand(const ColumnBarInfo &bar)
{
    return {{"pfnVertBar"_key, bar.pfnVertBar},   {"pfnCornerBar"_key, bar.pfnCornerBar},
            {"pfnBSideBar"_key, bar.pfnBSideBar}, {"pfnHSideBar"_key, bar.pfnHSideBar},
            {"pfnHoopBar"_key, bar.pfnHoopBar},   {"strLimb"_key, bar.strLimb},
            {"nBSidePicID"_key, bar.nBSidePicID}, {"nHSidePicID"_key, bar.nHSidePicID}};
}

QJsonObject infoByHand(const dwgx::DWGXColumnInfo &info, const Texts &texts)
{
    return {{"dSteelWeight"_key, info.dSteelWeight},
            {"ePolyType"_key, info.ePolyType},
            {"eColumnType"_key, info.eColumnType},
            {"bEdoInfoValid"_key, info.bEdoInfoValid},
            {"bMirror"_key, info.bMirror},
            {"dAngle"_key, info.dAngle},
            {"strParam"_key, info.strParam},
            {"position"_key, texts.position},
            {"insertPt"_key, texts.insertPt},
            {"dWidth"_key, info.dWidth},
            {"dHeight"_key, info.dHeight},
            {"dRadius"_key, info.dRadius},
            {"m_type"_key, info.m_type}};
}

QJsonArray idsByHand(const std::vector<qint64> &ids)
{
    QJsonArray array;
    for (const qint64 id : ids)
        array.append(id);
    return array;
}

QJsonObject recordByHand(const ORVCADIdentifyColumnResultData &record, const Texts &texts)
{
    return {{"barInfo"_key, barByHand(record.barInfo)},
            {"pfnSection"_key, record.pfnSection},
            {"columnName"_key, record.columnName},
            {"floorCode"_key, record.floorCode},
            {"bCreateElement"_key, record.bCreateElement},
            {"poly"_key, texts.poly},
            {"cadPoly"_key, texts.cadPoly},
            {"cadLineIDs"_key, idsByHand(record.cadLineIDs)},
            {"cadTextIDs"_key, idsByHand(record.cadTextIDs)},
            {"columnInfo"_key, infoByHand(*record.columnInfo, texts)}};
}

QByteArray writtenByHand(const Model &model, const std::vector<Texts> &texts)
{
    QJsonArray records;
    for (std::size_t i = 0; i < model.resultData.size(); ++i)
        records.append(recordByHand(*model.resultData[i], texts[i]));
    const QJsonObject json{
        {"drawing"_key, model.drawing}, {"floorCode"_key, model.floorCode}, {"resultData"_key, records}};
    return QJsonDocument(json).toJson();
}

/** The items are the objects of the document, as each family of records counts them; a record of a column is three. */
int columnsOf(const bench::Load &load) { return static_cast<int>(load.size / 3); }

bench::Sides writing(const bench::Load &load)
{
    const auto model = std::make_shared<const Model>(columns(columnsOf(load)));
    const auto texts = std::make_shared<const std::vector<Texts>>(textsOf(*model));
    const QByteArray bytes = written(*model);
    const auto wrong = [model, texts, bytes] {
        return bytes == writtenByHand(*model, *texts) ? QString() : QStringLiteral("by hand it is another text");
    };
    return {[model] { bench::keep(written(*model)); }, [model, texts] { bench::keep(writtenByHand(*model, *texts)); },
            static_cast<double>(load.items()), static_cast<double>(bytes.size()), wrong};
}

/** The road from bytes to records; letting go of the records of the run before is no part of it. */
bench::Sides reading(const bench::Load &load)
{
    const QByteArray bytes = written(columns(columnsOf(load)));
    const auto model = std::make_shared<Model>();
    const auto read = [bytes, model] { model->fromJson(model.get(), QJsonDocument::fromJson(bytes).object()); };
    const auto wrong = [bytes, model, read] {
        read();
        return bytes == written(*model) ? QString() : QStringLiteral("what was read is written as another text");
    };
    return {bench::Work([model] { *model = Model(); }, read),
            [bytes] { bench::keep(bench::walked(QJsonDocument::fromJson(bytes).object())); },
            static_cast<double>(load.items()), static_cast<double>(bytes.size()), wrong};
}

} // namespace

bench::Roads bench::columnResultRoads()
{
    return {{"results of columns written", "objects by hand, texts ready", kPayloadSizes, kPayloadWritten, &writing},
            {"results of columns read", "fromJson and a walk", kPayloadSizes, kPayloadRead, &reading}};
}
