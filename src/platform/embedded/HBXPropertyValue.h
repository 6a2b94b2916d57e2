#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/embedded/HBXProjectRecords.h"
#include "platform/embedded/HBXPropertyCatalogue.h"

#include <optional>

/** How values of one kind are read and kept as values of another. */
namespace hbx::embedded {

/** A value as a property of a kind keeps it: as it is, or converted where nothing is lost. Nothing where that cannot be,
 *  for a number or point that is not finite, for a text that is no elevation under an elevation, and for an outline that
 *  is not sound: an open ring, one that crosses itself or holds no area. Null geometry is no value. A number becomes an
 *  elevation of as many metres. */
ORVCADPLATFORM_EXPORT std::optional<PropertyValue> keptAs(PropertyKind kind, const PropertyValue &value);
/** The value of a text in the catalogue. */
ORVCADPLATFORM_EXPORT PropertyValue valueOfText(PropertyKind kind, const QString &text);

ORVCADPLATFORM_EXPORT bool isNoValue(const PropertyValue &value);
/** Cut to whole and to the range of an int; 0 for what is no number. */
ORVCADPLATFORM_EXPORT int intOf(const PropertyValue &value);
/** 0.0 for what is no number. */
ORVCADPLATFORM_EXPORT double doubleOf(const PropertyValue &value);
/** Numbers in decimal with the fewest digits that read back; empty for a point and for geometry. */
ORVCADPLATFORM_EXPORT QString textOf(const PropertyValue &value);
/** A double cut to an int; what does not fit becomes the nearest, NaN 0. */
ORVCADPLATFORM_EXPORT int cutToInt(double number);

/** A kind's name in messages. */
ORVCADPLATFORM_EXPORT QString kindName(PropertyKind kind);

} // namespace hbx::embedded
