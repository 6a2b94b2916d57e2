// The host against the core of the contract.

#include "MemoryModel.h"

#include <HostContract.h>

namespace {

/** The building that HostContractFactory tells of, without the axis grid and the options. */
class Building
{
public:
    Building()
    {
        MemoryModel &model = m_host.memoryModel();
        MemoryRegion &house = model.addRegion(QStringLiteral("House"));
        model.addFloor(house, {QStringLiteral("Foundation"), QStringLiteral("0"), -1.5, 1.5, 1, true, {}});
        m_host.select(model.addFloor(
            house, {QStringLiteral("Level 1"), QStringLiteral("1"), 0, 3, 1, false, QStringLiteral("ground")}));
        model.addFloor(house, {QStringLiteral("Level 2"), QStringLiteral("2"), 3, 2.8, 4, false, {}});
        MemoryRegion &annex = model.addRegion(QStringLiteral("Annex"));
        placeColumn(model.addFloor(annex, {QStringLiteral("Yard"), QStringLiteral("1"), 0.5, 4, 1, false, {}}));
    }

    IHBXService &service() { return m_host; }

private:
    void placeColumn(IHBXFloor &yard)
    {
        IHBXDrawObjs &objects = *m_host.memoryModel().drawObjects();
        IHBXElement *column = m_host.memoryModel().elements()->createElement(25, 0, &yard, QStringLiteral("K1"));
        IHBXElementDrawObj *placed = objects.createDrawObj(&yard, column, true);
        dynamic_cast<MemoryObject &>(*placed).setSection(7, 2);
        objects.addDrawObj(placed);
    }

    MemoryHost m_host;
};

class MemoryHostFactory : public HostContractFactory
{
public:
    const char *name() const override { return "Memory"; }
    std::shared_ptr<IHBXService> makeHost() const override
    {
        const auto building = std::make_shared<Building>();
        return {building, &building->service()};
    }
    HostContractTerms terms() const override
    {
        HostContractTerms terms;
        terms.types = {0, 1, 4, 5, 6, 7, 15, 17, 18, 19, 22, 23, 24, 25, 47, 48, 52, 74, 202, 1001, 1002, 1003};
        terms.hasDatabase = false;
        return terms;
    }
};

const MemoryHostFactory factory;

ORVCAD_INSTANTIATE_HOST_CORE(Memory, factory);

} // namespace
