#include "ModelSerialization/SlabRecords.h"

#include "slab/SlabKeys.h"

namespace {

namespace key = slab::key;
using Model = ORVCADBoardLocalModel_Sample;

QString textOf(const vks::CGeometry *geometry) { return QString::fromStdString(geometry->ToText()); }

void take(SlabRecords::Record &record, const Model::Object &element, const vks::CGeometry *geometry)
{
    record.id = element.elementId;
    record.recongnizedID = element.recongnizedID.toString();
    record.name = element.name;
    record.geometry = textOf(geometry);
}

template <typename Element> void takeBar(SlabRecords::Bar &bar, const Element &element)
{
    bar.barInfo = element.barInfo;
    bar.refPointX = element.refPoint.x;
    bar.refPointY = element.refPoint.y;
    bar.refPointValid = element.refPointValid;
    bar.leftHookLength = element.leftHookLength;
    bar.rightHookLength = element.rightHookLength;
    bar.rowNumber = element.rowNumber;
    bar.stateDescript = element.stateDescript;
}

template <typename Bar, typename Element> void takeStretches(Bar &bar, const Element &element)
{
    bar.labelPosition = element.labelPosition;
    bar.leftStretchLength = element.leftStretchLength;
    bar.rightStretchLength = element.rightStretchLength;
    bar.distributeBarInfo = element.distributeBarInfo;
    bar.saddleBarlineCount = element.saddleBarlineCount;
}

vks::CRefPtr<vks::CPolygon> polygonOf(const QString &text)
{
    return vks::CPolygon::LoadFromString(text.toLatin1().constData());
}
vks::CRefPtr<vks::CCurve2d> curveOf(const QString &text)
{
    const vks::CRefPtr<vks::CGeometry> geometry = vks::CGeometry::LoadFromStr(text.toLatin1().constData());
    return dynamic_cast<vks::CCurve2d *>(geometry.get());
}

// ---- Into JSON

void put(const SlabRecords::Record &record, QLatin1String geometryKey, QJsonObject &json)
{
    json.insert(key::id, record.id);
    json.insert(key::recongnizedID, record.recongnizedID);
    json.insert(key::name, record.name);
    json.insert(geometryKey, record.geometry);
}

void putBar(const SlabRecords::Bar &bar, QJsonObject &json)
{
    json.insert(key::barInfo, bar.barInfo);
    json.insert(key::refPointX, bar.refPointX);
    json.insert(key::refPointY, bar.refPointY);
    json.insert(key::refPointValid, bar.refPointValid);
    json.insert(key::leftHookLength, bar.leftHookLength);
    json.insert(key::rightHookLength, bar.rightHookLength);
    json.insert(key::rowNumber, bar.rowNumber);
    json.insert(key::stateDescript, bar.stateDescript);
}

void put(const SlabRecords::Board &board, QJsonObject &json)
{
    put(board, key::surface, json);
    json.insert(key::thickness, board.thickness);
    json.insert(key::elev, board.elev);
    json.insert(key::type, board.type);
    json.insert(key::stateDescript, board.stateDescript);
}

void put(const SlabRecords::ForcedBar &bar, QJsonObject &json)
{
    put(bar, key::surface, json);
    putBar(bar, json);
    json.insert(key::directionX, bar.directionX);
    json.insert(key::directionY, bar.directionY);
    json.insert(key::forcedType, bar.forcedType);
    json.insert(key::supportPoly, bar.supportPoly);
}

template <typename Bar> void putStretches(const Bar &bar, QJsonObject &json)
{
    json.insert(key::labelPosition, bar.labelPosition);
    json.insert(key::leftStretchLength, bar.leftStretchLength);
    json.insert(key::rightStretchLength, bar.rightStretchLength);
    json.insert(key::distributeBarInfo, bar.distributeBarInfo);
    json.insert(key::saddleBarlineCount, bar.saddleBarlineCount);
}

void put(const SlabRecords::StraddleBar &bar, QJsonObject &json)
{
    put(bar, key::surface, json);
    putBar(bar, json);
    json.insert(key::directionX, bar.directionX);
    json.insert(key::directionY, bar.directionY);
    putStretches(bar, json);
    json.insert(key::supportPolys, bar.supportPolys);
}

void put(const SlabRecords::NegativeBar &bar, QJsonObject &json)
{
    put(bar, key::line, json);
    putBar(bar, json);
    putStretches(bar, json);
}

void put(const SlabRecords::Beam &beam, QJsonObject &json)
{
    put(beam, key::line, json);
    json.insert(key::width, beam.width);
    json.insert(key::distanceToLeft, beam.distanceToLeft);
    json.insert(key::type, beam.type);
    json.insert(key::startPointTopElev, beam.startTopElev);
    json.insert(key::endPointTopElev, beam.endTopElev);
}

template <typename T> QJsonArray arrayOf(const std::vector<T> &records)
{
    QJsonArray array;
    for (const T &record : records) {
        QJsonObject json;
        put(record, json);
        array.append(json);
    }
    return array;
}

// ---- Out of JSON

void get(const QJsonObject &json, QLatin1String geometryKey, SlabRecords::Record &record)
{
    record.id = json.value(key::id).toInt();
    record.recongnizedID = json.value(key::recongnizedID).toString();
    record.name = json.value(key::name).toString();
    record.geometry = json.value(geometryKey).toString();
}

void getBar(const QJsonObject &json, SlabRecords::Bar &bar)
{
    bar.barInfo = json.value(key::barInfo).toString();
    bar.refPointX = json.value(key::refPointX).toDouble();
    bar.refPointY = json.value(key::refPointY).toDouble();
    bar.refPointValid = json.value(key::refPointValid).toBool();
    bar.leftHookLength = json.value(key::leftHookLength).toInt();
    bar.rightHookLength = json.value(key::rightHookLength).toInt();
    bar.rowNumber = json.value(key::rowNumber).toInt();
    bar.stateDescript = json.value(key::stateDescript).toString();
}

void get(const QJsonObject &json, SlabRecords::Board &board)
{
    get(json, key::surface, board);
    board.thickness = json.value(key::thickness).toDouble();
    board.elev = json.value(key::elev).toDouble();
    board.type = json.value(key::type).toInt();
    board.stateDescript = json.value(key::stateDescript).toString();
}

void get(const QJsonObject &json, SlabRecords::ForcedBar &bar)
{
    get(json, key::surface, bar);
    getBar(json, bar);
    bar.directionX = json.value(key::directionX).toDouble();
    bar.directionY = json.value(key::directionY).toDouble();
    bar.forcedType = json.value(key::forcedType).toInt();
    bar.supportPoly = json.value(key::supportPoly).toString();
}

template <typename Bar> void getStretches(const QJsonObject &json, Bar &bar)
{
    bar.labelPosition = json.value(key::labelPosition).toInt();
    bar.leftStretchLength = json.value(key::leftStretchLength).toDouble();
    bar.rightStretchLength = json.value(key::rightStretchLength).toDouble();
    bar.distributeBarInfo = json.value(key::distributeBarInfo).toString();
    bar.saddleBarlineCount = json.value(key::saddleBarlineCount).toString();
}

void get(const QJsonObject &json, SlabRecords::StraddleBar &bar)
{
    get(json, key::surface, bar);
    getBar(json, bar);
    bar.directionX = json.value(key::directionX).toDouble();
    bar.directionY = json.value(key::directionY).toDouble();
    getStretches(json, bar);
}

void get(const QJsonObject &json, SlabRecords::NegativeBar &bar)
{
    get(json, key::line, bar);
    getBar(json, bar);
    getStretches(json, bar);
}

void get(const QJsonObject &json, SlabRecords::Beam &beam)
{
    get(json, key::line, beam);
    beam.width = json.value(key::width).toDouble();
    beam.distanceToLeft = json.value(key::distanceToLeft).toDouble();
    beam.type = json.value(key::type).toInt();
    beam.startTopElev = json.value(key::startPointTopElev).toDouble();
    beam.endTopElev = json.value(key::endPointTopElev).toDouble();
}

template <typename T> void readArray(const QJsonArray &array, std::vector<T> &records)
{
    records.reserve(static_cast<std::size_t>(array.size()));
    for (const QJsonValue value : array) {
        records.emplace_back();
        get(value.toObject(), records.back());
    }
}

} // namespace

