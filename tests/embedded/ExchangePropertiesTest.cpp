#include "platform/embedded/ExchangeProperties.h"

#include "embedded/ExchangeRefusals.h"

using namespace exchangetest;
using hbx::embedded::DrawObjRecord;
using hbx::embedded::HBXPropertyCatalogue;
using hbx::embedded::ProjectRecord;
using hbx::embedded::propertiesToJson;
using hbx::embedded::PropertyRecords;
using hbx::embedded::PropertyValue;

namespace {

const Refusal kPropertyRefusals[] = {
    {ELEMENT(0) ".properties", "[]", ELEMENT(0) ".properties: is not an object"},
    {ELEMENT(0) ".properties.Colour", "1", ELEMENT(0) ".properties: has the unknown property \"Colour\""},
    {ELEMENT(0) ".properties.Thickness", "\"200\"", ELEMENT(0) ".properties.Thickness: is not a number"},
    {ELEMENT(0) ".properties.Type", "1.5", ELEMENT(0) ".properties.Type: is not an integer of 32 bits"},
    {ELEMENT(0) ".properties.TieBar", "true", ELEMENT(0) ".properties.TieBar: is neither a text nor a number"},
    {ELEMENT(0) ".properties.StartPtTopElev", "\"roof\"",
     ELEMENT(0) ".properties.StartPtTopElev: is not the text of an elevation"},
    {ELEMENT(0) ".properties.StartPtTopElev", "3.1",
     ELEMENT(0) ".properties.StartPtTopElev: is not the text of an elevation"},
    {ELEMENT(0) ".properties", "{\"AxisOffset\": 1, \"AxisOffset_JZBZ\": 1}",
     ELEMENT(0) ".properties: has the property \"AxisOffset\" under two names"},
    {ELEMENT(2) ".properties.InsertPt", "[1]", ELEMENT(2) ".properties.InsertPt: is not an array of 2 numbers"},
    {ELEMENT(2) ".properties.SectionPoly", "\"POLYGON((0 0, 5 5, 5 0, 0 5, 0 0))\"",
     ELEMENT(2) ".properties.SectionPoly: crosses itself"},
    {OBJECT(4) ".properties.CurveData", "\"LINESTRING(1 1)\"",
     OBJECT(4) ".properties.CurveData: is not the text of a curve"},
    {ELEMENT(4) ".properties", "{\"CurveData\": null}",
     ELEMENT(4) ".properties: has the unknown property \"CurveData\""},
    {OBJECT(4) ".properties.ReinforcementInfo", "\"wall,1;\"",
     OBJECT(4) ".properties.ReinforcementInfo: names the unknown draw object \"wall\""},
    {OBJECT(4) ".properties.Catalog", "\"B-1[wall]\"",
     OBJECT(4) ".properties.Catalog: names the unknown draw object \"wall\""},
    {OBJECT(4) ".properties.Catalog", "5", OBJECT(4) ".properties.Catalog: is not a text"},
    {OBJECT(5) ".properties.DependSlabID", "\"wall\"",
     OBJECT(5) ".properties.DependSlabID: names the unknown draw object \"wall\""},
    {OBJECT(5) ".properties.DependSlabID", "7",
     OBJECT(5) ".properties.DependSlabID: is neither the key of a draw object nor -1"},
};

class ExchangePropertiesRefusalTest : public RefusedDocumentTest
{};

TEST_P(ExchangePropertiesRefusalTest, isToldWithPlaceAndReason) { expectRefused(); }

INSTANTIATE_TEST_SUITE_P(Property, ExchangePropertiesRefusalTest, ::testing::ValuesIn(kPropertyRefusals));

/** The properties of a line bar (23) in a building without draw objects. */
QJsonObject written(const PropertyRecords &properties)
{
    return propertiesToJson(properties, HBXPropertyCatalogue::instance().properties(23),
                            [](const QString &) { return std::optional<QString>(); });
}

} // namespace

TEST(ExchangePropertiesTest, keysInPropertiesBecomeIds)
{
    const ProjectRecord project = recordOf(kSmallBuilding);
    const DrawObjRecord &slab = drawObjOf(project, "B-1"); // id 18
    const DrawObjRecord &bar = drawObjOf(project, "SLJ");  // id 19
    EXPECT_EQ(slab.id, 18);
    EXPECT_EQ(valueOf(slab.properties, "ReinforcementInfo"), PropertyValue(QString("19,1;")));
    EXPECT_EQ(valueOf(bar.properties, "ReinforcementInfo"), PropertyValue(QString("18,1;")));
    EXPECT_EQ(valueOf(bar.properties, "Catalog"), PropertyValue(QString("B-1[18]")));
    EXPECT_EQ(valueOf(drawObjOf(project, "FJ").properties, "DependSlabID"), PropertyValue(18));
}

TEST(ExchangePropertiesTest, minusOneStandsForNoSlab)
{
    const ProjectRecord project = recordOf(smallBuildingWith(OBJECT(5) ".properties.DependSlabID", "-1"));
    EXPECT_EQ(valueOf(drawObjOf(project, "FJ").properties, "DependSlabID"), PropertyValue(-1));
}

TEST(ExchangePropertiesTest, aNumberUnderATextPropertyIsItsDecimalText)
{
    const QString place = ELEMENT(0) ".properties.TieBar";
    const auto textOf = [&](const char *number) {
        return valueOf(recordOf(smallBuildingWith(place, number)).elements[0].properties, "TieBar");
    };
    EXPECT_EQ(textOf("1"), PropertyValue(QString("1")));
    EXPECT_EQ(textOf("12.5"), PropertyValue(QString("12.5")));
    EXPECT_EQ(textOf("20000000"), PropertyValue(QString("20000000")));
}

TEST(ExchangePropertiesTest, nullIsAPropertyWithoutAValue)
{
    const ProjectRecord project = recordOf(smallBuildingWith(ELEMENT(0) ".properties.Thickness", "null"));
    ASSERT_EQ(project.elements[0].properties.size(), 1U);
    EXPECT_EQ(project.elements[0].properties[0].first, QString("Thickness"));
    EXPECT_EQ(project.elements[0].properties[0].second, PropertyValue());
}

TEST(ExchangePropertiesTest, eachKindIsWrittenAsTheFormHasIt)
{
    const PropertyRecords bar{{"Remark", QString("x")}, {"LabelPosition", 3}, {"LeftLabel", PropertyValue()}};
    EXPECT_EQ(written(bar), parsed(R"({"Remark": "x", "LabelPosition": 3, "LeftLabel": null})"));
    const PropertyRecords odd{{"a", 1.5}, {"b", vks::CVec2<double>(1, -2)}, {"c", vks::CRefPtr<vks::CPolygon>()}};
    EXPECT_EQ(propertiesToJson(odd, nullptr, {}), parsed(R"({"a": 1.5, "b": [1, -2], "c": null})"));
}

TEST(ExchangePropertiesTest, aReferenceToNothingIsWrittenAsNone)
{
    EXPECT_EQ(written({{"DependSlabID", 77}}), parsed(R"({"DependSlabID": -1})"));
}
