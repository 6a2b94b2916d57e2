#include "slab/ORVCADBoardLocalIOModel_Sample.h"

#include "platform/dwgx/DWGXModel.h"
#include "platform/dwgx/HBXCADFileHelper.h"
#include "platform/dwgx/HBXCADIOperator.h"
#include "platform/services/HBCZipFile.h"
#include "slab/DrawingFolder.h"

#include <QFileInfo>
#include <QFileInfoList>
#include <QLatin1String>

#include <limits>
#include <utility>

struct ORVCADBoardLocalIOModel_Sample::Private
{
    ORVCADBoardOptions_Sample options;
    QString orvFileName;
    QString currentRegionName;
    QString currentFloorName;
    double currentFloorTopElev = std::numeric_limits<double>::quiet_NaN();
    double currentFloorBtmElev = 0.0;            // meant: only the top starts as NaN
    std::unique_ptr<dwgx::DWGXModel> ownDrawing; // null for a borrowed one
    dwgx::DWGXModel *drawing = nullptr;
};

namespace {

using DrawingPtr = std::unique_ptr<dwgx::DWGXModel>;

/** How a viewer showed the drawing when it was saved means nothing to recognition. */
void resetViewer(dwgx::DWGXModel &drawing)
{
    dwgx::DWGXViewerInfoData viewer = drawing.getViewerInfoData();
    viewer.orientation = {0.0F, 0.0F, -1.0F, 0.0F};
    viewer.zoom = 1.0F;
    viewer.turn = 0.0F;
    viewer.flags = 0;
    drawing.setViewerInfoData(viewer);
}

/** Null when there is no drawing to be had. */
DrawingPtr readDrawing(const QString &path)
{
    if (!QFileInfo::exists(path))
        return nullptr;
    const std::unique_ptr<HBXCADIOperator> drawings(HBXCADFileHelper::getInstance()->createCADIOperator());
    if (!drawings)
        return nullptr;
    DrawingPtr drawing(dwgx::DWGXModel::createObject());
    if (!drawing->getCADExtData())
        drawing->setCADExtData(new HBXCADExtData);
    if (!drawings->read(path, drawing.get()))
        return nullptr;
    resetViewer(*drawing);
    return drawing;
}

/** Path of the first entry of a folder by name; empty for an empty folder. */
QString firstEntry(const QDir &folder)
{
    const QFileInfoList entries = folder.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot);
    return entries.isEmpty() ? QString() : folder.path() + u'/' + entries.first().fileName();
}

DrawingPtr readPackedDrawing(const QString &path)
{
    slab::DrawingFolder folder;
    if (!folder.isMade())
        return nullptr;
    if (!HBCZipFile::extractFiles(path, folder.folder().path())) {
        folder.leaveBehind(); // meant: the folder of an archive that cannot be unpacked stays
        return nullptr;
    }
    return readDrawing(firstEntry(folder.folder()));
}

} // namespace

ORVCADBoardLocalIOModel_Sample::ORVCADBoardLocalIOModel_Sample() : m_private(std::make_unique<Private>()) {}

// NOLINTNEXTLINE(performance-noexcept-move-constructor): handlers of events may throw
ORVCADBoardLocalIOModel_Sample::ORVCADBoardLocalIOModel_Sample(ORVCADBoardLocalIOModel_Sample &&other)
    : ORVCADBoardLocalModel_Sample(std::move(other)),
      m_private(std::exchange(other.m_private, std::make_unique<Private>()))
{}

ORVCADBoardLocalIOModel_Sample::~ORVCADBoardLocalIOModel_Sample() = default;

const ORVCADBoardOptions_Sample &ORVCADBoardLocalIOModel_Sample::options() const { return m_private->options; }
QString ORVCADBoardLocalIOModel_Sample::orvFileName() const { return m_private->orvFileName; }
QString ORVCADBoardLocalIOModel_Sample::currentRegionName() const { return m_private->currentRegionName; }
QString ORVCADBoardLocalIOModel_Sample::currentFloorName() const { return m_private->currentFloorName; }
double ORVCADBoardLocalIOModel_Sample::currentFloorTopElev() const { return m_private->currentFloorTopElev; }
double ORVCADBoardLocalIOModel_Sample::currentFloorBtmElev() const { return m_private->currentFloorBtmElev; }
dwgx::DWGXModel *ORVCADBoardLocalIOModel_Sample::drawing() const { return m_private->drawing; }

bool ORVCADBoardLocalIOModel_Sample::setDrawing(const QString &path)
{
    const bool isPacked = path.endsWith(QLatin1String(".wzd")); // meant: ".WZD" is no archive
    DrawingPtr drawing = isPacked ? readPackedDrawing(path) : readDrawing(path);
    if (!drawing)
        return false;
    m_private->drawing = drawing.get();
    m_private->ownDrawing = std::move(drawing);
    return true;
}

bool ORVCADBoardLocalIOModel_Sample::setDrawing(dwgx::DWGXModel *model)
{
    if (!model)
        return false;
    if (model != m_private->drawing) {
        m_private->drawing = model;
        m_private->ownDrawing.reset();
    }
    return true;
}

void ORVCADBoardLocalIOModel_Sample::setCurrentRegionAndFloor(const QString &region, const QString &floor,
                                                              const double &topElev, const double &btmElev)
{
    m_private->currentRegionName = region;
    m_private->currentFloorName = floor;
    m_private->currentFloorTopElev = topElev;
    m_private->currentFloorBtmElev = btmElev;
}

void ORVCADBoardLocalIOModel_Sample::setORVFileName(const QString &name) { m_private->orvFileName = name; }
