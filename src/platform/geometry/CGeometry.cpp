#include "platform/geometry/CGeometry.h"

#include "platform/geometry/GeometryText.h"

#include <cstdlib>
#include <cstring>
#include <new>

namespace vks {

std::string CGeometry::ToText() const
{
    std::string text;
    writeText(text);
    return text;
}

char *CGeometry::AsString() const
{
    const std::string text = ToText();
    char *buffer = static_cast<char *>(std::malloc(text.size() + 1));
    if (!buffer)
        throw std::bad_alloc();
    return static_cast<char *>(std::memcpy(buffer, text.c_str(), text.size() + 1));
}

CRefPtr<CGeometry> CGeometry::LoadFromStr(const char *text) { return GeometryText::read(text); }

} // namespace vks
