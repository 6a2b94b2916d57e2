#include "faults/ProjectCheck.h"

#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXService.h"

namespace faults {
namespace {

using hbx::embedded::HBXProject;
using hbx::embedded::JournalEntry;
using Objects = QList<IHBXElementDrawObj *>;

bool isEntered(IHBXModel &model, IHBXElementDrawObj *object)
{
    for (int i = 0; i < model.drawObjects()->count(); ++i)
        if (model.drawObjects()->at(i) == object)
            return true;
    return false;
}

QString fault(const char *what, qint64 id) { return QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(id); }

QString brokenElement(IHBXModel &model, IHBXElement &element)
{
    QString name;
    if (element.name(name).isEmpty())
        return fault("no name: element", element.id());
    if (!element.region() || !element.floor() || !element.properties())
        return fault("no region, floor or properties: element", element.id());
    if (model.elements()->elementById(element.id()) != &element)
        return fault("not found by its id: element", element.id());
    if (IHBXElement *parent = element.parent())
        if (model.elements()->elementById(parent->id()) != parent)
            return fault("parent is gone: element", element.id());
    Objects objects;
    element.drawObjs(objects, 0);
    if (objects.size() != element.drawObjCount())
        return fault("wrong number of draw objects: element", element.id());
    for (IHBXElementDrawObj *object : qAsConst(objects))
        if (object->element() != &element)
            return fault("draw object of another element: element", element.id());
    return {};
}

QString brokenChain(IHBXModel &model, IHBXElementDrawObj &object)
{
    IHBXElementDrawObj *next = object.nextInChain();
    if (!next)
        return {};
    if (!isEntered(model, next) || next->chainHead() != object.chainHead())
        return fault("broken chain: draw object", object.id());
    return {};
}

QString brokenDrawObj(IHBXModel &model, IHBXElementDrawObj &object)
{
    IHBXElement *element = object.element();
    if (!element || model.elements()->elementById(element->id()) != element)
        return fault("element is gone: draw object", object.id());
    if (!object.floor() || !object.region() || !object.properties() || !object.status())
        return fault("no floor, region, properties or status: draw object", object.id());
    if (object.parent() && !isEntered(model, object.parent()))
        return fault("parent is gone: draw object", object.id());
    for (int i = 0; i < object.childCount(); ++i)
        if (object.child(i)->parent() != &object)
            return fault("child of another object: draw object", object.id());
    return brokenChain(model, object);
}

} // namespace

QString brokenLink(const HBXProject &project)
{
    IHBXModel &model = *project.service()->model();
    for (int i = 0; i < model.elements()->count(); ++i)
        if (QString broken = brokenElement(model, *model.elements()->at(i)); !broken.isEmpty())
            return broken;
    for (int i = 0; i < model.drawObjects()->count(); ++i)
        if (QString broken = brokenDrawObj(model, *model.drawObjects()->at(i)); !broken.isEmpty())
            return broken;
    return {};
}

QString notReadAgain(const QByteArray &json)
{
    hbx::embedded::ProjectError error;
    const auto copy = HBXProject::fromJson(json, QStringLiteral("copy"), error);
    if (!copy)
        return error.text();
    return copy->toJson() == json ? QString() : QStringLiteral("another text when read again");
}

int openBrackets(const HBXProject &project)
{
    int open = 0;
    for (const JournalEntry &entry : project.journal().entries())
        open += entry.kind == JournalEntry::kBracketOpened ? 1 : entry.kind == JournalEntry::kBracketClosed ? -1 : 0;
    return open;
}

} // namespace faults
