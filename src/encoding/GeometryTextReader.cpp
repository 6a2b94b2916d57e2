#include "encoding/GeometryTextReader.h"

#include "encoding/GeometryTextForms.h"
#include "encoding/NumberText.h"
#include "platform/geometry/Angle.h"
#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"

#include <QVarLengthArray>

#include <array>

namespace {

using Curve = GeometryTextReader::Curve;
using Polygon = GeometryTextReader::Polygon;
using Vertex = GeometryTextReader::Vertex;
using Point = vks::CVec2<double>;

constexpr int kMostCurveParts = 5;

/** The pieces between separators, empty ones included. */
using Parts = QVarLengthArray<QStringView, kMostCurveParts + 1>;

/** @param most  splitting ends behind so many pieces: the text has too many then, whatever follows */
Parts partsOf(QStringView text, QChar separator, int most)
{
    Parts parts;
    const QChar *start = text.begin();
    for (const QChar *at = start; parts.size() < most; ++at) {
        if (at == text.end() || *at == separator) {
            parts.append(QStringView(start, at));
            start = at + 1;
        }
        if (at == text.end())
            break;
    }
    return parts;
}

/** Stops at the first part, seen from the end, that is no number. */
template <typename PartList> bool toNumbers(const PartList &parts, double *numbers)
{
    bool ok = true;
    for (int i = static_cast<int>(parts.size()) - 1; i >= 0 && ok; --i)
        numbers[i] = encoding::readNumber(parts[i], &ok);
    return ok;
}

using Numbers = std::array<double, kMostCurveParts>;

Curve circleOf(const Numbers &n) { return new vks::CArc2d(Point(n[0], n[1]), n[2], 0.0, vks::kFullTurn); }
Curve lineOf(const Numbers &n) { return new vks::CLine2d(Point(n[0], n[1]), Point(n[2], n[3])); }
Curve arcOf(const Numbers &n) { return new vks::CArc2d(Point(n[0], n[1]), Point(n[3], n[4]), n[2]); }

/** A kind of curve is told by how many numbers it has. */
struct CurveForm
{
    int partCount;
    Curve (*make)(const Numbers &numbers);
};

constexpr CurveForm kCircle = {3, circleOf};
constexpr CurveForm kLine = {4, lineOf};
constexpr CurveForm kArc = {5, arcOf};

template <typename PartList> bool readCurve(const CurveForm &form, const PartList &parts, Curve &curve)
{
    curve = nullptr;
    Numbers numbers{};
    if (parts.size() != form.partCount || !toNumbers(parts, numbers.data()))
        return false;
    curve = form.make(numbers);
    return true;
}

bool readVertex(QStringView item, Vertex &vertex)
{
    constexpr int straight = 2;
    constexpr int bulged = 3;
    const Parts parts = partsOf(item, u',', bulged + 1);
    double numbers[bulged] = {};
    if (parts.size() < straight || parts.size() > bulged || !toNumbers(parts, numbers))
        return false;
    vertex = {numbers[0], numbers[1], numbers[2], parts.size() == bulged};
    return true;
}

/** @param text  vertices, each ended by a semicolon */
bool readVertices(QStringView text, std::vector<Vertex> &vertices)
{
    const QChar *start = text.begin();
    for (const QChar *at = start; at != text.end(); ++at) {
        if (*at != u';')
            continue;
        Vertex vertex;
        if (!readVertex(QStringView(start, at), vertex))
            return false;
        vertices.push_back(vertex);
        start = at + 1;
    }
    return vertices.size() >= 2;
}

Curve edgeBetween(const Vertex &from, const Vertex &to)
{
    const Point start(from.x, from.y);
    const Point end(to.x, to.y);
    if (from.isArc)
        return new vks::CArc2d(start, end, from.bulge);
    return new vks::CLine2d(start, end);
}

bool finishPolygon(const vks::CRefPtr<vks::CLoop> &loop, Polygon &polygon)
{
    polygon = new vks::CPolygon();
    polygon->AddLoop(loop, true);
    return polygon->IsValid(vks::CPolygon::kAllChecks, nullptr, nullptr);
}

} // namespace

