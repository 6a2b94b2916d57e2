#include "drawing/ORVCADDisposeInfoData.h"

#include "drawing/DrawingKeys.h"
#include "drawing/ORVCADClassifiedLayersData.h"
#include "drawing/ORVCADDrawingElementMappings.h"
#include "drawing/ORVCADDrawingFloorMappings.h"
#include "drawing/ORVCADDrawingLocationData.h"
#include "drawing/ORVCADDrawingParseData.h"
#include "drawing/ORVCADFloors.h"
#include "drawing/ORVCADScaleReviseData.h"
#include "drawing/ORVCADSubDrawingDataSet.h"
#include "encoding/JsonDocumentFile.h"

#include <QJsonDocument>

namespace key = drawing::key;

namespace {

ORVCADDisposeInfoData *g_data = nullptr;

template <typename Stage> QJsonValue writtenOrNull(const Stage *stage)
{
    return stage ? stage->toJson() : QJsonValue();
}

/** @param count  entries of the stage's object */
template <typename Stage> QJsonObject writtenOrEmpty(const Stage *stage, int count)
{
    return stage && count > 0 ? stage->toJson() : QJsonObject();
}

} // namespace

ORVCADDisposeInfoData *ORVCADDisposeInfoData::getData()
{
    if (!g_data)
        g_data = new ORVCADDisposeInfoData;
    return g_data;
}

void ORVCADDisposeInfoData::freeData()
{
    delete g_data;
    g_data = nullptr;
}

ORVCADDisposeInfoData::~ORVCADDisposeInfoData()
{
    delete floors;
    delete floorMappings;
    delete elementMappings;
    delete classifiedLayers;
    delete scaleRevision;
    delete location;
    // Meant: the sub-drawing set and the parse data stay with whoever made them.
}

QJsonObject ORVCADDisposeInfoData::toJson() const
{
    return {{key::splitDrawing, writtenOrEmpty(subDrawings, subDrawings ? subDrawings->getCount() : 0)},
            {key::parseDrawing, parseData ? parseData->toJson() : QJsonObject()},
            {key::floorInfos, writtenOrEmpty(floors, floors ? floors->getCount() : 0)},
            {key::matchFloorInfo, writtenOrNull(floorMappings)},
            {key::matchElementInfo, writtenOrNull(elementMappings)},
            {key::classifyLayer, writtenOrNull(classifiedLayers)},
            {key::reviseScale, writtenOrNull(scaleRevision)},
            {key::locateDrawing, writtenOrNull(location)}};
}

void ORVCADDisposeInfoData::saveToJson(const QString &path) const
{
    saveJsonDocumentToFile(path, QJsonDocument(toJson()));
}
