#include "cli/PlanSvg.h"

#include "cli/PlanLabels.h"
#include "cli/PlanObjects.h"
#include "cli/PlanShades.h"
#include "cli/PlanStyle.h"
#include "cli/ProjectInfo.h"
#include "cli/SvgPage.h"
#include "platform/geometry/CLine2d.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/services/HBXElementTypeTable.h"

#include <QMap>

#include <vector>

namespace orvcad {

namespace {

// The page, mm of paper: A3 with a column for the legend on the right.
constexpr double kPageWidth = 420.0;
constexpr double kPageHeight = 297.0;
constexpr double kMargin = 12.0;
constexpr double kLegendWidth = 62.0;
constexpr double kPlanWidth = kPageWidth - 2 * kMargin - kLegendWidth;
constexpr double kPlanHeight = kPageHeight - 2 * kMargin;
constexpr double kLegendX = kPageWidth - kMargin - kLegendWidth + 6.0;
constexpr double kTitleWidth = 52.0;
constexpr double kSwatch = 8.0; // of the legend
constexpr double kLineStep = 6.0;
constexpr double kFrame = 7.0;            // from the edge of the page
constexpr double kLegendText = 2.2;       // capital letter
constexpr double kNameHeight = 1.5;       // capital letter of a name
constexpr double kOpeningOverhang = 2.0;  // the name of an opening may be that much longer than the opening
constexpr double kNamedBeside = 0.3;      // what is filled at least so strongly may have its name beside it
constexpr int kDarkestOfLight = 0x80;     // strokes are no lighter, so that they print
constexpr double kBarOverhang = 1.5;      // the text of a bar may be that much longer than the bar
constexpr double kBarStroke = 0.35;       // the bar itself; thinner lines show where its like lie
constexpr double kFilledRectangle = 0.99; // a hole that fills less of its rectangle is none
constexpr double kFilledRound = 0.75;     // one that fills less may be hollow at its middle
constexpr double kBubbleRadius = 3.2;
constexpr double kBarLength = 50.0; // most of the scale bar

constexpr double kScales[] = {10, 20, 25, 50, 75, 100, 125, 150, 200, 250, 300, 400, 500, 750, 1000, 2000, 5000, 10000};
constexpr double kBarSteps[] = {50, 20, 10, 5, 2, 1, 0.5, 0.2, 0.1}; // m

constexpr qint64 kWindow = 5;
constexpr qint64 kHole = 24;
constexpr qint64 kAxisGrid = 74;

constexpr char kPageStyle[] = "text{font-family:'DejaVu Sans','Noto Sans CJK SC','Noto Sans',sans-serif;fill:#222}"
                              ".names text{paint-order:stroke;stroke:#fff;stroke-width:.5;stroke-linejoin:round}"
                              ".names .on-dark{fill:#fff;stroke:none}"
                              "path{stroke-linejoin:round}";

/** What the legend tells of a type. */
struct TypeCount
{
    qint64 type = -1;
    int number = 0;
    bool hasArea = false; ///< some object of it is an area, not a line alone
};

/** Draws one floor onto one page. */
class PlanPainter
{
public:
    PlanPainter(IHBXModel &model, IHBXFloor &floor, const QString &building)
        : m_floor(floor), m_building(building), m_page(kPageWidth, kPageHeight)
    {
        collect(model);
        layOut();
    }

