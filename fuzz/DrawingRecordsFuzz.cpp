// Every record of a drawing set, and both forms of floors, from one object.

#include "drawing/ORVCADClassifiedLayer.h"
#include "drawing/ORVCADClassifiedLayers.h"
#include "drawing/ORVCADDrawingElementMapping.h"
#include "drawing/ORVCADDrawingElementMappings.h"
#include "drawing/ORVCADDrawingFloorMappings.h"
#include "drawing/ORVCADDrawingLocationData.h"
#include "drawing/ORVCADDrawingParseData.h"
#include "drawing/ORVCADFloorSDCData.h"
#include "drawing/ORVCADFloors.h"
#include "drawing/ORVCADLayerClassifyResult.h"
#include "drawing/ORVCADScaleReviseData.h"
#include "support/FuzzInput.h"

#include <memory>

namespace {

template <typename Record, typename Json> void readAndWrite(const Json &json)
{
    if (const std::unique_ptr<Record> record{Record::fromJson(json)})
        record->toJson();
}

void readFloorExchange(const QJsonObject &json)
{
    const ORVCADFloorSDCData data;
    bool isWhole = false;
    const auto floors = data.unserialize(json, isWhole);
    if (!isWhole)
        return;
    bool isWholeAgain = false;
    const auto again = data.unserialize(data.serialize(floors), isWholeAgain);
    fuzz::require(isWholeAgain && again.size() == floors.size(), "accepted floors are accepted again");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QJsonObject json = fuzz::objectOf(data, size);
    const QJsonValue value = json.contains(QString()) ? json.value(QString()) : QJsonValue(json);
    readAndWrite<ORVCADClassifiedLayer>(json);
    readAndWrite<ORVCADClassifiedLayers>(json);
    readAndWrite<ORVCADDrawingElementMapping>(json);
    readAndWrite<ORVCADDrawingElementMappings>(value);
    readAndWrite<ORVCADDrawingFloorMappings>(value);
    readAndWrite<ORVCADDrawingLocationData>(value);
    readAndWrite<ORVCADLayerClassifyResult>(json);
    readAndWrite<ORVCADScaleReviseData>(value);
    readAndWrite<ORVCADFloors>(json);
    ORVCADDrawingParseData::fromJson(json);
    readFloorExchange(json);
    return 0;
}
