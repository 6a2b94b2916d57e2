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

using ElementGuard = MadeGuard<IHBXElement>;

/** Runs a step; what the host refuses in its own way gives the result of none. */
template <typename Step> auto resultUnlessRefused(const Step &step) -> decltype(step())
{
    try {
        return step();
    } catch (const HBXModelException &) {
        return {}; // guards have taken away what was made
    }
}

GroupElement madeFor(const SlabTarget &target, const ElementRule &rule)
{
    ElementGuard made(buildOneHBXElement(&target.model, &target.floor, rule.name, static_cast<int>(rule.type),
                                         static_cast<int>(rule.subType)));
    const auto isFilled = [&rule](IHBXElement &element) {
        IHBXProperties *properties = element.properties();
        if (properties)
            rule.fill(element, *properties);
        return properties != nullptr;
    };
    const std::optional<qint64> id = made.keptIf(isFilled);
    return id ? GroupElement{*id, true} : GroupElement();
}

GroupElement foundOrMade(const SlabTarget &target, const ElementRule &rule)
{
    IHBXElement *found = target.model.elements()->findElement(rule.name, target.floor.id(), rule.type, true, 0);
    const IHBXProperties *properties = found ? found->properties() : nullptr;
    return properties && rule.matches(*properties) ? GroupElement{found->id(), false} : madeFor(target, rule);
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
    return resultUnlessRefused([&]() -> IHBXElement * {
        ElementGuard made(elements.createElement(type, subType, floor, QString()));
        if (made.get())
            made.get()->setName(free);
        return made.release();
    });
}

GroupElement elementFor(const SlabTarget &target, const ElementRule &rule)
{
    return resultUnlessRefused([&] { return foundOrMade(target, rule); });
}

IHBXElement *elementOf(const SlabTarget &target, GroupElement &group, const ElementRule &rule)
{
    if (group.id < 0)
        return nullptr;
    return resultUnlessRefused([&]() -> IHBXElement * {
        IHBXElements &elements = *target.model.elements();
        if (!elements.elementById(group.id))
            group = elementFor(target, rule);
        return elements.elementById(group.id);
    });
}

DrawObjId writtenOrNone(const std::function<DrawObjId()> &write) { return resultUnlessRefused(write); }

GroupElements::~GroupElements()
{
    for (std::size_t i = 0; i < m_elements.size(); ++i)
        done(i);
}

void GroupElements::add(const ElementRule &rule) { m_elements.push_back(elementFor(m_target, rule)); }

void GroupElements::done(std::size_t group)
{
    if (!std::exchange(m_elements[group].created, false))
        return;
    try {
        IHBXElement *element = m_target.model.elements()->elementById(m_elements[group].id);
        if (element && element->drawObjCount() == 0)
            element->remove();
    } catch (...) {
        // A host that does not take it back keeps it: the next group goes on, and the way out may be another exception.
    }
}

} // namespace slabhost
