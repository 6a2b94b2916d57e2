#pragma once

#include "platform/dwgx/KeyLiteral.h"

#include <QtGlobal>

/** Words and limits of `.cadi2` drawing files (docs/formats/cadi2.md). */
namespace dwgx::cadi2 {

using namespace literals;

/** Of the format; a greater one is refused. */
constexpr int kVersion = 1;
/** Larger files are refused; half a million lines take some 40 MiB. */
constexpr qint64 kMaxFileBytes = 128LL * 1024 * 1024;

/** What a file calls itself. */
constexpr QLatin1String kFormatName = "cadi2"_key;

namespace key {
constexpr QLatin1String format = "format"_key;
constexpr QLatin1String version = "version"_key;
constexpr QLatin1String title = "title"_key;
constexpr QLatin1String remark = "remark"_key;
constexpr QLatin1String viewer = "viewer"_key;
constexpr QLatin1String ext = "ext"_key;
constexpr QLatin1String layers = "layers"_key;
constexpr QLatin1String orientation = "orientation"_key;
constexpr QLatin1String zoom = "zoom"_key;
constexpr QLatin1String turn = "turn"_key;
constexpr QLatin1String flags = "flags"_key;
constexpr QLatin1String name = "name"_key;
constexpr QLatin1String color = "color"_key;
constexpr QLatin1String lines = "lines"_key;
constexpr QLatin1String texts = "texts"_key;
constexpr QLatin1String id = "id"_key;
constexpr QLatin1String block = "block"_key;
constexpr QLatin1String curve = "curve"_key;
constexpr QLatin1String text = "text"_key;
constexpr QLatin1String point = "point"_key;
constexpr QLatin1String height = "height"_key;
constexpr QLatin1String angle = "angle"_key;
} // namespace key

} // namespace dwgx::cadi2
