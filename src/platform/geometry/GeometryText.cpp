#include "platform/geometry/GeometryText.h"

#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"
#include "platform/geometry/CPolygon.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <optional>
#include <utility>

namespace vks {

namespace {

using Points = std::vector<CVec2<double>>;

constexpr char kLineString[] = "LINESTRING";
constexpr char kCircularString[] = "CIRCULARSTRING";
constexpr char kCompoundCurve[] = "COMPOUNDCURVE";
constexpr char kPolygon[] = "POLYGON";
constexpr char kCurvePolygon[] = "CURVEPOLYGON";
constexpr char kEmpty[] = "EMPTY";
constexpr std::size_t kUsualCorners = 5;    // of the rings of a plan, with the first one at the end again
constexpr std::size_t kUsualPointText = 20; // characters, the comma with them

void appendNumber(std::string &text, double value)
{
    char digits[32];
    const double unsignedZero = value + 0.0; // a zero is written without its sign, so that equal points give equal text
    text.append(digits, std::to_chars(digits, digits + sizeof digits, unsignedZero).ptr);
}

void appendPoints(std::string &text, const Points &points)
{
    text.reserve(text.size() + points.size() * kUsualPointText);
    text += '(';
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i > 0)
            text += ", ";
        appendNumber(text, points[i].x);
        text += ' ';
        appendNumber(text, points[i].y);
    }
    text += ')';
}

bool isArc(const CCurve2d &curve) { return curve.Type() == CCurve2d::kArc; }

bool hasArc(const CLoop &loop)
{
    return std::any_of(loop.Curves().begin(), loop.Curves().end(), [](const auto &curve) { return isArc(*curve); });
}

/** Writes a ring as runs of lines and single arcs, each starting where the one before ends. */
class RingWriter
{
public:
    void add(const CCurve2d &curve)
    {
        if (m_started && m_end != curve.StartPoint())
            addPoint(curve.StartPoint()); // the gap as a line
        if (isArc(curve))
            addArc(curve);
        else
            addLine(curve);
        m_end = curve.EndPoint();
        m_started = true;
    }
    std::string finish()
    {
        endRun();
        return m_memberCount > 1 ? kCompoundCurve + ('(' + m_members + ')') : std::move(m_members);
    }

private:
    void addPoint(const CVec2<double> &point)
    {
        if (m_run.empty())
            m_run.push_back(m_end);
        m_run.push_back(point);
    }
    void addLine(const CCurve2d &line)
    {
        if (m_run.empty()) {
            m_run.reserve(kUsualCorners);
            m_run.push_back(line.StartPoint());
        }
        m_run.push_back(line.EndPoint());
    }
    void addArc(const CCurve2d &arc)
    {
        endRun();
        separate();
        m_members += arc.ToText();
    }
    void endRun()
    {
        if (m_run.empty())
            return;
        separate();
        appendPoints(m_members, m_run);
        m_run.clear();
    }
    void separate()
    {
        if (m_memberCount++ > 0)
            m_members += ", ";
    }

    Points m_run; // corners of the lines since the last arc
    std::string m_members;
    int m_memberCount = 0;
    CVec2<double> m_end;
    bool m_started = false;
};

std::string ringText(const CLoop &loop)
{
    RingWriter writer;
    for (const auto &curve : loop.Curves())
        writer.add(*curve);
    return writer.finish();
}

/** Reads one text from left to right; each function reads one production and says whether it was there. */
class Reader
{
public:
    explicit Reader(const char *text) : m_at(text), m_end(text + std::strlen(text)) {}

    CRefPtr<CGeometry> geometry()
    {
        CRefPtr<CGeometry> result = anyGeometry();
        skipBlanks();
        return m_at == m_end ? result : nullptr;
    }

private:
    CRefPtr<CGeometry> anyGeometry()
    {
        if (word(kLineString))
            return line().get();
        if (word(kCircularString))
            return arc().get();
        if (word(kPolygon))
            return polygon(false).get();
        return word(kCurvePolygon) ? polygon(true).get() : nullptr;
    }

    CRefPtr<CCurve2d> line()
    {
        const auto corners = points();
        return corners && corners->size() == 2 ? new CLine2d((*corners)[0], (*corners)[1]) : nullptr;
    }

    CRefPtr<CCurve2d> arc()
    {
        const auto corners = points();
        return corners && corners->size() == 3 ? new CArc2d((*corners)[0], (*corners)[1], (*corners)[2]) : nullptr;
    }