SlabRecords::SlabRecords(const Model &model)
{
    for (const Model::Board *board : model.boards()) {
        take(boards.emplace_back(), *board, board->surface);
        boards.back().thickness = board->thickness;
        boards.back().elev = board->elev;
        boards.back().type = board->boardType;
        boards.back().stateDescript = board->stateDescript;
    }
    for (const Model::ForcedBar *bar : model.forcedBars()) {
        take(forcedBars.emplace_back(), *bar, bar->surface);
        takeBar(forcedBars.back(), *bar);
        forcedBars.back().directionX = bar->direction.x;
        forcedBars.back().directionY = bar->direction.y;
        forcedBars.back().forcedType = bar->forcedType;
        forcedBars.back().supportPoly = textOf(bar->supportPoly);
    }
    for (const Model::StraddleForcedBar *bar : model.straddleForcedBars()) {
        take(straddleBars.emplace_back(), *bar, bar->surface);
        takeBar(straddleBars.back(), *bar);
        straddleBars.back().directionX = bar->direction.x;
        straddleBars.back().directionY = bar->direction.y;
        takeStretches(straddleBars.back(), *bar);
    }
    for (const Model::NegativeForcedBar *bar : model.negativeForcedBars()) {
        take(negativeBars.emplace_back(), *bar, bar->line);
        takeBar(negativeBars.back(), *bar);
        negativeBars.back().rightHookLength = bar->leftHookLength; // as the document has it
        takeStretches(negativeBars.back(), *bar);
    }
    for (const Model::Beam *beam : model.beams()) {
        take(beams.emplace_back(), *beam, beam->line);
        beams.back().width = beam->width;
        beams.back().distanceToLeft = beam->distanceToLeft;
        beams.back().type = beam->supportType;
        beams.back().startTopElev = beam->startTopElev;
        beams.back().endTopElev = beam->endTopElev;
    }
}

