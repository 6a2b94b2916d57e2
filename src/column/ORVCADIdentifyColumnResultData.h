#pragma once

#include "ORVCADModelDataExport.h"
#include "column/ColumnBarInfo.h"
#include "platform/dwgx/DWGXColumnInfo.h"
#include "platform/geometry/CPolygon.h"

#include <QJsonObject>
#include <QString>

#include <vector>

/** One recognised column. One JSON object of a reply; schema: schemas/columns.schema.json. */
class ORVCADMODELDATA_EXPORT ORVCADIdentifyColumnResultData
{
public:
    ORVCADIdentifyColumnResultData() = default;
    /** Deletes the column info. */
    ~ORVCADIdentifyColumnResultData();
    ORVCADIdentifyColumnResultData(const ORVCADIdentifyColumnResultData &) = delete;
    ORVCADIdentifyColumnResultData &operator=(const ORVCADIdentifyColumnResultData &) = delete;

    /** An empty object for a record without a column info: such a record cannot be written. */
    QJsonObject toJson() const;
    /** Fills the target; this object plays no part, and null does nothing. Never fails: what is missing or
     *  mistyped is 0, false or empty, bad geometry null or (0, 0). Ids are added to those that are there. The target gets a
     *  new column info, whatever the object holds. One that it had before is given up and not deleted, so a target should
     *  be fresh. */
    void fromJson(ORVCADIdentifyColumnResultData *target, const QJsonObject &json) const;

    ColumnBarInfo barInfo;                      ///< its bars
    QString pfnSection;                         ///< text of the section
    dwgx::DWGXColumnInfo *columnInfo = nullptr; ///< geometry, made with `new` and owned
    vks::CRefPtr<vks::CPolygon> poly;           ///< recognised outline
    vks::CRefPtr<vks::CPolygon> cadPoly;        ///< outline in the drawing
    QString columnName;                         ///< as its label tells it
    QString floorCode;                          ///< of the floor that it stands on
    std::vector<qint64> cadLineIDs; ///< lines of the drawing that it comes from; JSON keeps 53 bits of what is written
    std::vector<qint64> cadTextIDs; ///< texts of the drawing that it comes from
    bool bCreateElement = false;    ///< whether an element is to be made
};
