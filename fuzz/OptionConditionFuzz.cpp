// Conditions on the option table: a row that is found has the value that the condition tells.

#include "platform/embedded/HBXOptionDatabase.h"
#include "platform/services/CDBTable.h"
#include "platform/services/CFileAddressList.h"
#include "platform/services/HBXOptionNames.h"
#include "support/FuzzInput.h"

#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using hbx::embedded::HBXOptionDatabase;
    static const std::vector<hbx::embedded::OptionRecord> rows{
        {"BeamSetting", "KL", "WKL"}, {"", "", ""}, {"a\")b", "quote \"", "(x)"}};
    static HBXOptionDatabase database(rows);
    const QString condition = fuzz::textOf(data, size);
    vks::CFileAddressList addresses;
    const bool found = database.GetTable(g_strCADIdentifyOptionTable)->Query(condition, addresses, false);
    fuzz::require(found == (addresses.Count() > 0), "the result tells whether a row was found");
    fuzz::require(!found || condition.contains(QStringLiteral("SameString(")), "only a condition finds rows");
    return 0;
}
