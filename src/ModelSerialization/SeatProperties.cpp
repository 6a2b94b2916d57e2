#include "ModelSerialization/SeatProperties.h"

#include "beam/BeamKeys.h"
#include "beam/ORVBeamSDCSeatInfoModel.h"

#include <variant>

namespace beam {
namespace {

using Seat = ORVBeamSDCSeatInfoModel;

struct SeatRow
{
    SeatStep step;
    const std::wstring &name;
    PropType type;
    bool flag;
    std::variant<QString Seat::*, int Seat::*, double Seat::*> field;
};

// clang-format off
constexpr SeatRow kSeatRows[] = {
    {SeatStep::FoundationHeight, property::height,         PropType::Integer, true,  &Seat::Height},
    {SeatStep::FoundationPlace,  property::topElev,        PropType::Text,    true,  &Seat::TopElev},
    {SeatStep::FoundationPlace,  property::bottomElev,     PropType::Text,    true,  &Seat::BtmElev},
    {SeatStep::PileKind,         property::type1,          PropType::Integer, false, &Seat::Type},
    {SeatStep::PileKind,         property::topElev,        PropType::Text,    false, &Seat::TopElev},
    {SeatStep::PileWidth,        property::sectionWidth,   PropType::Integer, false, &Seat::SectionWidth},
    {SeatStep::PileDepth,        property::sectionHeight,  PropType::Integer, false, &Seat::SectionHeight},
    {SeatStep::PileHeight,       property::height,         PropType::Integer, false, &Seat::Height},
    {SeatStep::PilePlace,        property::topElev,        PropType::Text,    true,  &Seat::TopElev},
    {SeatStep::TieBeamSection,   property::sectionWidth,   PropType::Integer, true,  &Seat::SectionWidth},
    {SeatStep::TieBeamSection,   property::sectionHeight,  PropType::Integer, true,  &Seat::SectionHeight},
    // The elevations of a tie beam's record are those of its top at both ends.
    {SeatStep::TieBeamPlace,     property::startPtTopElev, PropType::Text,    true,  &Seat::TopElev},
    {SeatStep::TieBeamPlace,     property::endPtTopElev,   PropType::Text,    true,  &Seat::BtmElev},
    {SeatStep::TieBeamPlace,     property::axisOffset,     PropType::Double,  true,  &Seat::AxisOffset},
    {SeatStep::TieBeamPlace,     property::axisOffsetJzbz, PropType::Double,  true,  &Seat::AxisOffset},
};
// clang-format on

} // namespace

std::vector<PropertyText> seatPropertyTexts(const ORVBeamSDCSeatInfoModel &seat, SeatStep step)
{
    std::vector<PropertyText> texts;
    for (const SeatRow &row : kSeatRows)
        if (row.step == step)
            texts.push_back({row.name, row.type, row.flag,
                             std::visit([&](auto member) { return PropertyText::textOf(seat.*member); }, row.field)});
    return texts;
}

} // namespace beam
