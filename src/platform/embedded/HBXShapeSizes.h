#pragma once

#include "platform/geometry/CPolygon.h"

#include <initializer_list>
#include <optional>
#include <string_view>

/** Sizes and outlines of solids as the properties of an object tell them. */
namespace hbx::embedded {

class HBXProperties;

/** The first of the named properties that has a value, mm; nothing when none has. */
std::optional<double> sizeIn(const HBXProperties &properties, std::initializer_list<std::wstring_view> names);

/** Outline of a column, pile, foundation or hole about its insertion point: "SectionPoly" moved by minus "InsertPt";
 *  without one the rectangle of "Width" or "SectionWidth" along x and "Length" or "SectionHeight" along y, or the circle
 *  of "Radius". Where both are told, "SectionTypeID" 1 stands for the circle. Null without sizes above zero. */
vks::CRefPtr<vks::CPolygon> sectionOutline(const HBXProperties &properties);

/** A rectangle along the axes, counter-clockwise; null without a width or height above zero. */
vks::CRefPtr<vks::CPolygon> rectangle(const vks::CVec2<double> &centre, double width, double height);

} // namespace hbx::embedded
