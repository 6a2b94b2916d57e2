#include "IdentifyInputModel/Wall/ORVCADWallEdoGenerator.h"

#include "IdentifyInputModel/Wall/WallGeneratorFixture.h"
#include "platform/geometry/CArc2d.h"

namespace {

using namespace wallbatch;
using ORVCADWallEdoGeneratorTest = WallGeneratorFixture;

const QStringList kPieceCalls{"property(\"StartPtBottomElev\")", "property.setString(\"0.1\", false)",
                              "property(\"EndPtBottomElev\")",   "property.setString(\"0.2\", false)",
                              "property(\"StartPtTopElev\")",    "property.setString(\"2.8\", false)",
                              "property(\"EndPtTopElev\")",      "property.setString(\"2.9\", false)"};

TEST_F(ORVCADWallEdoGeneratorTest, brickWallIsMadeInThisOrder)
{
    load();
    const RecordingHost host(*service());
    add(brickWall(), {piece()});
    EXPECT_TRUE(generateBrick(host.service()));
    const QStringList expected = QStringList{begin(200),
                                             "findRegion(\"House\")",
                                             "findByCode(\"1\")",
                                             "findElement(\"Q1\", 2, -1, true, 0)",
                                             "createElement(1003, 316, null, floor 1, 0, \"\", 0)",
                                             "setName(\"Q1\")",
                                             "property(\"Material\")",
                                             "property.setInt(3, true)",
                                             "property(\"VertDistributionBar\")",
                                             "property.setString(\"2A6@600\", false)",
                                             "property(\"HoriDistributionBar\")",
                                             "property.setString(\"A6@250\", false)",
                                             "property(\"Thickness\")",
                                             "property.setInt(200, true)",
                                             end(200),
                                             begin(164),
                                             "createDrawObj(floor 1, element Q1, true)",
                                             "addDrawObj(object of Q1)",
                                             "setLine(LINESTRING(0 0, 5000 0))"} +
                                 kPieceCalls + QStringList{end(164)};
    EXPECT_EQ(host.calls(), expected) << host.calls().join('\n').toStdString();
}

TEST_F(ORVCADWallEdoGeneratorTest, forceWallIsMadeInThisOrder)
{
    load();
    const RecordingHost host(*service());
    add(forceWall(), {piece()});
    EXPECT_TRUE(generateForce(host.service()));
    const QStringList expected = QStringList{begin(125),
                                             "findRegion(\"House\")",
                                             "findByCode(\"1\")",
                                             "findElement(\"W1\", 2, -1, true, 0)",
                                             "createElement(0, 7, null, floor 1, 0, \"\", 0)",
                                             "setName(\"W1\")",
                                             "property(\"TieBar\")",
                                             "property.setString(\"A6@600\", false)",
                                             "property(\"VertDistributionBar\")",
                                             "property.setString(\"C10@150\", false)",
                                             "property(\"HoriDistributionBar\")",
                                             "property.setString(\"C10@200\", false)",
                                             "property(\"Thickness\")",
                                             "property.setInt(300, true)",
                                             begin(164),
                                             "createDrawObj(floor 1, element W1, true)",
                                             "addDrawObj(object of W1)",
                                             "setLine(LINESTRING(0 0, 5000 0))"} +
                                 kPieceCalls + QStringList{end(164), end(125)};
    EXPECT_EQ(host.calls(), expected) << host.calls().join('\n').toStdString();
}

TEST_F(ORVCADWallEdoGeneratorTest, eachBrickElementHasABatchAndAllForceElementsShareOne)
{
    load();
    const RecordingHost host(*service());
    add(brickWall(L"Q1"), {piece()});
    add(brickWall(L"Q2"), {piece()});
    add(forceWall(L"W1"), {piece()});
    add(forceWall(L"W2"), {piece()});
    generateBrick(host.service());
    generateForce(host.service());
    const QStringList brackets = host.calls().filter("Batch(");
    EXPECT_EQ(brackets, (QStringList{begin(200), end(200), begin(164), end(164), begin(200), end(200), begin(164),
                                     end(164), begin(125), begin(164), end(164), begin(164), end(164), end(125)}));
}

TEST_F(ORVCADWallEdoGeneratorTest, nullBrickModelGivesFalseWithoutACall)
{
    load();
    const RecordingHost host(*service());
    EXPECT_FALSE(generator(host.service()).generateBrick(nullptr, drawObjs, elements));
    EXPECT_EQ(host.calls(), QStringList());
}

TEST_F(ORVCADWallEdoGeneratorTest, nullForceModelGivesFalseBetweenTheBracketsOfARun)
{
    load();
    const RecordingHost host(*service());
    EXPECT_FALSE(generator(host.service()).generateForce(nullptr, drawObjs, elements));
    EXPECT_EQ(host.calls(), (QStringList{begin(125), end(125)}));
}

TEST_F(ORVCADWallEdoGeneratorTest, brickRecordOfAnotherTypeCreatesNothingButABatch)
{
    load();
    const RecordingHost host(*service());
    Brick record = brickWall();
    record.elementType = 0;
    add(record, {piece()});
    EXPECT_TRUE(generateBrick(host.service()));
    EXPECT_EQ(host.calls(), (QStringList{begin(200), end(200)}));
}

TEST_F(ORVCADWallEdoGeneratorTest, forceRecordOfAnotherTypeCreatesNothing)
{
    load();
    const RecordingHost host(*service());
    Force record = forceWall();
    record.elementType = 1003;
    add(record, {piece()});
    EXPECT_TRUE(generateForce(host.service()));
    EXPECT_EQ(host.calls(), (QStringList{begin(125), end(125)}));
}

TEST_F(ORVCADWallEdoGeneratorTest, nullRecordIsPassedOver)
{
    load();
    bricks.setBrickWallIdentifyData(nullptr, piece());
    add(brickWall(), {piece()});
    EXPECT_TRUE(generateBrick(service()));
    EXPECT_EQ(placedNames(1003), (QStringList{"Q1"}));
}

TEST_F(ORVCADWallEdoGeneratorTest, brickElementTakesTheFourProperties)
{
    load();
    add(brickWall(), {piece()});
    generateBrick(service());
    IHBXElement *element = find("Q1");
    ASSERT_TRUE(element);
    EXPECT_EQ(element->subType(), 316);
    EXPECT_EQ(text(element->properties(), L"Material"), "3");
    EXPECT_EQ(text(element->properties(), L"VertDistributionBar"), "2A6@600");
    EXPECT_EQ(text(element->properties(), L"HoriDistributionBar"), "A6@250");
    EXPECT_EQ(element->properties()->asInt(L"Thickness"), 200);
}

TEST_F(ORVCADWallEdoGeneratorTest, forceElementTakesTheFourProperties)
{
    load();
    add(forceWall(), {piece()});
    generateForce(service());
    IHBXElement *element = find("W1");
    ASSERT_TRUE(element);
    EXPECT_EQ(text(element->properties(), L"TieBar"), "A6@600");
    EXPECT_EQ(text(element->properties(), L"VertDistributionBar"), "C10@150");
    EXPECT_EQ(text(element->properties(), L"HoriDistributionBar"), "C10@200");
    EXPECT_EQ(element->properties()->asInt(L"Thickness"), 300);
}

TEST_F(ORVCADWallEdoGeneratorTest, pieceTakesAxisAndElevations)
{
    load();
    IdentifyResultData arc = piece();
    arc.sWorldLine = new vks::CArc2d(vks::CVec2<double>(0, 0), vks::CVec2<double>(2000, 0), 0.5);
    add(brickWall(), {arc});
    generateBrick(service());
    ASSERT_EQ(placed(1003).size(), 1);
    IHBXElementDrawObj *object = placed(1003)[0];
    EXPECT_EQ(axisOf(object)->Type(), 2);
    EXPECT_DOUBLE_EQ(axisOf(object)->Length(), arc.sWorldLine->Length());
    EXPECT_EQ(text(object->properties(), L"StartPtBottomElev"), "0.1");
    EXPECT_EQ(text(object->properties(), L"EndPtBottomElev"), "0.2");
    EXPECT_EQ(text(object->properties(), L"StartPtTopElev"), "2.8");
    EXPECT_EQ(text(object->properties(), L"EndPtTopElev"), "2.9");
}

TEST_F(ORVCADWallEdoGeneratorTest, whatIsMadeIsAppendedToTheVectors)
{
    load();
    add(brickWall(), {piece(0), piece(1000)});
    generateBrick(service());
    EXPECT_EQ(elements, (ORVCADWallEdoGenerator::Elements{find("Q1")}));
    EXPECT_EQ(drawObjs, (ORVCADWallEdoGenerator::DrawObjs{placed(1003)[0], placed(1003)[1]}));
}

TEST_F(ORVCADWallEdoGeneratorTest, takenNameBecomesTheHostsUniqueOneAndTheRecordFollows)
{
    load(wall("Q1", 1003, "0 0, 5000 0"));
    Brick *record = add(brickWall(), {piece()});
    const RecordingHost host(*service());
    generateBrick(host.service());
    EXPECT_TRUE(host.calls().contains("uniqueName(2, 1003, \"Q1\")")) << host.calls().join('\n').toStdString();
    EXPECT_EQ(record->entName, L"Q1-1");
    EXPECT_TRUE(find("Q1-1"));
}

TEST_F(ORVCADWallEdoGeneratorTest, nameIsAskedForOfAnyTypeAndMadeUniqueInItsOwn)
{
    load(wall("W1", 1003, "0 0, 5000 0")); // a brick wall has the name, no force wall
    Force *record = add(forceWall(), {piece()});
    const RecordingHost host(*service());
    generateForce(host.service());
    EXPECT_TRUE(host.calls().contains("uniqueName(2, 0, \"W1\")")) << host.calls().join('\n').toStdString();
    EXPECT_EQ(record->entName, L"W1"); // free among force walls
    EXPECT_EQ(placedNames(0), (QStringList{"W1"}));
}

TEST_F(ORVCADWallEdoGeneratorTest, emptyMaterialWritesNoMaterial)
{
    load();
    Brick record = brickWall();
    record.material.clear();
    add(record, {piece()});
    const RecordingHost host(*service());
    generateBrick(host.service());
    EXPECT_FALSE(host.calls().contains("property(\"Material\")"));
    EXPECT_TRUE(host.calls().contains("property(\"Thickness\")"));
}

TEST_F(ORVCADWallEdoGeneratorTest, materialThatIsNoNumberIsWrittenAsZero)
{
    load();
    Brick record = brickWall();
    record.material = L"brick";
    add(record, {piece()});
    generateBrick(service());
    EXPECT_EQ(text(find("Q1")->properties(), L"Material"), "0");
}

TEST_F(ORVCADWallEdoGeneratorTest, widthOfMinusOneWritesNoThickness)
{
    load();
    Brick record = brickWall();
    record.width = -1;
    add(record, {piece()});
    const RecordingHost host(*service());
    generateBrick(host.service());
    EXPECT_FALSE(host.calls().contains("property(\"Thickness\")"));
    EXPECT_EQ(placedNames(1003), (QStringList{"Q1"}));
}

TEST_F(ORVCADWallEdoGeneratorTest, materialOfMinusOneIsNotWrittenEither)
{
    load();
    Brick record = brickWall();
    record.material = L"-1";
    add(record, {piece()});
    const RecordingHost host(*service());
    generateBrick(host.service());
    EXPECT_FALSE(host.calls().contains("property(\"Material\")"));
}

TEST_F(ORVCADWallEdoGeneratorTest, emptyBarsAreNotWritten)
{
    load();
    Force record = forceWall();
    record.tieBar.clear();
    record.hreBar.clear();
    add(record, {piece()});
    const RecordingHost host(*service());
    generateForce(host.service());
    EXPECT_FALSE(host.calls().contains("property(\"TieBar\")"));
    EXPECT_FALSE(host.calls().contains("property(\"HoriDistributionBar\")"));
    EXPECT_TRUE(host.calls().contains("property(\"VertDistributionBar\")"));
}

TEST_F(ORVCADWallEdoGeneratorTest, emptyTopElevationLeavesTheHostsDefault)
{
    load();
    IdentifyResultData open = piece();
    open.sPfnStartPtTopElev.clear();
    add(brickWall(), {open});
    generateBrick(service());
    IHBXProperties *properties = placed(1003)[0]->properties();
    EXPECT_EQ(text(properties, L"StartPtTopElev"), "层顶标高");
    EXPECT_EQ(text(properties, L"EndPtTopElev"), "2.9");
}

TEST_F(ORVCADWallEdoGeneratorTest, elevationThatTheHostRefusesIsTakenBackAndTheNextIsWritten)
{
    load();
    IdentifyResultData odd = piece();
    odd.sPfnEndPtBottomElev = L"top of raft";
    add(brickWall(), {odd});
    const RecordingHost host(*service());
    generateBrick(host.service());
    const int refused = host.calls().indexOf("property.setString(\"top of raft\", false)");
    ASSERT_GE(refused, 0);
    EXPECT_EQ(host.calls().mid(refused + 1, 2), (QStringList{"property.revert()", "property(\"StartPtTopElev\")"}));
    IHBXProperties *properties = placed(1003)[0]->properties();
    EXPECT_EQ(text(properties, L"EndPtBottomElev"), "层底标高");
    EXPECT_EQ(text(properties, L"StartPtTopElev"), "2.8");
}

TEST_F(ORVCADWallEdoGeneratorTest, whateverAPropertyThrowsIsTakenBack)
{
    load();
    add(brickWall(), {piece()});
    RecordingHost host(*service());
    host.beforeCall([](const QString &line) {
        if (line.startsWith("property.set"))
            throw 17;
    });
    generateBrick(host.service());
    EXPECT_EQ(host.calls().count("property.revert()"), 8); // four of the element, four of the piece
    EXPECT_EQ(placedNames(1003), (QStringList{"Q1"}));
}

TEST_F(ORVCADWallEdoGeneratorTest, propertyThatDoesNotExistIsPassedOver)
{
    load(R"({"name": "KL1", "type": 15})"); // beams have top elevations alone
    ASSERT_FALSE(find("KL1")->properties()->hasProperty(L"StartPtBottomElev"));
    const RecordingHost host(*service());
    IHBXElement *beam = host.service()->model()->elements()->findElement("KL1", 2, -1, true, 0);
    generator(host.service()).createDrawObjs(*beam, {piece()}, drawObjs);
    ASSERT_EQ(placed(15).size(), 1);
    EXPECT_EQ(text(placed(15)[0]->properties(), L"StartPtTopElev"), "2.8");
    const int missing = host.calls().indexOf("property(\"StartPtBottomElev\")");
    EXPECT_EQ(host.calls().value(missing + 1), "property(\"EndPtBottomElev\")");
}

TEST_F(ORVCADWallEdoGeneratorTest, objectThatIsNoLineIsRemovedAndThePiecesGoOn)
{
    load(R"({"name": "M1", "type": 4})");
    const RecordingHost host(*service());
    IHBXElement *door = host.service()->model()->elements()->findElement("M1", 2, -1, true, 0);
    generator(host.service()).createDrawObjs(*door, {piece(), piece()}, drawObjs);
    EXPECT_TRUE(drawObjs.empty());
    EXPECT_TRUE(placed(4).isEmpty());
    EXPECT_EQ(host.calls().mid(1),
              (QStringList{begin(164), "createDrawObj(floor 1, element M1, true)", "addDrawObj(object of M1)",
                           "removeDrawObj(object of M1)", "createDrawObj(floor 1, element M1, true)",
                           "addDrawObj(object of M1)", "removeDrawObj(object of M1)", end(164)}));
}

TEST_F(ORVCADWallEdoGeneratorTest, pieceWithoutAnAxisIsPlacedWithoutGeometry)
{
    load();
    IdentifyResultData bare = piece();
    bare.sWorldLine = nullptr;
    add(brickWall(), {bare});
    generateBrick(service());
    ASSERT_EQ(placed(1003).size(), 1);
    EXPECT_FALSE(axisOf(placed(1003)[0]));
}

TEST_F(ORVCADWallEdoGeneratorTest, elementWhoseNameIsRefusedStaysAndItsPiecesAreSkipped)
{
    load();
    Brick *record = add(brickWall(L""), {piece()});
    add(brickWall(L"Q2"), {piece()});
    EXPECT_TRUE(generateBrick(service()));
    EXPECT_EQ(record->entName, L"");
    EXPECT_EQ(placedNames(1003), (QStringList{"Q2"}));
    EXPECT_EQ(model().elements()->count(), 2);
}

/** A step that the host refuses the first time, in the middle of two walls of two pieces. */
struct Refusal
{
    const char *call;
    int placedPieces;
};
class RefusedStepTest : public ORVCADWallEdoGeneratorTest, public ::testing::WithParamInterface<Refusal>
{};

TEST_P(RefusedStepTest, costsItsWallOrItsPieceAloneAndEveryBatchIsClosed)
{
    load();
    add(brickWall(L"Q1"), {piece(0), piece(1000)});
    add(brickWall(L"Q2"), {piece(2000), piece(3000)});
    RecordingHost host(*service());
    refuse(host, GetParam().call);
    EXPECT_TRUE(generateBrick(host.service()));
    EXPECT_EQ(static_cast<int>(drawObjs.size()), GetParam().placedPieces);
    EXPECT_EQ(host.calls().filter("beginBatch(").size(), host.calls().filter("endBatch(").size());
}

INSTANTIATE_TEST_SUITE_P(Steps, RefusedStepTest,
                         ::testing::Values(Refusal{"findElement(", 2}, Refusal{"createElement(", 2},
                                           Refusal{"setName(", 2}, Refusal{"property(\"Thickness\")", 2},
                                           Refusal{"createDrawObj(", 3}, Refusal{"addDrawObj(", 3},
                                           Refusal{"setLine(", 3}, Refusal{"property(\"EndPtTopElev\")", 3}));

} // namespace
