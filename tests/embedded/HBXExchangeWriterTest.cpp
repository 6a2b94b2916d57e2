#include "platform/embedded/HBXExchangeWriter.h"

#include "embedded/ExchangeDocuments.h"

#include <gtest/gtest.h>

using namespace exchangetest;
using hbx::embedded::DrawObjRecord;
using hbx::embedded::ElementRecord;
using hbx::embedded::HBXExchangeWriter;
using hbx::embedded::ProjectRecord;

namespace {

QByteArray rewritten(const QByteArray &json) { return HBXExchangeWriter::write(recordOf(json)); }

QJsonObject firstFloor(const QByteArray &json)
{
    return parsed(json)["regions"].toArray()[0].toObject()["floors"].toArray()[0].toObject();
}

QJsonObject firstObject(const QByteArray &json, int element)
{
    return firstFloor(json)["elements"].toArray()[element].toObject()["drawObjects"].toArray()[0].toObject();
}

/** A small project made by hand: a slab, a bar that names it, and a wall made between the two. */
ProjectRecord projectOfThree()
{
    ProjectRecord project;
    project.regions = {{1, "R"}};
    project.floors.emplace_back();
    project.floors[0].id = 2;
    project.floors[0].regionId = 1;
    const qint64 types[] = {19, 22};
    for (const qint64 type : types) {
        ElementRecord element;
        element.id = 3 + static_cast<qint64>(project.elements.size());
        element.floorId = 2;
        element.name = QString::number(type);
        element.type = type;
        project.elements.push_back(element);
    }
    const qint64 elements[] = {3, 4, 3};
    for (const qint64 element : elements) {
        DrawObjRecord drawObj;
        drawObj.id = 5 + static_cast<qint64>(project.drawObjs.size());
        drawObj.elementId = element;
        drawObj.type = element == 3 ? 19 : 22;
        drawObj.shape.kind = element == 3 ? IHBXShape::kFace : IHBXShape::kPlanArea;
        project.drawObjs.push_back(drawObj);
    }
    return project;
}

class HBXExchangeWriterSampleTest : public ::testing::TestWithParam<const char *>
{};

TEST_P(HBXExchangeWriterSampleTest, isWrittenAsItWasRead)
{
    const QByteArray original = building(GetParam());
    ASSERT_FALSE(original.isEmpty());
    EXPECT_TRUE(parsed(rewritten(original)) == withPlainRings(parsed(original)));
}

INSTANTIATE_TEST_SUITE_P(Buildings, HBXExchangeWriterSampleTest,
                         ::testing::Values("duplex-apartment", "masonry-block", "precast-hall"));

} // namespace

TEST(HBXExchangeWriterTest, writingIsAFixedPointForWhateverTheFormHas)
{
    const QByteArray once = rewritten(building("made-building"));
    EXPECT_EQ(rewritten(once), once);
}

TEST(HBXExchangeWriterTest, theMadeBuildingComesBackFloorByFloor)
{
    const QJsonObject original = withPlainRings(firstFloor(building("made-building")));
    const QJsonObject written = firstFloor(rewritten(building("made-building")));
    const QJsonArray wanted = original["elements"].toArray();
    const QJsonArray elements = written["elements"].toArray();
    ASSERT_EQ(elements.size(), wanted.size());
    for (int i = 0; i < wanted.size(); ++i)
        EXPECT_TRUE(elements[i] == wanted[i]) << wanted[i].toObject()["name"].toString().toStdString();
}

TEST(HBXExchangeWriterTest, membersAtTheirStartValueAreLeftOut)
{
    const QByteArray json = rewritten(kSmallBuilding);
    const QJsonObject wall = firstObject(json, 0);
    EXPECT_EQ(wall.keys(), QStringList({"shape"}));
    EXPECT_EQ(wall["shape"].toObject().keys(), QStringList({"axis", "kind", "width"}));
    EXPECT_EQ(firstObject(json, 3)["shape"].toObject().keys(), QStringList({"height", "kind", "outline"}));
    EXPECT_EQ(firstObject(json, 1)["shape"].toObject().keys(), QStringList({"insertPoint", "kind", "outline"}));
    EXPECT_FALSE(parsed(json).contains("planeRule"));
}

TEST(HBXExchangeWriterTest, countAndFoundationOfAFloorAreAlwaysTold)
{
    const QJsonObject floor = firstFloor(rewritten(kSmallBuilding));
    EXPECT_EQ(floor["standardFloorCount"], QJsonValue(1));
    EXPECT_EQ(floor["foundation"], QJsonValue(false));
}

TEST(HBXExchangeWriterTest, geometryThatWasNeverSetIsNull)
{
    EXPECT_TRUE(firstObject(rewritten(kSmallBuilding), 1)["shape"].toObject()["outline"].isNull());
}

TEST(HBXExchangeWriterTest, idsInPropertiesBecomeKeysAgain)
{
    const QByteArray json = rewritten(kSmallBuilding);
    const QJsonObject bar = firstObject(json, 4)["properties"].toObject();
    EXPECT_EQ(bar["ReinforcementInfo"], QJsonValue("slab,1;"));
    EXPECT_EQ(bar["Catalog"], QJsonValue("B-1[slab]"));
    EXPECT_EQ(firstObject(json, 5)["properties"].toObject()["DependSlabID"], QJsonValue("slab"));
}

TEST(HBXExchangeWriterTest, anObjectThatIsReferredToGetsAKey)
{
    ProjectRecord project = projectOfThree();
    project.drawObjs[1].properties = {{"ReinforcementInfo", QString("5,1;")}};
    project.drawObjs[2].key = "object-5"; // taken already
    const QByteArray json = HBXExchangeWriter::write(project);
    EXPECT_EQ(firstObject(json, 0)["key"], QJsonValue("object-5'"));
    EXPECT_EQ(firstObject(json, 1)["properties"].toObject()["ReinforcementInfo"], QJsonValue("object-5',1;"));
}

TEST(HBXExchangeWriterTest, referencesToWhatIsGoneAreLeftOut)
{
    ProjectRecord project = projectOfThree();
    project.drawObjs[1].properties = {{"ReinforcementInfo", QString("5,1;77,1;")}, {"Catalog", QString("B-1[77]")}};
    const QJsonObject bar = firstObject(HBXExchangeWriter::write(project), 1)["properties"].toObject();
    EXPECT_EQ(bar["ReinforcementInfo"], QJsonValue("object-5,1;"));
    EXPECT_EQ(bar["Catalog"], QJsonValue("B-1"));
}

TEST(HBXExchangeWriterTest, orderIsToldWhereObjectsWereNotMadeElementByElement)
{
    ProjectRecord project = projectOfThree();
    const QByteArray json = HBXExchangeWriter::write(project);
    const QJsonArray slabs = firstFloor(json)["elements"].toArray()[0].toObject()["drawObjects"].toArray();
    EXPECT_EQ(slabs[0].toObject()["order"], QJsonValue(0));
    EXPECT_EQ(slabs[1].toObject()["order"], QJsonValue(2));
    EXPECT_EQ(firstObject(json, 1)["order"], QJsonValue(1));
    project.drawObjs.pop_back();
    EXPECT_FALSE(firstObject(HBXExchangeWriter::write(project), 1).contains("order"));
}
