#pragma once

#include <QtGlobal>

#include <algorithm>
#include <iterator>

namespace orvcad {

// Patterns of lines, mm of paper.
constexpr char kThrough[] = "";
constexpr char kDashed[] = "1.6 .8"; ///< stands above the section plane
constexpr char kDashDot[] = "6 1.2 1 1.2";

constexpr double kSolid = 1.0; ///< opacity of what is cut by the section plane

/** How element types look on a plan: which lies over which, and how strongly they are filled. */
struct PlanStyle
{
    qint64 type;
    double fillOpacity; ///< 0 draws the outline alone
    double stroke;      ///< width of lines, mm of paper
    const char *dashes;
};

/** From the bottom of the picture to its top. */
constexpr PlanStyle kPlanStyles[] = {
    {48, 0.25, 0.18, kThrough},     {19, 0.18, 0.13, kThrough},    {54, 0.40, 0.18, kThrough},
    {53, 0.30, 0.18, kThrough},     {52, 0.30, 0.18, kThrough},    {83, 0.30, 0.13, kThrough},
    {82, 0.30, 0.13, kThrough},     {24, 0.0, 0.25, kThrough},     {15, 0.14, 0.13, kDashed},
    {17, 0.14, 0.13, kDashed},      {18, 0.14, 0.13, kDashed},     {47, 0.14, 0.13, kDashed},
    {1, kSolid, 0.18, kThrough},    {202, kSolid, 0.18, kThrough}, {1001, kSolid, 0.18, kThrough},
    {1003, kSolid, 0.18, kThrough}, {0, kSolid, 0.18, kThrough},   {1002, kSolid, 0.18, kThrough},
    {26, kSolid, 0.18, kThrough},   {25, kSolid, 0.18, kThrough},  {7, kSolid, 0.25, kThrough},
    {6, kSolid, 0.25, kThrough},    {5, kSolid, 0.25, kThrough},   {4, kSolid, 0.25, kThrough},
    {49, 0.0, 0.13, kDashed},       {22, 0.0, 0.13, kDashed},      {50, 0.0, 0.18, kThrough},
    {23, 0.0, 0.18, kThrough},      {75, 0.0, 0.13, kDashDot},     {74, 0.0, 0.13, kDashDot},
};

/** Null for a type that no plan shows. */
inline const PlanStyle *planStyle(qint64 type)
{
    const auto *place = std::find_if(std::begin(kPlanStyles), std::end(kPlanStyles),
                                     [type](const PlanStyle &style) { return style.type == type; });
    return place == std::end(kPlanStyles) ? nullptr : place;
}

/** Place of a type from the bottom up; unknown types lie at the top. */
inline int planOrder(qint64 type)
{
    const PlanStyle *style = planStyle(type);
    return static_cast<int>((style ? style : std::end(kPlanStyles)) - std::begin(kPlanStyles));
}

} // namespace orvcad