QJsonObject SlabRecords::toJson() const
{
    return {{key::boards, arrayOf(boards)},
            {key::forcedBars, arrayOf(forcedBars)},
            {key::straddleForcedBars, arrayOf(straddleBars)},
            {key::negativeForcedBars, arrayOf(negativeBars)},
            {key::beams, arrayOf(beams)}};
}

void SlabRecords::fromJson(const QJsonObject &json)
{
    readArray(json.value(key::boards).toArray(), boards);
    readArray(json.value(key::forcedBars).toArray(), forcedBars);
    readArray(json.value(key::straddleForcedBars).toArray(), straddleBars);
    readArray(json.value(key::negativeForcedBars).toArray(), negativeBars);
    readArray(json.value(key::beams).toArray(), beams);
}

void SlabRecords::addTo(Model &model) const
{
    for (const Board &board : boards)
        (new Model::Board(&model))->surface = polygonOf(board.geometry);
    for (const ForcedBar &bar : forcedBars) {
        auto *element = new Model::ForcedBar(&model);
        element->surface = polygonOf(bar.geometry);
        element->supportPoly = polygonOf(bar.supportPoly);
    }
    for (const StraddleBar &bar : straddleBars)
        (new Model::StraddleForcedBar(&model))->surface = polygonOf(bar.geometry);
    for (const NegativeBar &bar : negativeBars)
        (new Model::NegativeForcedBar(&model))->line = curveOf(bar.geometry);
    for (const Beam &beam : beams)
        (new Model::Beam(&model))->line = curveOf(beam.geometry);
}
