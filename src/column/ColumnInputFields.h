#pragma once

#include "column/ColumnBarFields.h"
#include "column/ColumnElementInfo.h"
#include "column/ColumnKeys.h"
#include "column/ORVCADAIColumnSemnticParsingPar.h"
#include "column/ORVCADAxisLine.h"
#include "column/ORVCADColumnCloudCheckInputModel.h"
#include "column/ORVCADColumnCloudIdentifyInputModel.h"
#include "column/ORVCADColumnHoopBarSettingPar.h"
#include "column/ORVCADIdentifyColumnOptions.h"
#include "encoding/GeometryFields.h"
#include "encoding/RecordKinds.h"

/** The one list of fields of each record in the inputs of the column service. Every value that is missing or mistyped
 *  reads as 0, false, empty or null, whatever the record holds; arrays are added to. */
namespace column {

using encoding::fieldAppended;
using encoding::fieldAppendedAs;
using encoding::fieldAs;
using encoding::fieldOr;
using encoding::NarrowInt64;
using encoding::Nested;

struct OptionsFields
{
    using Record = ORVCADIdentifyColumnOptions;
    static constexpr auto table = std::make_tuple(
        fieldOr(key::azMark, &Record::AZMark),
        fieldOr(key::sideBarAverageDistribution, &Record::bSideBarAverageDistribution),
        fieldOr(key::dzMark, &Record::DZMark), fieldOr(key::gzzMark, &Record::GZZMark),
        fieldOr(key::kjzMark, &Record::KJZMark), fieldOr(key::kzzMark, &Record::KZZMark),
        fieldOr(key::maxSearchExtent, &Record::MaxSearchExtent), fieldOr(key::zhzMark, &Record::ZHZMark));
};

struct FloorWordFields
{
    using Record = ColumnFloorWordSet;
    static constexpr auto table =
        std::make_tuple(fieldOr(key::floorNameWord, &Record::strFloorName), fieldOr(key::upElev, &Record::sUpElev),
                        fieldOr(key::downElev, &Record::sDownElev));
};

struct ElevWordFields
{
    using Record = ColumnElevWordSet;
    static constexpr auto table = std::make_tuple(
        fieldOr(key::baseTopElev, &Record::sBaseTopElev), fieldOr(key::baseBtmElev, &Record::sBaseBtmElev),
        fieldOr(key::curBtmElev, &Record::sCurBtmElev), fieldOr(key::curTopElev, &Record::sCurTopElev),
        fieldOr(key::highestElev, &Record::sHighestElev), fieldOr(key::firstBtmElev, &Record::sFirstBtmElev),
        fieldOr(key::firstTopElev, &Record::sFirstTopElev), fieldOr(key::upTopElev, &Record::sUpTopElev),
        fieldOr(key::downBtmElev, &Record::sDownBtmElev));
};

struct DetailElevFields
{
    using Record = ColumnDetailElev;
    static constexpr auto table =
        std::make_tuple(fieldOr(key::upestElev, &Record::sUpestElev), fieldOr(key::downestElev, &Record::sDownestElev),
                        fieldOr(key::curUpElev, &Record::sCurUpElev), fieldOr(key::curDownElev, &Record::sCurDownElev));
};

struct SemanticFields
{
    using Record = ORVCADAIColumnSemnticParsingPar;
    static constexpr auto table =
        std::make_tuple(fieldAs<Nested<ElevWordFields>>(key::columnElevWordSetPar, &Record::columnElevWordSetPar),
                        fieldAppendedAs<Nested<FloorWordFields>>(key::floorWordSetPar, &Record::floorWordSetPar),
                        fieldAs<Nested<DetailElevFields>>(key::columnDetailElevPar, &Record::columnDetailElevPar));
};

/** A hoop picture with the id that it has in its par. */
struct HoopPicture : ORVCADColumnHoopBarPicInfo
{
    qint64 id = 0;
};

/** What the JSON of a par of hoop bar settings holds. */
struct HoopBarLists
{
    std::vector<HoopPicture> pictures;
    std::vector<ORVCADColumnHoopBarSetting> settings;
};

// Meant: ids are written with 64 bits and read with 32.

struct HoopPictureFields
{
    using Record = ORVCADColumnHoopBarPicInfo;
    static constexpr auto table = std::make_tuple(
        fieldAs<NarrowInt64>(key::id, &HoopPicture::id), fieldAs<NarrowInt64>(key::barPicId, &Record::barPicID),
        fieldOr(key::limbCount, &Record::limbCount), fieldOr(key::hoopBarName, &Record::hoopBarName));
};

struct HoopSettingFields
{
    using Record = ORVCADColumnHoopBarSetting;
    static constexpr auto table =
        std::make_tuple(fieldOr(key::hLimbCount, &Record::hLimbCount), fieldOr(key::bLimbCount, &Record::bLimbCount),
                        fieldAs<NarrowInt64>(key::hoopBarSettingId, &Record::hoopBarSettingID),
                        fieldAs<NarrowInt64>(key::hoopBarBPicId, &Record::hoopBarBPicID),
                        fieldAs<NarrowInt64>(key::hoopBarHPicId, &Record::hoopBarHPicID));
};

struct HoopBarFields
{
    static constexpr auto table =
        std::make_tuple(fieldAppendedAs<Nested<HoopPictureFields>>(key::hoopBarPicInfos, &HoopBarLists::pictures),
                        fieldAppendedAs<Nested<HoopSettingFields>>(key::hoopBarSettings, &HoopBarLists::settings));
};

/** A par inside a record, by its own JSON. */
struct HoopBarPar
{
    using Fields = HoopBarFields; // what the JSON holds
    static QJsonValue toValue(const ORVCADColumnHoopBarSettingPar &par) { return par.toJson(); }
    static ORVCADColumnHoopBarSettingPar fromValue(const QJsonValue &json, ORVCADColumnHoopBarSettingPar par)
    {
        par.fromJson(json.toObject());
        return par;
    }
};

/** An axis line as the text of its curve; a bad text gives a line without a curve. */
struct AxisLineText
{
    using Curve = encoding::ValueKind<vks::CRefPtr<vks::CCurve2d>>;
    static QJsonValue toValue(const std::shared_ptr<ORVCADAxisLine> &line)
    {
        return line ? Curve::toValue(line->curve) : QJsonValue(QJsonValue::Undefined);
    }
    static std::shared_ptr<ORVCADAxisLine> fromValue(const QJsonValue &json,
                                                     const std::shared_ptr<ORVCADAxisLine> & /*fallback*/)
    {
        return std::make_shared<ORVCADAxisLine>(ORVCADAxisLine{Curve::fromValue(json, nullptr)});
    }
};

struct ElementFields
{
    using Record = ColumnElementInfo;
    static constexpr auto table = std::make_tuple(
        fieldOr(key::name, &Record::name), fieldOr(key::parame, &Record::parame),
        fieldOr(key::sectionWidth, &Record::sectionWidth), fieldOr(key::sectionHeight, &Record::sectionHeight),
        fieldOr(key::sectionTypeId, &Record::sectionTypeID), fieldOr(key::elementTypeId, &Record::elementTypeId),
        fieldOr(key::poly, &Record::poly), fieldOr(key::insertPt, &Record::insertPt),
        fieldAs<Nested<BarFields>>(key::bar, &Record::bar));
};

struct IdentifyInputFields
{
    using Record = ORVCADColumnCloudIdentifyInputModel;
    static constexpr auto table = std::make_tuple(
        fieldOr(key::type, &Record::eType), fieldAs<Nested<OptionsFields>>(key::columnOptions, &Record::columnOptions),
        fieldAppended(key::columnCodes, &Record::columnCodes),
        fieldAppended(key::borderLayerNames, &Record::borderLayerNames),
        fieldAppended(key::labelLayerNames, &Record::labelLayerNames),
        fieldAppendedAs<AxisLineText>(key::axisLineList, &Record::axisLineList),
        fieldAppendedAs<encoding::SharedNested<ElementFields>>(key::elements, &Record::elements),
        fieldAs<Nested<SemanticFields>>(key::semanticPar, &Record::oSemnTicParsePar),
        fieldAs<HoopBarPar>(key::hoopBarSettingPar, &Record::oHoopBarSettingPar));
};

struct CheckInputFields
{
    using Record = ORVCADColumnCloudCheckInputModel;
    static constexpr auto table =
        std::make_tuple(fieldAs<Nested<OptionsFields>>(key::columnOptions, &Record::columnOptions),
                        fieldOr(key::curFloorCode, &Record::strCurFloorCode),
                        fieldAppendedAs<AxisLineText>(key::axisLineList, &Record::axisLineList));
};

} // namespace column
