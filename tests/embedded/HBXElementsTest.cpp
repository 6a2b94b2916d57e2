#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXElementsTest : public EmbeddedBuilding
{
protected:
    QList<IHBXElement *> onFloor(const char *floorName, qint64 type)
    {
        QList<IHBXElement *> out{nullptr};
        elements().queryElementsOnFloor(out, floor(floorName)->id(), type, true);
        return out;
    }
    QString unique(qint64 type, const char *name)
    {
        QString out;
        return elements().uniqueName(out, floor()->id(), type, QString::fromUtf8(name));
    }
};

TEST_F(HBXElementsTest, idsCountUpAndAreNeverUsedAgain)
{
    EXPECT_EQ(element(19)->id(), 4);
    IHBXElement *second = element(19);
    EXPECT_EQ(second->id(), 5);
    second->remove();
    EXPECT_EQ(element(19)->id(), 6);
    EXPECT_EQ(elements().elementById(5), nullptr);
    EXPECT_EQ(elements().elementById(4711), nullptr);
}

TEST_F(HBXElementsTest, nothingIsMadeWithoutAFloorForAnUnknownTypeOrForAUnitWithoutParent)
{
    EXPECT_EQ(elements().createElement(19, 0, nullptr, QString()), nullptr);
    EXPECT_EQ(elements().createElement(4711, 0, floor(), QString()), nullptr);
    EXPECT_EQ(elements().createElement(-1, 0, floor(), QString()), nullptr);
    EXPECT_EQ(elements().createElement(82, 0, floor(), QString()), nullptr);
    EXPECT_EQ(elements().createElement(83, 0, nullptr, floor(), 2, QString(), 0), nullptr);
    EXPECT_EQ(elements().count(), 0);
}

TEST_F(HBXElementsTest, anEmptyNameBecomesAUniqueOne)
{
    const QString first = nameOf(element(19));
    const QString second = nameOf(element(19));
    EXPECT_FALSE(first.isEmpty());
    EXPECT_NE(first, second);
}

TEST_F(HBXElementsTest, aTakenNameGetsASuffix)
{
    element(19, "B");
    EXPECT_EQ(nameOf(element(19, "B")), QStringLiteral("B-1"));
    EXPECT_EQ(nameOf(element(19, "B")), QStringLiteral("B-2"));
    EXPECT_EQ(nameOf(element(48, "B")), QStringLiteral("B"));
    EXPECT_EQ(nameOf(element(19, "B", "F2")), QStringLiteral("B"));
}

TEST_F(HBXElementsTest, uniqueNamesTakeTheFirstFreeSuffix)
{
    EXPECT_EQ(unique(19, "B"), QStringLiteral("B"));
    element(19, "B");
    IHBXElement *first = element(19, "B-1");
    element(19, "B-2");
    EXPECT_EQ(unique(19, "B"), QStringLiteral("B-3"));
    EXPECT_EQ(unique(19, "B"), QStringLiteral("B-3")); // asking takes nothing
    first->remove();
    EXPECT_EQ(unique(19, "B"), QStringLiteral("B-1"));
    EXPECT_EQ(unique(-1, "B"), QStringLiteral("B-1"));
    EXPECT_EQ(unique(48, "B"), QStringLiteral("B"));
}

TEST_F(HBXElementsTest, renamingGivesBackTheSuffixOfItsOwnBaseAlone)
{
    for (const char *name : {"B", "B-1", "B-2", "B-2-1", "C", "C-1"})
        element(19, name);
    EXPECT_EQ(unique(19, "B"), QStringLiteral("B-3"));
    EXPECT_EQ(unique(19, "C"), QStringLiteral("C-2"));
    elements().findElement(QStringLiteral("B-2"), floor()->id(), 19, true, 0)->setName(QStringLiteral("D"));
    EXPECT_EQ(unique(19, "B"), QStringLiteral("B-2"));
    EXPECT_EQ(unique(19, "C"), QStringLiteral("C-2"));
    elements().findElement(QStringLiteral("B"), floor()->id(), 19, true, 0)->setName(QStringLiteral("E"));
    EXPECT_EQ(unique(19, "B"), QStringLiteral("B"));
}

TEST_F(HBXElementsTest, setNameThrowsForAnEmptyAndForATakenName)
{
    IHBXElement *first = element(19, "A");
    element(19, "B");
    element(48, "C");
    EXPECT_THROW(first->setName(QString()), HBXModelException);
    EXPECT_THROW(first->setName(QStringLiteral("B")), HBXModelException);
    EXPECT_EQ(nameOf(first), QStringLiteral("A"));
    EXPECT_EQ(store.journal().entries().size(), 2u);
    EXPECT_NO_THROW(first->setName(QStringLiteral("A")));
    EXPECT_NO_THROW(first->setName(QStringLiteral("C")));
    EXPECT_EQ(elements().findElement(QStringLiteral("C"), floor()->id(), 19, true, 0), first);
    EXPECT_EQ(elements().findElement(QStringLiteral("A"), floor()->id(), 19, true, 0), nullptr);
}

