#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/Ring.h"

#include <memory>
#include <vector>

struct GEOSGeom_t;
struct GEOSContextHandle_HS;

/** What the kernel needs of GEOS: a context and owned geometry. GEOS tells of exceptions by null, never by throwing,
 *  and its messages go nowhere. */
namespace vks::geos {

/** The context of the calling thread, made at its first use and gone with the thread. */
ORVCADPLATFORM_EXPORT GEOSContextHandle_HS *context();

/** Gives geometry back to the context of its thread. */
struct ORVCADPLATFORM_EXPORT Release
{
    /** Null is allowed. */
    void operator()(GEOSGeom_t *geometry) const noexcept;
};
/** Owned geometry; null stands for a failed operation. */
using Geometry = std::unique_ptr<GEOSGeom_t, Release>;

/** A polygon of a shell and its holes, null when a ring has fewer than three corners. Directions mean nothing. */
ORVCADPLATFORM_EXPORT Geometry polygonOf(const Ring &shell, const std::vector<const Ring *> &holes);
/** Several geometries of any kind as one collection; null parts are left out. */
ORVCADPLATFORM_EXPORT Geometry collectionOf(std::vector<Geometry> parts);
/** Several polygons as one multi-polygon, which unlike a collection overlay takes; null parts are left out. */
ORVCADPLATFORM_EXPORT Geometry multiPolygonOf(std::vector<Geometry> polygons);
/** The polygonal parts of a geometry, in order; they belong to the geometry. */
ORVCADPLATFORM_EXPORT std::vector<const GEOSGeom_t *> polygonsIn(const GEOSGeom_t *geometry);
/** The rings of a polygon, shell first. */
ORVCADPLATFORM_EXPORT std::vector<Ring> ringsOf(const GEOSGeom_t *polygon);

} // namespace vks::geos
