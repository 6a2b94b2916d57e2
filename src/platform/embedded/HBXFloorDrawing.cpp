#include "platform/embedded/HBXFloorDrawing.h"

#include "platform/embedded/HBXDrawingLayers.h"
#include "platform/geometry/Angle.h"
#include "platform/geometry/CArc2d.h"
#include "platform/geometry/OrientProjectCurve2d.h"
#include "platform/host/IHBXAxisGrid.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXLineShape2D.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/WorldOutline.h"
#include "platform/services/HBXElementTypeTable.h"
#include "platform/services/HBXElementTypes.h"

#include <cmath>

namespace hbx::embedded {
namespace {

using CurvePtr = vks::CRefPtr<vks::CCurve2d>;

constexpr double kTextHeight = 250.0;     // mm: 2.5 mm on paper at 1:100
constexpr double kAxisTextHeight = 350.0; // mm
constexpr double kBubbleRadius = 400.0;   // mm
constexpr double kUprightSlack = 1e-6;    // rad; a text may hang over the upright by that much

/** The direction brought to where a text reads from below or from the right: above -90° up to 90°. */
double readableAngle(const vks::CVec2<double> &direction)
{
    const double angle = std::atan2(direction.y, direction.x);
    if (angle > vks::kPi / 2 + kUprightSlack)
        return angle - vks::kPi;
    return angle <= -vks::kPi / 2 + kUprightSlack ? angle + vks::kPi : angle;
}

CurvePtr toWorld(const IHBXShape &shape, const vks::CCurve2d *curve)
{
    vks::CCoord3<double> frame;
    shape.coordinates(frame, IHBXModel::g_bDefaultAutoCalc);
    return vks::OrientProjectCurve2d(frame, curve, vks::CCoord3<double>(), {0.0, 0.0, 1.0}, false);
}

QString elementName(const IHBXElementDrawObj &object)
{
    QString name;
    return object.element() ? object.element()->name(name) : name;
}

/** Draws the objects of one floor into a drawing. */
class FloorDraughtsman
{
public:
    FloorDraughtsman(IHBXModel &model, dwgx::DWGXModel &drawing) : m_layers(&model), m_drawing(drawing) {}

    void draw(IHBXElementDrawObj &object, const ElementTypeInfo &type);

private:
    void drawGrid(IHBXElementDrawObj &object, const IHBXShape &shape);
    void drawAxis(const IHBXShape &shape, const HBXAxis &axis);
    void drawBubble(const vks::CVec2<double> &end, const vks::CVec2<double> &outward, const QString &label);
    void drawPlanLine(IHBXElementDrawObj &object, const IHBXLineShape2D &shape);
    void drawOutline(IHBXElementDrawObj &object, const IHBXShape &shape);

    void addCurve(CurvePtr curve);
    void addText(const QString &content, const vks::CVec2<double> &middle, double height, double angle);
    void addTextAlong(const QString &content, const vks::CCurve2d &curve);

