#include "ModelSerialization/SlabBarWriting.h"

#include "ModelSerialization/SlabWriterFixture.h"

namespace {

class SlabBarWritingTest : public SlabWriterFixture
{
protected:
    static PolygonPtr area(double x = 0) { return shapes::rectangle(x, 0, 4000, 3000); }
    static QString link(const IHBXElementDrawObj *object) { return QStringLiteral("%1,1;").arg(object->id()); }
};

constexpr char kAcross[] = "LINESTRING(0 2250, 4000 2250)";
constexpr char kMiddle[] = "LINESTRING(0 1500, 4000 1500)";

// ---- Elements

TEST_F(SlabBarWritingTest, barsOfOneNameAndTextShareAnElement)
{
    addBar<Model::ForcedBar>(area(0));
    addBar<Model::ForcedBar>(area(4000))->barInfo = "c12@150";
    write();
    const auto bars = written(22);
    ASSERT_EQ(bars.size(), 2);
    EXPECT_EQ(bars[0]->element(), bars[1]->element());
}

TEST_F(SlabBarWritingTest, barsOfOneNameAndDifferentTextsHaveElementsOfTheirOwn)
{
    addBar<Model::ForcedBar>(area(0))->name = "K1";
    auto *other = addBar<Model::ForcedBar>(area(4000));
    other->name = "K1";
    other->barInfo = "C14@150";
    write();
    const auto bars = written(22);
    ASSERT_EQ(bars.size(), 2);
    EXPECT_EQ(elementName(bars[0]), "K1");
    EXPECT_EQ(elementName(bars[1]), "K1-1");
}

TEST_F(SlabBarWritingTest, elementOfThatTextIsUsed)
{
    IHBXElement *held = element(22, "SLJ-C12-150");
    held->properties()->setString(L"BarInfo", "C12@150", true);
    addBar<Model::ForcedBar>(area());
    write();
    EXPECT_EQ(only(22)->element(), held);
}

TEST_F(SlabBarWritingTest, elementOfAnotherTextMakesANewName)
{
    element(22, "SLJ-C12-150")->properties()->setString(L"BarInfo", "c12@150", true);
    addBar<Model::ForcedBar>(area());
    write();
    EXPECT_EQ(elementName(only(22)), "SLJ-C12-150-1");
}

TEST_F(SlabBarWritingTest, textThatTellsNoBarsLeavesOutAllThatHaveIt)
{
    addBar<Model::ForcedBar>(area(0))->barInfo = "bars";
    addBar<Model::ForcedBar>(area(4000))->barInfo = "bars";
    addBar<Model::ForcedBar>(area(8000));
    addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 900, 800)->barInfo = "";
    RecordingHost host(*store.service());
    ids = Service::local2hbx(&local, host.service(), nullptr, "House", "F1");
    EXPECT_EQ(ids.size(), 1U);
    EXPECT_EQ(elements().count(), 1);
    EXPECT_EQ(host.calls().filter("BARS"), QStringList());
    EXPECT_EQ(host.calls().filter("createElement").size(), 1);
}

// ---- Area bars

TEST_F(SlabBarWritingTest, workingBarIsLinkedWithItsSlabs)
{
    IHBXElementDrawObj *first = hostSlab(0, 0, 4000, 3000, "B1");
    IHBXElementDrawObj *second = hostSlab(3000, 0, 4000, 3000, "B2");
    hostSlab(20000, 0, 4000, 3000, "far");
    addBar<Model::ForcedBar>(area());
    write();
    IHBXElementDrawObj *bar = only(22);
    ASSERT_TRUE(bar);
    EXPECT_EQ(textOf(bar, L"ReinforcementInfo"), link(first) + link(second));
    EXPECT_EQ(textOf(first, L"ReinforcementInfo"), link(bar));
    EXPECT_EQ(textOf(second, L"ReinforcementInfo"), link(bar));
    EXPECT_EQ(textOf(bar, L"Catalog"), QStringLiteral("B1[%1]").arg(first->id()));
}

TEST_F(SlabBarWritingTest, workingBarWithoutSlabsHasNoCatalogAndNoLinks)
{
    addBar<Model::ForcedBar>(area());
    write();
    IHBXElementDrawObj *bar = only(22);
    ASSERT_TRUE(bar);
    EXPECT_TRUE(bar->properties()->isNull(L"Catalog"));
    EXPECT_TRUE(bar->properties()->isNull(L"ReinforcementInfo"));
}

