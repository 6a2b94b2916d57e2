#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>

#include <optional>

namespace hbx::embedded {

/** The words for the elevations of a floor, UTF-8. */
inline constexpr char kFloorTopWord[] = "层顶标高";
inline constexpr char kFloorBottomWord[] = "层底标高";

constexpr double kMillimetresPerMetre = 1000.0;

/** An elevation as the host keeps it: a number of metres above the building's zero, or the top ("层顶标高") or bottom
 *  ("层底标高") of the object's floor, followed by nothing or by a sign and a number of metres. White space around the
 *  whole means nothing; a number may have an exponent. */
class ORVCADPLATFORM_EXPORT HBXElevationText
{
public:
    enum Base { kZero, kFloorTop, kFloorBottom };

    /** Nothing for any other text, and for a number that is not finite. */
    static std::optional<HBXElevationText> parse(const QString &text);

    Base base() const { return m_base; }
    /** Above the base, m. */
    double metres() const { return m_metres; }
    /** Above the building's zero, mm; the floor's elevations in m. */
    double millimetres(double floorTop, double floorBottom) const;

private:
    Base m_base = kZero;
    double m_metres = 0.0;
};

} // namespace hbx::embedded
