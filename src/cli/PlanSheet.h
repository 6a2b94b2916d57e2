#pragma once

/** Measures of a plan's page, mm of paper: A3 with a column for the legend on the right. */
namespace orvcad::plansheet {

constexpr double kWidth = 420.0;
constexpr double kHeight = 297.0;
constexpr double kMargin = 12.0;
constexpr double kFrame = 7.0; ///< from the edge of the page

constexpr double kColumnWidth = 62.0; ///< of the legend, with the gap beside the plan
constexpr double kColumnGap = 6.0;
constexpr double kPlanWidth = kWidth - 2 * kMargin - kColumnWidth;
constexpr double kPlanHeight = kHeight - 2 * kMargin;
constexpr double kColumnLine = kWidth - kMargin - kColumnWidth; ///< parts plan and legend
constexpr double kLegendX = kColumnLine + kColumnGap;

} // namespace orvcad::plansheet
