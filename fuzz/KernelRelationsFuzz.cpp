// Overlay, relations and repair on whatever geometry a text can describe: two of them, apart at a "#".

#include "platform/geometry/CBooleanOperate2D.h"
#include "platform/geometry/CPolygon.h"
#include "platform/services/HbxRelation.h"
#include "support/FuzzInput.h"

#include <string>

namespace {

constexpr std::size_t kLongest = 2000; // relations of thousands of edges take time and tell no more

void relate(const vks::CPolygon &a, const vks::CPolygon &b)
{
    for (const double tolerance : {1.0, 0.0, -1.0}) {
        const auto there = hbx::polyPolyPosition(&a, &b, tolerance);
        const auto back = hbx::polyPolyPosition(&b, &a, tolerance);
        fuzz::require((static_cast<int>(there) == -1) == (static_cast<int>(back) == -1), "bad from either side");
    }
}

void relate(const vks::CCurve2d &curve, const vks::CPolygon &polygon)
{
    hbx::linePolyPosition(&curve, &polygon, 1.0);
    hbx::extIntersect(&curve, &polygon, 1.0);
    hbx::offSetCurve(&curve, 10.0);
}

void relateAny(const vks::CGeometry *a, const vks::CGeometry *b)
{
    const auto *first = dynamic_cast<const vks::CPolygon *>(a);
    const auto *second = dynamic_cast<const vks::CPolygon *>(b);
    const auto *curve = dynamic_cast<const vks::CCurve2d *>(a);
    if (first && second)
        relate(*first, *second);
    if (curve && second)
        relate(*curve, *second);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > kLongest)
        return 0;
    const std::string text(reinterpret_cast<const char *>(data), size);
    const std::size_t middle = text.find('#');
    if (middle == std::string::npos)
        return 0;
    const auto a = vks::CGeometry::LoadFromStr(text.substr(0, middle).c_str());
    const auto b = vks::CGeometry::LoadFromStr(text.substr(middle + 1).c_str());
    relateAny(a.get(), b.get());
    relateAny(b.get(), a.get());
    return 0;
}
