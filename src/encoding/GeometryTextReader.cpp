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
constexpr int kUsualVertices = 8;

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

/** Meant: a text without its closing semicolon loses its last vertex without a word. */
QStringView finishedItems(const QString &text) { return QStringView(text).left(text.lastIndexOf(u';') + 1); }

/** @param text  vertices, each ended by a semicolon */
template <typename Vertices> bool readVertices(QStringView text, Vertices &vertices)
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

// What a text describes, valid or not; null for a bad text.

Polygon polygonOfLoop(vks::CLoop *loop)
{
    Polygon polygon = new vks::CPolygon();
    polygon->AddLoop(loop, true);
    return polygon;
}

Polygon builtOfCurve(QStringView text)
{
    Curve curve;
    if (!GeometryTextReader::reconstructCurve(text, curve) || !curve->IsClosed())
        return nullptr;
    auto *loop = new vks::CLoop();
    loop->AddCurve(curve, false);
    return polygonOfLoop(loop);
}

Polygon builtOfVertices(const QString &text)
{
    QVarLengthArray<Vertex, kUsualVertices> vertices;
    if (!readVertices(finishedItems(text), vertices))
        return nullptr;
    auto *loop = new vks::CLoop();
    for (int i = 1; i < vertices.size(); ++i)
        loop->AddCurve(edgeBetween(vertices[i - 1], vertices[i]), false);
    loop->AddCurve(edgeBetween(vertices.back(), vertices.front()), false); // ends where the first one starts
    return polygonOfLoop(loop);
}

Polygon builtOfKernelText(const QString &text) { return vks::CPolygon::LoadFromString(text.toUtf8().constData()); }

Polygon built(const QString &text)
{
    if (text.isEmpty())
        return nullptr;
    if (!encoding::isPolygonText(text))
        return builtOfKernelText(text);
    return text.contains(u';') ? builtOfVertices(text) : builtOfCurve(text);
}

/** Hands out what was built. @return whether it is valid */
bool handOut(const Polygon &built, Polygon &polygon)
{
    polygon = built;
    return polygon && polygon->IsValid(vks::CPolygon::kAllChecks, nullptr, nullptr);
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
    return handOut(built(text), polygon);
}

bool GeometryTextReader::reconstructPoly_Simplified_NoSemicolon(const QString &text, Polygon &polygon)
{
    polygon = nullptr;
    return handOut(builtOfCurve(text), polygon);
}

bool GeometryTextReader::reconstructPoly_Simplified_Normal(const QString &text, Polygon &polygon)
{
    polygon = nullptr;
    return handOut(builtOfVertices(text), polygon);
}

bool GeometryTextReader::reconstructPoly_Simplified_Normal_StringToDouble(const QString &text,
                                                                          std::vector<Vertex> &vertices)
{
    vertices.clear();
    const bool ok = readVertices(finishedItems(text), vertices);
    if (!ok)
        vertices.clear();
    return ok;
}

bool GeometryTextReader::reconstructPoly_WithAsString(const QString &text, Polygon &polygon)
{
    polygon = nullptr;
    return handOut(builtOfKernelText(text), polygon);
}

GeometryTextReader::Curve GeometryTextReader::curveOf(QStringView text)
{
    Curve curve;
    reconstructCurve(text, curve);
    return curve;
}

GeometryTextReader::Polygon GeometryTextReader::polygonOf(const QString &text)
{
    return built(text); // meant: an invalid polygon is handed out as if all were well
}