    PlanSvg paint()
    {
        m_page.addRectangle(0, 0, kPageWidth, kPageHeight, QStringLiteral("fill=\"#fff\""));
        paintFrame();
        paintObjects();
        paintNames();
        paintTitle();
        paintElevations(paintLegend());
        paintScaleBar();
        PlanSvg plan;
        plan.document = m_page.document(title(), kPageStyle);
        plan.scale = m_scale;
        plan.drawn = static_cast<int>(m_objects.size());
        plan.left = m_left;
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
    void paintTitleLine(double y, double size, const QString &line, const QString &attributes = QString());
    void paintTitle();
    double paintLegend();
    void paintElevations(double y);
    void paintScaleBar();
    void add(const PlanObject &placed);
    QString title() const;

    IHBXFloor &m_floor;
    QString m_building;
    SvgPage m_page;
    std::vector<PlanObject> m_objects; // from the bottom to the top
    QMap<int, TypeCount> m_counts;     // by place from the bottom
    QMap<qint64, PlanShades> m_shades; // by type, of slabs and rafts
    vks::CBox2<double> m_box;
    double m_scale = 100.0;
    int m_left = 0;
};

int rgbOf(qint64 type)
{
    const hbx::ElementTypeInfo *info = hbx::elementTypeInfo(type);
    return info ? info->colour : 0x888888;
}

QString hexOf(int rgb) { return QStringLiteral("#%1").arg(rgb, 6, 16, QLatin1Char('0')); }

QString colourOf(qint64 type) { return hexOf(rgbOf(type)); }

/** The colour of a type, darkened where a thin line of it would not be seen on paper. */
QString strokeColourOf(qint64 type)
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

bool isOpening(qint64 type) { return type >= 4 && type <= 7; }

const PlanStyle &styleOf(qint64 type)
{
    static constexpr PlanStyle plain{-1, 0.2, 0.13, kThrough};
    const PlanStyle *style = planStyle(type);
    return style ? *style : plain;
}

/** True for what is filled so darkly that dark letters would not be seen on it. */
bool isDark(qint64 type)
{
    const int rgb = rgbOf(type);
    const int brightness = (299 * (rgb >> 16 & 0xFF) + 587 * (rgb >> 8 & 0xFF) + 114 * (rgb & 0xFF)) / 1000;
    return styleOf(type).fillOpacity == kSolid && !isOpening(type) && brightness < kDarkestOfLight;
}

/** True for what no name of something else may lie on. */
bool keepsFree(qint64 type) { return styleOf(type).fillOpacity == kSolid || type == kHole; }

/** SVG attributes of what a type's outlines are filled with. */
QString fillOf(qint64 type)
{
    return QStringLiteral("fill=\"%1\" fill-opacity=\"%2\"")
        .arg(isOpening(type) || type == kHole ? QStringLiteral("#fff") : colourOf(type))
        .arg(type == kHole ? kSolid : styleOf(type).fillOpacity);
}

/** SVG attributes of an area in one of the shades of its type. */
QString shadeOf(qint64 type, double opacity)
{
    return QStringLiteral("fill=\"%1\" fill-opacity=\"%2\"").arg(strokeColourOf(type)).arg(opacity);
}

/** SVG attributes of a type's lines. */
QString strokeOf(qint64 type)
{
    const PlanStyle &style = styleOf(type);
    const QString stroke =
        QStringLiteral("stroke=\"%1\" stroke-width=\"%2\"").arg(strokeColourOf(type)).arg(style.stroke);
    const QString dashes = QString::fromLatin1(style.dashes);
    return dashes.isEmpty() ? stroke : stroke + QStringLiteral(" stroke-dasharray=\"%1\"").arg(dashes);
}

void PlanPainter::add(const PlanObject &placed)
{
    m_box.Add(placed.box());
    m_objects.push_back(placed);
    const qint64 type = placed.object->type();
    if (placed.topElev)
        m_shades[type].add(*placed.topElev);
    TypeCount &count = m_counts[planOrder(type)];
    count = {type, count.number + 1, count.hasArea || placed.outline};
}

void PlanPainter::collect(IHBXModel &model)
{
    QList<IHBXElementDrawObj *> objects;
    model.drawObjects()->queryDrawObjsOfFloor(objects, m_floor.id(), -1, -1, true);
    std::stable_sort(objects.begin(), objects.end(),
                     [](const auto *a, const auto *b) { return planOrder(a->type()) < planOrder(b->type()); });
    for (IHBXElementDrawObj *object : qAsConst(objects)) {
        const PlanObject placed = planObjectOf(*object);
        if (placed.hasGeometry())
            add(placed);
        else
            ++m_left;
    }
}

void PlanPainter::layOut()
{
    if (!m_box.IsValid())
        m_box = {{0, 0}, {10000, 10000}};
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
        m_page.addPolygon(*placed.outline, areaFillOf(placed) + ' ' + strokeOf(type));
    if (placed.outline && type == kWindow)
        paintPane(*placed.outline);
    if (placed.outline && type == kHole)
        paintVoid(*placed.outline);
    if (placed.curve)
        m_page.addCurve(*placed.curve, strokeOf(type));
    if (placed.bar)
        m_page.addCurve(*placed.bar, QStringLiteral("class=\"bar\" stroke=\"%1\" stroke-width=\"%2\"")
                                         .arg(strokeColourOf(type))
                                         .arg(kBarStroke));
    for (const PlanObject::Axis &axis : placed.axes)
        paintAxis(axis, strokeOf(type));
}

/** The line in the middle of a window that stands for its glass. */
void PlanPainter::paintPane(const vks::CPolygon &outline)
{
    const PlanLabels::Frame frame = PlanLabels::frameOf(outline);
    const vks::CVec2<double> half = frame.along * frame.halfLength;
    m_page.addCurve(vks::CLine2d(frame.centre - half, frame.centre + half),
                    QStringLiteral("class=\"pane\" ") + strokeOf(kWindow));
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
                        QStringLiteral("class=\"void\" ") + strokeOf(kHole));
}

QString PlanPainter::areaFillOf(const PlanObject &placed) const
{
    const qint64 type = placed.object->type();
    return placed.topElev ? shadeOf(type, m_shades[type].opacity(*placed.topElev)) : fillOf(type);
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
    m_page.addCircle(centre, kBubbleRadius,
                     QStringLiteral("fill=\"#fff\" stroke=\"%1\" stroke-width=\".18\"").arg(strokeColourOf(kAxisGrid)));
    const double size = std::min(2.0, 2.0 * 1.6 * kBubbleRadius / PlanLabels::widthOf(axis.label, 2.0));
    m_page.addText(centre + vks::CVec2<double>(0, size / 2), size, axis.label,
                   QStringLiteral("text-anchor=\"middle\""));
}

void PlanPainter::paintNames()
{
    PlanLabels labels(kNameHeight * m_scale);
    m_page.beginGroup(QStringLiteral("names"));
    for (const PlanObject &placed : m_objects)
        if (placed.outline && keepsFree(placed.object->type()))
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
    if (label && isDark(type))
        attributes += QStringLiteral(" class=\"on-dark\"");
    else if (!label && styleOf(type).fillOpacity >= kNamedBeside)
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
    m_page.addRectangle(kFrame, kFrame, kPageWidth - 2 * kFrame, kPageHeight - 2 * kFrame,
                        QStringLiteral("fill=\"none\" ") + line);
    const double x = kLegendX - 6.0;
    m_page.addLine({x, kFrame}, {x, kPageHeight - kFrame}, line);
}

/** A line of the title, made smaller where it would not fit. */
void PlanPainter::paintTitleLine(double y, double size, const QString &line, const QString &attributes)
{
    const double width = PlanLabels::widthOf(line, size);
    m_page.addText({kLegendX, y}, size * std::min(1.0, kTitleWidth / std::max(width, kTitleWidth)), line, attributes);
}

void PlanPainter::paintTitle()
{
    QString code;
    m_floor.code(code);
    double y = kMargin + 5.0;
    paintTitleLine(y, 4.0, m_floor.name(), QStringLiteral("font-weight=\"bold\""));
    const QString lines[] = {m_building, m_floor.region()->name(), QStringLiteral("Floor code %1").arg(code),
                             QStringLiteral("Bottom %1 m, height %2 m").arg(m_floor.bottomElev()).arg(m_floor.height()),
                             QStringLiteral("Scale 1:%1 (A3)").arg(m_scale, 0, 'g', 5)};
    for (const QString &line : lines)
        paintTitleLine(y += kLineStep, kLegendText, line);
}

/** @return where its next line would stand */
double PlanPainter::paintLegend()
{
    double y = kMargin + 50.0;
    m_page.beginGroup(QStringLiteral("legend"));
    for (const TypeCount &count : qAsConst(m_counts)) {
        const double middle = y - kLegendText / 2;
        if (count.hasArea)
            m_page.addRectangle(kLegendX, middle - 2.0, kSwatch, 4.0, fillOf(count.type) + ' ' + strokeOf(count.type));
        else
            m_page.addLine({kLegendX, middle}, {kLegendX + kSwatch, middle}, strokeOf(count.type));
        if (count.type == kWindow)
            m_page.addLine({kLegendX, middle}, {kLegendX + kSwatch, middle}, strokeOf(count.type));
        m_page.addText({kLegendX + kSwatch + 3.0, y}, kLegendText,
                       QStringLiteral("%1 × %2").arg(count.number).arg(typeTitle(count.type)));
        y += kLineStep;
    }
    m_page.endGroup();
    return y;
}

/** The shades of slabs and rafts, type by type. */
void PlanPainter::paintElevations(double y)
{
    m_page.beginGroup(QStringLiteral("elevations"));
    for (auto shades = m_shades.cbegin(); shades != m_shades.cend(); ++shades) {
        m_page.addText({kLegendX, y += kLineStep / 2}, kLegendText,
                       QStringLiteral("Top of %1s").arg(typeTitle(shades.key())),
                       QStringLiteral("font-weight=\"bold\""));
        for (const PlanShades::Band &band : shades->bands()) {
            y += kLineStep;
            m_page.addRectangle(kLegendX, y - kLegendText / 2 - 2.0, kSwatch, 4.0,
                                shadeOf(shades.key(), band.opacity) + ' ' + strokeOf(shades.key()));
            m_page.addText({kLegendX + kSwatch + 3.0, y}, kLegendText,
                           QStringLiteral("%1 at %2").arg(band.number).arg(band.text()));
        }
        y += kLineStep;
    }
    m_page.endGroup();
}

void PlanPainter::paintScaleBar()
{
    const auto fits = [this](double metres) { return metres * 1000.0 / m_scale * 2 <= kBarLength; };
    const auto *place = std::find_if(std::begin(kBarSteps), std::end(kBarSteps), fits);
    const double step = place == std::end(kBarSteps) ? *std::prev(std::end(kBarSteps)) : *place;
    const double length = step * 1000.0 / m_scale;
    const double y = kPageHeight - kMargin;
    const QString line = QStringLiteral("stroke=\"#222\" stroke-width=\".18\"");
    m_page.beginGroup(QStringLiteral("scale-bar"));
    m_page.addRectangle(kLegendX, y - 2.0, length, 2.0, QStringLiteral("fill=\"#222\" ") + line);
    m_page.addRectangle(kLegendX + length, y - 2.0, length, 2.0, QStringLiteral("fill=\"#fff\" ") + line);
    for (int mark = 0; mark <= 2; ++mark)
        m_page.addText({kLegendX + mark * length, y - 3.5}, 2.0,
                       QString::number(mark * step) + (mark == 2 ? QStringLiteral(" m") : QString()),
                       QStringLiteral("text-anchor=\"middle\""));
    m_page.endGroup();
}

} // namespace

PlanSvg drawPlan(IHBXModel &model, IHBXFloor &floor, const QString &building)
{
    return PlanPainter(model, floor, building).paint();
}

} // namespace orvcad
