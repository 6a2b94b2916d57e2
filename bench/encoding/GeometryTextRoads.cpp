#include "encoding/GeometryInfo.h"
#include "encoding/GeometryTextForms.h"
#include "encoding/GeometryTextReader.h"
#include "encoding/NumberText.h"
#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"
#include "suite/Families.h"

#include <QRegExp>
#include <QStringList>

#include <memory>
#include <random>

// The geometry texts against the plain Qt way to the same result, which is the floor under it.

namespace {

using Point = vks::CVec2<double>;
using Curve = vks::CRefPtr<vks::CCurve2d>;
using Polygon = vks::CRefPtr<vks::CPolygon>;
using Vertex = GeometryTextReader::Vertex;

constexpr double kPlanSize = 80'000; // mm

// Ceilings of the ratios.
constexpr double kFourNumbers = 0.55;
constexpr double kPolygonWritten = 0.5;
constexpr double kPolygonRead = 0.3;
constexpr double kCharacterSet = 0.05;

/** Geometry of a floor plan: coordinates in tenths of a millimetre, every fourth edge an arc. */
class Plan
{
public:
    /** List by list, so that each lies in one piece: a look at the next member costs the same in a long list. */
    explicit Plan(std::size_t size)
    {
        for (std::size_t i = 0; i < size; ++i)
            lines.emplace_back(new vks::CLine2d(point(), point()));
        for (std::size_t i = 0; i < size; ++i)
            arcs.emplace_back(new vks::CArc2d(point(), point(), 0.25));
        for (std::size_t i = 0; i < size; ++i)
            polygons.push_back(polygon());
        for (const Curve &line : lines)
            numbers.push_back(line->StartPoint().x);
        for (const Curve &line : lines)
            lineTexts.append(getCurveInfo(line));
        for (const Polygon &polygon : polygons)
            polygonTexts.append(getPolyInfo(polygon));
        for (const double number : numbers)
            numberTexts.append(QString::number(number));
    }

    std::vector<Curve> lines;
    std::vector<Curve> arcs;
    std::vector<Polygon> polygons;
    QStringList lineTexts;
    QStringList polygonTexts;
    std::vector<double> numbers;
    QStringList numberTexts;

private:
    double coordinate() { return std::round(m_coordinate(m_random) * 10) / 10; }
    Point point()
    {
        const double x = coordinate();
        return {x, coordinate()};
    }
    /** Twelve corners around a centre. */
    Polygon polygon()
    {
        constexpr int corners = 12;
        const Point centre = point();
        std::vector<Point> outline;
        for (int i = 0; i < corners; ++i) {
            const double radius = 2000 + coordinate() / 100;
            const Point corner = centre + Point(radius, 0).Rotated(6.283185307179586 * i / corners);
            outline.emplace_back(std::round(corner.x * 10) / 10, std::round(corner.y * 10) / 10);
        }
        auto *loop = new vks::CLoop();
        for (int i = 0; i < corners; ++i)
            loop->AddCurve(edge(outline[i], outline[(i + 1) % corners], i % 4 == 3), false);
        Polygon result = new vks::CPolygon();
        result->AddLoop(loop, true);
        return result;
    }
    static vks::CCurve2d *edge(const Point &start, const Point &end, bool arc)
    {
        if (arc)
            return new vks::CArc2d(start, end, 0.1);
        return new vks::CLine2d(start, end);
    }

    std::mt19937 m_random{42};
    std::uniform_real_distribution<double> m_coordinate{0, kPlanSize};
};

QString withNumber(const QString &text, double number) { return text.arg(number, 0, 'g', -1, QLatin1Char(' ')); }

QString argLine(const vks::CCurve2d &line)
{
    const auto start = line.StartPoint();
    const auto end = line.EndPoint();
    QString text = withNumber(QStringLiteral("%1,%2,%3,%4"), start.x);
    return withNumber(withNumber(withNumber(text, start.y), end.x), end.y);
}

QString argArc(const vks::CArc2d &arc)
{
    const auto start = arc.StartPoint();
    const auto end = arc.EndPoint();
    QString text = withNumber(withNumber(QStringLiteral("%1,%2,%3,%4,%5"), start.x), start.y);
    return withNumber(withNumber(withNumber(text, arc.GetBulge()), end.x), end.y);
}

QString argEdge(const vks::CCurve2d &edge)
{
    const auto start = edge.StartPoint();
    if (edge.Type() == vks::CCurve2d::kLine)
        return withNumber(withNumber(QStringLiteral("%1,%2;"), start.x), start.y);
    const double bulge = static_cast<const vks::CArc2d &>(edge).GetBulge();
    return withNumber(withNumber(withNumber(QStringLiteral("%1,%2,%3;"), start.x), start.y), bulge);
}

QString argPolygon(vks::CPolygon &polygon)
{
    std::vector<vks::CCurve2d *> edges;
    polygon.GetLoop(0)->GetCurves(edges);
    QString text;
    for (const vks::CCurve2d *one : edges)
        text += argEdge(*one);
    return text;
}

bool splitNumbers(const QString &text, double *numbers)
{
    const QStringList parts = text.split(u',');
    bool ok = true;
    for (int i = parts.size() - 1; i >= 0 && ok; --i)
        numbers[i] = parts[i].toDouble(&ok);
    return ok;
}

std::vector<Vertex> splitVertices(const QString &text)
{
    QStringList items = text.split(u';');
    items.removeLast();
    std::vector<Vertex> vertices;
    for (const QString &item : qAsConst(items)) {
        double numbers[3] = {};
        if (splitNumbers(item, numbers))
            vertices.push_back({numbers[0], numbers[1], numbers[2], item.count(u',') == 2});
    }
    return vertices;
}

Polygon builtPolygon(const std::vector<Vertex> &vertices)
{
    auto *loop = new vks::CLoop();
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        const Vertex &from = vertices[i];
        const Vertex &to = vertices[(i + 1) % vertices.size()];
        if (from.isArc)
            loop->AddCurve(new vks::CArc2d(Point(from.x, from.y), Point(to.x, to.y), from.bulge), false);
        else
            loop->AddCurve(new vks::CLine2d(Point(from.x, from.y), Point(to.x, to.y)), false);
    }
    Polygon polygon = new vks::CPolygon();
    polygon->AddLoop(loop, true);
    bench::keep(polygon->IsValid(vks::CPolygon::kAllChecks, nullptr, nullptr));
    return polygon;
}

