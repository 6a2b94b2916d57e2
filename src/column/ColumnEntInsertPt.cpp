#include "column/ColumnEntInsertPt.h"

#include "column/ColumnKeys.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXProperties.h"
#include "platform/services/ParamPoly.h"

#include <QStringList>

using namespace column;

using Point = vks::CVec2<double>;

namespace {

// Kinds of sections.
constexpr int kSized = 0;
constexpr int kDrawn = 2;
constexpr int kParametric = 3;

constexpr int kSizedKind = 170; // what a sized section is split as

QStringList insertPointParts(const QString &text, int kind)
{
    QString xGrid;
    QString yGrid;
    QString insertPoint;
    stringToParamPoly(text, xGrid, kind, yGrid, insertPoint);
    return insertPoint.split(u',');
}

QString sectionInfo(const IHBXProperties &properties)
{
    QString text;
    return properties.asString(text, property::sectionInfo);
}

Point parametricPoint(const IHBXProperties &properties)
{
    const QStringList parts = insertPointParts(sectionInfo(properties), 0);
    return parts.size() < 2 ? Point() : Point(parts[0].toDouble(), parts[1].toDouble());
}

double oddShift(int size) { return size % 2 != 0 ? -0.5 : 0.0; }

Point sizedPoint(const IHBXProperties &properties)
{
    const int height = properties.asInt(property::sectionHeight);
    const int width = properties.asInt(property::sectionWidth);
    const Point shift(oddShift(width), oddShift(height));
    const QString text = sectionInfo(properties);
    if (text.isEmpty())
        return shift;
    const QStringList parts = insertPointParts(text, kSizedKind);
    return shift + Point(parts.value(0).toInt() - width * 0.5, parts.value(1).toInt() - height * 0.5);
}

} // namespace

Point getColumnEntInsertPt(IHBXElement *element)
{
    const IHBXProperties *properties = element ? element->properties() : nullptr;
    if (!properties)
        return {};
    const int kind =
        properties->hasProperty(property::sectionTypeId) ? properties->asInt(property::sectionTypeId) : kSized;
    Point point;
    if (kind == kDrawn && properties->hasProperty(property::insertPt) && !properties->isNull(property::insertPt))
        return properties->asPoint(point, property::insertPt);
    if (kind == kParametric)
        return parametricPoint(*properties);
    return kind == kSized ? sizedPoint(*properties) : point;
}
