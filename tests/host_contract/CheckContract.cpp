#include "HostContract.h"

#include "HostContractGeometry.h"
#include "platform/host/IHBXCheck.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXFaceShape2D.h"
#include "platform/host/IHBXFaceSolidShape.h"
#include "platform/host/IHBXLineShape2D.h"

using namespace host_contract;

namespace {

/** What a check said; both records hold something before, which the check must drop. */
struct Verdict
{
    Verdict(IHBXModel &model, IHBXElementDrawObj *drawObj)
    {
        error.reason = QStringLiteral("from before");
        collisions[-7] = QStringLiteral("from before");
        isAcceptable = need(model.checker(), "check object").checkDrawObj(drawObj, error, collisions);
    }

    bool isAcceptable = false;
    HBXCheckError error;
    std::map<qint64, QString> collisions;
};

::testing::AssertionResult accepts(IHBXModel &model, IHBXElementDrawObj &drawObj)
{
    const Verdict verdict(model, &drawObj);
    if (verdict.isAcceptable && verdict.error.reason.isEmpty() && verdict.collisions.empty())
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "refused or not cleared: " << verdict.error.reason.toStdString();
}

::testing::AssertionResult refusesAlone(IHBXModel &model, IHBXElementDrawObj *drawObj)
{
    const Verdict verdict(model, drawObj);
    if (!verdict.isAcceptable && !verdict.error.reason.isEmpty() && verdict.collisions.empty())
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "accepted, without a reason, or with collisions: reason \""
                                         << verdict.error.reason.toStdString() << "\", collisions "
                                         << verdict.collisions.size();
}

::testing::AssertionResult refusesFor(IHBXModel &model, IHBXElementDrawObj &drawObj, const IHBXElementDrawObj &other)
{
    const Verdict verdict(model, &drawObj);
    const auto found = verdict.collisions.find(other.id());
    const bool isTold = verdict.collisions.size() == 1 && found != verdict.collisions.end() && !found->second.isEmpty();
    if (!verdict.isAcceptable && !verdict.error.reason.isEmpty() && isTold)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "accepted, or the collision is not told: reason \""
                                         << verdict.error.reason.toStdString() << "\", collisions "
                                         << verdict.collisions.size();
}

void outline(IHBXElementDrawObj &slab, double left, double bottom, double right, double top)
{
    shapeOf<IHBXFaceSolidShape>(slab).setPolygon(rectangle(left, bottom, right, top));
}

} // namespace

template <typename Shape> HostCheckContract::Twins HostCheckContract::twins(qint64 type) const
{
    IHBXElement &element = makeElement(type);
    const Twins twins{placed(element), makeDrawObj(element)};
    for (IHBXElementDrawObj *drawObj : {&twins.there, &twins.again})
        shapeOf<Shape>(*drawObj).setPolygon(rectangle(0, 0, 5000, 4000));
    return twins;
}

HostCheckContract::Twins HostCheckContract::slabs() const { return twins<IHBXFaceSolidShape>(19); }

HostCheckContract::Twins HostCheckContract::areaBars() const { return twins<IHBXFaceShape2D>(22); }

TEST_P(HostCheckContract, nothingIsNotAcceptable) { EXPECT_TRUE(refusesAlone(model(), nullptr)); }

TEST_P(HostCheckContract, objectWithGeometryIsAcceptableBeforeAndAfterItIsEntered)
{
    IHBXElementDrawObj &slab = makeDrawObj(makeElement(19));
    outline(slab, 0, 0, 5000, 4000);
    EXPECT_TRUE(accepts(model(), slab));
    drawObjs().addDrawObj(&slab);
    EXPECT_TRUE(accepts(model(), slab));
}

TEST_P(HostCheckContract, objectWithoutGeometryIsRefused)
{
    for (const qint64 type : {15, 19, 22, 23, 48})
        EXPECT_TRUE(refusesAlone(model(), &makeDrawObj(makeElement(type)))) << type;
}

