#include "column/ORVCADAIIdentifyColumnResultModel.h"
#include "encoding/GeometryInfo.h"
#include "encoding/RecordKey.h"
#include "platform/geometry/CLine2d.h"
#include "support/RatioBench.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdlib>
#include <memory>
#include <vector>

// Replies of the column service, from records to bytes and back, against plain QJsonObjects with the geometry as text.

namespace {

using namespace encoding; // for ""_key

constexpr int kSize = 10'000;
constexpr int kSmall = 2'000;
constexpr int kLarge = 200'000;

// Ceilings of the ratios.
constexpr double kWritten = 1.3;
constexpr double kRead = 1.5; // geometry is built and checked here, which the walk does not do
constexpr double kGrowth = 1.8;

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

QByteArray written(const Model &model) { return QJsonDocument(model.toJson()).toJson(QJsonDocument::Compact); }

/** The road from bytes to records; letting go of the records of the run before is no part of it. */
bench::Work reading(const QByteArray &bytes, Model &model)
{
    return {[&model] { model = Model(); },
            [&bytes, &model] { model.fromJson(&model, QJsonDocument::fromJson(bytes).object()); }};
}

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
    return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

/** Looks at every value, texts included. */
double walked(const QJsonValue &value)
{
    double sum = 0.0;
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (const QJsonValue member : object)
            sum += walked(member);
    } else if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (const QJsonValue entry : array)
            sum += walked(entry);
    } else {
        sum += value.isString() ? value.toString().size() : value.toDouble();
    }
    return sum;
}

} // namespace

int main()
{
    const Model model = columns(kSize);
    const std::vector<Texts> texts = textsOf(model);
    const QByteArray bytes = written(model);
    Model target;
    reading(bytes, target).run();
    if (bytes != writtenByHand(model, texts) || bytes != written(target))
        std::abort(); // the roads must do the same

    bench::RatioTable table("Replies of the column service, per column");
    table.row(
        "written / QJsonObjects with texts ready", kSize, [&] { bench::keep(written(model)); },
        [&] { bench::keep(writtenByHand(model, texts)); }, kWritten);
    table.row(
        "read / parsed and walked", kSize, reading(bytes, target),
        [&] { bench::keep(walked(QJsonDocument::fromJson(bytes).object())); }, kRead);

    const Model small = columns(kSmall);
    const Model large = columns(kLarge);
    const QByteArray smallBytes = written(small);
    const QByteArray largeBytes = written(large);
    table.growth(
        "written, cost per column", kLarge, [&] { bench::keep(written(large)); }, kSmall,
        [&] { bench::keep(written(small)); }, kGrowth);
    Model smallTarget;
    table.growth("read, cost per column", kLarge, reading(largeBytes, target), kSmall, reading(smallBytes, smallTarget),
                 kGrowth);
    return table.print();
}
