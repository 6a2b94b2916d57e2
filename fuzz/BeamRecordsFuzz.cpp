// Every record of beams from one object, written again and read again.

#include "beam/BeamBoxText.h"
#include "beam/BeamModelDataInfo.h"
#include "beam/BeamSpanInfo.h"
#include "beam/ORVBeamSDCSeatInfoModel.h"
#include "beam/ORVBeamSeatInfoModel.h"
#include "beam/ORVCADBeamEDOInfo.h"
#include "beam/ORVCADBeamEdoInfoTmp.h"
#include "beam/ORVCADBeamIdentifyInputModel.h"
#include "beam/ORVCADBeamIdentifyResultModel.h"
#include "beam/ORVCADBeamSeatInfo.h"
#include "beam/ORVCADBeamSegmentInfo.h"
#include "support/FuzzInput.h"

namespace {

/** Records that a static reader fills. */
template <typename Record> void readInto(const QJsonObject &json)
{
    Record record;
    Record::fromJson(&record, json);
    Record again;
    Record::fromJson(&again, record.toJson());
    again.toJson();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    BeamBoxText::write(BeamBoxText::read(fuzz::textOf(data, size)));
    const QJsonObject json = fuzz::objectOf(data, size);
    BeamModelDataInfo beam;
    beam.fromJson(json);
    BeamModelDataInfo again;
    again.fromJson(beam.toJsonObj());
    BeamSpanInfo span;
    span.fromJson(json);
    span.toJsonObj();
    ORVBeamSDCSeatInfoModel seat;
    seat.fromJson(json);
    seat.toJson();
    readInto<ORVBeamSeatInfoModel>(json);
    readInto<ORVCADBeamEDOInfo>(json);
    readInto<ORVCADBeamEdoInfoTmp>(json);
    readInto<ORVCADBeamIdentifyInputModel>(json);
    readInto<ORVCADBeamIdentifyResultModel>(json);
    readInto<ORVCADBeamSeatInfo>(json);
    readInto<ORVCADBeamSegmentInfo>(json);
    return 0;
}
