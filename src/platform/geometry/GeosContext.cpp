#include "platform/geometry/GeosContext.h"

#include <geos_c.h>

namespace vks::geos {

namespace {

struct ThreadContext
{
    ThreadContext() : handle(GEOS_init_r()) {}
    ~ThreadContext() { GEOS_finish_r(handle); }
    ThreadContext(const ThreadContext &) = delete;
    ThreadContext &operator=(const ThreadContext &) = delete;

    GEOSContextHandle_t handle; // without message handlers, so that messages go nowhere
};

Geometry linearRing(const Ring &ring)
{
    if (ring.size() < 3)
        return nullptr;
    std::vector<double> ordinates;
    ordinates.reserve(2 * ring.size() + 2);
    for (const CVec2<double> &point : ring)
        ordinates.insert(ordinates.end(), {point.x, point.y});
    ordinates.insert(ordinates.end(), {ring.front().x, ring.front().y});
    const auto count = static_cast<unsigned>(ordinates.size() / 2);
    GEOSCoordSequence *points = GEOSCoordSeq_copyFromBuffer_r(context(), ordinates.data(), count, 0, 0);
    return Geometry(points ? GEOSGeom_createLinearRing_r(context(), points) : nullptr);
}

/** Hands the geometries over to a GEOS call that takes a plain array. */
std::vector<GEOSGeometry *> released(std::vector<Geometry> &parts)
{
    std::vector<GEOSGeometry *> plain;
    for (Geometry &part : parts)
        if (part)
            plain.push_back(part.release());
    return plain;
}

Geometry gathered(int kind, std::vector<Geometry> &parts)
{
    std::vector<GEOSGeometry *> plain = released(parts);
    return Geometry(GEOSGeom_createCollection_r(context(), kind, plain.data(), static_cast<unsigned>(plain.size())));
}

Ring ringOf(const GEOSGeometry *ring)
{
    const GEOSCoordSequence *points = ring ? GEOSGeom_getCoordSeq_r(context(), ring) : nullptr;
    unsigned count = 0;
    if (!points || !GEOSCoordSeq_getSize_r(context(), points, &count) || count < 2)
        return {};
    std::vector<double> ordinates(2 * static_cast<std::size_t>(count));
    GEOSCoordSeq_copyToBuffer_r(context(), points, ordinates.data(), 0, 0);
    Ring result;
    result.reserve(count - 1);
    for (std::size_t i = 0; i + 2 < ordinates.size(); i += 2)
        result.push_back({ordinates[i], ordinates[i + 1]});
    return result;
}

} // namespace

GEOSContextHandle_HS *context()
{
    thread_local const ThreadContext threadContext;
    return threadContext.handle;
}

void Release::operator()(GEOSGeom_t *geometry) const noexcept { GEOSGeom_destroy_r(context(), geometry); }

Geometry polygonOf(const Ring &shell, const std::vector<const Ring *> &holes)
{
    Geometry outer = linearRing(shell);
    if (!outer)
        return nullptr;
    std::vector<Geometry> inner;
    inner.reserve(holes.size());
    for (const Ring *hole : holes)
        inner.push_back(linearRing(*hole));
    std::vector<GEOSGeometry *> plain = released(inner);
    const auto count = static_cast<unsigned>(plain.size());
    return Geometry(GEOSGeom_createPolygon_r(context(), outer.release(), plain.data(), count));
}

Geometry collectionOf(std::vector<Geometry> parts) { return gathered(GEOS_GEOMETRYCOLLECTION, parts); }

Geometry multiPolygonOf(std::vector<Geometry> polygons) { return gathered(GEOS_MULTIPOLYGON, polygons); }

std::vector<const GEOSGeom_t *> polygonsIn(const GEOSGeom_t *geometry)
{
    const int kind = geometry ? GEOSGeomTypeId_r(context(), geometry) : -1;
    if (kind == GEOS_POLYGON)
        return {geometry};
    std::vector<const GEOSGeom_t *> polygons;
    if (kind != GEOS_MULTIPOLYGON && kind != GEOS_GEOMETRYCOLLECTION)
        return polygons;
    const int count = GEOSGetNumGeometries_r(context(), geometry);
    for (int i = 0; i < count; ++i) {
        const auto inner = polygonsIn(GEOSGetGeometryN_r(context(), geometry, i));
        polygons.insert(polygons.end(), inner.begin(), inner.end());
    }
    return polygons;
}

std::vector<Ring> ringsOf(const GEOSGeom_t *polygon)
{
    std::vector<Ring> rings{ringOf(GEOSGetExteriorRing_r(context(), polygon))};
    const int holes = GEOSGetNumInteriorRings_r(context(), polygon);
    for (int i = 0; i < holes; ++i)
        rings.push_back(ringOf(GEOSGetInteriorRingN_r(context(), polygon, i)));
    return rings;
}

} // namespace vks::geos
