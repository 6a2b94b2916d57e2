#include "cli/PlanStyle.h"

#include "ModelSerialization/SlabHostKeys.h"
#include "cli/OpeningTypes.h"
#include "platform/services/HBXElementTypeTable.h"

#include <algorithm>
#include <iterator>

namespace orvcad {

namespace {

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
    {48, 0.25, 0.18, kThrough},     {19, 0.18, 0.13, kThrough},    {54, 0.40, 0.18, kThrough},
    {53, 0.30, 0.18, kThrough},     {52, 0.30, 0.18, kThrough},    {83, 0.30, 0.13, kThrough},
    {82, 0.30, 0.13, kThrough},     {24, 0.0, 0.25, kThrough},     {15, 0.14, 0.13, kDashed},
    {17, 0.14, 0.13, kDashed},      {18, 0.14, 0.13, kDashed},     {47, 0.14, 0.13, kDashed},
    {1, kSolid, 0.18, kThrough},    {202, kSolid, 0.18, kThrough}, {1001, kSolid, 0.18, kThrough},
    {1003, kSolid, 0.18, kThrough}, {0, kSolid, 0.18, kThrough},   {1002, kSolid, 0.18, kThrough},
    {26, kSolid, 0.18, kThrough},   {25, kSolid, 0.18, kThrough},  {7, kSolid, 0.25, kThrough},
    {6, kSolid, 0.25, kThrough},    {5, kSolid, 0.25, kThrough},   {4, kSolid, 0.25, kThrough},
    {49, 0.0, 0.13, kDashed},       {22, 0.0, 0.13, kDashed},      {50, 0.0, 0.18, kThrough},
    {23, 0.0, 0.18, kThrough},      {75, 0.0, 0.13, kDashDot},     {74, 0.0, 0.13, kDashDot},
};
constexpr Style kPlain{-1, 0.2, 0.13, kThrough};

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

bool isHole(qint64 type) { return type == slabhost::type::hole; }

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
    return fillText(isOpening(type) || isHole(type) ? QStringLiteral("#fff") : hexOf(rgbOf(type)),
                    isHole(type) ? kSolid : styleOf(type).fillOpacity);
}

QString planShade(qint64 type, double opacity) { return fillText(planStrokeColour(type), opacity); }

QString planStroke(qint64 type)
{
    const Style &style = styleOf(type);
    const QString stroke =
        QStringLiteral("stroke=\"%1\" stroke-width=\"%2\"").arg(planStrokeColour(type)).arg(style.stroke);
    const QString dashes = QString::fromLatin1(style.dashes);
    return dashes.isEmpty() ? stroke : stroke + QStringLiteral(" stroke-dasharray=\"%1\"").arg(dashes);
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