bool GeometryTextReader::reconstructCurve(QStringView text, Curve &curve)
{
    curve = nullptr;
    if (!encoding::isCurveText(text))
        return false;
    const Parts parts = partsOf(text, u',', kMostCurveParts + 1);
    for (const CurveForm &form : {kCircle, kLine, kArc})
        if (parts.size() == form.partCount)
            return readCurve(form, parts, curve);
    return false;
}

bool GeometryTextReader::reconstructCurve_Arc(const QStringList &parts, Curve &curve)
{
    return readCurve(kArc, parts, curve);
}

bool GeometryTextReader::reconstructCurve_Circle(const QStringList &parts, Curve &curve)
{
    return readCurve(kCircle, parts, curve);
}

bool GeometryTextReader::reconstructCurve_Line(const QStringList &parts, Curve &curve)
{
    return readCurve(kLine, parts, curve);
}

bool GeometryTextReader::reconstructCurve_StringToDouble(const QStringList &parts, double *numbers)
{
    return toNumbers(parts, numbers);
}

bool GeometryTextReader::reconstructPoly(const QString &text, Polygon &polygon)
{
    polygon = nullptr;
    if (text.isEmpty())
        return false;
    if (!encoding::isPolygonText(text))
        return reconstructPoly_WithAsString(text, polygon);
    if (text.contains(u';'))
        return reconstructPoly_Simplified_Normal(text, polygon);
    return reconstructPoly_Simplified_NoSemicolon(text, polygon);
}

bool GeometryTextReader::reconstructPoly_Simplified_NoSemicolon(const QString &text, Polygon &polygon)
{
    polygon = nullptr;
    Curve curve;
    if (!reconstructCurve(text, curve) || !curve->IsClosed())
        return false;
    const vks::CRefPtr<vks::CLoop> loop = new vks::CLoop();
    loop->AddCurve(curve, false);
    return finishPolygon(loop, polygon);
}

bool GeometryTextReader::reconstructPoly_Simplified_Normal(const QString &text, Polygon &polygon)
{
    polygon = nullptr;
    std::vector<Vertex> vertices;
    if (!reconstructPoly_Simplified_Normal_StringToDouble(text, vertices))
        return false;
    vertices.push_back(vertices.front()); // the last edge ends where the first one starts
    const vks::CRefPtr<vks::CLoop> loop = new vks::CLoop();
    for (std::size_t i = 0; i + 1 < vertices.size(); ++i)
        loop->AddCurve(edgeBetween(vertices[i], vertices[i + 1]), false);
    return finishPolygon(loop, polygon);
}

bool GeometryTextReader::reconstructPoly_Simplified_Normal_StringToDouble(const QString &text,
                                                                          std::vector<Vertex> &vertices)
{
    vertices.clear();
    // Meant: a text without its closing semicolon loses its last vertex without a word.
    const bool ok = readVertices(QStringView(text).left(text.lastIndexOf(u';') + 1), vertices);
    if (!ok)
        vertices.clear();
    return ok;
}

bool GeometryTextReader::reconstructPoly_WithAsString(const QString &text, Polygon &polygon)
{
    polygon = nullptr;
    polygon = vks::CPolygon::LoadFromString(text.toUtf8().constData());
    return polygon && polygon->IsValid(vks::CPolygon::kAllChecks, nullptr, nullptr);
}

GeometryTextReader::Curve GeometryTextReader::curveOf(QStringView text)
{
    Curve curve;
    reconstructCurve(text, curve);
    return curve;
}

GeometryTextReader::Polygon GeometryTextReader::polygonOf(const QString &text)
{
    Polygon polygon;
    reconstructPoly(text, polygon); // meant: an invalid polygon is handed out as if all were well
    return polygon;
}