    HBXDrawingLayers m_layers;
    dwgx::DWGXModel &m_drawing;
    HBXDrawingLayers::Names m_names; // layers of the type that is being drawn
    int m_color = dwgx::kColorInk;
};

void FloorDraughtsman::draw(IHBXElementDrawObj &object, const ElementTypeInfo &type)
{
    const IHBXShape *shape = object.shape();
    if (!shape)
        return;
    m_names = m_layers.namesOf(type);
    m_color = HBXDrawingLayers::colorIndexOf(type.colour);
    if (shape->kind() == IHBXShape::kGrid)
        drawGrid(object, *shape);
    else if (const auto *line = dynamic_cast<const IHBXLineShape2D *>(shape))
        drawPlanLine(object, *line);
    else
        drawOutline(object, *shape);
}

void FloorDraughtsman::drawGrid(IHBXElementDrawObj &object, const IHBXShape &shape)
{
    const std::unique_ptr<IHBXAxisGrid> grid(IHBXAxisGrid::createFromObj(&object));
    if (!grid)
        return;
    grid->prepare();
    std::vector<HBXAxis> axes;
    for (int group = 0; group < IHBXAxisGrid::kGroupCount; ++group) {
        grid->axes(axes, group);
        for (const HBXAxis &axis : axes)
            drawAxis(shape, axis);
    }
}

void FloorDraughtsman::drawAxis(const IHBXShape &shape, const HBXAxis &axis)
{
    std::vector<CurvePtr> curves;
    for (const CurvePtr &own : axis.curves)
        if (CurvePtr curve = toWorld(shape, own.get()))
            curves.push_back(curve);
    if (curves.empty())
        return;
    for (const CurvePtr &curve : curves)
        addCurve(curve);
    drawBubble(curves.front()->StartPoint(), -curves.front()->StartVt(), axis.label);
    drawBubble(curves.back()->EndPoint(), curves.back()->EndVt(), axis.label);
}

void FloorDraughtsman::drawBubble(const vks::CVec2<double> &end, const vks::CVec2<double> &outward,
                                  const QString &label)
{
    if (label.isEmpty())
        return;
    const vks::CVec2<double> centre = end + outward * kBubbleRadius;
    addCurve(new vks::CArc2d(centre, kBubbleRadius, 0.0, vks::kFullTurn));
    addText(label, centre, kAxisTextHeight, 0.0);
}

void FloorDraughtsman::drawPlanLine(IHBXElementDrawObj &object, const IHBXLineShape2D &shape)
{
    CurvePtr own;
    if (const CurvePtr curve = toWorld(shape, shape.curve(own))) {
        addCurve(curve);
        addTextAlong(elementName(object), *curve);
    }
}

void FloorDraughtsman::drawOutline(IHBXElementDrawObj &object, const IHBXShape &shape)
{
    const vks::CRefPtr<vks::CPolygon> outline = worldOutline(&shape);
    if (!outline)
        return;
    std::vector<vks::CCurve2d *> curves;
    outline->GetCurves(curves);
    for (const vks::CCurve2d *curve : curves)
        addCurve(curve->Clone());
    CurvePtr axis;
    if (const auto *solid = dynamic_cast<const IHBXCustomLineSolidShape *>(&shape))
        solid->worldLine(axis, IHBXModel::g_bDefaultAutoCalc);
    if (axis)
        addTextAlong(elementName(object), *axis);
    else
        addText(elementName(object), outline->Barycentre(), kTextHeight, 0.0);
}

void FloorDraughtsman::addCurve(CurvePtr curve)
{
    dwgx::DWGXLine line;
    line.curve = std::move(curve);
    if (!line.isSound())
        return;
    m_drawing.addLayer(m_names.lines, m_color); // does nothing when it is there
    m_drawing.addLine(m_names.lines, std::move(line));
}

void FloorDraughtsman::addText(const QString &content, const vks::CVec2<double> &middle, double height, double angle)
{
    dwgx::DWGXText text;
    text.content = content;
    text.height = height;
    text.angle = angle;
    text.centerAt(middle);
    if (content.isEmpty() || !text.isSound())
        return;
    m_drawing.addLayer(m_names.texts, dwgx::kColorInk);
    m_drawing.addText(m_names.texts, std::move(text));
}

void FloorDraughtsman::addTextAlong(const QString &content, const vks::CCurve2d &curve)
{
    const vks::CVec2<double> direction = curve.GetDirection((curve.StartT() + curve.EndT()) / 2);
    addText(content, curve.MidPoint(), kTextHeight, readableAngle(direction));
}

} // namespace

std::unique_ptr<dwgx::DWGXModel> makeFloorDrawing(IHBXModel *model, IHBXFloor *floor)
{
    if (!model || !floor)
        return nullptr;
    std::unique_ptr<dwgx::DWGXModel> drawing(dwgx::DWGXModel::createObject());
    FloorDraughtsman draughtsman(*model, *drawing);
    for (const ElementTypeInfo &type : kElementTypes) {
        QList<IHBXElementDrawObj *> objects;
        model->drawObjects()->queryDrawObjsOfFloor(objects, floor->id(), static_cast<int>(type.number),
                                                   IHBXDrawObjs::kAnySubType, true);
        for (IHBXElementDrawObj *object : objects)
            if (object->childCount() == 0) // an owner is the union of its children, which are drawn themselves
                draughtsman.draw(*object, type);
    }
    return drawing;
}

} // namespace hbx::embedded
