#pragma once

#include "cli/PlanContents.h"
#include "cli/PlanLabels.h"

#include <QString>

#include <functional>

namespace orvcad {

class SvgPage;

/** What a page that can be asked says of each thing on it. */
struct PlanMarks
{
    using Mark = std::function<QString(const PlanObject &)>;

    Mark object; ///< attributes of a group around all that is drawn of an object; without it there is no such group
    Mark name;   ///< further attributes of its name or bar text, with a blank in front
};

/** Paints the plan of a floor onto a page: objects by type from the bottom up, and names where there is room for them. */
class PlanPainter
{
public:
    /** Page and contents must outlive the painter. */
    PlanPainter(SvgPage &page, const PlanContents &contents, PlanMarks marks = {});

    /** Lays a box of the plan onto the middle of the sheet's plan, at a round scale at which it fits with the labels of axes
     *  around it. A box that is not valid is that of a floor with nothing on it.
     *  @return 100 for 1:100 */
    static double layOut(SvgPage &page, const vks::CBox2<double> &box);

    /** Everything of a type stands in a group of the class type-N. */
    void paintObjects();
    /** @param scale  as layOut gave it */
    void paintNames(double scale);

private:
    void paintMarked(const PlanObject &placed);
    void paintObject(const PlanObject &placed);
    void paintPane(const vks::CPolygon &outline);
    void paintVoid(const vks::CPolygon &outline);
    QString areaFillOf(const PlanObject &placed) const;
    void paintAxis(const PlanObject::Axis &axis, const QString &stroke);
    void paintName(PlanLabels &labels, const PlanObject &placed);
    void paintBarText(PlanLabels &labels, const PlanObject &placed);
    QString nameMark(const PlanObject &placed) const { return m_marks.name ? m_marks.name(placed) : QString(); }

    SvgPage &m_page;
    const PlanContents &m_contents;
    PlanMarks m_marks;
};

} // namespace orvcad
