#pragma once

#include "column/ColumnBarFields.h"
#include "column/ColumnKeys.h"
#include "column/ORVCADAIIdentifyColumnResultModel.h"
#include "column/ORVCADIdentifyColumnResultData.h"
#include "encoding/GeometryFields.h"
#include "encoding/RecordKinds.h"

/** The one list of fields of each record in the replies of the column service. Every value that is missing or mistyped
 *  reads as 0, false, empty or null, whatever the record holds; arrays are added to. */
namespace column {

using encoding::fieldAppendedAs;
using encoding::fieldAs;
using encoding::fieldOr;
using encoding::Nested;

struct ColumnInfoFields
{
    using Record = dwgx::DWGXColumnInfo;
    static constexpr auto table =
        std::make_tuple(fieldOr(key::steelWeight, &Record::dSteelWeight), fieldOr(key::polyType, &Record::ePolyType),
                        fieldOr(key::columnType, &Record::eColumnType),
                        fieldOr(key::edoInfoValid, &Record::bEdoInfoValid), fieldOr(key::mirror, &Record::bMirror),
                        fieldOr(key::angle, &Record::dAngle), fieldOr(key::param, &Record::strParam),
                        fieldOr(key::position, &Record::position), fieldOr(key::insertPt, &Record::insertPt),
                        fieldOr(key::width, &Record::dWidth), fieldOr(key::height, &Record::dHeight),
                        fieldOr(key::radius, &Record::dRadius), fieldOr(key::infoType, &Record::m_type));
};

/** The column info that a record owns; null is not written. */
struct OwnedColumnInfo
{
    using Fields = ColumnInfoFields;
    static QJsonValue toValue(const dwgx::DWGXColumnInfo *info)
    {
        return info ? Nested<Fields>::toValue(*info) : QJsonValue(QJsonValue::Undefined);
    }
    static dwgx::DWGXColumnInfo *fromValue(const QJsonValue &json, const dwgx::DWGXColumnInfo * /*given up*/)
    {
        auto info = std::make_unique<dwgx::DWGXColumnInfo>();
        encoding::readFields(json.toObject(), Fields::table, *info);
        return info.release(); // meant: a former info is not deleted, since its maker may hold it
    }
};

struct ResultFields
{
    using Record = ORVCADIdentifyColumnResultData;
    static constexpr auto table = std::make_tuple(
        fieldAs<Nested<BarFields>>(key::barInfo, &Record::barInfo), fieldOr(key::section, &Record::pfnSection),
        fieldOr(key::columnName, &Record::columnName), fieldOr(key::floorCode, &Record::floorCode),
        fieldOr(key::createElement, &Record::bCreateElement), fieldOr(key::poly, &Record::poly),
        fieldOr(key::cadPoly, &Record::cadPoly),
        fieldAppendedAs<encoding::LooseInt64>(key::cadLineIds, &Record::cadLineIDs),
        fieldAppendedAs<encoding::LooseInt64>(key::cadTextIds, &Record::cadTextIDs),
        fieldAs<OwnedColumnInfo>(key::columnInfo, &Record::columnInfo));
};

/** A record of a reply; one without a column info is not written. */
struct ResultRecord : encoding::SharedNested<ResultFields>
{
    using Fields = ResultFields;
    static QJsonValue toValue(const std::shared_ptr<ORVCADIdentifyColumnResultData> &record)
    {
        return record && record->columnInfo ? SharedNested::toValue(record) : QJsonValue(QJsonValue::Undefined);
    }
};

struct ResultModelFields
{
    using Record = ORVCADAIIdentifyColumnResultModel;
    static constexpr auto table =
        std::make_tuple(fieldOr(key::drawing, &Record::drawing), fieldOr(key::floorCode, &Record::floorCode),
                        fieldAppendedAs<ResultRecord>(key::resultData, &Record::resultData));
};

} // namespace column
