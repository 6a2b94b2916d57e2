// The kernel's text: what is read and written again is the same to the last digit.

#include "platform/geometry/CGeometry.h"
#include "support/FuzzInput.h"

#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    const vks::CRefPtr<vks::CGeometry> read = vks::CGeometry::LoadFromStr(text.c_str());
    if (!read)
        return 0;
    const std::string written = read->ToText();
    const vks::CRefPtr<vks::CGeometry> again = vks::CGeometry::LoadFromStr(written.c_str());
    fuzz::require(again != nullptr, "written geometry reads back");
    fuzz::require(again->ToText() == written, "it is written the same again");
    return 0;
}
