#include "HostContract.h"

#include "HostContractGeometry.h"
#include "platform/host/IHBXDrawObjStatus.h"
#include "platform/host/IHBXFaceSolidShape.h"
#include "platform/host/IHBXSection.h"
#include "platform/host/IHBXSectionHolder.h"

using namespace host_contract;

TEST_P(HostDrawObjContract, newDrawObjectTellsWhatItWasMadeOf)
{
    IHBXElement *slab = elements().createElement(19, 13, nullptr, &floor("2"), 0, QString(), 0);
    ASSERT_NE(slab, nullptr);
    IHBXElementDrawObj &drawObj = makeDrawObj(*slab);
    EXPECT_EQ(drawObj.element(), slab);
    EXPECT_EQ(drawObj.type(), 19);
    EXPECT_EQ(drawObj.subType(), 13);
    EXPECT_EQ(drawObj.floor(), &floor("2"));
    EXPECT_EQ(drawObj.region(), &region("House"));
}

TEST_P(HostDrawObjContract, objectKindOfADrawObjectIsOne) { EXPECT_EQ(placed(15).objectKind(), 1); }

TEST_P(HostDrawObjContract, noFloorOrNoElementMakesNoDrawObject)
{
    IHBXElement &slab = makeElement(19);
    EXPECT_EQ(drawObjs().createDrawObj(nullptr, &slab, true), nullptr);
    EXPECT_EQ(drawObjs().createDrawObj(&level1(), nullptr, true), nullptr);
    EXPECT_EQ(drawObjs().createDrawObj(nullptr, nullptr, true), nullptr);
}

TEST_P(HostDrawObjContract, newDrawObjectHasAnIdAndIsInNoCountOrQueryBeforeItIsEntered)
{
    const int before = drawObjs().count();
    IHBXElement &slab = makeElement(19);
    IHBXElementDrawObj &drawObj = makeDrawObj(slab);
    QList<IHBXElementDrawObj *> found;
    drawObjs().queryDrawObjsOfFloor(found, level1().id(), 19, -1, true);
    EXPECT_TRUE(found.isEmpty());
    EXPECT_EQ(slab.drawObjCount(), 0);
    EXPECT_EQ(drawObjs().count(), before);
    EXPECT_EQ(drawObjs().drawObjById(drawObj.id()), &drawObj);
}

TEST_P(HostDrawObjContract, addDrawObjEntersIt)
{
    const int before = drawObjs().count();
    IHBXElement &slab = makeElement(19);
    IHBXElementDrawObj &drawObj = makeDrawObj(slab);
    const qint64 id = drawObj.id();
    drawObjs().addDrawObj(&drawObj);
    EXPECT_EQ(drawObjs().count(), before + 1);
    EXPECT_EQ(slab.drawObjCount(), 1);
    EXPECT_EQ(drawObj.id(), id);
    EXPECT_EQ(drawObjs().drawObjById(id), &drawObj);
}

TEST_P(HostDrawObjContract, addingNothingOrAnEnteredDrawObjectChangesNothing)
{
    IHBXElement &slab = makeElement(19);
    IHBXElementDrawObj &drawObj = placed(slab);
    const int before = drawObjs().count();
    drawObjs().addDrawObj(nullptr);
    drawObjs().addDrawObj(&drawObj);
    EXPECT_EQ(drawObjs().count(), before);
    EXPECT_EQ(slab.drawObjCount(), 1);
}

TEST_P(HostDrawObjContract, drawObjectOfAnUnknownIdIsNull)
{
    const qint64 elementId = makeElement(19).id();
    for (const qint64 id : {qint64(0), qint64(-1), qint64(1) << 40, elementId})
        EXPECT_EQ(drawObjs().drawObjById(id), nullptr) << id;
}

TEST_P(HostDrawObjContract, removeTakesAnEnteredDrawObjectOut)
{
    IHBXElement &slab = makeElement(19);
    IHBXElementDrawObj &drawObj = placed(slab);
    const qint64 id = drawObj.id();
    const int before = drawObjs().count();
    drawObj.remove();
    EXPECT_EQ(drawObjs().count(), before - 1);
    EXPECT_EQ(drawObjs().drawObjById(id), nullptr);
    EXPECT_EQ(slab.drawObjCount(), 0);
}

