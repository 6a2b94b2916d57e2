#pragma once

#include <QString>

namespace orvcad {

// How element types look on a plan. Colours are those of hbx::kElementTypes; a type that no plan shows is drawn as a thin
// outline. Attributes are SVG text.

/** Place of a type from the bottom of the picture up; types that no plan shows lie at the top. */
int planOrder(qint64 type);

/** How the lines of a type are drawn. */
struct PlanLine
{
    QString colour;     ///< #rrggbb
    double width = 0.0; ///< mm of paper
    QString dashes;     ///< lengths of dashes and gaps, mm of paper; empty for a line without gaps
};
PlanLine planLine(qint64 type);

/** The colour that the outlines of a type are filled with, more or less densely: #rrggbb, or #fff for what is no body. */
QString planFillColour(qint64 type);
/** What the outlines of a type are filled with. */
QString planFill(qint64 type);
/** An area in one of the shades of its type. */
QString planShade(qint64 type, double opacity);
/** The lines of a type: colour, width and dashes. */
QString planStroke(qint64 type);
/** The colour of a type, darkened where a thin line of it would not be seen on paper: #rrggbb. */
QString planStrokeColour(qint64 type);

/** True for what is filled so darkly that dark letters would not be seen on it. */
bool isDarkOnPlan(qint64 type);
/** True for what no name of something else may lie on. */
bool keepsNamesOff(qint64 type);
/** True for what is filled strongly enough that its name may stand beside it. */
bool isNamedBeside(qint64 type);

} // namespace orvcad
