// Bar texts: case does not matter, and joining two good ones by "+" is good.

#include "platform/services/ValidateBarInfo.h"
#include "support/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = fuzz::textOf(data, size);
    const bool isGood = ValidateBarInfo(kSlabBarInfo, text);
    fuzz::require(!isGood || ValidateBarInfo(kSlabBarInfo, text.toLower()), "case does not matter");
    fuzz::require(!isGood || ValidateBarInfo(kSlabBarInfo, text + QLatin1String("+C12")), "groups can be joined");
    return 0;
}
