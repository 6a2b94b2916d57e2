#include "platform/services/WLRReinfInfoOperator.h"

#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXProperties.h"
#include "platform/services/HBXPropertyNames.h"

#include <QString>

using hbx::property::reinforcementInfo;

namespace {

/** Whether an item begins with an id. The text is searched as it stands: that of a large slab has thousands of items. */
bool names(const QString &links, const QString &id)
{
    const QString start = id + QLatin1Char(',');
    return links.startsWith(start) || links.contains(QLatin1Char(';') + start);
}

void addLink(IHBXElementDrawObj *from, const IHBXElementDrawObj *to, int kind)
{
    IHBXProperties *properties = from && to ? from->properties() : nullptr;
    if (!properties || !properties->hasProperty(reinforcementInfo))
        return;
    QString links;
    const QString id = QString::number(to->id());
    if (!names(properties->asString(links, reinforcementInfo), id))
        properties->setString(reinforcementInfo, links + QStringLiteral("%1,%2;").arg(id).arg(kind), true);
}

} // namespace

// The objects know their host themselves.
WLRReinfInfoOperator::WLRReinfInfoOperator(IHBXService *) {}

void WLRReinfInfoOperator::addReinfInfo2Reinf(IHBXElementDrawObj *bar, IHBXElementDrawObj *slab, int kind)
{
    addLink(bar, slab, kind);
}

void WLRReinfInfoOperator::addReinfInfo2Slab(IHBXElementDrawObj *slab, IHBXElementDrawObj *bar, int kind)
{
    addLink(slab, bar, kind);
}
