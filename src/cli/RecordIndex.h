#pragma once

#include "platform/embedded/HBXProjectRecords.h"

#include <QHash>
#include <QJsonValue>

namespace orvcad {

/** Elements and draw objects of a project by id, and what they are called. The project must outlive it. */
struct RecordIndex
{
    explicit RecordIndex(const hbx::embedded::ProjectRecord &project);

    /** "brick wall Q1"; null for none. */
    static QJsonValue words(const hbx::embedded::ElementRecord *element);
    /** What a link leads to: "brick wall Q1, object 17"; null where it leads nowhere. */
    QJsonValue words(qint64 objectId) const;

    QHash<qint64, const hbx::embedded::ElementRecord *> elements;
    QHash<qint64, const hbx::embedded::DrawObjRecord *> objects;
};

} // namespace orvcad
