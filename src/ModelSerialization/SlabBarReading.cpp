#include "ModelSerialization/SlabBarReading.h"

#include "ModelSerialization/NewSlabElements.h"
#include "ModelSerialization/SlabBarGeometry.h"
#include "ModelSerialization/SlabNumbers.h"

#include <utility>

namespace slabhost {
namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Point = vks::CVec2<double>;

// Of the host's "LabelPosition": up to 4 they tell the side of a bar.
constexpr int kCentredLabel = 2;
constexpr int kLargestLabelKind = 4;

/** What "IncludeSupport" is for a bar on both sides of its line, by its label position. */
struct SupportOfLabel
{
    int labelPosition;
    int includeSupport;
};
constexpr SupportOfLabel kSupportsOfLabels[] = {{kCentredLabel, 1}, {5, 2}};
constexpr int kSupportOfOtherLabels = 0;
constexpr int kSupportOfOneSide = 1;

/** What all bars have. */
template <typename Bar> SlabBarRecord commonRecord(const Bar &bar, const SlabBarKind &kind)
{
    SlabBarRecord record;
    record.id = bar.recongnizedID;
    record.barInfo = bar.barInfo.toUpper();
    record.name = bar.name;
    if (record.name.isEmpty())
        record.name = QLatin1String(kind.namePrefix) + QString(record.barInfo).replace('@', '-');
    record.leftHook = QString::number(bar.leftHookLength);
    record.rightHook = QString::number(bar.rightHookLength);
    return record;
}

/** What both kinds of slab bars with distribution bars have. */
template <typename Bar> void addDistribution(const Bar &bar, SlabBarRecord &record)
{
    record.distributeBarInfo = bar.distributeBarInfo;
    record.saddleBarlineCount = bar.saddleBarlineCount;
}

/** Reads the bars of a class. */
template <typename Bar, typename Read>
SlabBarRecords recordsOf(const std::vector<const Bar *> &bars, const SlabBarKind &kind, const Read &read)
{
    SlabBarRecords records;
    for (const Bar *bar : bars) {
        SlabBarRecord record = commonRecord(*bar, kind);
        read(*bar, record);
        records.push_back(std::move(record));
    }
    return records;
}

// ---- Area bars

/** Without an outline a bar has no curve either, and the host's check refuses it. */
template <typename StartOf>
void addArea(const Model::AbstractForcedBar &bar, const StartOf &startOf, SlabBarRecord &record)
{
    if (!bar.surface)
        return;
    record.area = bar.surface;
    const Point start = bar.refPointValid ? bar.refPoint : startOf(*record.area);
    record.curve = barThrough(*record.area, start, bar.direction);
}

template <typename Bar> SlabBarRecords mainBarsOf(const std::vector<const Bar *> &bars, const SlabBarKind &kind)
{
    return recordsOf(bars, kind, [&kind](const Bar &bar, SlabBarRecord &record) {
        record.position = bar.forcedType;
        const double part = calcIndex(bar.rowNumber) + kind.places.of(bar.forcedType);
        const auto start = [&](const vks::CPolygon &area) { return spanPoint(area, bar.direction, part); };
        addArea(bar, start, record);
    });
}

template <typename Bar> void addStraddle(const Bar &bar, SlabBarRecord &record)
{
    record.labelPosition = bar.labelPosition;
    record.leftLabel = clampedInt(bar.leftStretchLength);
    record.rightLabel = clampedInt(bar.rightStretchLength);
    addArea(
        bar, [&bar](const vks::CPolygon &area) { return straddlePoint(area, bar.rowNumber); }, record);
}

// ---- Line bars

/** Of a bar on one side of its line. */
int labelKind(int labelPosition)
{
    return labelPosition >= 0 && labelPosition <= kLargestLabelKind ? labelPosition : kCentredLabel;
}

/** Of a bar on both sides of its line. */
int includeSupport(int labelPosition)
{
    for (const SupportOfLabel &row : kSupportsOfLabels)
        if (row.labelPosition == labelPosition)
            return row.includeSupport;
    return kSupportOfOtherLabels;
}

/** A bar on one side of its line has its length in the left label. */
void addLabels(int left, int right, int labelPosition, SlabBarRecord &record)
{
    const bool isOneSided = left == 0 || right == 0;
    record.leftLabel = left == 0 ? right : left;
    record.rightLabel = left == 0 ? 0 : right;
    record.labelPosition = isOneSided ? labelKind(labelPosition) : kCentredLabel;
    record.includeSupport = isOneSided ? kSupportOfOneSide : includeSupport(labelPosition);
}

template <typename Bar> void addLine(const Bar &bar, SlabBarRecord &record)
{
    const int left = clampedInt(bar.leftStretchLength);
    const int right = clampedInt(bar.rightStretchLength);
    addLabels(left, right, bar.labelPosition, record);
    record.line = layingLine(bar.line);
    if (!record.line)
        return;
    const Point point = bar.refPointValid ? bar.refPoint : rowPoint(*record.line, bar.rowNumber);
    record.curve = barAcross(*record.line, point, left, right);
}

} // namespace

SlabBarRecords forcedBarsOf(const NewSlabElements &elements)
{
    return mainBarsOf(elements.forcedBars, forcedBarKind());
}

SlabBarRecords raftMainForcedBarsOf(const NewSlabElements &elements)
{
    return mainBarsOf(elements.raftMainForcedBars, raftMainForcedBarKind());
}

SlabBarRecords straddleForcedBarsOf(const NewSlabElements &elements)
{
    const auto read = [](const Model::StraddleForcedBar &bar, SlabBarRecord &record) {
        addDistribution(bar, record);
        addStraddle(bar, record);
    };
    return recordsOf(elements.straddleForcedBars, straddleForcedBarKind(), read);
}

SlabBarRecords raftMainStraddleForcedBarsOf(const NewSlabElements &elements)
{
    return recordsOf(elements.raftMainStraddleForcedBars, raftMainStraddleForcedBarKind(),
                     addStraddle<Model::RaftMainStraddleForcedBar>);
}

SlabBarRecords negativeForcedBarsOf(const NewSlabElements &elements)
{
    const auto read = [](const Model::NegativeForcedBar &bar, SlabBarRecord &record) {
        addDistribution(bar, record);
        addLine(bar, record);
    };
    return recordsOf(elements.negativeForcedBars, negativeForcedBarKind(), read);
}

SlabBarRecords raftNegativeForcedBarsOf(const NewSlabElements &elements)
{
    return recordsOf(elements.raftNegativeForcedBars, raftNegativeForcedBarKind(),
                     addLine<Model::RaftNegativeForcedBar>);
}

} // namespace slabhost