/** A road that handles each geometry of a list of the plan, and the plain way to the same. */
template <typename List, typename Ours, typename Plain>
bench::Road road(const char *name, const char *floor, double ceiling, List Plan::*list, Ours ours, Plain plain)
{
    const auto each = [list](const auto &plan, const auto &handle) {
        return [plan, list, handle] {
            for (const auto &one : *plan.*list)
                bench::keep(handle(one));
        };
    };
    const auto make = [each, ours, plain](const bench::Load &load) {
        const auto plan = std::make_shared<const Plan>(load.size);
        return bench::Sides{each(plan, ours), each(plan, plain), static_cast<double>(load.items())};
    };
    return {name, floor, bench::kSizes, {ceiling}, make};
}

void addNumbers(bench::Roads &roads)
{
    const auto written = [](double number) {
        QString text;
        encoding::appendNumber(text, number);
        return text;
    };
    const auto read = [](const QString &text) { return encoding::readNumber(text, nullptr); };
    roads.push_back(road("number written", "QString::arg", 0.0, &Plan::numbers, written,
                         [](double number) { return withNumber(QStringLiteral("%1"), number); }));
    roads.push_back(road("number read", "toDouble", 0.0, &Plan::numberTexts, read,
                         [](const QString &text) { return text.toDouble(); }));
}

void addWriting(bench::Roads &roads)
{
    const auto written = [](const Curve &curve) { return getCurveInfo(curve); };
    roads.push_back(road("line of four numbers written", "QString::arg chain", kFourNumbers, &Plan::lines, written,
                         [](const Curve &line) { return argLine(*line); }));
    roads.push_back(road("arc of five numbers written", "QString::arg chain", kFourNumbers, &Plan::arcs, written,
                         [](const Curve &arc) { return argArc(static_cast<vks::CArc2d &>(*arc)); }));
    roads.push_back(road(
        "polygon text written", "QString::arg chain", kPolygonWritten, &Plan::polygons,
        [](const Polygon &polygon) { return getPolyInfo(polygon); },
        [](const Polygon &polygon) { return argPolygon(*polygon); }));
}

std::vector<Vertex> readVertices(const QString &text)
{
    std::vector<Vertex> vertices;
    GeometryTextReader::reconstructPoly_Simplified_Normal_StringToDouble(text, vertices);
    return vertices;
}

Polygon readPolygon(const QString &text)
{
    Polygon polygon;
    GeometryTextReader::reconstructPoly(text, polygon);
    return polygon;
}

Curve readCurve(const QString &text)
{
    Curve curve;
    GeometryTextReader::reconstructCurve(text, curve);
    return curve;
}

Curve splitCurve(const QString &text)
{
    static const QRegExp pattern(QStringLiteral("^[-0-9\\.e+,]+$"));
    double n[4] = {};
    if (!pattern.exactMatch(text) || !splitNumbers(text, n))
        return {};
    return Curve(new vks::CLine2d(Point(n[0], n[1]), Point(n[2], n[3])));
}

void addReading(bench::Roads &roads)
{
    roads.push_back(road("polygon text read to vertices", "split and toDouble", kPolygonRead, &Plan::polygonTexts,
                         &readVertices, &splitVertices));
    roads.push_back(road("polygon text read, built and validated", "the same by split and toDouble", 0.0,
                         &Plan::polygonTexts, &readPolygon,
                         [](const QString &text) { return builtPolygon(splitVertices(text)); }));
    roads.push_back(road("line text read and built", "pattern, split and toDouble", 0.0, &Plan::lineTexts, &readCurve,
                         &splitCurve));
    const QRegExp pattern(QStringLiteral("^[-0-9\\.e+,;]+$"));
    roads.push_back(road(
        "character set of a polygon text", "kept QRegExp", kCharacterSet, &Plan::polygonTexts,
        [](const QString &text) { return encoding::isPolygonText(text); },
        [pattern](const QString &text) { return pattern.exactMatch(text); }));
}

} // namespace

bench::Roads bench::geometryTextRoads()
{
    Roads roads;
    addNumbers(roads);
    addWriting(roads);
    addReading(roads);
    return roads;
}
