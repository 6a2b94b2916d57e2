#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

/** Figures of the documents, in which the kernel is asked what is drawn. */
namespace docs {

/** A pair of shapes in kernel text, mm, within a cell of 1000 by 700, and the relation that they are drawn for. */
struct RelationCase
{
    int value;
    const char *meaning; ///< below the number
    const char *a;
    const char *b;
};

/** A figure: a cell for each case. */
struct RelationFigure
{
    QString name;  ///< of the file, without its ending
    QString title; ///< the function
    std::vector<RelationCase> cases;
    int (*relation)(const RelationCase &pair); ///< asks the kernel
    int columns;
};

/** One figure each for polyPolyPosition, linePolyPosition and GetCurveCurvePosition. */
std::vector<RelationFigure> relationFigures();

/** The figure as an SVG page. Throws std::logic_error where the kernel tells another value than a case is drawn for. */
QByteArray drawn(const RelationFigure &figure);

} // namespace docs