TEST_F(SlabBarWritingTest, hostIsCalledInTheStatedOrderForAWorkingBar)
{
    IHBXElementDrawObj *slab = hostSlab(0, 0, 4000, 3000, "B1");
    addBar<Model::ForcedBar>(area())->leftHookLength = 180;
    RecordingHost host(*store.service());
    Service::localForceBar2HBX(&local, host.service(), slabs.get(), "House", "F1", ids);
    expectEqual(host.calls(), {R"(findRegion("House"))",
                               R"(findFloor("F1"))",
                               R"(findElement("SLJ-C12-150", 2, 22, true, 0))",
                               R"(findElement("SLJ-C12-150", 2, 22, true, 0))",
                               R"(createElement(22, 171, floor 1, ""))",
                               R"(setName("SLJ-C12-150"))",
                               R"(setString("BarInfo", "C12@150", true))",
                               R"(createDrawObj(floor 1, element SLJ-C12-150, true))",
                               QStringLiteral(R"(setCurve("CurveData", %1, true))").arg(kAcross),
                               R"(setString("BarInfo", "C12@150", true))",
                               R"(setInt("IsRadiate", 0, true))",
                               QStringLiteral(R"(setCurve("ReferenceCurve", %1, true))").arg(kAcross),
                               R"(setInt("Position", 0, true))",
                               R"(setInt("Type", 0, true))",
                               R"(setString("LeftHook", "180", true))",
                               R"(setString("RightHook", "180", true))",
                               "setPolygon(" + QString::fromStdString(area()->ToText()) + ")",
                               R"(addDrawObj(object of SLJ-C12-150))",
                               QStringLiteral(R"(setString("ReinforcementInfo", "%1", true))").arg(link(slab)),
                               QStringLiteral(R"(setString("Catalog", "B1[%1]", true))").arg(slab->id()),
                               R"(checkDrawObj(object of SLJ-C12-150))"});
}

TEST_F(SlabBarWritingTest, newElementOfStraddlingBarsIsToldItsType)
{
    addBar<Model::StraddleForcedBar>(area());
    RecordingHost host(*store.service());
    Service::localStraddleForcedBar2HBX(&local, host.service(), nullptr, "House", "F1", ids);
    expectEqual(host.calls().mid(4), {R"(createElement(22, 171, floor 1, ""))",
                                      R"(setName("KBSLJ-C12-150"))",
                                      R"(setString("BarInfo", "C12@150", true))",
                                      R"(setInt("Type", 1, true))",
                                      R"(createDrawObj(floor 1, element KBSLJ-C12-150, true))",
                                      QStringLiteral(R"(setCurve("CurveData", %1, true))").arg(kMiddle),
                                      R"(setString("BarInfo", "C12@150", true))",
                                      R"(setInt("LabelPosition", 2, true))",
                                      R"(setInt("Position", 1, true))",
                                      R"(setInt("Type", 1, true))",
                                      R"(setInt("LeftLabel", 0, true))",
                                      R"(setInt("RightLabel", 0, true))",
                                      R"(setString("LeftHook", "0", true))",
                                      R"(setString("RightHook", "0", true))",
                                      R"(setString("DistributedBar", "", true))",
                                      R"(setString("SaddleBarLineCount", "", true))",
                                      QStringLiteral(R"(setCurve("ReferenceCurve", %1, true))").arg(kMiddle),
                                      "setPolygon(" + QString::fromStdString(area()->ToText()) + ")",
                                      R"(addDrawObj(object of KBSLJ-C12-150))",
                                      R"(checkDrawObj(object of KBSLJ-C12-150))"});
}

TEST_F(SlabBarWritingTest, foundElementOfStraddlingBarsKeepsItsType)
{
    IHBXElement *held = element(22, "KBSLJ-C12-150");
    held->properties()->setString(L"BarInfo", "C12@150", true);
    held->properties()->setInt(L"Type", 0, true);
    addBar<Model::StraddleForcedBar>(area());
    write();
    EXPECT_EQ(only(22)->element(), held);
    EXPECT_EQ(wholeIn(held->properties(), L"Type"), 0);
    EXPECT_EQ(intOf(only(22), L"Type"), 1);
}

