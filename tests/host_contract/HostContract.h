#pragma once

#include "HostContractFactory.h"

#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXService.h"
#include "platform/host/IHBXShape.h"

#include <gtest/gtest.h>

#include <QString>

#include <array>
#include <cstddef>
#include <stdexcept>

class IHBXCustomPointSolidShape;

// The contract to which whatever implements the abstract host is held: a suite for each part of the interfaces, run on
// the hosts of a HostContractFactory. A vendor runs it against a host of its own with one source file:
//
//     #include "HostContract.h"
//
//     namespace {
//     class MyHostFactory : public HostContractFactory
//     {
//     public:
//         const char *name() const override { return "MyHost"; }
//         std::shared_ptr<IHBXService> makeHost() const override { ... }
//     };
//     const MyHostFactory factory;
//     ORVCAD_INSTANTIATE_HOST_CONTRACT(MyHost, factory);
//     } // namespace
//
// linked with the target ORVCADModelData::HostContract and a main() of GoogleTest. docs/host-contract.md says the rest. A
// host that is to receive replies only starts with ORVCAD_INSTANTIATE_HOST_CORE.

/** The last part of a test's name: the factory's. */
std::string hostContractName(const ::testing::TestParamInfo<const HostContractFactory *> &info);

/** Base of all suites: a fresh host, and short ways to make things in it. What the suite cannot do without is checked by
 *  an exception, which fails the one test. */
class HostContract : public ::testing::TestWithParam<const HostContractFactory *>
{
protected:
    HostContract();
    ~HostContract() override;

    IHBXService &service() const { return *m_service; }
    IHBXModel &model() const;
    IHBXElements &elements() const;
    IHBXDrawObjs &drawObjs() const;
    const HostContractTerms &terms() const { return m_terms; }

    IHBXRegion &region(const char *name) const;
    /** A floor of House by its code. */
    IHBXFloor &floor(const char *code) const;
    /** The floor where most tests build: Level 1 of House. */
    IHBXFloor &level1() const { return floor("1"); }
    /** The one draw object of a type in Annex. */
    IHBXElementDrawObj &annexObject(int type) const;

    /** A new element on Level 1. */
    IHBXElement &makeElement(qint64 type, const QString &name = QString()) const;
    IHBXElement &makeElement(qint64 type, IHBXFloor &floor, const QString &name = QString()) const;
    IHBXElement &makeUnit(qint64 type, IHBXElement &parent, const QString &name = QString()) const;
    /** A new draw object on its element's floor, not entered. */
    IHBXElementDrawObj &makeDrawObj(IHBXElement &element) const;
    /** The same, entered. */
    IHBXElementDrawObj &placed(IHBXElement &element) const;
    /** Of a new element on Level 1. */
    IHBXElementDrawObj &placed(qint64 type) const { return placed(makeElement(type)); }

private:
    HostContractTerms m_terms;
    std::shared_ptr<IHBXService> m_service;
};

namespace host_contract {

/** What a pointer leads to; throws for null, so that one missing thing fails one test. */
template <typename T> T &need(T *object, const char *what)
{
    if (!object)
        throw std::runtime_error(std::string("the host gives no ") + what);
    return *object;
}

template <typename Shape> Shape &shapeOf(IHBXElementDrawObj &drawObj)
{
    return need(dynamic_cast<Shape *>(drawObj.shape()), "shape of the kind that the type has");
}

template <typename Object> IHBXProperties &propertiesOf(Object &object)
{
    return need(object.properties(), "property set");
}

QString nameOf(const IHBXElement &element);
QString codeOf(const IHBXFloor &floor);
/** The value as the caller's own; reading must fill and return the same object. */
QString textOf(const IHBXProperties &properties, const std::wstring &name);

/** A list of the ids of what a query found, in the order found. */
template <typename Object> QList<qint64> idsOf(const QList<Object *> &objects)
{
    QList<qint64> ids;
    for (const Object *object : objects)
        ids.append(object->id());
    return ids;
}

} // namespace host_contract

