#include "platform/host/IHBXFloor.h"

#include "platform/host/IHBXElementDrawObj.h"

#include <algorithm>

IHBXElementDrawObj *IHBXFloor::findDrawObj(qint64 id, const QSet<qint64> &types)
{
    QList<IHBXElementDrawObj *> objects;
    drawObjsOfTypes(objects, types, true);
    const auto found = std::find_if(objects.begin(), objects.end(),
                                    [id](const IHBXElementDrawObj *object) { return object->id() == id; });
    return found == objects.end() ? nullptr : *found;
}
