#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/geometry/CCurve2d.h"
#include "platform/geometry/CPolygon.h"

#include <QString>
#include <QUuid>
#include <QtGlobal>

#include <string>
#include <variant>
#include <vector>

class IHBXProperties;

/** What tells the six kinds of bars apart on their way into the host, in one table. */
namespace slabhost {

/** A new bar, as the host gets it. */
struct SlabBarRecord
{
    QUuid id;
    QString name;
    QString barInfo;                   ///< in upper case
    vks::CRefPtr<vks::CPolygon> area;  ///< of area bars: the local model's own, never changed
    vks::CRefPtr<vks::CCurve2d> line;  ///< of line bars: what they are laid along
    vks::CRefPtr<vks::CCurve2d> curve; ///< the bar as it is drawn
    QString leftHook;                  ///< the decimal text of a length
    QString rightHook;
    int position = 0;
    int labelPosition = 0;
    int includeSupport = 0;
    int leftLabel = 0;
    int rightLabel = 0;
    QString distributeBarInfo;
    QString saddleBarlineCount;
};

/** A property that a new draw object gets: always the same number, or a field of the record. */
struct SlabBarProperty
{
    using Curve = vks::CRefPtr<vks::CCurve2d>;

    const std::wstring &name;
    std::variant<int, int SlabBarRecord::*, QString SlabBarRecord::*, Curve SlabBarRecord::*> value;

    void write(const SlabBarRecord &record, IHBXProperties &properties) const;
};

/** Where working bars lie across their span, as parts of it, by "Position". */
struct ORVCADMODELDATA_EXPORT SlabBarPlaces
{
    double first;  ///< of 0
    double second; ///< of 1
    double third;  ///< of 2
    double other;  ///< of every other number

    double of(int position) const;
};

struct SlabBarKind
{
    qint64 type;
    qint64 subType;
    const char *namePrefix;                  ///< of a bar without a name; its text follows
    bool straddles;                          ///< over several slabs or rafts, which a new element is told by "Type" 1
    SlabBarPlaces places;                    ///< of working bars
    std::vector<SlabBarProperty> properties; ///< in the order of writing
};

ORVCADMODELDATA_EXPORT const SlabBarKind &forcedBarKind();
ORVCADMODELDATA_EXPORT const SlabBarKind &straddleForcedBarKind();
ORVCADMODELDATA_EXPORT const SlabBarKind &negativeForcedBarKind();
ORVCADMODELDATA_EXPORT const SlabBarKind &raftMainForcedBarKind();
ORVCADMODELDATA_EXPORT const SlabBarKind &raftMainStraddleForcedBarKind();
ORVCADMODELDATA_EXPORT const SlabBarKind &raftNegativeForcedBarKind();

} // namespace slabhost