TEST_F(SlabBarWritingTest, hostIsCalledInTheStatedOrderForBarsOfRafts)
{
    addBar<Model::RaftMainForcedBar>(area());
    addBar<Model::RaftMainStraddleForcedBar>(area());
    RecordingHost host(*store.service());
    Service::localRaftMainForceBar2HBX(&local, host.service(), nullptr, "House", "F1", ids);
    EXPECT_EQ(host.calls()[4], R"(createElement(49, 190, floor 1, ""))");
    EXPECT_EQ(host.calls().filter("Type"), QStringList(R"(setInt("Type", 0, true))"));
    const int before = host.calls().size();
    Service::localRaftStraddleMainForcedBar2HBX(&local, host.service(), nullptr, "House", "F1", ids);
    expectEqual(
        host.calls().mid(before + 8),
        {R"(createDrawObj(floor 1, element KFBZJ-C12-150, true))",
         QStringLiteral(R"(setCurve("CurveData", %1, true))").arg(kMiddle), R"(setString("BarInfo", "C12@150", true))",
         R"(setInt("Position", 0, true))", R"(setInt("Type", 1, true))", R"(setInt("LabelPosition", 2, true))",
         R"(setInt("LeftLabel", 0, true))", R"(setInt("RightLabel", 0, true))", R"(setString("LeftHook", "0", true))",
         R"(setString("RightHook", "0", true))", QStringLiteral(R"(setCurve("ReferenceCurve", %1, true))").arg(kMiddle),
         "setPolygon(" + QString::fromStdString(area()->ToText()) + ")", R"(addDrawObj(object of KFBZJ-C12-150))",
         R"(checkDrawObj(object of KFBZJ-C12-150))"});
}

TEST_F(SlabBarWritingTest, hostIsCalledInTheStatedOrderForAWorkingBarOfARaft)
{
    auto *bar = addBar<Model::RaftMainForcedBar>(area());
    bar->forcedType = 1;
    bar->leftHookLength = 180;
    bar->rightHookLength = 90;
    RecordingHost host(*store.service());
    Service::localRaftMainForceBar2HBX(&local, host.service(), nullptr, "House", "F1", ids);
    // Three quarters of the way from the upper edge down, as the span runs to the right of the bar.
    const char *drawn = "LINESTRING(0 750, 4000 750)";
    expectEqual(
        host.calls(),
        {R"(findRegion("House"))", R"(findFloor("F1"))", R"(findElement("FBZJ-C12-150", 2, 49, true, 0))",
         R"(findElement("FBZJ-C12-150", 2, 49, true, 0))", R"(createElement(49, 190, floor 1, ""))",
         R"(setName("FBZJ-C12-150"))", R"(setString("BarInfo", "C12@150", true))",
         R"(createDrawObj(floor 1, element FBZJ-C12-150, true))",
         QStringLiteral(R"(setCurve("CurveData", %1, true))").arg(drawn), R"(setString("BarInfo", "C12@150", true))",
         R"(setInt("IsRadiate", 0, true))", QStringLiteral(R"(setCurve("ReferenceCurve", %1, true))").arg(drawn),
         R"(setInt("Position", 1, true))", R"(setInt("Type", 0, true))", R"(setString("LeftHook", "180", true))",
         R"(setString("RightHook", "180", true))", "setPolygon(" + QString::fromStdString(area()->ToText()) + ")",
         R"(addDrawObj(object of FBZJ-C12-150))", R"(checkDrawObj(object of FBZJ-C12-150))"});
}

TEST_F(SlabBarWritingTest, refusedBarOfAnyKindLeavesNoObjectNoElementAndNoId)
{
    addBar<Model::ForcedBar>(nullptr);
    addBar<Model::StraddleForcedBar>(nullptr);
    addBar<Model::RaftMainForcedBar>(nullptr);
    addBar<Model::RaftMainStraddleForcedBar>(nullptr);
    add<Model::NegativeForcedBar>()->barInfo = "C8@200";
    add<Model::RaftNegativeForcedBar>()->barInfo = "C8@200";
    const int objects = model().drawObjects()->count();
    RecordingHost host(*store.service());
    ids = Service::local2hbx(&local, host.service(), slabs.get(), "House", "F1");
    EXPECT_EQ(host.calls().filter("createDrawObj").size(), 6);
    EXPECT_EQ(host.calls().filter("removeDrawObj").size(), 6);
    EXPECT_EQ(host.calls().filter("removeElement").size(), 6);
    EXPECT_TRUE(ids.empty());
    EXPECT_EQ(model().drawObjects()->count(), objects);
    for (const qint64 type : {22, 23, 49, 50})
        EXPECT_EQ(elementCount(type), 0) << type;
}