TEST_P(HostCheckContract, outlineThatCrossesItselfIsRefused)
{
    IHBXElementDrawObj &slab = makeDrawObj(makeElement(19));
    shapeOf<IHBXFaceSolidShape>(slab).setPolygon(polygonOf({{0, 0}, {4000, 4000}, {4000, 0}, {0, 4000}}));
    EXPECT_TRUE(refusesAlone(model(), &slab));
}

TEST_P(HostCheckContract, outlineWithoutAreaIsRefused)
{
    IHBXElementDrawObj &bar = makeDrawObj(makeElement(22));
    shapeOf<IHBXFaceShape2D>(bar).setPolygon(polygonOf({{0, 0}, {4000, 0}, {2000, 0}}));
    EXPECT_TRUE(refusesAlone(model(), &bar));
}

TEST_P(HostCheckContract, curveOfNoLengthIsRefused)
{
    IHBXElementDrawObj &bar = makeDrawObj(makeElement(23));
    shapeOf<IHBXLineShape2D>(bar).setLine(line(1000, 1000, 1000, 1000));
    EXPECT_TRUE(refusesAlone(model(), &bar));
    IHBXElement &element = makeElement(15);
    propertiesOf(element).setDouble(L"SectionWidth", 300, true);
    IHBXElementDrawObj &beam = makeDrawObj(element);
    shapeOf<IHBXCustomLineSolidShape>(beam).setLine(line(1000, 1000, 1000, 1000));
    EXPECT_TRUE(refusesAlone(model(), &beam));
}

TEST_P(HostCheckContract, objectThatIsTheSameAsAnEnteredOneIsRefusedAndNamesIt)
{
    const auto &[there, again] = slabs();
    EXPECT_TRUE(refusesFor(model(), again, there));
    IHBXElementDrawObj &ofAnotherElement = makeDrawObj(makeElement(19));
    outline(ofAnotherElement, 0, 0, 5000, 4000);
    EXPECT_TRUE(refusesFor(model(), ofAnotherElement, there));
}

TEST_P(HostCheckContract, everyEnteredObjectThatIsTheSameIsNamed)
{
    IHBXElement &element = makeElement(19);
    IHBXElementDrawObj &first = placed(element);
    IHBXElementDrawObj &second = placed(element);
    IHBXElementDrawObj &third = makeDrawObj(element);
    for (IHBXElementDrawObj *slab : {&first, &second, &third})
        outline(*slab, 0, 0, 5000, 4000);
    const Verdict verdict(model(), &third);
    EXPECT_FALSE(verdict.isAcceptable);
    EXPECT_EQ(verdict.collisions.size(), 2u);
    EXPECT_EQ(verdict.collisions.count(first.id()), 1u);
    EXPECT_EQ(verdict.collisions.count(second.id()), 1u);
}

TEST_P(HostCheckContract, objectThatIsNotEnteredStandsInNobodysWay)
{
    IHBXElement &element = makeElement(19);
    IHBXElementDrawObj &waiting = makeDrawObj(element);
    IHBXElementDrawObj &slab = makeDrawObj(element);
    outline(waiting, 0, 0, 5000, 4000);
    outline(slab, 0, 0, 5000, 4000);
    EXPECT_TRUE(accepts(model(), slab));
}

TEST_P(HostCheckContract, objectOfAnotherPlaceTypeFloorOrElevationIsAcceptable)
{
    outline(placed(19), 0, 0, 5000, 4000);
    IHBXElementDrawObj &beside = makeDrawObj(makeElement(19));
    outline(beside, 5000, 0, 9000, 4000);
    EXPECT_TRUE(accepts(model(), beside));
    IHBXElementDrawObj &overlapping = makeDrawObj(makeElement(19));
    outline(overlapping, 0, 0, 5000, 3000);
    EXPECT_TRUE(accepts(model(), overlapping));
    IHBXElementDrawObj &raft = makeDrawObj(makeElement(48));
    outline(raft, 0, 0, 5000, 4000);
    EXPECT_TRUE(accepts(model(), raft));
    IHBXElementDrawObj &above = makeDrawObj(makeElement(19, floor("2")));
    outline(above, 0, 0, 5000, 4000);
    EXPECT_TRUE(accepts(model(), above));
}

