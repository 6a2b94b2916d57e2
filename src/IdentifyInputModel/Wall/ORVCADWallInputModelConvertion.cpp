#include "IdentifyInputModel/Wall/ORVCADWallInputModelConvertion.h"

#include "IdentifyInputModel/Wall/ORVCADColumnSectionValue.h"
#include "IdentifyInputModel/Wall/WallElementReading.h"
#include "IdentifyInputModel/Wall/WallTextRows.h"
#include "platform/dwgx/DWGXBaseOptions.h"
#include "platform/host/IHBXAxisGrid.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXCustomPointSolidShape.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXLineShape2D.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperty.h"
#include "platform/services/HBXCADLayerBuilder.h"
#include "platform/services/HBXOptionNames.h"
#include "platform/services/ORVRegionRuleManager.h"

#include <QCoreApplication>

#include <memory>

using namespace wall;

namespace {

using Brick = ORVCADCloudEntBrickWallStruct;
using Force = ORVCADCloudEntForceWallStruct;
using ModelLines = ORVCADWallInputModelConvertion::ModelLines;
using Property = std::shared_ptr<IHBXProperty>;

constexpr int kLeftOutOfRecognition = 255; // value of "Type"
constexpr double kAxisWidth = 1.0;         // mm; meant: an axis has none
constexpr qint64 kNoId = -1;
constexpr qint64 kCustomSection = 3; // sub-type of columns whose section type is told

/** Layer kinds in the order in which the host is asked for their names. Meant: two kinds share a label. */
struct LayerLabel
{
    int kind;
    const char *label;
};
constexpr LayerLabel kLayerLabels[] = {{4, s_strWallLabel}, {5, s_strWallLabel},    {2, s_strConcreteWall},
                                       {3, s_strBrickWall}, {11, s_strWindowsLine}, {7, s_strColumn},
                                       {10, s_strHoleLabel}};

struct OptionLabel
{
    int ORVCADCloudWalloptionDataStruct::*member;
    const char *label;
};
constexpr OptionLabel kOptionLabels[] = {
    {&ORVCADCloudWalloptionDataStruct::maxOpeningWidth, s_strMaxOpeningWidth},
    {&ORVCADCloudWalloptionDataStruct::maxWallLineWidth, s_strMaxWallLineWidth},
    {&ORVCADCloudWalloptionDataStruct::wallLineWidthDeviationRange, s_strWallLineWidthDeviation},
    {&ORVCADCloudWalloptionDataStruct::wallEndExtensionRange, s_strWallEndExtension},
    {&ORVCADCloudWalloptionDataStruct::wallAndWindowExtenHRange, s_strWallAndWindowExtenH},
    {&ORVCADCloudWalloptionDataStruct::wallAndWindowExtenVRange, s_strWallAndWindowExtenV}};

/** Calls visit(element, properties, property "Type") for each wall element that is not left out of recognition. */
template <typename Visit> void forEachWall(IHBXModel *model, qint64 floorId, qint64 wallType, Visit &&visit)
{
    QList<IHBXElement *> elements;
    if (model)
        model->elements()->queryElementsOnFloor(elements, floorId, wallType, true);
    for (IHBXElement *element : qAsConst(elements)) {
        IHBXProperties *properties = element->properties();
        if (!properties)
            continue;
        Property type;
        properties->property(type, property::type);
        if (!type || type->intValue() != kLeftOutOfRecognition) // meant: without the property it is not left out
            visit(*element, *properties, type);
    }
}

/** What the records of both kinds of walls have in common. */
template <typename Record, std::size_t count>
void readWall(const IHBXElement &element, const IHBXProperties &properties, const TextRow<Record> (&texts)[count],
              Record &record)
{
    readHead(element, record);
    for (const TextRow<Record> &row : texts)
        record.*row.member = textOf(properties, row.name);
    record.width = properties.asInt(property::thickness);
}

/** The name of the material whose number stands in the property. */
std::wstring materialName(const IHBXProperties &properties)
{
    const std::wstring number = textOf(properties, property::material);
    if (number.empty())
        return {};
    const HBXMaterial *material =
        ORVRegionRuleManager::getInstance()->findMaterial(QString::fromStdWString(number).toInt());
    return material ? material->name.toStdWString() : std::wstring();
}

/** Calls visit(object) for each entered object of a type on a floor. */
template <typename Visit> void forEachPlaced(IHBXModel *model, qint64 floorId, qint64 objectType, Visit &&visit)
{
    QList<IHBXElementDrawObj *> objects;
    if (model)
        model->drawObjects()->queryDrawObjsOfFloor(objects, static_cast<int>(floorId), static_cast<int>(objectType),
                                                   IHBXDrawObjs::kAnySubType16, true);
    for (IHBXElementDrawObj *object : qAsConst(objects))
        visit(*object);
}

void appendAxis(const IHBXElementDrawObj &object, const vks::CRefPtr<vks::CCurve2d> &curve, ModelLines &lines)
{
    ORVCADCloudHBXModelLineEdoStruct &line = lines.emplace_back();
    line.entName = nameOf(object.element());
    line.worldLine = vks::cloneOrNull(curve);
    line.width = kAxisWidth;
    line.edoId = kNoId;
}

void appendGrid(IHBXElementDrawObj &object, ModelLines &lines)
{
    const std::unique_ptr<IHBXAxisGrid> grid(IHBXAxisGrid::createFromObj(&object));
    if (!grid)
        return;
    grid->prepare();
    for (int group = 0; group < IHBXAxisGrid::kGroupCount; ++group) {
        std::vector<HBXAxis> axes;
        grid->axes(axes, group);
        for (const HBXAxis &axis : axes)
            for (const vks::CRefPtr<vks::CCurve2d> &curve : axis.curves)
                appendAxis(object, curve, lines);
    }
}

void appendSingleAxis(IHBXElementDrawObj &object, ModelLines &lines)
{
    const auto *shape = dynamic_cast<IHBXLineShape2D *>(object.shape());
    vks::CRefPtr<vks::CCurve2d> curve;
    if (shape)
        appendAxis(object, shape->curve(curve), lines);
}

std::wstring sectionTypeOf(const IHBXElementDrawObj &object)
{
    IHBXElement *element = object.element();
    IHBXProperties *properties = element ? element->properties() : nullptr;
    Property section;
    if (properties)
        properties->property(section, property::sectionTypeId);
    if (!section || !section->hasValue() || object.subType() != kCustomSection)
        return {};
    return ORVCADColumnSectionValue().sectionText(section).toStdWString();
}

} // namespace

