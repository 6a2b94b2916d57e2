#include "cli/PlanLegend.h"

#include "cli/PlanLabels.h"
#include "cli/PlanShades.h"
#include "cli/PlanSheet.h"
#include "cli/PlanStyle.h"
#include "cli/SvgPage.h"
#include "cli/TypeTitles.h"
#include "doorwindow/DoorWindowKeys.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXRegion.h"
#include "platform/services/HBXElementTypes.h"

#include <algorithm>
#include <iterator>

using namespace orvcad::plansheet;

namespace orvcad {

namespace {

// mm of paper
constexpr double kTitleWidth = 52.0;
constexpr double kTitleHeight = 4.0; // capital letter of the floor's name
constexpr double kTextHeight = 2.2;  // of the other lines
constexpr double kMarkHeight = 2.0;  // of the scale bar's numbers
constexpr double kLineStep = 6.0;
constexpr double kFirstLine = 5.0;   // of the title, below the margin
constexpr double kFirstEntry = 50.0; // likewise
constexpr double kSwatchWidth = 8.0;
constexpr double kSwatchHeight = 4.0;
constexpr double kTextX = kLegendX + kSwatchWidth + 3.0;
constexpr double kBarLength = 50.0; // most of the scale bar
constexpr double kBarHeight = 2.0;

constexpr double kBarSteps[] = {50, 20, 10, 5, 2, 1, 0.5, 0.2, 0.1}; // m

const QString kBold = QStringLiteral("font-weight=\"bold\"");

/** Metres that each half of the scale bar stands for. */
double barStep(double scale)
{
    const auto fits = [scale](double metres) { return metres * 1000.0 / scale * 2 <= kBarLength; };
    const auto *place = std::find_if(std::begin(kBarSteps), std::end(kBarSteps), fits);
    return place == std::end(kBarSteps) ? *std::prev(std::end(kBarSteps)) : *place;
}

} // namespace

PlanLegend::PlanLegend(SvgPage &page) : m_page(page), m_y(kMargin + kFirstEntry) {}

/** A line of the title, made smaller where it would not fit. */
void PlanLegend::paintTitleLine(double y, double size, const QString &line, const QString &attributes)
{
    const double width = PlanLabels::widthOf(line, size);
    m_page.addText({kLegendX, y}, size * std::min(1.0, kTitleWidth / std::max(width, kTitleWidth)), line, attributes);
}

void PlanLegend::paintTitle(const IHBXFloor &floor, const QString &building, double scale)
{
    QString code;
    floor.code(code);
    double y = kMargin + kFirstLine;
    paintTitleLine(y, kTitleHeight, floor.name(), kBold);
    const QString lines[] = {building, floor.region()->name(), QStringLiteral("Floor code %1").arg(code),
                             QStringLiteral("Bottom %1 m, height %2 m").arg(floor.bottomElev()).arg(floor.height()),
                             QStringLiteral("Scale 1:%1 (A3)").arg(scale, 0, 'g', 5)};
    for (const QString &line : lines)
        paintTitleLine(y += kLineStep, kTextHeight, line);
}

void PlanLegend::paintSwatch(const QString &attributes)
{
    m_page.addRectangle(kLegendX, m_y - kTextHeight / 2 - kSwatchHeight / 2, kSwatchWidth, kSwatchHeight, attributes);
}

void PlanLegend::paintLine(double x, const QString &line, const QString &attributes)
{
    m_page.addText({x, m_y}, kTextHeight, line, attributes);
}

void PlanLegend::paintEntry(const Entry &entry)
{
    const double middle = m_y - kTextHeight / 2;
    const bool hasPane = entry.type == hbx::type::window;
    if (entry.hasArea)
        paintSwatch(planFill(entry.type) + ' ' + planStroke(entry.type));
    if (!entry.hasArea || hasPane)
        m_page.addLine({kLegendX, middle}, {kLegendX + kSwatchWidth, middle}, planStroke(entry.type));
    paintLine(kTextX, QStringLiteral("%1 × %2").arg(entry.number).arg(typeTitle(entry.type)));
    m_y += kLineStep;
}

void PlanLegend::paintEntries(const QMap<int, Entry> &entries)
{
    m_page.beginGroup(QStringLiteral("legend"));
    for (const Entry &entry : entries)
        paintEntry(entry);
    m_page.endGroup();
}

void PlanLegend::paintElevations(const QMap<qint64, PlanShades> &shades)
{
    m_page.beginGroup(QStringLiteral("elevations"));
    for (auto type = shades.cbegin(); type != shades.cend(); ++type) {
        m_y += kLineStep / 2;
        paintLine(kLegendX, QStringLiteral("Top of %1s").arg(typeTitle(type.key())), kBold);
        for (const PlanShades::Band &band : type->bands()) {
            m_y += kLineStep;
            paintSwatch(planShade(type.key(), band.opacity) + ' ' + planStroke(type.key()));
            paintLine(kTextX, QStringLiteral("%1 at %2").arg(band.number).arg(band.text()));
        }
        m_y += kLineStep;
    }
    m_page.endGroup();
}

void PlanLegend::paintScaleBar(double scale)
{
    const double step = barStep(scale);
    const double length = step * 1000.0 / scale;
    const double y = kHeight - kMargin;
    const QString line = QStringLiteral("stroke=\"#222\" stroke-width=\".18\"");
    m_page.beginGroup(QStringLiteral("scale-bar"));
    m_page.addRectangle(kLegendX, y - kBarHeight, length, kBarHeight, QStringLiteral("fill=\"#222\" ") + line);
    m_page.addRectangle(kLegendX + length, y - kBarHeight, length, kBarHeight, QStringLiteral("fill=\"#fff\" ") + line);
    for (int mark = 0; mark <= 2; ++mark)
        m_page.addText({kLegendX + mark * length, y - kBarHeight - 1.5}, kMarkHeight,
                       QString::number(mark * step) + (mark == 2 ? QStringLiteral(" m") : QString()),
                       QStringLiteral("text-anchor=\"middle\""));
    m_page.endGroup();
}

} // namespace orvcad
