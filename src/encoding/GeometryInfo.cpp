#include "encoding/GeometryInfo.h"

#include "encoding/NumberText.h"
#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CPolygon.h"

#include <QVarLengthArray>

#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <memory>
#include <vector>

namespace {

/** Text in the making, UTF-8. Turned into a QString once, at the end: that is what makes it quick. */
class TextBuffer
{
public:
    /** Numbers with commas between them. */
    void addNumbers(std::initializer_list<double> numbers)
    {
        const char *separator = "";
        for (const double number : numbers) {
            add(separator);
            const int length = m_bytes.size();
            m_bytes.resize(length + encoding::kLongestNumberText);
            m_bytes.resize(static_cast<int>(encoding::writeNumber(m_bytes.data() + length, number) - m_bytes.data()));
            separator = ",";
        }
    }
    void add(const char *text) { m_bytes.append(text, static_cast<int>(std::strlen(text))); }
    /** The kernel's own text; the kernel hands out a buffer that is ours to give back. */
    void addKernelText(const vks::CGeometry &geometry)
    {
        const std::unique_ptr<char, decltype(&std::free)> text(geometry.AsString(), &std::free);
        if (text)
            add(text.get());
    }
    QString text() const { return QString::fromUtf8(m_bytes.constData(), m_bytes.size()); }

private:
    QVarLengthArray<char, 1024> m_bytes;
};

void addArc(TextBuffer &buffer, const vks::CArc2d &arc)
{
    if (arc.IsClosed()) {
        const auto centre = arc.CenterPt();
        buffer.addNumbers({centre.x, centre.y, arc.Radius()});
        return;
    }
    const auto start = arc.StartPoint();
    const auto end = arc.EndPoint();
    buffer.addNumbers({start.x, start.y, arc.GetBulge(), end.x, end.y});
}

void addCurve(TextBuffer &buffer, const vks::CCurve2d &curve)
{
    if (curve.Type() == vks::CCurve2d::kLine) {
        const auto start = curve.StartPoint();
        const auto end = curve.EndPoint();
        buffer.addNumbers({start.x, start.y, end.x, end.y});
    } else if (curve.Type() == vks::CCurve2d::kArc) {
        addArc(buffer, static_cast<const vks::CArc2d &>(curve));
    } else {
        buffer.addKernelText(curve);
    }
}

/** One edge of several: where it starts; the next edge tells where it ends. */
void addEdge(TextBuffer &buffer, const vks::CCurve2d &edge)
{
    const auto start = edge.StartPoint();
    if (edge.Type() == vks::CCurve2d::kArc)
        buffer.addNumbers({start.x, start.y, static_cast<const vks::CArc2d &>(edge).GetBulge()});
    else if (edge.Type() == vks::CCurve2d::kLine)
        buffer.addNumbers({start.x, start.y});
    else
        buffer.addKernelText(edge); // meant: no reader knows this item
    buffer.add(";");
}

void addPolygon(TextBuffer &buffer, const vks::CPolygon &polygon)
{
    std::vector<vks::CCurve2d *> edges;
    if (polygon.LoopCount() == 1)
        polygon.GetLoop(0)->GetCurves(edges);
    if (edges.empty()) {
        buffer.addKernelText(polygon);
    } else if (edges.size() == 1) {
        addCurve(buffer, *edges.front());
    } else {
        for (const vks::CCurve2d *edge : edges)
            addEdge(buffer, *edge);
    }
}

} // namespace

QString getCurveInfo(vks::CCurve2d *curve)
{
    TextBuffer buffer;
    if (curve)
        addCurve(buffer, *curve);
    return buffer.text();
}

QString getPolyInfo(vks::CPolygon *polygon)
{
    TextBuffer buffer;
    if (polygon)
        addPolygon(buffer, *polygon);
    return buffer.text();
}
