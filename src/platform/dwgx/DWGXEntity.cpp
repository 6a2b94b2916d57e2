#include "platform/dwgx/DWGXEntity.h"

#include <cmath>

namespace dwgx {
namespace {

/** Where the scripts begin whose characters fill a square; all that this system writes stand behind it. */
constexpr ushort kFirstWideCharacter = 0x1100;
constexpr double kNarrowWidth = 0.6; // of the height

double relativeWidth(QChar character)
{
    if (character.isLowSurrogate())
        return 0.0; // counted with the high one
    return character.unicode() >= kFirstWideCharacter ? 1.0 : kNarrowWidth;
}

} // namespace

bool DWGXEntity::hasSoundHead() const { return id >= 0 && color >= 1 && color <= kColorByLayer && blockId >= 0; }

bool DWGXLine::isSound() const
{
    if (!hasSoundHead() || !curve || curve->IsEmpty())
        return false;
    const vks::CBox2<double> box = curve->Box();
    return box.IsValid() && box.minPt.IsFinite() && box.maxPt.IsFinite();
}

bool DWGXText::isSound() const
{
    return hasSoundHead() && point.IsFinite() && std::isfinite(angle) && std::isfinite(height) && height > 0.0;
}

double DWGXText::width() const
{
    double relative = 0.0;
    for (const QChar character : content)
        relative += relativeWidth(character);
    return relative * height;
}

vks::CVec2<double> DWGXText::direction() const { return {std::cos(angle), std::sin(angle)}; }

std::array<vks::CVec2<double>, 4> DWGXText::corners() const
{
    const vks::CVec2<double> along = direction() * width();
    const vks::CVec2<double> up = direction().Left() * height;
    return {point, point + along, point + along + up, point + up};
}

void DWGXText::centerAt(const vks::CVec2<double> &middle)
{
    point = middle - direction() * (width() / 2) - direction().Left() * (height / 2);
}

} // namespace dwgx
