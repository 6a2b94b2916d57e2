#include "ModelSerialization/BeamProperties.h"

#include "beam/BeamEntInfo.h"
#include "beam/BeamKeys.h"
#include "beam/BeamSegmentInfo.h"
#include "beam/LinkBeamEntInfo.h"
#include "encoding/GeometryInfo.h"
#include "platform/geometry/CPolygon.h"
#include "platform/host/IHBXProperties.h"
#include "platform/services/DwgxRound.h"

#include <type_traits>
#include <variant>

namespace beam {
namespace {

/** Element types that a row is for. */
enum class Of { Any, Beam, LinkBeam, AllButLinkBeam, OtherBeam };

enum class Read { Always, IfPresent, Never };

/** The outline of a section, which is written by other means than a text. */
struct Outline
{
    QString BaseBeamEntInfo::*member;
};
/** A length that is written as the nearest whole number. */
struct Rounded
{
    double BeamSegmentInfo::*member;
};

template <typename... Fields> struct Row
{
    const std::wstring &name;
    PropType type;
    bool flag;
    Of types;
    Read read;
    WriteStep step;
    std::variant<Fields...> field;
};

using Ent = BaseBeamEntInfo;
using EntRow =
    Row<Outline, QString Ent::*, double Ent::*, QString BeamEntInfo::*, int BeamEntInfo::*, QString LinkBeamEntInfo::*>;
using SegmentRow = Row<Rounded, QString BeamSegmentInfo::*, double BeamSegmentInfo::*>;

constexpr PropType kText = PropType::Text;
constexpr PropType kInteger = PropType::Integer;
constexpr PropType kDouble = PropType::Double;

constexpr Of kAny = Of::Any;
constexpr Of kBeam = Of::Beam;
constexpr Of kLink = Of::LinkBeam;
constexpr Of kSpanned = Of::AllButLinkBeam;
constexpr Of kOther = Of::OtherBeam;

constexpr Read kAlways = Read::Always;
constexpr Read kIfThere = Read::IfPresent;
constexpr Read kNever = Read::Never;

constexpr WriteStep kSection = WriteStep::Section;
constexpr WriteStep kUnwritten = WriteStep::Never;
constexpr WriteStep kCommonBars = WriteStep::CommonBars;
constexpr WriteStep kOffset = WriteStep::AxisOffset;
constexpr WriteStep kSpanCount = WriteStep::SpanCount;
constexpr WriteStep kBarsOfKind = WriteStep::BarsOfKind;
constexpr WriteStep kType = WriteStep::Type;
constexpr WriteStep kWidth = WriteStep::Width;
constexpr WriteStep kElevations = WriteStep::Elevations;

// clang-format off
constexpr EntRow kEntRows[] = {
    {property::sectionWidth,     kInteger, true,  kAny,     kAlways,  kSection,    &Ent::SectionWidth},
    {property::sectionHeight,    kInteger, true,  kAny,     kAlways,  kSection,    &Ent::SectionHeight},
    {property::sectionPoly,      kText,    false, kAny,     kIfThere, kUnwritten,  Outline{&Ent::SectionPoly}},
    // Meant: elevations of the element are never written; they reach the host by the draw objects alone.
    {property::startPtTopElev,   kText,    true,  kAny,     kAlways,  kUnwritten,  &Ent::StartTopElev},
    {property::endPtTopElev,     kText,    true,  kAny,     kAlways,  kUnwritten,  &Ent::EndTopElev},
    {property::hoopBar,          kText,    true,  kAny,     kIfThere, kCommonBars, &Ent::HoopBar},
    {property::limb,             kText,    true,  kAny,     kIfThere, kCommonBars, &Ent::LimbCount},
    {property::tieBar,           kText,    true,  kAny,     kIfThere, kCommonBars, &Ent::TieBar},
    {property::axisOffset,       kDouble,  true,  kAny,     kAlways,  kOffset,     &Ent::AxisOffset},
    {property::axisOffsetJzbz,   kDouble,  true,  kAny,     kIfThere, kOffset,     &Ent::AxisOffset},
    {property::spanCount,        kText,    true,  kSpanned, kAlways,  kSpanCount,  &BeamEntInfo::SpanCount},
    {property::topThroughBar,    kText,    true,  kSpanned, kAlways,  kBarsOfKind, &BeamEntInfo::TopThroughBar},
    {property::bottomThroughBar, kText,    true,  kSpanned, kAlways,  kBarsOfKind, &BeamEntInfo::BottomThroughBar},
    {property::sideBar,          kText,    true,  kSpanned, kAlways,  kBarsOfKind, &BeamEntInfo::SideBar},
    {property::type1,            kInteger, true,  kBeam,    kAlways,  kType,       &BeamEntInfo::Type},
    {property::type,             kInteger, false, kOther,   kAlways,  kType,       &BeamEntInfo::Type},
    {property::topHoriBar,       kText,    true,  kLink,    kAlways,  kBarsOfKind, &LinkBeamEntInfo::TopHoribar},
    {property::bottomHoriBar,    kText,    true,  kLink,    kAlways,  kBarsOfKind, &LinkBeamEntInfo::BottomHoriBar},
    {property::sideBarAl,        kText,    true,  kLink,    kAlways,  kBarsOfKind, &LinkBeamEntInfo::SideBarAL},
};

using Segment = BeamSegmentInfo;
constexpr SegmentRow kSegmentRows[] = {
    // Meant: read from the shape, and rounded where the element's width is not.
    {property::sectionWidth,   kInteger, true, kAny, kNever,   kWidth,      Rounded{&Segment::LineWidth}},
    {property::axisOffset,     kDouble,  true, kAny, kAlways,  kOffset,     &Segment::AxisOffset},
    {property::axisOffsetJzbz, kDouble,  true, kAny, kIfThere, kOffset,     &Segment::AxisOffset},
    {property::startPtTopElev, kText,    true, kAny, kAlways,  kElevations, &Segment::StartPtTopElev},
    {property::endPtTopElev,   kText,    true, kAny, kAlways,  kElevations, &Segment::EndPtTopElev},
};
// clang-format on

bool counts(Of types, qint64 elementType)
{
    const bool isLinkBeam = elementType == type::linkBeam;
    const bool isBeam = elementType == type::beam;
    switch (types) {
    case Of::Any:
        return true;
    case Of::Beam:
        return isBeam;
    case Of::LinkBeam:
        return isLinkBeam;
    case Of::AllButLinkBeam:
        return !isLinkBeam;
    case Of::OtherBeam:
        return !isLinkBeam && !isBeam;
    }
    return false;
}

/** The field of a record, null where the record is of another class than the one that has it. */
template <typename Record, typename Owner, typename Value> auto fieldIn(Record &record, Value Owner::*member)
{
    using Wanted = std::conditional_t<std::is_const_v<Record>, const Owner, Owner>;
    auto *owner = dynamic_cast<Wanted *>(&record);
    return owner ? &(owner->*member) : nullptr;
}
template <typename Value> Value *fieldIn(BeamSegmentInfo &record, Value BeamSegmentInfo::*member)
{
    return &(record.*member);
}
template <typename Value> const Value *fieldIn(const BeamSegmentInfo &record, Value BeamSegmentInfo::*member)
{
    return &(record.*member);
}

// --- reading

void readValue(const IHBXProperties &properties, const std::wstring &name, PropType, QString &out)
{
    properties.asString(out, name);
}

void readValue(const IHBXProperties &properties, const std::wstring &name, PropType, int &out)
{
    out = properties.asInt(name);
}

void readValue(const IHBXProperties &properties, const std::wstring &name, PropType type, double &out)
{
    out = type == kInteger ? properties.asInt(name) : properties.asDouble(name);
}

template <typename AnyRow, typename Record, typename Member>
void readField(const IHBXProperties &properties, const AnyRow &row, Record &record, Member member)
{
    if (auto *field = fieldIn(record, member))
        readValue(properties, row.name, row.type, *field);
}

template <typename AnyRow, typename Record>
void readField(const IHBXProperties &properties, const AnyRow &row, Record &record, Outline outline)
{
    vks::CRefPtr<vks::CPolygon> polygon;
    record.*(outline.member) = getPolyInfo(properties.asPolygon(polygon, row.name));
}

template <typename AnyRow> void readField(const IHBXProperties &, const AnyRow &, BeamSegmentInfo &, Rounded) {}

template <typename Rows, typename Record>
void readRows(const IHBXProperties &properties, const Rows &rows, qint64 elementType, Record &record)
{
    for (const auto &row : rows) {
        const bool isRead = row.read != Read::Never && counts(row.types, elementType);
        if (!isRead || (row.read == Read::IfPresent && !properties.hasProperty(row.name)))
            continue;
        std::visit([&](auto member) { readField(properties, row, record, member); }, row.field);
    }
}

// --- writing

/** Empty where the record has no such field, which writes nothing. */
template <typename Record, typename Member> QString fieldText(const Record &record, Member member)
{
    const auto *field = fieldIn(record, member);
    return field ? PropertyText::textOf(*field) : QString();
}

QString fieldText(const BaseBeamEntInfo &record, Outline outline) { return record.*(outline.member); }

QString fieldText(const BeamSegmentInfo &record, Rounded length)
{
    return PropertyText::textOf(dwgx::round(record.*(length.member)));
}

template <typename Rows, typename Record>
std::vector<PropertyText> textsOf(const Rows &rows, qint64 elementType, const Record &record, WriteStep step)
{
    std::vector<PropertyText> texts;
    for (const auto &row : rows) {
        if (row.step != step || !counts(row.types, elementType))
            continue;
        const QString value = std::visit([&](auto member) { return fieldText(record, member); }, row.field);
        texts.push_back({row.name, row.type, row.flag, value});
    }
    return texts;
}

} // namespace

void readEntProperties(const IHBXProperties &properties, qint64 elementType, BaseBeamEntInfo &record)
{
    readRows(properties, kEntRows, elementType, record);
}

void readSegmentProperties(const IHBXProperties &properties, BeamSegmentInfo &record)
{
    readRows(properties, kSegmentRows, hbx::kAnyType, record);
}

std::vector<PropertyText> entPropertyTexts(const BaseBeamEntInfo &record, WriteStep step)
{
    return textsOf(kEntRows, record.ElementType, record, step);
}

std::vector<PropertyText> segmentPropertyTexts(const BeamSegmentInfo &record, WriteStep step)
{
    return textsOf(kSegmentRows, hbx::kAnyType, record, step);
}

} // namespace beam
