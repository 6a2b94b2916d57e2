// Every reader of simplified geometry text. What is read and written again reads back to the same text.

#include "encoding/GeometryTextForms.h"
#include "encoding/GeometryTextReader.h"
#include "encoding/ORVCADJsonCGeometryObjOper.h"
#include "support/FuzzInput.h"

namespace {

void readCurve(const ORVCADJsonCGeometryObjOper &oper, const QString &text)
{
    const vks::CRefPtr<vks::CCurve2d> curve = oper.getCurveInfo(text);
    const QString written = oper.getCurveInfo(curve.get());
    GeometryTextReader::Curve again;
    if (curve && encoding::isCurveText(written)) // not where a number is infinite
        fuzz::require(GeometryTextReader::reconstructCurve(written, again), "a written curve reads back");
}

void readPolygon(const ORVCADJsonCGeometryObjOper &oper, const QString &text)
{
    const vks::CRefPtr<vks::CPolygon> polygon = oper.getPolyInfo(text);
    oper.getPolyInfo(oper.getPolyInfo(oper.getPolyInfo(polygon.get())).get());
    GeometryTextReader::Polygon valid;
    if (GeometryTextReader::reconstructPoly(text, valid))
        fuzz::require(valid != nullptr, "a polygon that could be read is there");
}

void readPoints(const ORVCADJsonCGeometryObjOper &oper, const QString &text)
{
    const vks::CVec2<double> point = oper.getVector2dInfo(text);
    oper.getVector2dInfo(oper.getVector2dInfo(point));
    const std::vector<vks::CVec2<double>> points = oper.getVector2dsInfo(text);
    oper.getVector2dsInfo(oper.getVector2dsInfo(points));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const ORVCADJsonCGeometryObjOper oper;
    const QString text = fuzz::textOf(data, size);
    readCurve(oper, text);
    readPolygon(oper, text);
    readPoints(oper, text);
    return 0;
}
