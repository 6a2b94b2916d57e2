#include "cli/PlanSvg.h"

#include "cli/OpeningTypes.h"
#include "cli/PlanLabels.h"
#include "cli/PlanLegend.h"
#include "cli/PlanObjects.h"
#include "cli/PlanShades.h"
#include "cli/PlanSheet.h"
#include "cli/PlanStyle.h"
#include "cli/SvgPage.h"
#include "platform/geometry/CLine2d.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/services/HBXElementTypes.h"

#include <QMap>

#include <algorithm>
#include <iterator>
#include <vector>

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
constexpr double kFirstScale = 100.0;
const vks::CBox2<double> kEmptyPlan({0, 0}, {10000, 10000}); // mm, shown of a floor with nothing on it

constexpr qint64 kWindow = hbx::type::window;
constexpr qint64 kHole = hbx::type::slabHole;
constexpr qint64 kAxisGrid = hbx::type::axisGrid;

constexpr char kPageStyle[] = "text{font-family:'DejaVu Sans','Noto Sans CJK SC','Noto Sans',sans-serif;fill:#222}"
                              ".names text{paint-order:stroke;stroke:#fff;stroke-width:.5;stroke-linejoin:round}"
                              ".names .on-dark{fill:#fff;stroke:none}"
                              "path{stroke-linejoin:round}";

/** Draws one floor onto one page. */
class PlanPainter
{
public:
    PlanPainter(IHBXModel &model, const IHBXFloor &floor, const QString &building)
        : m_floor(floor), m_building(building), m_page(kWidth, kHeight)
    {
        collect(model);
        layOut();
    }

    PlanSvg paint()
    {
        m_page.addRectangle(0, 0, kWidth, kHeight, QStringLiteral("fill=\"#fff\""));
        paintFrame();
        paintObjects();
        paintNames();
        paintLegend();
        PlanSvg plan;
        plan.document = m_page.document(title(), kPageStyle);
        plan.scale = m_scale;
        plan.drawn = static_cast<int>(m_objects.size());
        plan.withoutGeometry = m_withoutGeometry;
        return plan;
    }

private:
    void collect(IHBXModel &model);
    void layOut();
    void paintObjects();
    void paintObject(const PlanObject &placed);
    void paintPane(const vks::CPolygon &outline);
    void paintVoid(const vks::CPolygon &outline);
    QString areaFillOf(const PlanObject &placed) const;
    void paintAxis(const PlanObject::Axis &axis, const QString &stroke);
    void paintNames();
    void paintName(PlanLabels &labels, const PlanObject &placed);
    void paintBarText(PlanLabels &labels, const PlanObject &placed);
    void paintFrame();
    void paintLegend();
    void add(const PlanObject &placed);
    QString title() const;

    const IHBXFloor &m_floor;
    QString m_building;
    SvgPage m_page;
    std::vector<PlanObject> m_objects;      // from the bottom to the top
    QMap<int, PlanLegend::Entry> m_entries; // by place from the bottom
    QMap<qint64, PlanShades> m_shades;      // by type, of slabs and rafts
    vks::CBox2<double> m_box;
    double m_scale = kFirstScale;
    int m_withoutGeometry = 0;
};

void PlanPainter::add(const PlanObject &placed)
{
    m_box.Add(placed.box());
    m_objects.push_back(placed);
    const qint64 type = placed.object->type();
    if (placed.topElev)
        m_shades[type].add(*placed.topElev);
    PlanLegend::Entry &entry = m_entries[planOrder(type)];
    entry = {type, entry.number + 1, entry.hasArea || placed.outline};
}

void PlanPainter::collect(IHBXModel &model)
{
    QList<IHBXElementDrawObj *> objects;
    model.drawObjects()->queryDrawObjsOfFloor(objects, m_floor.id(), hbx::kAnyType, IHBXDrawObjs::kAnySubType, true);
    std::stable_sort(objects.begin(), objects.end(),
                     [](const auto *a, const auto *b) { return planOrder(a->type()) < planOrder(b->type()); });
    for (IHBXElementDrawObj *object : qAsConst(objects)) {
        const PlanObject placed = planObjectOf(*object);
        if (placed.hasGeometry())
            add(placed);
        else
            ++m_withoutGeometry;
    }
}

void PlanPainter::layOut()
{
    if (!m_box.IsValid())
        m_box = kEmptyPlan;
    const double room = 2 * kBubbleRadius; // for the bubbles at the ends of axes
    const auto fits = [&](double scale) {
        return m_box.Width() / scale <= kPlanWidth - 2 * room && m_box.Height() / scale <= kPlanHeight - 2 * room;
    };
    const auto *place = std::find_if(std::begin(kScales), std::end(kScales), fits);
    m_scale = place == std::end(kScales) ? std::max(m_box.Width(), m_box.Height()) / (kPlanHeight - 2 * room) : *place;
    m_page.setPlan(m_box.Center(), {kMargin + kPlanWidth / 2, kMargin + kPlanHeight / 2}, m_scale);
}

void PlanPainter::paintObjects()
{
    for (auto first = m_objects.cbegin(); first != m_objects.cend();) {
        const qint64 type = first->object->type();
        m_page.beginGroup(QStringLiteral("type-%1").arg(type));
        for (; first != m_objects.cend() && first->object->type() == type; ++first)
            paintObject(*first);
        m_page.endGroup();
    }
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
    return placed.topElev ? planShade(type, m_shades[type].opacity(*placed.topElev)) : planFill(type);
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

void PlanPainter::paintNames()
{
    PlanLabels labels(kNameHeight * m_scale);
    m_page.beginGroup(QStringLiteral("names"));
    for (const PlanObject &placed : m_objects)
        if (placed.outline && keepsNamesOff(placed.object->type()))
            labels.keepFree(*placed.outline);
    // From the top down: what lies on top keeps its name where there is room for one only.
    for (auto placed = m_objects.crbegin(); placed != m_objects.crend(); ++placed)
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
        m_page.addText(m_page.toPaper(label->middle), kNameHeight, name, attributes, label->angle);
}

void PlanPainter::paintBarText(PlanLabels &labels, const PlanObject &placed)
{
    if (const auto label = labels.placeAlong(*placed.bar, placed.barText, kBarOverhang))
        m_page.addText(m_page.toPaper(label->middle), kNameHeight, placed.barText,
                       QStringLiteral("text-anchor=\"middle\" class=\"bar-text\""), label->angle);
}

QString PlanPainter::title() const
{
    return QStringLiteral("%1 – %2, %3").arg(m_building, m_floor.region()->name(), m_floor.name());
}

void PlanPainter::paintFrame()
{
    const QString line = QStringLiteral("stroke=\"#222\" stroke-width=\".35\"");
    m_page.addRectangle(kFrame, kFrame, kWidth - 2 * kFrame, kHeight - 2 * kFrame,
                        QStringLiteral("fill=\"none\" ") + line);
    m_page.addLine({kColumnLine, kFrame}, {kColumnLine, kHeight - kFrame}, line);
}

void PlanPainter::paintLegend()
{
    PlanLegend legend(m_page);
    legend.paintTitle(m_floor, m_building, m_scale);
    legend.paintEntries(m_entries);
    legend.paintElevations(m_shades);
    legend.paintScaleBar(m_scale);
}

} // namespace

PlanSvg drawPlan(IHBXModel &model, const IHBXFloor &floor, const QString &building)
{
    return PlanPainter(model, floor, building).paint();
}

} // namespace orvcad
