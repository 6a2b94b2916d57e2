#include "cli/PlanPainter.h"

#include "cli/OpeningTypes.h"
#include "cli/PlanSheet.h"
#include "cli/PlanStyle.h"
#include "cli/SvgPage.h"
#include "platform/geometry/CLine2d.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/services/HBXElementTypes.h"

#include <algorithm>
#include <iterator>
#include <utility>

using namespace orvcad::plansheet;

namespace orvcad {

namespace {

// mm of paper
constexpr double kNameHeight = 1.5; // capital letter of a name
constexpr double kBarStroke = 0.35; // the bar itself; thinner lines show where its like lie
constexpr double kBubbleRadius = 3.2;
constexpr double kBubbleText = 2.0; // capital letter of an axis label, smaller where it would not fit
constexpr double kBubbleRoom = 1.6; // of its radius, for the label

constexpr double kOpeningOverhang = 2.0;  // the name of an opening may be that much longer than the opening
constexpr double kBarOverhang = 1.5;      // the text of a bar may be that much longer than the bar
constexpr double kFilledRectangle = 0.99; // a hole that fills less of its rectangle is none
constexpr double kFilledRound = 0.75;     // one that fills less may be hollow at its middle

constexpr double kScales[] = {10, 20, 25, 50, 75, 100, 125, 150, 200, 250, 300, 400, 500, 750, 1000, 2000, 5000, 10000};
const vks::CBox2<double> kEmptyPlan({0, 0}, {10000, 10000}); // mm, shown of a floor with nothing on it

constexpr qint64 kWindow = hbx::type::window;
constexpr qint64 kHole = hbx::type::slabHole;
constexpr qint64 kAxisGrid = hbx::type::axisGrid;

} // namespace

PlanPainter::PlanPainter(SvgPage &page, const PlanContents &contents, PlanMarks marks)
    : m_page(page), m_contents(contents), m_marks(std::move(marks))
{}

double PlanPainter::layOut(SvgPage &page, const vks::CBox2<double> &box)
{
    const vks::CBox2<double> &shown = box.IsValid() ? box : kEmptyPlan;
    const double room = 2 * kBubbleRadius; // for the bubbles at the ends of axes
    const auto fits = [&](double scale) {
        return shown.Width() / scale <= kPlanWidth - 2 * room && shown.Height() / scale <= kPlanHeight - 2 * room;
    };
    const auto *place = std::find_if(std::begin(kScales), std::end(kScales), fits);
    const double scale =
        place == std::end(kScales) ? std::max(shown.Width(), shown.Height()) / (kPlanHeight - 2 * room) : *place;
    page.setPlan(shown.Center(), {kMargin + kPlanWidth / 2, kMargin + kPlanHeight / 2}, scale);
    return scale;
}

void PlanPainter::paintObjects()
{
    for (auto first = m_contents.objects.cbegin(); first != m_contents.objects.cend();) {
        const qint64 type = first->object->type();
        m_page.beginGroup(QStringLiteral("type-%1").arg(type));
        for (; first != m_contents.objects.cend() && first->object->type() == type; ++first)
            paintMarked(*first);
        m_page.endGroup();
    }
}

void PlanPainter::paintMarked(const PlanObject &placed)
{
    if (!m_marks.object)
        return paintObject(placed);
    m_page.beginGroup(QStringLiteral("o"), m_marks.object(placed));
    paintObject(placed);
    m_page.endGroup();
}

void PlanPainter::paintObject(const PlanObject &placed)
{
    const qint64 type = placed.object->type();
    if (placed.outline)
        m_page.addPolygon(*placed.outline, areaFillOf(placed) + ' ' + planStroke(type));
    if (placed.outline && type == kWindow)
        paintPane(*placed.outline);
    if (placed.outline && type == kHole)
        paintVoid(*placed.outline);
    if (placed.curve)
        m_page.addCurve(*placed.curve, planStroke(type));
    if (placed.bar)
        m_page.addCurve(*placed.bar, QStringLiteral("class=\"bar\" stroke=\"%1\" stroke-width=\"%2\"")
                                         .arg(planStrokeColour(type))
                                         .arg(kBarStroke));
    for (const PlanObject::Axis &axis : placed.axes)
        paintAxis(axis, planStroke(type));
}

/** The line in the middle of a window that stands for its glass. */
void PlanPainter::paintPane(const vks::CPolygon &outline)
{
    const PlanLabels::Frame frame = PlanLabels::frameOf(outline);
    const vks::CVec2<double> half = frame.along * frame.halfLength;
    m_page.addCurve(vks::CLine2d(frame.centre - half, frame.centre + half),
                    QStringLiteral("class=\"pane\" ") + planStroke(kWindow));
}

/** Two lines that cross, as holes have them on plans. */
void PlanPainter::paintVoid(const vks::CPolygon &outline)
{
    const PlanLabels::Frame frame = PlanLabels::frameOf(outline);
    const vks::CVec2<double> along = frame.along * frame.halfLength;
    const vks::CVec2<double> across = frame.along.Left() * frame.halfWidth;
    const double filled = outline.Area() / (4 * frame.halfLength * frame.halfWidth);
    if (!(filled > kFilledRound)) // NaN, too
        return;
    const bool isRectangle = filled > kFilledRectangle;
    for (const vks::CVec2<double> &half : {isRectangle ? along + across : along, isRectangle ? along - across : across})
        m_page.addCurve(vks::CLine2d(frame.centre - half, frame.centre + half),
                        QStringLiteral("class=\"void\" ") + planStroke(kHole));
}

QString PlanPainter::areaFillOf(const PlanObject &placed) const
{
    const qint64 type = placed.object->type();
    return placed.topElev ? planShade(type, m_contents.shades[type].opacity(*placed.topElev)) : planFill(type);
}

void PlanPainter::paintAxis(const PlanObject::Axis &axis, const QString &stroke)
{
    m_page.addCurve(*axis.line, stroke);
    if (axis.label.isEmpty())
        return;
    const vks::CVec2<double> start = m_page.toPaper(axis.line->StartPoint());
    vks::CVec2<double> outwards = axis.line->StartVt();
    outwards = {-outwards.x, outwards.y}; // back from the start; paper runs downwards
    const vks::CVec2<double> centre = start + outwards * kBubbleRadius;
    m_page.addCircle(
        centre, kBubbleRadius,
        QStringLiteral("fill=\"#fff\" stroke=\"%1\" stroke-width=\".18\"").arg(planStrokeColour(kAxisGrid)));
    const double fitting = kBubbleText * kBubbleRoom * kBubbleRadius / PlanLabels::widthOf(axis.label, kBubbleText);
    const double size = std::min(kBubbleText, fitting);
    m_page.addText(centre + vks::CVec2<double>(0, size / 2), size, axis.label,
                   QStringLiteral("text-anchor=\"middle\""));
}

void PlanPainter::paintNames(double scale)
{
    PlanLabels labels(kNameHeight * scale);
    m_page.beginGroup(QStringLiteral("names"));
    for (const PlanObject &placed : m_contents.objects)
        if (placed.outline && keepsNamesOff(placed.object->type()))
            labels.keepFree(*placed.outline);
    // From the top down: what lies on top keeps its name where there is room for one only.
    for (auto placed = m_contents.objects.crbegin(); placed != m_contents.objects.crend(); ++placed)
        if (placed->bar)
            paintBarText(labels, *placed);
        else if (placed->outline)
            paintName(labels, *placed);
    m_page.endGroup();
}

void PlanPainter::paintName(PlanLabels &labels, const PlanObject &placed)
{
    QString name;
    placed.object->element()->name(name);
    const qint64 type = placed.object->type();
    auto label = labels.placeInside(*placed.outline, name);
    QString attributes = QStringLiteral("text-anchor=\"middle\"");
    if (label && isDarkOnPlan(type))
        attributes += QStringLiteral(" class=\"on-dark\"");
    else if (!label && isNamedBeside(type))
        label = labels.placeBeside(*placed.outline, name, isOpening(type) ? kOpeningOverhang : 1.0);
    if (label)
        m_page.addText(m_page.toPaper(label->middle), kNameHeight, name, attributes + nameMark(placed), label->angle);
}

void PlanPainter::paintBarText(PlanLabels &labels, const PlanObject &placed)
{
    if (const auto label = labels.placeAlong(*placed.bar, placed.barText, kBarOverhang))
        m_page.addText(m_page.toPaper(label->middle), kNameHeight, placed.barText,
                       QStringLiteral("text-anchor=\"middle\" class=\"bar-text\"") + nameMark(placed), label->angle);
}

} // namespace orvcad
