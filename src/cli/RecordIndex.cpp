#include "cli/RecordIndex.h"

#include "cli/TypeTitles.h"

using namespace hbx::embedded;

namespace orvcad {

RecordIndex::RecordIndex(const ProjectRecord &project)
{
    for (const ElementRecord &element : project.elements)
        elements.insert(element.id, &element);
    for (const DrawObjRecord &object : project.drawObjs)
        objects.insert(object.id, &object);
}

QJsonValue RecordIndex::words(const ElementRecord *element)
{
    return element ? QJsonValue(QStringLiteral("%1 %2").arg(typeTitle(element->type), element->name))
                   : QJsonValue(QJsonValue::Null);
}

QJsonValue RecordIndex::words(qint64 objectId) const
{
    const DrawObjRecord *object = objects.value(objectId);
    if (!object)
        return QJsonValue::Null;
    return QStringLiteral("%1, object %2").arg(words(elements.value(object->elementId)).toString()).arg(objectId);
}

} // namespace orvcad
