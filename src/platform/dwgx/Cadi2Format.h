#pragma once

#include "platform/dwgx/StrictJson.h"

/** Words and limits of `.cadi2` drawing files (docs/formats/cadi2.md). */
namespace dwgx::cadi2 {

constexpr int kVersion = 1;
/** Larger files are refused; half a million lines take some 40 MiB. */
constexpr qint64 kMaxFileBytes = 128LL * 1024 * 1024;

constexpr QLatin1String kFormatName = jsonKey("cadi2");

namespace key {
constexpr QLatin1String format = jsonKey("format");
constexpr QLatin1String version = jsonKey("version");
constexpr QLatin1String title = jsonKey("title");
constexpr QLatin1String remark = jsonKey("remark");
constexpr QLatin1String viewer = jsonKey("viewer");
constexpr QLatin1String ext = jsonKey("ext");
constexpr QLatin1String layers = jsonKey("layers");
constexpr QLatin1String orientation = jsonKey("orientation");
constexpr QLatin1String zoom = jsonKey("zoom");
constexpr QLatin1String turn = jsonKey("turn");
constexpr QLatin1String flags = jsonKey("flags");
constexpr QLatin1String name = jsonKey("name");
constexpr QLatin1String color = jsonKey("color");
constexpr QLatin1String lines = jsonKey("lines");
constexpr QLatin1String texts = jsonKey("texts");
constexpr QLatin1String id = jsonKey("id");
constexpr QLatin1String block = jsonKey("block");
constexpr QLatin1String curve = jsonKey("curve");
constexpr QLatin1String text = jsonKey("text");
constexpr QLatin1String point = jsonKey("point");
constexpr QLatin1String height = jsonKey("height");
constexpr QLatin1String angle = jsonKey("angle");
} // namespace key

} // namespace dwgx::cadi2