    CRefPtr<CPolygon> polygon(bool curved)
    {
        CRefPtr<CPolygon> result(new CPolygon);
        if (!curved && nextIsBlank() && word(kEmpty))
            return result;
        if (!symbol('('))
            return nullptr;
        do {
            const CRefPtr<CLoop> loop = curved ? curvedRing() : straightRing();
            if (!loop)
                return nullptr;
            result->AddLoop(loop, true);
        } while (symbol(','));
        return symbol(')') ? result : nullptr;
    }

    CRefPtr<CLoop> straightRing()
    {
        CRefPtr<CLoop> loop(new CLoop);
        return appendLines(*loop) ? loop : nullptr;
    }

    CRefPtr<CLoop> curvedRing()
    {
        CRefPtr<CLoop> loop(new CLoop);
        const bool compound = word(kCompoundCurve);
        if (compound && !symbol('('))
            return nullptr;
        do {
            if (!appendMember(*loop))
                return nullptr;
        } while (compound && symbol(','));
        return !compound || symbol(')') ? loop : nullptr;
    }

    /** A member of a ring: an arc or a list of corners, which starts exactly where the ring has come to. */
    bool appendMember(CLoop &loop)
    {
        const int before = loop.CurveCount();
        if (!(word(kCircularString) ? appendArc(loop) : appendLines(loop)))
            return false;
        return before == 0 || loop.GetCurve(before - 1)->EndPoint() == loop.GetCurve(before)->StartPoint();
    }

    bool appendArc(CLoop &loop)
    {
        const CRefPtr<CCurve2d> curve = arc();
        loop.AddCurve(curve, false);
        return curve;
    }

    bool appendLines(CLoop &loop)
    {
        const auto corners = points();
        if (!corners || corners->size() < 2)
            return false;
        for (std::size_t i = 1; i < corners->size(); ++i)
            loop.AddCurve(new CLine2d((*corners)[i - 1], (*corners)[i]), false);
        return true;
    }

    std::optional<Points> points()
    {
        Points result;
        if (!symbol('('))
            return std::nullopt;
        result.reserve(kUsualCorners);
        do {
            CVec2<double> point;
            if (!number(point.x) || !number(point.y))
                return std::nullopt;
            result.push_back(point);
        } while (symbol(','));
        return symbol(')') ? std::optional<Points>(std::move(result)) : std::nullopt;
    }

    bool number(double &value)
    {
        skipBlanks();
        const auto [end, error] = std::from_chars(m_at, m_end, value);
        if (error != std::errc() || !std::isfinite(value))
            return false;
        // Two numbers need a blank between them: "1-2" is none.
        const bool ends = end == m_end || *end == ' ' || *end == ',' || *end == ')';
        m_at = end;
        return ends;
    }

    bool word(const char *expected)
    {
        skipBlanks();
        const std::size_t size = std::strlen(expected);
        if (static_cast<std::size_t>(m_end - m_at) < size || std::memcmp(m_at, expected, size) != 0)
            return false;
        m_at += size;
        return true;
    }

    bool symbol(char expected)
    {
        skipBlanks();
        if (m_at == m_end || *m_at != expected)
            return false;
        ++m_at;
        return true;
    }

    bool nextIsBlank() const { return m_at != m_end && *m_at == ' '; }

    void skipBlanks()
    {
        while (m_at != m_end && *m_at == ' ')
            ++m_at;
    }

    const char *m_at;
    const char *m_end;
};

} // namespace

void GeometryText::appendLine(std::string &text, const CVec2<double> &start, const CVec2<double> &end)
{
    text += kLineString;
    appendPoints(text, {start, end});
}

void GeometryText::appendArc(std::string &text, const CVec2<double> &start, const CVec2<double> &middle,
                             const CVec2<double> &end)
{
    text += kCircularString;
    appendPoints(text, {start, middle, end});
}

void GeometryText::appendPolygon(std::string &text, const std::vector<CRefPtr<CLoop>> &loops)
{
    std::string rings;
    bool curved = false;
    for (const auto &loop : loops) {
        if (loop->CurveCount() == 0)
            continue;
        if (!rings.empty())
            rings += ',';
        rings += ringText(*loop);
        curved = curved || hasArc(*loop);
    }
    text += curved ? kCurvePolygon : kPolygon;
    if (rings.empty())
        text.append(" ").append(kEmpty);
    else
        text.append("(").append(rings).append(")");
}

CRefPtr<CGeometry> GeometryText::read(const char *text) { return text ? Reader(text).geometry() : nullptr; }

} // namespace vks