TEST_P(HostCheckContract, objectAtAnotherElevationIsAcceptable)
{
    IHBXElementDrawObj &there = placed(19);
    IHBXElementDrawObj &lower = makeDrawObj(makeElement(19));
    for (IHBXElementDrawObj *slab : {&there, &lower})
        outline(*slab, 0, 0, 5000, 4000);
    propertiesOf(there).setString(L"TopElev", QStringLiteral("3"), false);
    propertiesOf(lower).setString(L"TopElev", QStringLiteral("2.5"), false);
    EXPECT_TRUE(accepts(model(), lower));
    propertiesOf(lower).setString(L"TopElev", QString::fromUtf8("层顶标高"), false); // 3 m on Level 1
    EXPECT_TRUE(refusesFor(model(), lower, there));
}

TEST_P(HostCheckContract, lineBarsAreTheSameWhenTheyShareTheirWholeLength)
{
    IHBXElement &element = makeElement(23);
    IHBXElementDrawObj &there = placed(element);
    shapeOf<IHBXLineShape2D>(there).setLine(line(0, 0, 3000, 0));
    IHBXElementDrawObj &bar = makeDrawObj(element);
    shapeOf<IHBXLineShape2D>(bar).setLine(line(0, 0, 3000, 0));
    EXPECT_TRUE(refusesFor(model(), bar, there));
    shapeOf<IHBXLineShape2D>(bar).setLine(line(0, 0, 2000, 0));
    EXPECT_TRUE(accepts(model(), bar));
}

TEST_P(HostCheckContract, barsOfOneAreaAreAcceptableWhenPositionOrBarsDiffer)
{
    const auto &[there, bar] = areaBars();
    EXPECT_TRUE(refusesFor(model(), bar, there));
    propertiesOf(bar).setInt(L"Position", 1, true);
    EXPECT_TRUE(accepts(model(), bar));
    propertiesOf(there).setInt(L"Position", 1, true);
    EXPECT_TRUE(refusesFor(model(), bar, there));
    propertiesOf(bar).setString(L"BarInfo", QStringLiteral("C8@200"), true);
    EXPECT_TRUE(accepts(model(), bar));
}

TEST_P(HostCheckContract, barsOfOneAreaAreAcceptableWhenTypeOrCurveDiffer)
{
    const auto &[there, bar] = areaBars();
    propertiesOf(bar).setInt(L"Type", 1, true);
    EXPECT_TRUE(accepts(model(), bar));
    propertiesOf(there).setInt(L"Type", 1, true);
    EXPECT_TRUE(refusesFor(model(), bar, there));
    propertiesOf(bar).setCurve(L"CurveData", line(0, 0, 5000, 0), false);
    EXPECT_TRUE(accepts(model(), bar));
    propertiesOf(there).setCurve(L"CurveData", line(0, 0, 5000, 0), false);
    EXPECT_TRUE(refusesFor(model(), bar, there));
}

TEST_P(HostCheckContract, checkChangesNothingInTheModel)
{
    const auto &[there, again] = slabs();
    const int before = drawObjs().count();
    EXPECT_FALSE(Verdict(model(), &again).isAcceptable);
    EXPECT_EQ(drawObjs().count(), before);
    EXPECT_EQ(drawObjs().drawObjById(again.id()), &again);
    EXPECT_EQ(there.element()->drawObjCount(), 1);
    again.remove();
    EXPECT_TRUE(isBox(*there.shape(), 0, 0, 5000, 4000));
}
