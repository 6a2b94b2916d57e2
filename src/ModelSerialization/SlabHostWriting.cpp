#include "ModelSerialization/SlabHostWriting.h"

#include "platform/host/HBXModelException.h"
#include "platform/host/IHBXCheck.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"

namespace slabhost {
namespace {

QString freeName(IHBXElements &elements, const IHBXFloor &floor, const QString &name, qint64 type)
{
    QString candidate = name;
    for (int suffix = 1; elements.findElement(candidate, floor.id(), type, true, 0); ++suffix)
        candidate = name + QLatin1Char('-') + QString::number(suffix);
    return candidate;
}

/** Gives a new element what it needs; one that refuses it is removed. */
bool wasFilled(IHBXElement &element, const std::function<void(IHBXElement &)> &fill)
{
    try {
        fill(element);
        return true;
    } catch (const HBXModelException &) {
        element.remove();
        return false;
    }
}

} // namespace

IHBXElementDrawObj *createDrawObj(const SlabTarget &target, IHBXElement &element)
{
    return target.model.drawObjects()->createDrawObj(&target.floor, &element, true);
}

bool passesCheck(const SlabTarget &target, IHBXElementDrawObj &object)
{
    HBXCheckError error;
    std::map<qint64, QString> collisions;
    return target.model.checker()->checkDrawObj(&object, error, collisions);
}

IHBXElement *buildOneHBXElement(IHBXModel *model, IHBXFloor *floor, const QString &name, int type, int subType)
{
    if (!model || !floor)
        return nullptr;
    IHBXElements &elements = *model->elements();
    const QString free = freeName(elements, *floor, name, type);
    IHBXElement *element = elements.createElement(type, subType, floor, QString());
    const auto rename = [&free](IHBXElement &made) { made.setName(free); };
    return element && wasFilled(*element, rename) ? element : nullptr;
}

GroupElement elementFor(const SlabTarget &target, const ElementRule &rule)
{
    IHBXElement *found = target.model.elements()->findElement(rule.name, target.floor.id(), rule.type, true, 0);
    const IHBXProperties *properties = found ? found->properties() : nullptr;
    if (properties && rule.matches(*properties))
        return {found->id(), false};
    IHBXElement *made = buildOneHBXElement(&target.model, &target.floor, rule.name, static_cast<int>(rule.type),
                                           static_cast<int>(rule.subType));
    return made && made->properties() && wasFilled(*made, rule.fill) ? GroupElement{made->id(), true} : GroupElement();
}

IHBXElement *elementOf(const SlabTarget &target, GroupElement &group, const ElementRule &rule)
{
    IHBXElements &elements = *target.model.elements();
    if (group.id < 0)
        return nullptr;
    if (!elements.elementById(group.id))
        group = elementFor(target, rule);
    return elements.elementById(group.id);
}

IHBXElementDrawObj *writtenOrNull(const std::function<IHBXElementDrawObj *()> &write)
{
    try {
        return write();
    } catch (const HBXModelException &) {
        return nullptr; // its guard has taken the draw object away: the next one goes on
    }
}

} // namespace slabhost