class HostServiceContract : public HostContract
{};
class HostFloorContract : public HostContract
{};
class HostElementContract : public HostContract
{};
class HostElementQueryContract : public HostContract
{};
class HostUnitContract : public HostContract
{
protected:
    struct Foundation
    {
        IHBXElement &lower;          ///< unit
        IHBXElement &upper;          ///< unit
        IHBXElementDrawObj &drawObj; ///< of the foundation
    };
    /** A placed foundation with two units. */
    Foundation placedFoundation() const;
};
class HostDrawObjContract : public HostContract
{};
class HostDrawObjQueryContract : public HostContract
{};
class HostLinkContract : public HostContract
{
protected:
    /** So many draw objects of one new beam element, linked to nothing. */
    template <std::size_t Count> std::array<IHBXElementDrawObj *, Count> beams() const
    {
        IHBXElement &beam = makeElement(15);
        std::array<IHBXElementDrawObj *, Count> links{};
        for (IHBXElementDrawObj *&link : links)
            link = &placed(beam);
        return links;
    }
};
class HostPropertyContract : public HostContract
{};
class HostPropertyWriteContract : public HostContract
{};
class HostSinglePropertyContract : public HostContract
{};
class HostShapeContract : public HostContract
{};
class HostLineShapeContract : public HostContract
{};
class HostPointShapeContract : public HostContract
{
protected:
    /** The shape of a placed column whose outline is a right triangle, legs 400 and 200 along x and y, with its corner
     *  at the insertion point, which lies at (1000, 500). */
    IHBXCustomPointSolidShape &triangularColumn() const;
};
class HostAreaShapeContract : public HostContract
{};
class HostAxisGridContract : public HostContract
{};
class HostCheckContract : public HostContract
{
protected:
    struct Twins
    {
        IHBXElementDrawObj &there; ///< entered
        IHBXElementDrawObj &again; ///< not entered
    };
    /** Two draw objects of one element with the same outline. */
    template <typename Shape> Twins twins(qint64 type) const;
    Twins slabs() const;
    Twins areaBars() const;
};
class HostBatchContract : public HostContract
{};
class HostDatabaseContract : public HostContract
{};

// One suite of the contract on the hosts of a factory.
#define ORVCAD_INSTANTIATE_HOST_SUITE(prefix, suite, factory)                                                          \
    INSTANTIATE_TEST_SUITE_P(prefix, suite, ::testing::Values(static_cast<const HostContractFactory *>(&(factory))),   \
                             hostContractName)

// One suite that a host is not held to: GoogleTest calls a suite without a host a failure otherwise.
#define ORVCAD_LEAVE_OUT_HOST_SUITE(suite) GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(suite)

// What the replies of recognition take: regions and floors, elements, draw objects with their links, and properties.
#define ORVCAD_INSTANTIATE_HOST_CORE_SUITES(prefix, factory)                                                           \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostServiceContract, factory);                                               \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostFloorContract, factory);                                                 \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostElementContract, factory);                                               \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostElementQueryContract, factory);                                          \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostDrawObjContract, factory);                                               \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostDrawObjQueryContract, factory);                                          \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostLinkContract, factory);                                                  \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostPropertyContract, factory);                                              \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostPropertyWriteContract, factory);                                         \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostSinglePropertyContract, factory);                                        \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostBatchContract, factory)

// These alone. The other suites are left out: shapes in every detail, units of foundations, the axis grid, the check and the
// database.
#define ORVCAD_INSTANTIATE_HOST_CORE(prefix, factory)                                                                  \
    ORVCAD_INSTANTIATE_HOST_CORE_SUITES(prefix, factory);                                                              \
    ORVCAD_LEAVE_OUT_HOST_SUITE(HostUnitContract);                                                                     \
    ORVCAD_LEAVE_OUT_HOST_SUITE(HostShapeContract);                                                                    \
    ORVCAD_LEAVE_OUT_HOST_SUITE(HostLineShapeContract);                                                                \
    ORVCAD_LEAVE_OUT_HOST_SUITE(HostPointShapeContract);                                                               \
    ORVCAD_LEAVE_OUT_HOST_SUITE(HostAreaShapeContract);                                                                \
    ORVCAD_LEAVE_OUT_HOST_SUITE(HostAxisGridContract);                                                                 \
    ORVCAD_LEAVE_OUT_HOST_SUITE(HostCheckContract);                                                                    \
    ORVCAD_LEAVE_OUT_HOST_SUITE(HostDatabaseContract)

// All of it.
#define ORVCAD_INSTANTIATE_HOST_CONTRACT(prefix, factory)                                                              \
    ORVCAD_INSTANTIATE_HOST_CORE_SUITES(prefix, factory);                                                              \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostUnitContract, factory);                                                  \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostShapeContract, factory);                                                 \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostLineShapeContract, factory);                                             \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostPointShapeContract, factory);                                            \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostAreaShapeContract, factory);                                             \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostAxisGridContract, factory);                                              \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostCheckContract, factory);                                                 \
    ORVCAD_INSTANTIATE_HOST_SUITE(prefix, HostDatabaseContract, factory)
