// Every record of columns from one object, written again and read again.

#include "column/ORVCADAIColumnSemnticParsingPar.h"
#include "column/ORVCADAIIdentifyColumnResultModel.h"
#include "column/ORVCADColumnCloudCheckInputModel.h"
#include "column/ORVCADColumnCloudIdentifyInputModel.h"
#include "column/ORVCADColumnHoopBarSettingPar.h"
#include "column/ORVCADIdentifyColumnResultData.h"
#include "support/FuzzInput.h"

namespace {

template <typename Record> void readInto(const QJsonObject &json)
{
    const Record reader;
    Record record;
    reader.fromJson(&record, json);
    Record again;
    reader.fromJson(&again, record.toJson());
    again.toJson();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QJsonObject json = fuzz::objectOf(data, size);
    readInto<ORVCADAIColumnSemnticParsingPar>(json);
    readInto<ORVCADAIIdentifyColumnResultModel>(json);
    readInto<ORVCADColumnCloudCheckInputModel>(json);
    readInto<ORVCADColumnCloudIdentifyInputModel>(json);
    readInto<ORVCADIdentifyColumnResultData>(json);
    ORVCADColumnHoopBarSettingPar hoops;
    hoops.fromJson(json);
    hoops.fromJson(hoops.toJson());
    return 0;
}
