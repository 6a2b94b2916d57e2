#include "cli/PlanStyle.h"

#include "cli/OpeningTypes.h"
#include "platform/services/HBXElementTypeTable.h"
#include "platform/services/HBXElementTypes.h"

#include <algorithm>
#include <iterator>

namespace orvcad {

namespace {

namespace type = hbx::type;

// Patterns of lines, mm of paper.
constexpr char kThrough[] = "";
constexpr char kDashed[] = "1.6 .8"; // stands above the section plane
constexpr char kDashDot[] = "6 1.2 1 1.2";

constexpr double kSolid = 1.0;        // opacity of what is cut by the section plane
constexpr double kNamedBeside = 0.3;  // what is filled at least so strongly may have its name beside it
constexpr int kDarkestOfLight = 0x80; // strokes are no lighter, so that they print
constexpr int kUnknownColour = 0x888888;

/** How a type looks. */
struct Style
{
    qint64 type;
    double fillOpacity; // 0 draws the outline alone
    double stroke;      // width of lines, mm of paper
    const char *dashes;
};

/** From the bottom of the picture to its top. */
constexpr Style kStyles[] = {
    {type::raft, 0.25, 0.18, kThrough},
    {type::slab, 0.18, 0.13, kThrough},
    {type::pile, 0.40, 0.18, kThrough},
    {type::pileCap, 0.30, 0.18, kThrough},
    {type::isolatedFoundation, 0.30, 0.18, kThrough},
    {type::pileCapUnit, 0.30, 0.13, kThrough},
    {type::isolatedFoundationUnit, 0.30, 0.13, kThrough},
    {type::slabHole, 0.0, 0.25, kThrough},
    {type::beam, 0.14, 0.13, kDashed},
    {type::linkBeam, 0.14, 0.13, kDashed},
    {type::tieBeam, 0.14, 0.13, kDashed},
    {type::foundationBeam, 0.14, 0.13, kDashed},
    {type::partitionWall, kSolid, 0.18, kThrough},
    {type::retainingWall, kSolid, 0.18, kThrough},
    {type::curtainWall, kSolid, 0.18, kThrough},
    {type::brickWall, kSolid, 0.18, kThrough},
    {type::forceWall, kSolid, 0.18, kThrough},
    {type::masonryColumn, kSolid, 0.18, kThrough},
    {type::tieColumn, kSolid, 0.18, kThrough},
    {type::column, kSolid, 0.18, kThrough},
    {type::wallOpening, kSolid, 0.25, kThrough},
    {type::doorWithWindow, kSolid, 0.25, kThrough},
    {type::window, kSolid, 0.25, kThrough},
    {type::door, kSolid, 0.25, kThrough},
    {type::raftBar, 0.0, 0.13, kDashed},
    {type::slabBar, 0.0, 0.13, kDashed},
    {type::raftNegativeBar, 0.0, 0.18, kThrough},
    {type::slabNegativeBar, 0.0, 0.18, kThrough},
    {type::axisLine, 0.0, 0.13, kDashDot},
    {type::axisGrid, 0.0, 0.13, kDashDot},
};
constexpr Style kPlain{hbx::kAnyType, 0.2, 0.13, kThrough};

/** Behind the last one for a type that no plan shows. */
const Style *find(qint64 type)
{
    return std::find_if(std::begin(kStyles), std::end(kStyles),
                        [type](const Style &style) { return style.type == type; });
}

const Style &styleOf(qint64 type)
{
    const Style *style = find(type);
    return style == std::end(kStyles) ? kPlain : *style;
}

bool isHole(qint64 type) { return type == hbx::type::slabHole; }

int rgbOf(qint64 type)
{
    const hbx::ElementTypeInfo *info = hbx::elementTypeInfo(type);
    return info ? info->colour : kUnknownColour;
}

QString hexOf(int rgb) { return QStringLiteral("#%1").arg(rgb, 6, 16, QLatin1Char('0')); }

QString fillText(const QString &colour, double opacity)
{
    return QStringLiteral("fill=\"%1\" fill-opacity=\"%2\"").arg(colour).arg(opacity);
}

} // namespace

int planOrder(qint64 type) { return static_cast<int>(find(type) - std::begin(kStyles)); }

QString planFill(qint64 type)
{
    return fillText(planFillColour(type), isHole(type) ? kSolid : styleOf(type).fillOpacity);
}

QString planShade(qint64 type, double opacity) { return fillText(planStrokeColour(type), opacity); }

QString planFillColour(qint64 type)
{
    return isOpening(type) || isHole(type) ? QStringLiteral("#fff") : hexOf(rgbOf(type));
}

PlanLine planLine(qint64 type)
{
    const Style &style = styleOf(type);
    return {planStrokeColour(type), style.stroke, QString::fromLatin1(style.dashes)};
}

QString planStroke(qint64 type)
{
    const PlanLine line = planLine(type);
    const QString stroke = QStringLiteral("stroke=\"%1\" stroke-width=\"%2\"").arg(line.colour).arg(line.width);
    return line.dashes.isEmpty() ? stroke : stroke + QStringLiteral(" stroke-dasharray=\"%1\"").arg(line.dashes);
}

QString planStrokeColour(qint64 type)
{
    const int rgb = rgbOf(type);
    const int parts[] = {rgb >> 16 & 0xFF, rgb >> 8 & 0xFF, rgb & 0xFF};
    const int darkest = *std::min_element(std::begin(parts), std::end(parts));
    if (darkest <= kDarkestOfLight)
        return hexOf(rgb);
    int darkened = 0;
    for (const int part : parts)
        darkened = darkened << 8 | part * kDarkestOfLight / darkest;
    return hexOf(darkened);
}

bool isDarkOnPlan(qint64 type)
{
    const int rgb = rgbOf(type);
    const int brightness = (299 * (rgb >> 16 & 0xFF) + 587 * (rgb >> 8 & 0xFF) + 114 * (rgb & 0xFF)) / 1000;
    return styleOf(type).fillOpacity == kSolid && !isOpening(type) && brightness < kDarkestOfLight;
}

bool keepsNamesOff(qint64 type) { return styleOf(type).fillOpacity == kSolid || isHole(type); }

bool isNamedBeside(qint64 type) { return styleOf(type).fillOpacity >= kNamedBeside; }

} // namespace orvcad