ORVCADWallInputModelConvertion::ORVCADWallInputModelConvertion(qint64 floorId, dwgx::DWGXBaseOptions *options,
                                                               IHBXModel *model, EORVCADIdentifyType type)
    : m_floorId(floorId), m_options(options), m_model(model), m_identifyType(type)
{}

ORVCADWallInputModelConvertion::~ORVCADWallInputModelConvertion() = default;

void ORVCADWallInputModelConvertion::getCadEntBrickWallDataInfo(std::list<Brick> &walls) const
{
    forEachWall(m_model, m_floorId, type::brickWall,
                [&walls](const IHBXElement &element, const IHBXProperties &properties, const Property &type) {
                    Brick &record = walls.emplace_back();
                    readWall(element, properties, kBrickBars, record);
                    record.material = materialName(properties);
                    record.typePropertyValue = type ? type->intValue() : 0;
                });
}

void ORVCADWallInputModelConvertion::getCadEntForceWallDataInfo(std::list<Force> &walls) const
{
    forEachWall(m_model, m_floorId, type::forceWall,
                [&walls](const IHBXElement &element, const IHBXProperties &properties, const Property & /*type*/) {
                    readWall(element, properties, kForceBars, walls.emplace_back());
                });
}

void ORVCADWallInputModelConvertion::appendWallLines(qint64 wallType, ModelLines &lines) const
{
    forEachPlaced(m_model, m_floorId, wallType, [&lines](IHBXElementDrawObj &object) {
        const auto *shape = dynamic_cast<IHBXCustomLineSolidShape *>(object.shape());
        if (!shape)
            return;
        ORVCADCloudHBXModelLineEdoStruct &line = lines.emplace_back(); // meant: types are not told
        line.entName = nameOf(object.element());
        vks::CRefPtr<vks::CCurve2d> axis;
        line.worldLine = vks::cloneOrNull(shape->worldLine(axis, IHBXModel::g_bDefaultAutoCalc));
        line.width = shape->width(IHBXModel::g_bDefaultAutoCalc);
        line.edoId = object.id();
    });
}

void ORVCADWallInputModelConvertion::getCurFloorModelBrickLineEntDataInfo(ModelLines &lines) const
{
    appendWallLines(type::brickWall, lines);
}

void ORVCADWallInputModelConvertion::getCurFloorModelForceLineEntDataInfo(ModelLines &lines) const
{
    appendWallLines(type::forceWall, lines);
}

void ORVCADWallInputModelConvertion::getCurFloorModelAxisLineEntDataInfo(ModelLines &lines) const
{
    forEachPlaced(m_model, m_floorId, type::axisGrid, [&lines](IHBXElementDrawObj &grid) { appendGrid(grid, lines); });
    forEachPlaced(m_model, m_floorId, type::axisLine,
                  [&lines](IHBXElementDrawObj &axis) { appendSingleAxis(axis, lines); });
}

void ORVCADWallInputModelConvertion::getCurFloorModelPointEntDataInfo(
    std::list<ORVCADCloudHBXModelPointEdoStruct> &points) const
{
    forEachPlaced(m_model, m_floorId, type::column, [&points](IHBXElementDrawObj &object) {
        const auto *shape = dynamic_cast<IHBXCustomPointSolidShape *>(object.shape());
        if (!shape)
            return;
        ORVCADCloudHBXModelPointEdoStruct &point = points.emplace_back();
        point.SectionTypeID = sectionTypeOf(object);
        point.entName = nameOf(object.element());
        shape->worldPoly(point.worldPoly, IHBXModel::g_bDefaultAutoCalc);
        const IHBXProperties *properties = object.properties();
        point.modelEdoType = properties ? properties->asInt(property::type) : 0;
        point.elementType = static_cast<int>(object.type());
        point.elementSubType = static_cast<int>(object.subType());
        point.edoId = object.id();
    });
}

void ORVCADWallInputModelConvertion::getCadLayerInfo(std::map<int, std::wstring> &layers) const
{
    for (const LayerLabel &row : kLayerLabels)
        layers[row.kind] = HBXCADLayerBuilder::getCustomLayerStoredName(
            QCoreApplication::translate(s_strHBXCADLayerManager, row.label).toStdWString());
}

void ORVCADWallInputModelConvertion::getDWGXBaseOptions(ORVCADCloudWalloptionDataStruct &options) const
{
    if (!m_options)
        return;
    for (const OptionLabel &row : kOptionLabels)
        options.*row.member = m_options->intOption(QCoreApplication::translate(s_strOrvCadIdentiFyWall, row.label));
}
