#include "HostContract.h"

#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXRegions.h"

#include <ostream>

using host_contract::need;

void PrintTo(const HostContractFactory *factory, std::ostream *out) { *out << factory->name(); }

std::string hostContractName(const ::testing::TestParamInfo<const HostContractFactory *> &info)
{
    return info.param->name();
}

HostContract::HostContract() : m_terms(GetParam()->terms()), m_service(GetParam()->makeHost())
{
    need(m_service.get(), "service");
}

HostContract::~HostContract() = default;

IHBXModel &HostContract::model() const { return need(service().model(), "model"); }

IHBXElements &HostContract::elements() const { return need(model().elements(), "element store"); }

IHBXDrawObjs &HostContract::drawObjs() const { return need(model().drawObjects(), "draw object store"); }

IHBXRegion &HostContract::region(const char *name) const
{
    IHBXRegions &regions = need(model().regions(), "region collection");
    return need(regions.find(QString::fromLatin1(name)), name);
}

IHBXFloor &HostContract::floor(const char *code) const
{
    IHBXFloors &floors = need(region("House").floors(), "floor collection");
    return need(floors.findByCode(QString::fromLatin1(code)), "floor of that code");
}

IHBXElementDrawObj &HostContract::annexObject(int type) const
{
    IHBXFloors &floors = need(region("Annex").floors(), "floor collection");
    IHBXFloor &yard = need(floors.find(QStringLiteral("Yard")), "floor Yard");
    QList<IHBXElementDrawObj *> found;
    drawObjs().queryDrawObjsOfFloor(found, yard.id(), type, -1, true);
    return need(found.size() == 1 ? found.front() : nullptr, "single object of the type in Annex");
}

IHBXElement &HostContract::makeElement(qint64 type, const QString &name) const
{
    return makeElement(type, level1(), name);
}

IHBXElement &HostContract::makeElement(qint64 type, IHBXFloor &floor, const QString &name) const
{
    return need(elements().createElement(type, 0, nullptr, &floor, 0, name, 0), "new element");
}

IHBXElement &HostContract::makeUnit(qint64 type, IHBXElement &parent, const QString &name) const
{
    return need(elements().createElement(type, 0, &parent, parent.floor(), 2, name, 0), "new unit");
}

IHBXElementDrawObj &HostContract::makeDrawObj(IHBXElement &element) const
{
    return need(drawObjs().createDrawObj(element.floor(), &element, true), "new draw object");
}

IHBXElementDrawObj &HostContract::placed(IHBXElement &element) const
{
    IHBXElementDrawObj &drawObj = makeDrawObj(element);
    drawObjs().addDrawObj(&drawObj);
    return drawObj;
}

namespace host_contract {

QString nameOf(const IHBXElement &element)
{
    QString name = QStringLiteral("what stood there before");
    EXPECT_EQ(&element.name(name), &name);
    return name;
}

QString codeOf(const IHBXFloor &floor)
{
    QString code = QStringLiteral("what stood there before");
    EXPECT_EQ(&floor.code(code), &code);
    return code;
}

QString textOf(const IHBXProperties &properties, const std::wstring &name)
{
    QString text = QStringLiteral("what stood there before");
    EXPECT_EQ(&properties.asString(text, name), &text);
    return text;
}

} // namespace host_contract