TEST_F(SlabBarWritingTest, refusedBarLeavesNoObjectNoElementNoIdAndNoLink)
{
    IHBXElementDrawObj *slab = hostSlab(0, 0, 4000, 3000, "B1");
    addBar<Model::ForcedBar>(area());
    write();
    const QString links = textOf(slab, L"ReinforcementInfo");
    EXPECT_EQ(links, link(only(22)));
    addBar<Model::ForcedBar>(area())->name = "again";
    write(); // both lie where one is by now
    EXPECT_TRUE(ids.empty());
    EXPECT_EQ(written(22).size(), 1);
    EXPECT_EQ(elementCount(22), 1);
    EXPECT_EQ(textOf(slab, L"ReinforcementInfo"), links);
}

TEST_F(SlabBarWritingTest, refusedBarGoesAheadOfItsElement)
{
    addBar<Model::ForcedBar>(nullptr);
    RecordingHost host(*store.service());
    Service::localForceBar2HBX(&local, host.service(), nullptr, "House", "F1", ids);
    EXPECT_EQ(host.calls().mid(host.calls().size() - 3),
              (QStringList{R"(checkDrawObj(object of SLJ-C12-150))", R"(removeDrawObj(object of SLJ-C12-150))",
                           R"(removeElement(element SLJ-C12-150))"}));
}

TEST_F(SlabBarWritingTest, writeThatThrowsCostsOnlyItsBar)
{
    IHBXElementDrawObj *slab = hostSlab(0, 0, 8000, 3000, "B1");
    addBar<Model::ForcedBar>(area(0));
    const auto *sound = addBar<Model::ForcedBar>(area(4000));
    RecordingHost host(*store.service());
    int catalogs = 0;
    host.beforeCall([&catalogs](const QString &call) {
        if (call.startsWith(R"(setString("Catalog")") && ++catalogs == 1)
            throw HBXModelException("refused");
    });
    Service::localForceBar2HBX(&local, host.service(), slabs.get(), "House", "F1", ids);
    ASSERT_EQ(ids.size(), 1U);
    EXPECT_EQ(ids.begin()->second, sound->recongnizedID);
    EXPECT_EQ(textOf(slab, L"ReinforcementInfo"), link(only(22)));
}

// ---- Line bars

TEST_F(SlabBarWritingTest, hostIsCalledInTheStatedOrderForANegativeBar)
{
    IHBXElementDrawObj *slab = hostSlab(-2000, 0, 4000, 4000, "B1");
    auto *bar = addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 900, 800);
    bar->leftHookLength = 180;
    bar->rightHookLength = 90;
    bar->distributeBarInfo = "C6@250";
    bar->saddleBarlineCount = "3";
    RecordingHost host(*store.service());
    Service::localNegativeForcedBar2HBX(&local, host.service(), slabs.get(), "House", "F1", ids);
    expectEqual(host.calls(), {R"(findRegion("House"))",
                               R"(findFloor("F1"))",
                               R"(findElement("FJ-C8-200", 2, 23, true, 0))",
                               R"(findElement("FJ-C8-200", 2, 23, true, 0))",
                               R"(createElement(23, 173, floor 1, ""))",
                               R"(setName("FJ-C8-200"))",
                               R"(setString("BarInfo", "C8@200", true))",
                               R"(createDrawObj(floor 1, element FJ-C8-200, true))",
                               "setLayer(7)",
                               R"(setCurve("CurveData", LINESTRING(-900 2000, 800 2000), true))",
                               R"(setString("BarInfo", "C8@200", true))",
                               R"(setString("LeftHook", "180", true))",
                               R"(setString("RightHook", "90", true))",
                               R"(setString("DistributedBar", "C6@250", true))",
                               R"(setString("SaddleBarLineCount", "3", true))",
                               R"(setInt("LeftLabel", 900, true))",
                               R"(setInt("RightLabel", 800, true))",
                               R"(setInt("LabelPosition", 2, true))",
                               R"(setInt("IncludeSupport", 1, true))",
                               "setLine(LINESTRING(0 0, 0 4000))",
                               QStringLiteral(R"(setInt("DependSlabID", %1, true))").arg(slab->id()),
                               R"(addDrawObj(object of FJ-C8-200))",
                               "queryDrawObjsInBox(2, 23, (0, 0), (0, 4000), 1.000001)"});
    ASSERT_EQ(ids.size(), 1U);
    EXPECT_EQ(ids.at(only(23)->id()), bar->recongnizedID);
}

