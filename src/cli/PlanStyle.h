#pragma once

#include <QString>

#include <algorithm>
#include <iterator>

namespace orvcad {

/** How element types look on a plan: which lies over which, and how strongly they are filled. */
struct PlanStyle
{
    qint64 type;
    double fillOpacity; ///< 0 draws the outline alone
    double stroke;      ///< width of the outline, mm of paper
    bool dashed;        ///< stands above the section plane
};

/** From the bottom of the picture to its top. */
constexpr PlanStyle kPlanStyles[] = {
    {48, 0.25, 0.18, false}, {19, 0.18, 0.13, false},   {54, 0.40, 0.18, false},   {53, 0.30, 0.18, false},
    {52, 0.30, 0.18, false}, {83, 0.30, 0.13, false},   {82, 0.30, 0.13, false},   {24, 0.0, 0.18, false},
    {15, 0.14, 0.13, true},  {17, 0.14, 0.13, true},    {18, 0.14, 0.13, true},    {47, 0.14, 0.13, true},
    {1, 0.85, 0.18, false},  {202, 0.85, 0.18, false},  {1001, 0.85, 0.18, false}, {1003, 0.85, 0.18, false},
    {0, 0.90, 0.18, false},  {1002, 0.95, 0.18, false}, {26, 0.95, 0.18, false},   {25, 0.95, 0.18, false},
    {7, 1.0, 0.25, false},   {6, 1.0, 0.25, false},     {5, 1.0, 0.25, false},     {4, 1.0, 0.25, false},
    {49, 0.0, 0.13, true},   {22, 0.0, 0.13, true},     {50, 0.0, 0.18, false},    {23, 0.0, 0.18, false},
    {75, 0.0, 0.13, true},   {74, 0.0, 0.13, true},
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
