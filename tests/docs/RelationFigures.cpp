#include "docs/RelationFigures.h"

#include "cli/SvgPage.h"
#include "platform/geometry/CPolygon.h"
#include "platform/geometry/CPositionJudge.h"
#include "platform/services/HbxRelation.h"

#include <stdexcept>

using orvcad::SvgPage;

namespace docs {

namespace {

using Polygon = vks::CRefPtr<vks::CPolygon>;
using Curve = vks::CRefPtr<vks::CCurve2d>;

constexpr double kTolerance = 1.0; // mm, of the shapes

// The page, mm of paper; shapes are drawn at 1:20.
constexpr double kScale = 20.0;
constexpr double kCellWidth = 58.0;
constexpr double kCellHeight = 54.0;
constexpr double kMargin = 3.0;
constexpr double kTitleHeight = 10.0;
constexpr double kShapesHeight = 38.0; // of a cell, the rest is text

constexpr char kStyle[] = "text{font-family:'DejaVu Sans','Noto Sans',sans-serif;fill:#24313f}"
                          ".title{font-weight:bold}.value{font-weight:bold;fill:#0b5394}"
                          ".frame rect{fill:#fbfcfd;stroke:#c9d3dd;stroke-width:.25}"
                          ".a{fill:#2f7ed8;fill-opacity:.28;stroke:#1f5fa8;stroke-width:.7}"
                          ".b{fill:#f0a030;fill-opacity:.28;stroke:#b8690b;stroke-width:.7;stroke-dasharray:2 1.2}"
                          ".line{fill:none;stroke-linecap:round}.a.line{stroke-width:1.1}.b.line{stroke-width:1.1}";

/** Without a look at its validity: a figure may show a shape that has none. */
Polygon polygonOf(const char *text) { return vks::CPolygon::LoadFromString(text); }
Curve curveOf(const char *text)
{
    return Curve(dynamic_cast<vks::CCurve2d *>(vks::CGeometry::LoadFromStr(text).get()));
}

int ofPolygons(const RelationCase &pair)
{
    return hbx::polyPolyPosition(polygonOf(pair.a).get(), polygonOf(pair.b).get(), kTolerance);
}

int ofCurveAndPolygon(const RelationCase &pair)
{
    return hbx::linePolyPosition(curveOf(pair.a).get(), polygonOf(pair.b).get(), kTolerance);
}

int ofCurves(const RelationCase &pair)
{
    return vks::CPositionJudge().GetCurveCurvePosition(curveOf(pair.a).get(), curveOf(pair.b).get());
}

/** A polygon or a curve, whichever the text is. */
void drawShape(SvgPage &page, const char *text, const QString &cssClass)
{
    if (const Polygon polygon = polygonOf(text))
        page.addPolygon(*polygon, QStringLiteral("class=\"%1\"").arg(cssClass));
    else if (const Curve curve = curveOf(text))
        page.addCurve(*curve, QStringLiteral("class=\"%1 line\"").arg(cssClass));
}

void drawCell(SvgPage &page, const RelationCase &pair, double left, double top)
{
    page.beginGroup(QStringLiteral("frame"));
    page.addRectangle(left, top, kCellWidth, kCellHeight, {});
    page.endGroup();
    page.setPlan({0.0, 0.0}, {left + kMargin + 1.0, top + kShapesHeight}, kScale);
    // A line lies over an area, else dashes over what they share with a full line.
    const bool lineOverArea = !polygonOf(pair.a) && polygonOf(pair.b);
    if (lineOverArea)
        drawShape(page, pair.b, QStringLiteral("b"));
    drawShape(page, pair.a, QStringLiteral("a"));
    if (!lineOverArea)
        drawShape(page, pair.b, QStringLiteral("b"));
    page.addText({left + kMargin, top + kShapesHeight + 7.5}, 3.4, QString::number(pair.value),
                 QStringLiteral("class=\"value\""));
    page.addText({left + kMargin, top + kShapesHeight + 13.0}, 2.0, QString::fromUtf8(pair.meaning));
}

} // namespace

std::vector<RelationFigure> relationFigures()
{
    static constexpr char square[] = "POLYGON((200 100, 800 100, 800 600, 200 600, 200 100))";
    static constexpr char small[] = "POLYGON((350 220, 650 220, 650 480, 350 480, 350 220))";
    static constexpr char smallAtEdge[] = "POLYGON((200 220, 500 220, 500 480, 200 480, 200 220))";
    return {
        {QStringLiteral("polygon-polygon"),
         QStringLiteral("polyPolyPosition(a, b): a blue, b orange and dashed"),
         {{-1, "invalid: a crosses itself", "POLYGON((100 150, 550 600, 550 150, 100 480, 100 150))",
           "POLYGON((500 100, 900 100, 900 600, 500 600, 500 100))"},
          {0, "overlap, neither holds the other", "POLYGON((100 250, 600 250, 600 650, 100 650, 100 250))",
           "POLYGON((400 50, 900 50, 900 450, 400 450, 400 50))"},
          {1, "apart", "POLYGON((80 150, 430 150, 430 550, 80 550, 80 150))",
           "POLYGON((570 150, 920 150, 920 550, 570 550, 570 150))"},
          {2, "a inside b, boundaries apart", small, square},
          {3, "a inside b, touching its boundary", smallAtEdge, square},
          {4, "a holds b, b touching its boundary", square, smallAtEdge},
          {5, "a holds b, boundaries apart", square, small},
          {6, "side by side, touching", "POLYGON((80 150, 500 150, 500 550, 80 550, 80 150))",
           "POLYGON((500 50, 920 50, 920 450, 500 450, 500 50))"},
          {7, "the same", square, square}},
         &ofPolygons,
         3},
        {QStringLiteral("curve-polygon"),
         QStringLiteral("linePolyPosition(a, b): curve a blue, polygon b orange"),
         {{-1, "invalid: the curve has no length", "LINESTRING(500 350, 500 350)", square},
          {0, "partly in, partly out", "LINESTRING(50 250, 600 450)", square},
          {1, "out", "CIRCULARSTRING(40 150, 110 350, 40 550)", square},
          {2, "in", "CIRCULARSTRING(320 250, 500 470, 680 250)", square},
          {3, "in, touching the boundary", "LINESTRING(200 350, 650 450)", square},
          {4, "along the boundary", "LINESTRING(300 600, 700 600)", square},
          {5, "out, touching the boundary", "LINESTRING(50 200, 200 350)", square}},
         &ofCurveAndPolygon,
         4},
        {QStringLiteral("curve-curve"),
         QStringLiteral("GetCurveCurvePosition(a, b): a blue, b orange and dashed"),
         {{-1, "invalid: a has no length", "LINESTRING(300 500, 300 500)", "LINESTRING(150 150, 850 250)"},
          {0, "apart", "CIRCULARSTRING(150 450, 500 620, 850 450)", "LINESTRING(150 150, 850 250)"},
          {1, "meeting in points only", "CIRCULARSTRING(150 200, 500 600, 850 200)", "LINESTRING(100 350, 900 450)"},
          {2, "sharing a stretch", "LINESTRING(100 250, 650 450)", "LINESTRING(375 350, 925 550)"}},
         &ofCurves,
         4},
    };
}

QByteArray drawn(const RelationFigure &figure)
{
    const int count = static_cast<int>(figure.cases.size());
    const int rows = (count + figure.columns - 1) / figure.columns;
    SvgPage page(figure.columns * kCellWidth, kTitleHeight + rows * kCellHeight);
    page.addText({kMargin, 6.5}, 2.6, figure.title, QStringLiteral("class=\"title\""));
    for (int i = 0; i < count; ++i) {
        const RelationCase &pair = figure.cases[static_cast<std::size_t>(i)];
        if (const int found = figure.relation(pair); found != pair.value)
            throw std::logic_error(QStringLiteral("%1: drawn for %2, and the kernel tells %3")
                                       .arg(figure.name)
                                       .arg(pair.value)
                                       .arg(found)
                                       .toStdString());
        drawCell(page, pair, (i % figure.columns) * kCellWidth, kTitleHeight + (i / figure.columns) * kCellHeight);
    }
    return page.document(figure.title, kStyle);
}

} // namespace docs
