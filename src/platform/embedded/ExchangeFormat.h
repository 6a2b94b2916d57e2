#pragma once

#include <QLatin1String>

#include <cstddef>

/** Words of the building exchange form `hbx-project` (docs/formats/hbx-project.md). */
namespace hbx::embedded::exchange {

constexpr int kVersion = 1;
constexpr QLatin1String kFormatName("hbx-project");

namespace key {
constexpr QLatin1String format("format");
constexpr QLatin1String version("version");
constexpr QLatin1String name("name");
constexpr QLatin1String source("source");
constexpr QLatin1String regions("regions");
constexpr QLatin1String options("options");
constexpr QLatin1String materials("materials");
constexpr QLatin1String planeRule("planeRule");
constexpr QLatin1String group("group");
constexpr QLatin1String value("value");
constexpr QLatin1String number("number");
constexpr QLatin1String floors("floors");
constexpr QLatin1String code("code");
constexpr QLatin1String bottomElev("bottomElev");
constexpr QLatin1String height("height");
constexpr QLatin1String standardFloorCount("standardFloorCount");
constexpr QLatin1String foundation("foundation");
constexpr QLatin1String remark("remark");
constexpr QLatin1String elements("elements");
constexpr QLatin1String type("type");
constexpr QLatin1String subType("subType");
constexpr QLatin1String properties("properties");
constexpr QLatin1String orderNumber("orderNumber");
constexpr QLatin1String drawObjects("drawObjects");
constexpr QLatin1String units("units");
constexpr QLatin1String unit("unit");
constexpr QLatin1String shape("shape");
constexpr QLatin1String next("next");
constexpr QLatin1String children("children");
constexpr QLatin1String attachedTo("attachedTo");
constexpr QLatin1String spans("spans");
constexpr QLatin1String section("section");
constexpr QLatin1String layer("layer");
constexpr QLatin1String state("state");
constexpr QLatin1String key("key");
constexpr QLatin1String order("order");
constexpr QLatin1String kind("kind");
constexpr QLatin1String outline("outline");
constexpr QLatin1String axis("axis");
constexpr QLatin1String curve("curve");
constexpr QLatin1String width("width");
constexpr QLatin1String distanceToLeft("distanceToLeft");
constexpr QLatin1String insertPoint("insertPoint");
constexpr QLatin1String angle("angle");
constexpr QLatin1String mirror("mirror");
constexpr QLatin1String axes("axes");
constexpr QLatin1String label("label");
constexpr QLatin1String coordinates("coordinates");
constexpr QLatin1String origin("origin");
constexpr QLatin1String u("u");
constexpr QLatin1String v("v");
} // namespace key

} // namespace hbx::embedded::exchange
