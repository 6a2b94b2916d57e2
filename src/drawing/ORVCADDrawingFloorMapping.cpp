#include "drawing/ORVCADDrawingFloorMapping.h"

#include "drawing/DrawingFields.h"
#include "drawing/DrawingKeys.h"
#include "encoding/RecordKinds.h"

using namespace encoding;
namespace key = drawing::key;

struct ORVCADDrawingFloorMapping::Fields
{
    using Mapping = ORVCADDrawingFloorMapping;

    static constexpr auto table = std::make_tuple(
        drawing::fieldRequiredAs<NarrowInt64>(key::regionId, &Mapping::regionId),
        field(key::floorName, &Mapping::floorName, Flow::WriteOnly), drawing::keyRequired<Mapping>(key::floorName),
        field(key::drawingNames, &Mapping::drawingNames, Flow::WriteOnly),
        drawing::keyRequired<Mapping>(key::drawingNames),
        // Meant: both are looked for under a key that is never written.
        field(key::drawingFloorMappings, &Mapping::floorName, Flow::ReadOnly),
        field(key::drawingFloorMappings, &Mapping::drawingNames, Flow::ReadOnly));
};

QJsonObject ORVCADDrawingFloorMapping::toJson() const { return writtenFields(*this, Fields::table); }

bool ORVCADDrawingFloorMapping::readJson(const QJsonObject &json) { return readFields(json, Fields::table, *this); }
