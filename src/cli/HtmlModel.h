#pragma once

#include "cli/ProjectDifference.h"
#include "cli/RecordIndex.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>

#include <vector>

namespace orvcad {

/** What a page knows of the elements and objects of its floors, as its scripts read it (html/model.js): each by its place in
 *  a list. Of two projects it has the later one, what is gone of the earlier one, and what changed. */
class HtmlModel
{
public:
    /** @param earlier     null on a page of one project
     *  @param difference  from the earlier project to the other one; null likewise. All of them must outlive the model. */
    HtmlModel(const hbx::embedded::ProjectRecord &project, const hbx::embedded::ProjectRecord *earlier,
              const ProjectDifference *difference);

    /** Adds a floor with all that stands on it.
     *  @param idBefore, idAfter  0 where the floor is not in that project */
    void addFloor(const QString &name, const QString &region, int idBefore, int idAfter);

    /** Place of an object of the project, and of one of the earlier project that is gone or changed; -1 for any other. */
    int placeOf(qint64 id) const { return m_places.value(id, -1); }
    int earlierPlaceOf(qint64 id) const { return m_earlierPlaces.value(id, -1); }
    /** What became of an object: "added" or "changed", which is what an object of a changed element is, too; empty for one
     *  that is the same. */
    QString stateOf(qint64 id) const { return m_states.value(id); }
    /** Likewise of an object of the earlier project: "gone", or "was" where its shape is another one now. */
    QString earlierStateOf(qint64 id) const { return m_earlierStates.value(id); }

    /** @param types  numbers in the order of the page */
    QJsonObject json(const QList<qint64> &types) const;

private:
    /** One of the two projects. */
    struct Side
    {
        explicit Side(const hbx::embedded::ProjectRecord &project);

        RecordIndex index;
        QHash<int, std::vector<const hbx::embedded::ElementRecord *>> elements;   ///< by floor, units too
        QHash<qint64, std::vector<const hbx::embedded::DrawObjRecord *>> objects; ///< by element
    };

    int addElement(const hbx::embedded::ElementRecord &element);
    int addObject(const Side &side, const hbx::embedded::DrawObjRecord &object, int element);
    void addFloorDifference(const ProjectDifference::Floor &difference);
    void addElementDifference(const ProjectDifference::Element &difference);
    void addObjectDifference(const ProjectDifference::Object &difference, int element);

    Side m_side;
    std::vector<Side> m_earlier; ///< one or none
    const ProjectDifference *m_difference;
    std::vector<QJsonObject> m_floors;
    std::vector<QJsonObject> m_elements;
    std::vector<QJsonArray> m_placed; ///< places of the objects of each element
    std::vector<QJsonObject> m_objects;
    QHash<qint64, int> m_elementPlaces;
    QHash<qint64, int> m_places;
    QHash<qint64, int> m_earlierPlaces;
    QHash<qint64, QString> m_states;
    QHash<qint64, QString> m_earlierStates;
    int m_first = 0; ///< floor with most objects
    std::size_t m_mostObjects = 0;
};

} // namespace orvcad
