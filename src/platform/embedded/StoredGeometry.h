#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/CPolygon.h"

#include <optional>
#include <string>
#include <string_view>

/** Geometry and points as the texts that files keep. */
namespace hbx::embedded {

/** The geometry of a text in the kernel's form; null for geometry of another kind, for any other text, and for a text
 *  with a zero in it: the kernel would stop there, and what stands behind would go unread.
 *  @param text  with a zero behind its end */
template <typename Geometry> vks::CRefPtr<Geometry> storedGeometry(std::string_view text)
{
    const bool isWhole = text.find('\0') == std::string_view::npos;
    const vks::CRefPtr<vks::CGeometry> geometry = vks::CGeometry::LoadFromStr(isWhole ? text.data() : nullptr);
    return dynamic_cast<Geometry *>(geometry.get());
}

/** Whether an outline is one that a property can have: closed rings that cross nothing and hold an area, holes inside. */
ORVCADPLATFORM_EXPORT bool isSound(const vks::CPolygon &outline);
/** Every curve is: that of a bar without a direction has no length. */
inline bool isSound(const vks::CCurve2d & /*curve*/) { return true; }

/** The point of a text with two numbers and one blank between them; nothing for any other text, and for a number that
 *  is not finite. */
ORVCADPLATFORM_EXPORT std::optional<vks::CVec2<double>> storedPoint(std::string_view text);
/** Text of a point, which storedPoint reads back exactly. */
ORVCADPLATFORM_EXPORT std::string pointText(const vks::CVec2<double> &point);

} // namespace hbx::embedded