TEST_F(HBXElementsTest, unitsMayShareNames)
{
    IHBXElement *foundation = element(52, "J1");
    IHBXElement *first = unit(foundation);
    IHBXElement *second = unit(foundation);
    first->setName(QStringLiteral("J1-1"));
    EXPECT_NO_THROW(second->setName(QStringLiteral("J1-1")));
    EXPECT_EQ(elements().findElement(QStringLiteral("J1-1"), floor()->id(), 82, true, 0), first);
    EXPECT_THROW(second->setName(QString()), HBXModelException);
}

TEST_F(HBXElementsTest, aUnitCannotHaveUnits)
{
    IHBXElement *first = unit(element(52));
    EXPECT_EQ(unit(first), nullptr);
}

TEST_F(HBXElementsTest, aNewHoleKnowsItsSectionBySubType)
{
    EXPECT_EQ(wholeIn(element(24, "", "F1", 153)->properties(), L"SectionTypeID"), 0);
    EXPECT_FALSE(element(24, "", "F1", 153)->properties()->isNull(L"SectionTypeID"));
    EXPECT_EQ(wholeIn(element(24, "", "F1", 154)->properties(), L"SectionTypeID"), 1);
    EXPECT_EQ(wholeIn(element(24, "", "F1", 167)->properties(), L"SectionTypeID"), 2);
    EXPECT_TRUE(element(24, "", "F1", 9)->properties()->isNull(L"SectionTypeID"));
}

TEST_F(HBXElementsTest, findElementGoesByExactNameFloorAndType)
{
    IHBXElement *slab = element(19, "B");
    element(48, "B");
    IHBXElement *above = element(19, "B", "F2");
    EXPECT_EQ(elements().findElement(QStringLiteral("B"), floor()->id(), 19, true, 0), slab);
    EXPECT_EQ(elements().findElement(QStringLiteral("B"), floor("F2")->id(), 19, true, 0), above);
    EXPECT_EQ(elements().findElement(QStringLiteral("b"), floor()->id(), 19, true, 0), nullptr);
    EXPECT_EQ(elements().findElement(QStringLiteral("B"), floor()->id(), 15, true, 0), nullptr);
    EXPECT_EQ(elements().findElement(QStringLiteral("B"), 4711, 19, true, 0), nullptr);
}

TEST_F(HBXElementsTest, findElementOfAnyTypeGivesTheFirstById)
{
    IHBXElement *raft = element(48, "B");
    element(19, "B");
    EXPECT_EQ(elements().findElement(QStringLiteral("B"), floor()->id(), -1, true, 0), raft);
    raft->remove();
    EXPECT_EQ(elements().findElement(QStringLiteral("B"), floor()->id(), -1, true, 0)->type(), 19);
}

TEST_F(HBXElementsTest, queriesAnswerInIdOrderAndReplaceWhatOutHeld)
{
    IHBXElement *raft = element(48);
    IHBXElement *slab = element(19);
    IHBXElement *above = element(19, "", "F2");
    IHBXElement *beam = element(15);
    QList<IHBXElement *> out{nullptr};
    elements().queryElements(out, {floor()->id(), floor("F2")->id()}, {19, 48}, true);
    EXPECT_EQ(out, (QList<IHBXElement *>{raft, slab, above}));
    EXPECT_EQ(onFloor("F1", -1), (QList<IHBXElement *>{raft, slab, beam}));
    EXPECT_EQ(onFloor("F1", 15), QList<IHBXElement *>{beam});
    EXPECT_TRUE(onFloor("F1", 17).isEmpty());
    EXPECT_EQ(elements().count(), 4);
    EXPECT_EQ(elements().at(2), above);
    EXPECT_EQ(elements().at(4), nullptr);
    EXPECT_EQ(elements().at(-1), nullptr);
}

TEST_F(HBXElementsTest, removingAnElementRemovesItsDrawObjectsAndUnits)
{
    IHBXElement *foundation = element(52, "J1");
    const qint64 unitId = unit(foundation)->id();
    IHBXElementDrawObj *object = placed(foundation);
    const qint64 objectId = object->id();
    const qint64 childId = object->child(0)->id();
    foundation->remove();
    EXPECT_EQ(elements().count(), 0);
    EXPECT_EQ(drawObjs().count(), 0);
    EXPECT_EQ(elements().elementById(unitId), nullptr);
    EXPECT_EQ(drawObjs().drawObjById(objectId), nullptr);
    EXPECT_EQ(drawObjs().drawObjById(childId), nullptr);
    EXPECT_EQ(nameOf(element(52, "J1")), QStringLiteral("J1"));
}

TEST_F(HBXElementsTest, aFormerFloorPointerOrAForeignOneIsNoFloor)
{
    HBXModelStore other;
    other.load(emptyHouse());
    IHBXFloor *foreign = other.service()->model()->regions()->at(0)->floors()->at(0);
    EXPECT_EQ(elements().createElement(19, 0, foreign, QString()), nullptr);
}

TEST_F(HBXElementsTest, manyElementsOfOneWantedNameAreNamedQuickly)
{
    constexpr int kMany = 20000;
    for (int i = 0; i < kMany; ++i)
        element(19, "B");
    EXPECT_EQ(unique(19, "B"), QStringLiteral("B-%1").arg(kMany));
}

} // namespace
} // namespace hbx::embedded
