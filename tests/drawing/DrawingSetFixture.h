#pragma once

#include "drawing/ORVCADClassifiedLayersData.h"
#include "drawing/ORVCADDisposeInfoData.h"
#include "drawing/ORVCADDrawingElementMappings.h"
#include "drawing/ORVCADDrawingFloorMappings.h"
#include "drawing/ORVCADDrawingLocationData.h"
#include "drawing/ORVCADDrawingParseData.h"
#include "drawing/ORVCADFloors.h"
#include "drawing/ORVCADScaleReviseData.h"
#include "drawing/ORVCADSubDrawingDataSet.h"

#include <gmock/gmock.h>

/** A test with the drawing set of the process, which is fresh before and gone after it. */
class DrawingSetFixture : public testing::Test
{
protected:
    DrawingSetFixture()
    {
        ORVCADDisposeInfoData::freeData();
        set = ORVCADDisposeInfoData::getData();
    }
    ~DrawingSetFixture() override { ORVCADDisposeInfoData::freeData(); }

    /** Adds a floor of a height, m. */
    void addFloor(const char *name, double bottom, double height)
    {
        if (!set->floors)
            set->floors = new ORVCADFloors;
        set->floors->addFloor(new ORVCADFloor(QString::fromUtf8(name), bottom, height));
    }
    /** Gives a drawing to a floor of region 7. */
    void addDrawing(const char *floor, const char *drawing, const QSet<int> &types)
    {
        if (!set->floorMappings)
            set->floorMappings = new ORVCADDrawingFloorMappings;
        if (!set->elementMappings)
            set->elementMappings = new ORVCADDrawingElementMappings;
        set->floorMappings->addMapping(7, QString::fromUtf8(floor), QString::fromUtf8(drawing));
        set->elementMappings->addMapping(QString::fromUtf8(drawing), types);
    }

    ORVCADDisposeInfoData *set;
};
