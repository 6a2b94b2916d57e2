#pragma once

#include "cli/PlanContents.h"

#include <QByteArray>
#include <QList>
#include <QString>

class IHBXFloor;
class IHBXModel;

namespace orvcad {

class HtmlModel;

/** The plan of a floor within a page: a section with a heading, the plan as SVG and a legend for paper. Each object is a group
 *  of the class o with its place in the model (data-o) and, where it is not the same as it was, what became of it (data-d). */
class HtmlPlan
{
public:
    /** The model must have the floor, and outlive the plan.
     *  @param name  of region and floor */
    HtmlPlan(const HtmlModel &model, QString name) : m_model(model), m_name(std::move(name)) {}

    void add(IHBXModel &model, const IHBXFloor &floor);
    /** What the earlier project has there and the other one has not, or elsewhere. */
    void addEarlier(IHBXModel &model, const IHBXFloor &floor);

    int drawn() const { return static_cast<int>(m_now.objects.size()); }
    int withoutGeometry() const { return m_now.withoutGeometry; }
    QList<qint64> types() const;
    /** @param place  of the floor on the page */
    QByteArray section(int place, const IHBXFloor &floor) const;

private:
    QByteArray plan() const;
    QByteArray legend() const;

    const HtmlModel &m_model;
    QString m_name;
    PlanContents m_now;
    PlanContents m_then;
};

} // namespace orvcad
