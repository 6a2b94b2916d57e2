#include "ModelSerialization/SlabBarKinds.h"

#include "ModelSerialization/SlabHostKeys.h"
#include "platform/host/IHBXProperties.h"

namespace slabhost {
namespace {

using Record = SlabBarRecord;
using Properties = std::vector<SlabBarProperty>;

constexpr bool kBarFlag = true; // of every write to a bar
constexpr SlabBarPlaces kSlabPlaces{0.25, 0.75, 0.618, 0.382};
constexpr SlabBarPlaces kRaftPlaces{0.25, 0.75, 0.5, 0.5};
constexpr SlabBarPlaces kNoPlaces{0.0, 0.0, 0.0, 0.0};

struct Writer
{
    IHBXProperties &properties;
    const std::wstring &name;
    const Record &record;

    void operator()(int number) const { properties.setInt(name, number, kBarFlag); }
    void operator()(int Record::*field) const { properties.setInt(name, record.*field, kBarFlag); }
    void operator()(QString Record::*field) const { properties.setString(name, record.*field, kBarFlag); }
    void operator()(SlabBarProperty::Curve Record::*field) const { properties.setCurve(name, record.*field, kBarFlag); }
};

// clang-format off
/** Working bars of one slab or raft. */
Properties mainProperties()
{
    return {{property::curveData,      &Record::curve},
            {property::barInfo,        &Record::barInfo},
            {property::isRadiate,      0},
            {property::referenceCurve, &Record::curve},
            {property::position,       &Record::position},
            {property::type,           0},
            {property::leftHook,       &Record::leftHook},
            {property::rightHook,      &Record::leftHook}}; // meant: the right hook is not used
}

Properties straddleProperties()
{
    return {{property::curveData,          &Record::curve},
            {property::barInfo,            &Record::barInfo},
            {property::labelPosition,      &Record::labelPosition},
            {property::position,           1},
            {property::type,               1},
            {property::leftLabel,          &Record::leftLabel},
            {property::rightLabel,         &Record::rightLabel},
            {property::leftHook,           &Record::leftHook},
            {property::rightHook,          &Record::rightHook},
            {property::distributedBar,     &Record::distributeBarInfo},
            {property::saddleBarLineCount, &Record::saddleBarlineCount},
            {property::referenceCurve,     &Record::curve}};
}

Properties raftStraddleProperties()
{
    return {{property::curveData,      &Record::curve},
            {property::barInfo,        &Record::barInfo},
            {property::position,       0}, // meant: 1 across slabs, 0 across rafts
            {property::type,           1},
            {property::labelPosition,  &Record::labelPosition},
            {property::leftLabel,      &Record::leftLabel},
            {property::rightLabel,     &Record::rightLabel},
            {property::leftHook,       &Record::leftHook},
            {property::rightHook,      &Record::rightHook},
            {property::referenceCurve, &Record::curve}};
}

Properties negativeProperties()
{
    return {{property::curveData,          &Record::curve},
            {property::barInfo,            &Record::barInfo},
            {property::leftHook,           &Record::leftHook},
            {property::rightHook,          &Record::rightHook},
            {property::distributedBar,     &Record::distributeBarInfo},
            {property::saddleBarLineCount, &Record::saddleBarlineCount},
            {property::leftLabel,          &Record::leftLabel},
            {property::rightLabel,         &Record::rightLabel},
            {property::labelPosition,      &Record::labelPosition},
            {property::includeSupport,     &Record::includeSupport}};
}

Properties raftNegativeProperties()
{
    return {{property::curveData,      &Record::curve},
            {property::barInfo,        &Record::barInfo},
            {property::leftLabel,      &Record::leftLabel},
            {property::rightLabel,     &Record::rightLabel},
            {property::labelPosition,  &Record::labelPosition},
            {property::includeSupport, &Record::includeSupport},
            {property::leftHook,       &Record::leftHook}, // behind the labels, unlike those of slabs
            {property::rightHook,      &Record::rightHook}};
}
// clang-format on

} // namespace

void SlabBarProperty::write(const SlabBarRecord &record, IHBXProperties &properties) const
{
    std::visit(Writer{properties, name, record}, value);
}

double SlabBarPlaces::of(int position) const
{
    const double places[] = {first, second, third};
    return position >= 0 && position < 3 ? places[position] : other;
}

// Type, sub-type, name, straddles, places, properties.

const SlabBarKind &forcedBarKind()
{
    static const SlabBarKind kind{type::slabBar, subtype::bar, "SLJ-", false, kSlabPlaces, mainProperties()};
    return kind;
}

const SlabBarKind &straddleForcedBarKind()
{
    static const SlabBarKind kind{type::slabBar, subtype::bar, "KBSLJ-", true, kNoPlaces, straddleProperties()};
    return kind;
}

const SlabBarKind &negativeForcedBarKind()
{
    static const SlabBarKind kind{type::slabNegativeBar, subtype::negativeBar, "FJ-", false, kNoPlaces,
                                  negativeProperties()};
    return kind;
}

const SlabBarKind &raftMainForcedBarKind()
{
    static const SlabBarKind kind{type::raftBar, subtype::raftBar, "FBZJ-", false, kRaftPlaces, mainProperties()};
    return kind;
}

const SlabBarKind &raftMainStraddleForcedBarKind()
{
    static const SlabBarKind kind{type::raftBar, subtype::raftBar, "KFBZJ-", true, kNoPlaces, raftStraddleProperties()};
    return kind;
}

const SlabBarKind &raftNegativeForcedBarKind()
{
    static const SlabBarKind kind{type::raftNegativeBar,   subtype::raftNegativeBar, "FBFJ-", false, kNoPlaces,
                                  raftNegativeProperties()};
    return kind;
}

} // namespace slabhost