TEST_P(HostDrawObjContract, removeGivesBackOneThatWasNeverEntered)
{
    IHBXElementDrawObj &drawObj = makeDrawObj(makeElement(19));
    const qint64 id = drawObj.id();
    const int before = drawObjs().count();
    drawObj.remove();
    EXPECT_EQ(drawObjs().count(), before);
    EXPECT_EQ(drawObjs().drawObjById(id), nullptr);
}

TEST_P(HostDrawObjContract, idOfARemovedDrawObjectIsNotUsedAgain)
{
    IHBXElement &slab = makeElement(19);
    IHBXElementDrawObj &drawObj = makeDrawObj(slab);
    const qint64 id = drawObj.id();
    drawObj.remove();
    EXPECT_NE(makeDrawObj(slab).id(), id);
}

TEST_P(HostDrawObjContract, cloneIsNewAndNotEntered)
{
    IHBXElementDrawObj &slab = placed(19);
    const int before = drawObjs().count();
    IHBXElementDrawObj &copy = need(slab.cloneDrawObj(0, 0, 1), "clone");
    EXPECT_NE(copy.id(), slab.id());
    EXPECT_EQ(copy.element(), slab.element());
    EXPECT_EQ(copy.floor(), slab.floor());
    EXPECT_EQ(copy.type(), 19);
    EXPECT_EQ(slab.element()->drawObjCount(), 1);
    EXPECT_EQ(drawObjs().count(), before);
    drawObjs().addDrawObj(&copy);
    EXPECT_EQ(slab.element()->drawObjCount(), 2);
}

TEST_P(HostDrawObjContract, cloneHasTheValuesOfItsOriginalAndGoesItsOwnWay)
{
    const HostContractProperty &text = terms().text;
    IHBXElementDrawObj &original = placed(text.type);
    propertiesOf(original).setString(text.name, QStringLiteral("A8@100"), true);
    IHBXElementDrawObj &copy = need(original.cloneDrawObj(0, 0, 1), "clone");
    EXPECT_EQ(textOf(propertiesOf(copy), text.name), QStringLiteral("A8@100"));
    propertiesOf(copy).setString(text.name, QStringLiteral("A10@200"), true);
    EXPECT_EQ(textOf(propertiesOf(original), text.name), QStringLiteral("A8@100"));
    EXPECT_EQ(textOf(propertiesOf(copy), text.name), QStringLiteral("A10@200"));
}

TEST_P(HostDrawObjContract, cloneHasTheGeometryOfItsOriginalAndGoesItsOwnWay)
{
    IHBXElementDrawObj &original = placed(19);
    shapeOf<IHBXFaceSolidShape>(original).setPolygon(rectangle(0, 0, 5000, 4000));
    IHBXElementDrawObj &copy = need(original.cloneDrawObj(0, 0, 1), "clone");
    EXPECT_TRUE(isBox(*copy.shape(), 0, 0, 5000, 4000));
    shapeOf<IHBXFaceSolidShape>(copy).setPolygon(rectangle(100, 100, 200, 200));
    EXPECT_TRUE(isBox(*original.shape(), 0, 0, 5000, 4000));
    EXPECT_TRUE(isBox(*copy.shape(), 100, 100, 200, 200));
}

TEST_P(HostDrawObjContract, statusKeepsLayerAndState)
{
    IHBXElementDrawObj &slab = placed(19);
    IHBXElementDrawObj &other = placed(*slab.element());
    IHBXDrawObjStatus &status = need(slab.status(), "status");
    const int otherLayer = need(other.status(), "status").layer();
    status.setLayer(otherLayer + 3);
    status.setState(1);
    EXPECT_EQ(slab.status()->layer(), otherLayer + 3);
    EXPECT_EQ(slab.status()->state(), 1);
    status.setState(0);
    EXPECT_EQ(slab.status()->layer(), otherLayer + 3);
    EXPECT_EQ(slab.status()->state(), 0);
    EXPECT_EQ(other.status()->layer(), otherLayer);
}

TEST_P(HostDrawObjContract, objectWithoutASectionHasNoSectionToShow)
{
    for (const qint64 type : {19, 25, 74}) {
        IHBXSectionHolder *holder = placed(type).sectionHolder();
        EXPECT_TRUE(!holder || !holder->section()) << type;
    }
}

TEST_P(HostDrawObjContract, sectionHasItsNumberAndKind)
{
    IHBXSectionHolder &holder = need(annexObject(25).sectionHolder(), "section holder of K1");
    IHBXSection &section = need(holder.section(), "section of K1");
    EXPECT_EQ(section.number(), 7);
    EXPECT_EQ(section.kind(), 2);
}
