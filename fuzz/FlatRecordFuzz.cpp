// Flat records: every record of a wall document, from the same text, read and written and read again.

#include "IdentifyInputModel/Wall/WallRecords.h"
#include "support/FuzzInput.h"

namespace {

template <typename Record, typename Table> void readAs(const QString &text, const Table &table)
{
    Record record{};
    encoding::readFlatRecord(text, table, record);
    const QString written = encoding::flatRecord(record, table);
    Record again{};
    encoding::readFlatRecord(written, table, again);
    encoding::flatRecord(again, table);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = fuzz::textOf(data, size);
    readAs<ORVCADCloudEntBrickWallStruct>(text, wall::record::brickWallOfReply);
    readAs<ORVCADCloudEntForceWallStruct>(text, wall::record::forceWallOfReply);
    readAs<IdentifyResultData>(text, wall::record::piece);
    readAs<ORVCADCloudHBXModelLineEdoStruct>(text, wall::record::modelLine);
    readAs<ORVCADCloudHBXModelPointEdoStruct>(text, wall::record::modelPoint);
    readAs<ORVCADCloudTextEdoInfo>(text, wall::record::filterText);
    readAs<ORVCADCloudWalloptionDataStruct>(text, wall::record::options);
    return 0;
}
