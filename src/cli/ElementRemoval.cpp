#include "cli/ElementRemoval.h"

#include "platform/host/HBXBatch.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElements.h"

namespace orvcad {

int removeElements(IHBXModel &model, const QSet<qint64> &floorIds, const QSet<qint64> &types, const std::string &batch)
{
    const HBXBatch brackets(model, batch);
    QList<IHBXElement *> elements;
    model.elements()->queryElements(elements, floorIds, types, true);
    for (IHBXElement *element : qAsConst(elements))
        element->remove();
    return elements.size();
}

} // namespace orvcad