TEST_F(SlabBarWritingTest, negativeBarOfARaftHasItsHooksBehindItsLabels)
{
    addLineBar<Model::RaftNegativeForcedBar>({0, 0}, {0, 4000}, 900, 800);
    RecordingHost host(*store.service());
    Service::localRaftNegativeForcedBar2HBX(&local, host.service(), slabs.get(), "House", "F1", ids);
    expectEqual(host.calls().mid(4),
                {R"(createElement(50, 177, floor 1, ""))", R"(setName("FBFJ-C8-200"))",
                 R"(setString("BarInfo", "C8@200", true))", R"(createDrawObj(floor 1, element FBFJ-C8-200, true))",
                 "setLayer(7)", R"(setCurve("CurveData", LINESTRING(-900 2000, 800 2000), true))",
                 R"(setString("BarInfo", "C8@200", true))", R"(setInt("LeftLabel", 900, true))",
                 R"(setInt("RightLabel", 800, true))", R"(setInt("LabelPosition", 2, true))",
                 R"(setInt("IncludeSupport", 1, true))", R"(setString("LeftHook", "0", true))",
                 R"(setString("RightHook", "0", true))", "setLine(LINESTRING(0 0, 0 4000))",
                 R"(setInt("DependSlabID", -1, true))", R"(addDrawObj(object of FBFJ-C8-200))",
                 "queryDrawObjsInBox(2, 23, (0, 0), (0, 4000), 1.000001)"});
}

TEST_F(SlabBarWritingTest, negativeBarWithoutASlabIsMadeAllTheSame)
{
    addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 900, 800);
    write();
    ASSERT_TRUE(only(23));
    EXPECT_EQ(intOf(only(23), L"DependSlabID"), -1);
}

TEST_F(SlabBarWritingTest, negativeBarOverAnotherOneIsNotMade)
{
    hostSlab(-2000, 0, 4000, 4000, "B1");
    addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 900, 800);
    addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 700, 600)->barInfo = "C10@200";
    RecordingHost host(*store.service());
    Service::localNegativeForcedBar2HBX(&local, host.service(), slabs.get(), "House", "F1", ids);
    EXPECT_EQ(ids.size(), 1U);
    EXPECT_EQ(written(23).size(), 1);
    EXPECT_EQ(elementCount(23), 1);
    EXPECT_EQ(host.calls().mid(host.calls().size() - 2),
              (QStringList{R"(removeDrawObj(object of FJ-C10-200))", R"(removeElement(element FJ-C10-200))"}));
}

TEST_F(SlabBarWritingTest, negativeBarsOfOneLineInDifferentRowsAreMade)
{
    addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 900, 800);
    addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 900, 800)->rowNumber = 1;
    write();
    EXPECT_EQ(ids.size(), 2U);
}

TEST_F(SlabBarWritingTest, barsOfRaftsAreComparedWithTheNegativeBarsOfSlabs)
{
    addLineBar<Model::RaftNegativeForcedBar>({0, 0}, {0, 4000}, 900, 800);
    addLineBar<Model::RaftNegativeForcedBar>({0, 0}, {0, 4000}, 700, 600)->barInfo = "C10@200";
    write();
    EXPECT_EQ(written(50).size(), 2) << "not with one another";
    addLineBar<Model::NegativeForcedBar>({5000, 0}, {5000, 4000}, 900, 800);
    addLineBar<Model::RaftNegativeForcedBar>({5000, 0}, {5000, 4000}, 700, 600);
    write();
    EXPECT_EQ(written(23).size(), 1);
    EXPECT_EQ(written(50).size(), 4) << "the two of before again, but not the one over the slab's bar";
}

} // namespace
