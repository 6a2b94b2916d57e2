#include "doorwindow/JsonDoorWin2HBX.h"

#include "OpeningFixture.h"
#include "platform/host/IHBXCustomPointSolidShape.h"
#include "support/RecordingHost.h"

namespace {

class JsonDoorWin2HBXTest : public OpeningFixture
{
protected:
    static vks::CVec2<double> insertPoint(IHBXElementDrawObj *opening)
    {
        vks::CVec2<double> point;
        return dynamic_cast<IHBXCustomPointSolidShape *>(opening->shape())->insertPoint(point);
    }
    static QString elementName(IHBXElementDrawObj *object)
    {
        QString name;
        return object->element()->name(name);
    }
};

TEST_F(JsonDoorWin2HBXTest, emptyArrayReturnsFalseAndCreatesNothing)
{
    load();
    EXPECT_FALSE(jsonDoorWin2HBX(service(), reply({})));
    EXPECT_EQ(model().elements()->count(), 0);
}

TEST_F(JsonDoorWin2HBXTest, objectWithoutThePathCreatesNothing)
{
    load();
    EXPECT_FALSE(jsonDoorWin2HBX(service(), {}));
    EXPECT_FALSE(jsonDoorWin2HBX(service(), {{"eDoorWin", 3}}));
    EXPECT_FALSE(jsonDoorWin2HBX(service(), {{"eDoorWin", QJsonObject{{"ElementsAndEdos", "text"}}}}));
    EXPECT_EQ(model().elements()->count(), 0);
}

TEST_F(JsonDoorWin2HBXTest, nullServiceReturnsFalse)
{
    EXPECT_FALSE(jsonDoorWin2HBX(nullptr, reply({elementMember(4, "M1")})));
}

TEST_F(JsonDoorWin2HBXTest, fullSuccessReturnsFalseToo)
{
    load(wall("Q1", 1003, "0 0, 5000 0"));
    EXPECT_FALSE(jsonDoorWin2HBX(service(), reply({elementMember(4, "M1"), placedMember("M1", 1000, 0, 50)})));
    ASSERT_EQ(placed(4).size(), 1);
    EXPECT_EQ(placed(4)[0]->properties()->asInt(L"AboveFloorHeight"), 50);
}

TEST_F(JsonDoorWin2HBXTest, elementTakesNameSizesAndHeightAboveTheFloor)
{
    load();
    jsonDoorWin2HBX(service(), reply({elementMember(5, "C1", 1500, 1800, 900)}));
    IHBXElement *element = find("C1");
    ASSERT_TRUE(element);
    EXPECT_EQ(element->type(), 5);
    EXPECT_EQ(element->properties()->asInt(L"OpeningWidth"), 1500);
    EXPECT_EQ(element->properties()->asInt(L"OpeningHeight"), 1800);
    EXPECT_EQ(element->properties()->asInt(L"AboveFloorHeight"), 900);
}

TEST_F(JsonDoorWin2HBXTest, subTypeIsFixedForTypes4And5And7AndTakenFromTheReplyElse)
{
    EXPECT_EQ(doorwindow::openingSubType(4, 9), 14);
    EXPECT_EQ(doorwindow::openingSubType(5, 9), 76);
    EXPECT_EQ(doorwindow::openingSubType(7, 9), 78);
    EXPECT_EQ(doorwindow::openingSubType(6, 9), 9);
    EXPECT_EQ(doorwindow::openingSubType(0, 9), 9);
}

TEST_F(JsonDoorWin2HBXTest, windowWithAnotherSubTypeIsStillCreatedWith76)
{
    load();
    jsonDoorWin2HBX(service(), reply({elementMember(5, "C1")})); // says sub-type 9
    ASSERT_TRUE(find("C1"));
    EXPECT_EQ(find("C1")->subType(), 76);
}

TEST_F(JsonDoorWin2HBXTest, combinedKindKeepsTheSubTypeOfTheReply)
{
    load();
    jsonDoorWin2HBX(service(), reply({elementMember(6, "MC1")}));
    ASSERT_TRUE(find("MC1"));
    EXPECT_EQ(find("MC1")->subType(), 9);
}

TEST_F(JsonDoorWin2HBXTest, combinedKindDoesNotTakeTheHeightAboveTheFloor)
{
    load();
    jsonDoorWin2HBX(service(), reply({elementMember(6, "MC1", 900, 2100, 333)}));
    ASSERT_TRUE(find("MC1"));
    EXPECT_NE(find("MC1")->properties()->asInt(L"AboveFloorHeight"), 333);
}

/** The divide of a combined opening after its size was set, when it stood at 600 before. */
int divideAfterSize(IHBXElement &element, const std::wstring &divide, int size)
{
    element.properties()->setInt(divide, 600, false);
    doorwindow::setOpeningSize(element, size, size);
    return element.properties()->asInt(divide);
}

struct DivideCase
{
    int size;
    int divide;
};
class JsonDoorWin2HBXDivideTest : public OpeningFixture, public ::testing::WithParamInterface<DivideCase>
{};

TEST_P(JsonDoorWin2HBXDivideTest, divideOfACombinedOpeningMovesToTheMiddleWhenTheOpeningIsNotGreater)
{
    load();
    jsonDoorWin2HBX(service(), reply({elementMember(6, "MC1", 1200, 1200)}));
    IHBXElement *element = find("MC1");
    ASSERT_TRUE(element);
    EXPECT_EQ(divideAfterSize(*element, L"WinDoorWidth", GetParam().size), GetParam().divide);
    EXPECT_EQ(divideAfterSize(*element, L"WindDoorFloorHeight", GetParam().size), GetParam().divide);
    EXPECT_EQ(element->properties()->asInt(L"OpeningWidth"), GetParam().size);
    EXPECT_EQ(element->properties()->asInt(L"OpeningHeight"), GetParam().size);
}
INSTANTIATE_TEST_SUITE_P(Sizes, JsonDoorWin2HBXDivideTest,
                         ::testing::Values(DivideCase{900, 600}, DivideCase{600, 300}, DivideCase{500, 250}));

TEST_F(JsonDoorWin2HBXTest, elementOfAnUnknownRegionIsSkippedAndTheWalkGoesOn)
{
    load();
    QJsonObject lost = elementMember(4, "M1");
    lost["regionName"] = "Elsewhere";
    jsonDoorWin2HBX(service(), reply({lost, elementMember(4, "M2")}));
    EXPECT_FALSE(find("M1"));
    EXPECT_TRUE(find("M2"));
}

TEST_F(JsonDoorWin2HBXTest, elementOfAnUnknownFloorIsLeftToTheHostWhichMakesNone)
{
    load();
    QJsonObject lost = elementMember(4, "M1");
    lost["floorName"] = "99";
    jsonDoorWin2HBX(service(), reply({lost, elementMember(4, "M2")}));
    EXPECT_EQ(model().elements()->count(), 1);
    EXPECT_TRUE(find("M2"));
}

TEST_F(JsonDoorWin2HBXTest, floorIsFoundByItsCodeAndNotByItsName)
{
    load();
    QJsonObject byName = elementMember(4, "M1");
    byName["floorName"] = "Level 1";
    jsonDoorWin2HBX(service(), reply({byName}));
    EXPECT_EQ(model().elements()->count(), 0);
}

TEST_F(JsonDoorWin2HBXTest, refusedNameEndsThatMemberOnlyAndWhatWasMadeStays)
{
    load();
    jsonDoorWin2HBX(service(),
                    reply({elementMember(4, "M1", 900), elementMember(4, "M1", 700), elementMember(4, "M2")}));
    EXPECT_EQ(model().elements()->count(), 3); // the second one has the name that the host gave it
    EXPECT_EQ(find("M1")->properties()->asInt(L"OpeningWidth"), 900);
    EXPECT_TRUE(find("M2"));
}

TEST_F(JsonDoorWin2HBXTest, mistypedNumbersReadAsZeroAndTextsAsEmpty)
{
    load();
    QJsonObject member = elementMember(4, "M1");
    member["nWidth"] = "900";
    member["nHeight"] = 2100.5;
    jsonDoorWin2HBX(service(), reply({member}));
    ASSERT_TRUE(find("M1"));
    EXPECT_EQ(find("M1")->properties()->asInt(L"OpeningWidth"), 0);
    EXPECT_EQ(find("M1")->properties()->asInt(L"OpeningHeight"), 0);
}

TEST_F(JsonDoorWin2HBXTest, valueOfElementIdIsNeverUsed)
{
    load();
    QJsonObject member = elementMember(4, "M1");
    member["elementID"] = QJsonValue::Null;
    jsonDoorWin2HBX(service(), reply({member}));
    EXPECT_TRUE(find("M1"));
}

TEST_F(JsonDoorWin2HBXTest, memberThatIsNoObjectIsAPlacedObjectWithoutARegionAndIsSkipped)
{
    load();
    jsonDoorWin2HBX(service(), reply({17, "text", QJsonArray{}, QJsonValue::Null, elementMember(4, "M1")}));
    EXPECT_EQ(model().elements()->count(), 1);
    EXPECT_EQ(model().drawObjects()->count(), 0);
}

TEST_F(JsonDoorWin2HBXTest, placedObjectAheadOfItsElementIsSkipped)
{
    load();
    jsonDoorWin2HBX(service(), reply({placedMember("M1", 0, 0), elementMember(4, "M1")}));
    EXPECT_TRUE(find("M1"));
    EXPECT_TRUE(placed(4).isEmpty());
}

TEST_F(JsonDoorWin2HBXTest, placedObjectOfAnUnknownRegionFloorOrElementIsSkipped)
{
    load();
    QJsonObject region = placedMember("M1", 0, 0);
    region["regionName"] = "Elsewhere";
    QJsonObject floor = placedMember("M1", 0, 0);
    floor["floorName"] = "99";
    jsonDoorWin2HBX(service(), reply({elementMember(4, "M1"), region, floor, placedMember("M9", 0, 0)}));
    EXPECT_TRUE(placed(4).isEmpty());
}

TEST_F(JsonDoorWin2HBXTest, placedObjectGetsPointAndHeightAndItsWall)
{
    load(wall("Q1", 1003, "0 0, 5000 0"));
    jsonDoorWin2HBX(service(), reply({elementMember(5, "C1"), placedMember("C1", 1250.5, 20.25, 900)}));
    ASSERT_EQ(placed(5).size(), 1);
    IHBXElementDrawObj *opening = placed(5)[0];
    EXPECT_EQ(insertPoint(opening).x, 1250.5);
    EXPECT_EQ(insertPoint(opening).y, 20.25);
    EXPECT_EQ(opening->properties()->asInt(L"AboveFloorHeight"), 900);
    ASSERT_TRUE(opening->parent());
    EXPECT_EQ(elementName(opening->parent()), "Q1");
}

TEST_F(JsonDoorWin2HBXTest, placedObjectFartherThanFiveFromEveryWallIsUnattachedWithPointAndHeight)
{
    load(wall("Q1", 1003, "0 0, 5000 0")); // its box ends at y = 100
    jsonDoorWin2HBX(service(), reply({elementMember(4, "M1"), placedMember("M1", 1000, 105.001, 40)}));
    ASSERT_EQ(placed(4).size(), 1);
    EXPECT_FALSE(placed(4)[0]->parent());
    EXPECT_EQ(insertPoint(placed(4)[0]).y, 105.001);
    EXPECT_EQ(placed(4)[0]->properties()->asInt(L"AboveFloorHeight"), 40);
}

TEST_F(JsonDoorWin2HBXTest, placedObjectExactlyFiveFromAWallIsAttached)
{
    load(wall("Q1", 1003, "0 0, 5000 0"));
    jsonDoorWin2HBX(service(), reply({elementMember(4, "M1"), placedMember("M1", 5005, 105)}));
    ASSERT_EQ(placed(4).size(), 1);
    EXPECT_TRUE(placed(4)[0]->parent());
}

TEST_F(JsonDoorWin2HBXTest, firstWallInTheHostsOrderWinsOverANearerOne)
{
    load(wall("Q1", 1003, "0 0, 5000 0") + "," + wall("Q2", 1003, "0 50, 5000 50"));
    jsonDoorWin2HBX(service(), reply({elementMember(4, "M1"), placedMember("M1", 1000, 50)}));
    ASSERT_EQ(placed(4).size(), 1);
    EXPECT_EQ(elementName(placed(4)[0]->parent()), "Q1");
}

struct WallTypeCase
{
    int type;
    bool searched;
};
class JsonDoorWin2HBXWallTypeTest : public OpeningFixture, public ::testing::WithParamInterface<WallTypeCase>
{};

TEST_P(JsonDoorWin2HBXWallTypeTest, onlyWallsOfTypes1003And1001And0AreSearched)
{
    load(wall("Q1", GetParam().type, "0 0, 5000 0"));
    jsonDoorWin2HBX(service(), reply({elementMember(4, "M1"), placedMember("M1", 1000, 0)}));
    ASSERT_EQ(placed(4).size(), 1);
    EXPECT_EQ(placed(4)[0]->parent() != nullptr, GetParam().searched);
}
INSTANTIATE_TEST_SUITE_P(Types, JsonDoorWin2HBXWallTypeTest,
                         ::testing::Values(WallTypeCase{1003, true}, WallTypeCase{1001, true}, WallTypeCase{0, true},
                                           WallTypeCase{1, false}, WallTypeCase{202, false}));

TEST_F(JsonDoorWin2HBXTest, wallWithoutAnAxisIsNoHit)
{
    load(R"({"name": "Q1", "type": 1003, "drawObjects": [{"shape": {"kind": "line", "axis": null, "width": 200}}]})");
    jsonDoorWin2HBX(service(), reply({elementMember(4, "M1"), placedMember("M1", 0, 0)}));
    ASSERT_EQ(placed(4).size(), 1);
    EXPECT_FALSE(placed(4)[0]->parent());
}

TEST_F(JsonDoorWin2HBXTest, hostIsCalledInTheStatedOrderAndNoBatchIsOpened)
{
    load(wall("Q1", 1003, "0 0, 5000 0"));
    RecordingHost host(*service());
    jsonDoorWin2HBX(host.service(), reply({elementMember(5, "C1", 1500, 1800, 900), placedMember("C1", 1000, 0, 950)}));
    const QStringList expected{
        R"(findRegion("House"))",
        R"(findByCode("1"))",
        R"(createElement(5, 76, null, floor 1, 4, "", 0))",
        R"(setName("C1"))",
        R"(setInt("OpeningWidth", 1500, false))",
        R"(setInt("OpeningHeight", 1800, false))",
        R"(setInt("AboveFloorHeight", 900, false))",
        R"(findRegion("House"))",
        R"(findByCode("1"))",
        QString(R"(findElement("C1", %1, -1, true, 0))").arg(floor()->id()),
        R"(createDrawObj(floor 1, element C1, true))",
        R"(addDrawObj(object of C1))",
        R"(drawObjsOfTypes({0, 1001, 1003}, true))",
        R"(attachTo(object of Q1))",
        R"(setInsertPoint((1000, 0)))",
        R"(setInt("AboveFloorHeight", 950, false))",
    };
    EXPECT_EQ(host.calls(), expected) << host.calls().join('\n').toStdString();
}

TEST_F(JsonDoorWin2HBXTest, unknownFloorReachesTheHostAsNull)
{
    load();
    RecordingHost host(*service());
    QJsonObject lost = elementMember(4, "M1");
    lost["floorName"] = "99";
    jsonDoorWin2HBX(host.service(), reply({lost}));
    EXPECT_EQ(host.calls(), (QStringList{R"(findRegion("House"))", R"(findByCode("99"))",
                                         R"(createElement(4, 14, null, null, 4, "", 0))"}));
}

TEST_F(JsonDoorWin2HBXTest, divideOfACombinedOpeningIsWrittenAheadOfItsSize)
{
    load();
    jsonDoorWin2HBX(service(), reply({elementMember(6, "MC1", 1200, 1200)}));
    RecordingHost host(*service());
    IHBXElement *element = host.service()->model()->elements()->at(0);
    element->properties()->setInt(L"WinDoorWidth", 600, false);
    doorwindow::setOpeningSize(*element, 501, 1200);
    EXPECT_EQ(host.calls().mid(1),
              (QStringList{R"(setInt("WinDoorWidth", 251, false))", R"(setInt("OpeningWidth", 501, false))",
                           R"(setInt("OpeningHeight", 1200, false))"}));
}

TEST_F(JsonDoorWin2HBXTest, tenThousandMembersWithBrokenOnesPlaceEverySoundOne)
{
    load(wall("Q1", 1003, "0 0, 500000 0"));
    QJsonArray members{elementMember(4, "M1")};
    int sound = 0;
    for (int i = 0; i < 10000; ++i) {
        const bool broken = i % 7 == 3;
        members.append(broken ? QJsonValue(placedMember("none", i, 0)) : QJsonValue(placedMember("M1", i * 10, 0)));
        sound += broken ? 0 : 1;
    }
    jsonDoorWin2HBX(service(), reply(members));
    EXPECT_EQ(placed(4).size(), sound);
    for (IHBXElementDrawObj *opening : placed(4))
        EXPECT_TRUE(opening->parent());
}

struct RoundCase
{
    double value;
    double rounded;
};
class RoundHalfTest : public ::testing::TestWithParam<RoundCase>
{};

TEST_P(RoundHalfTest, roundsHalvesAwayFromZeroFromFourTenthsOn)
{
    EXPECT_EQ(doorwindow::roundHalf(GetParam().value), GetParam().rounded);
}
INSTANTIATE_TEST_SUITE_P(Values, RoundHalfTest,
                         ::testing::Values(RoundCase{0.3, 0}, RoundCase{0.4, 0}, RoundCase{0.45, 0}, RoundCase{0.5, 1},
                                           RoundCase{1.49, 1}, RoundCase{1.5, 2}, RoundCase{-0.3, 0},
                                           RoundCase{-0.45, 0}, RoundCase{-0.5, -1}, RoundCase{-1.5, -2}));

} // namespace
