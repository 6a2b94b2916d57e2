#include "drawing/ORVCADFloorSDCData.h"

#include "DrawingJson.h"

#include <gmock/gmock.h>

#include <limits>

using namespace drawing_test;

namespace {

using Floor = ORVCADFloorSDCData::Floor;
using Joint = ORVCADFloorSDCData::ConcreteAnchorJoint;
using Floors = std::vector<Floor>;

const char *const kWholeFloor = R"({
    "ID": 11, "Description": "F2", "Height": 3.3, "StdFloorCount": 4, "StructuralElevation": -0.05,
    "StartFloorNo": 2, "Remark": "flats", "Code": "2", "SlabThickness": 120.5, "FloorArea": 850.25,
    "RelatedFloorID": "9", "Region": {"ID": 3, "Description": "Tower A"},
    "ConcreteAnchorJoint": [{
        "TypeID": 1, "BasicElementTypeID": 15, "ConcGradeID": 30, "ConcTypeID": 2, "MortarGradeID": 5,
        "MortarTypeID": 6, "AseismicLevelID": 3, "Anchor1": "a1", "Anchor2": "a2", "Anchor3": "a3", "Anchor4": "a4",
        "Anchor5": "a5", "Anchor6": "a6", "Joint1": "j1", "Joint2": "j2", "Joint3": "j3", "Joint4": "j4",
        "Joint5": "j5", "Joint6": "j6", "ProtectiveLayerThickness": 25, "Remark": "beams"}, {}]})";

QJsonObject document(const QJsonArray &floors) { return {{"FloorSDCData", floors}}; }

class ORVCADFloorSDCDataTest : public testing::Test
{
protected:
    Floors readFloors(const QJsonArray &floors) { return format.unserialize(document(floors), ok); }
    bool isTaken(const QJsonValue &floor)
    {
        readFloors({floor});
        return ok;
    }
    /** Whether a floor is taken that has one key more than it needs. */
    bool isTakenWith(const char *key, const char *value)
    {
        return isTaken(QJsonObject{{"Region", QJsonObject()}, {QString::fromUtf8(key), json(value)}});
    }
    bool isJointTakenWith(const char *key, const char *value)
    {
        const QJsonObject joint{{QString::fromUtf8(key), json(value)}};
        return isTaken(QJsonObject{{"Region", QJsonObject()}, {"ConcreteAnchorJoint", QJsonArray{joint}}});
    }

    const ORVCADFloorSDCData format;
    bool ok = false;
};

} // namespace

TEST_F(ORVCADFloorSDCDataTest, freshFieldHasNoValue)
{
    const Floor floor;
    EXPECT_TRUE(floor.ID.null);
    EXPECT_EQ(floor.ID.value, 0);
    EXPECT_TRUE(floor.Height.null);
    EXPECT_EQ(floor.Height.value, 0.0);
    EXPECT_TRUE(floor.Code.null);
    EXPECT_EQ(floor.Code.value, "");
    EXPECT_TRUE(floor.ConcreteAnchorJoints.empty());
}

TEST_F(ORVCADFloorSDCDataTest, freshFloorIsWrittenWithAnEmptyRegionAlone)
{
    EXPECT_EQ(text(format.serialize({Floor()})), R"({"FloorSDCData":[{"Region":{}}]})");
    EXPECT_EQ(text(format.serialize({})), R"({"FloorSDCData":[]})");
}

TEST_F(ORVCADFloorSDCDataTest, zeroAndEmptyTextAreValuesAndWritten)
{
    Floor floor;
    floor.ID.set(0);
    floor.Height.set(0.0);
    floor.Code.set(QString());
    floor.Region.ID.set(0);
    EXPECT_EQ(text(format.serialize({floor})), R"({"FloorSDCData":[{"Code":"","Height":0,"ID":0,"Region":{"ID":0}}]})");
}

TEST_F(ORVCADFloorSDCDataTest, valueUnderTheNullFlagIsNotWritten)
{
    Floor floor;
    floor.ID.value = 7;
    EXPECT_EQ(text(format.serialize({floor})), R"({"FloorSDCData":[{"Region":{}}]})");
}

TEST_F(ORVCADFloorSDCDataTest, settingsWithoutValuesAreWrittenAsEmptyObjects)
{
    Floor floor;
    floor.ConcreteAnchorJoints.resize(2);
    EXPECT_EQ(text(format.serialize({floor})), R"({"FloorSDCData":[{"ConcreteAnchorJoint":[{},{}],"Region":{}}]})");
}

TEST_F(ORVCADFloorSDCDataTest, wholeNumbersOf64BitsAreWrittenWhole)
{
    Floor floor;
    floor.ID.set(5000000000);
    EXPECT_EQ(text(format.serialize({floor})), R"({"FloorSDCData":[{"ID":5000000000,"Region":{}}]})");
}

TEST_F(ORVCADFloorSDCDataTest, everyFieldOfAFloorIsRead)
{
    const Floors floors = readFloors({object(kWholeFloor)});
    ASSERT_TRUE(ok);
    ASSERT_EQ(floors.size(), 1U);
    const Floor &floor = floors[0];
    EXPECT_EQ(floor.ID.value, 11);
    EXPECT_FALSE(floor.ID.null);
    EXPECT_EQ(floor.Description.value, "F2");
    EXPECT_EQ(floor.Height.value, 3.3);
    EXPECT_EQ(floor.StdFloorCount.value, 4);
    EXPECT_EQ(floor.StructuralElevation.value, -0.05);
    EXPECT_EQ(floor.StartFloorNo.value, 2);
    EXPECT_EQ(floor.Remark.value, "flats");
    EXPECT_EQ(floor.Code.value, "2");
    EXPECT_EQ(floor.SlabThickness.value, 120.5);
    EXPECT_EQ(floor.FloorArea.value, 850.25);
    EXPECT_EQ(floor.RelatedFloorID.value, "9");
    EXPECT_EQ(floor.Region.ID.value, 3);
    EXPECT_EQ(floor.Region.Description.value, "Tower A");
    EXPECT_EQ(floor.ConcreteAnchorJoints.size(), 2U);
}

TEST_F(ORVCADFloorSDCDataTest, everyFieldOfASettingIsRead)
{
    const Floors floors = readFloors({object(kWholeFloor)});
    ASSERT_TRUE(ok);
    const Joint &joint = floors[0].ConcreteAnchorJoints[0];
    EXPECT_EQ(joint.TypeID.value, 1);
    EXPECT_EQ(joint.BasicElementTypeID.value, 15);
    EXPECT_EQ(joint.ConcGradeID.value, 30);
    EXPECT_EQ(joint.ConcTypeID.value, 2);
    EXPECT_EQ(joint.MortarGradeID.value, 5);
    EXPECT_EQ(joint.MortarTypeID.value, 6);
    EXPECT_EQ(joint.AseismicLevelID.value, 3);
    const QStringList lengths = {joint.Anchor1.value, joint.Anchor2.value, joint.Anchor3.value, joint.Anchor4.value,
                                 joint.Anchor5.value, joint.Anchor6.value, joint.Joint1.value,  joint.Joint2.value,
                                 joint.Joint3.value,  joint.Joint4.value,  joint.Joint5.value,  joint.Joint6.value};
    EXPECT_EQ(lengths.join(' '), "a1 a2 a3 a4 a5 a6 j1 j2 j3 j4 j5 j6");
    EXPECT_EQ(joint.ProtectiveLayerThickness.value, 25);
    EXPECT_EQ(joint.Remark.value, "beams");
    EXPECT_TRUE(floors[0].ConcreteAnchorJoints[1].Remark.null);
}

TEST_F(ORVCADFloorSDCDataTest, whatIsReadIsWrittenAgain)
{
    const QJsonObject whole = document({object(kWholeFloor), object(R"({"Region":{}})")});
    EXPECT_EQ(format.serialize(format.unserialize(whole, ok)), whole);
    EXPECT_TRUE(ok);
}

TEST_F(ORVCADFloorSDCDataTest, exampleDocumentIsReadAndWrittenAgain)
{
    const QJsonObject example = dataObject("drawing/floor-sdc.json");
    const Floors floors = format.unserialize(example, ok);
    ASSERT_TRUE(ok);
    EXPECT_EQ(floors.at(0).ConcreteAnchorJoints.at(0).Anchor1.value, "35d");
    EXPECT_TRUE(floors.at(0).FloorArea.null);
    EXPECT_EQ(format.serialize(floors), example);
}

TEST_F(ORVCADFloorSDCDataTest, emptyArrayGivesNoFloorsAndIsAccepted)
{
    EXPECT_TRUE(readFloors({}).empty());
    EXPECT_TRUE(ok);
}

TEST_F(ORVCADFloorSDCDataTest, documentHasTheOneMemberAndNoOther)
{
    ok = true;
    EXPECT_TRUE(format.unserialize({}, ok).empty());
    EXPECT_FALSE(ok);
    for (const char *refused : {R"({"FloorSDCData":[{"Region":{}}],"Version":1})", R"({"FloorSDCData":{}})",
                                R"({"FloorSDCData":null})", R"({"floorSDCData":[]})", R"({"Region":[]})"}) {
        ok = true;
        EXPECT_TRUE(format.unserialize(object(refused), ok).empty()) << refused;
        EXPECT_FALSE(ok) << refused;
    }
}

TEST_F(ORVCADFloorSDCDataTest, floorsInFrontOfARefusedOneAreGivenAndThoseBehindAreNot)
{
    const QJsonObject first{{"ID", 1}, {"Region", QJsonObject()}};
    const QJsonObject last{{"ID", 3}, {"Region", QJsonObject()}};
    for (const QJsonValue &refused :
         {QJsonValue(QJsonObject()), QJsonValue(7), QJsonValue(), QJsonValue(QJsonArray())}) {
        const Floors floors = readFloors({first, refused, last});
        EXPECT_FALSE(ok);
        ASSERT_EQ(floors.size(), 1U);
        EXPECT_EQ(floors[0].ID.value, 1);
    }
}

TEST_F(ORVCADFloorSDCDataTest, floorNeedsARegionAndNothingElse)
{
    EXPECT_FALSE(isTaken(QJsonObject()));
    for (const char *region : {"null", "7", "[]", R"("A")"})
        EXPECT_FALSE(isTaken(QJsonObject{{"Region", json(region)}})) << region;
    const Floors floors = readFloors({QJsonObject{{"Region", QJsonObject()}}});
    ASSERT_TRUE(ok);
    EXPECT_EQ(text(format.serialize(floors)), R"({"FloorSDCData":[{"Region":{}}]})"); // every field without value
}

TEST_F(ORVCADFloorSDCDataTest, unknownKeysOfAFloorAreNoFault) { EXPECT_TRUE(isTakenWith("Colour", "7")); }

TEST_F(ORVCADFloorSDCDataTest, wholeNumbersAreWholeAndFitInto32BitsEvenFor64BitFields)
{
    for (const char *key : {"ID", "StdFloorCount", "StartFloorNo"}) {
        for (const char *taken : {"0", "7", "-3", "7.0", "7e2", "2147483647", "-2147483647"})
            EXPECT_TRUE(isTakenWith(key, taken)) << key << taken;
        for (const char *refused : {"1.5", "5000000000", "2147483648", "-2147483648", "-2147483649", "1e300", R"("7")",
                                    "null", "true", "[]", "{}"})
            EXPECT_FALSE(isTakenWith(key, refused)) << key << refused;
    }
}

TEST_F(ORVCADFloorSDCDataTest, numbersAreNumbers)
{
    for (const char *key : {"Height", "StructuralElevation", "SlabThickness", "FloorArea"}) {
        for (const char *taken : {"0", "3.3", "-1e300", "5000000000"})
            EXPECT_TRUE(isTakenWith(key, taken)) << key << taken;
        for (const char *refused : {R"("3.3")", "null", "false", "[3.3]", "{}", "-1.7976931348623157e308"})
            EXPECT_FALSE(isTakenWith(key, refused)) << key << refused;
    }
}

TEST_F(ORVCADFloorSDCDataTest, textOfAnotherTypeLeavesTheFieldWithoutValueAndIsNoFault)
{
    for (const char *key : {"Description", "Remark", "Code", "RelatedFloorID"})
        for (const char *value : {"7", "null", "true", "[]", "{}"})
            EXPECT_TRUE(isTakenWith(key, value)) << key << value;
    const Floors floors = readFloors({object(R"({"Region":{"Description":7},"Remark":7,"Code":"","Height":3})")});
    ASSERT_TRUE(ok);
    EXPECT_TRUE(floors[0].Remark.null);
    EXPECT_TRUE(floors[0].Region.Description.null);
    EXPECT_FALSE(floors[0].Code.null); // an empty text is a value
    EXPECT_EQ(floors[0].Height.value, 3.0);
}

TEST_F(ORVCADFloorSDCDataTest, regionWithABadIdIsRefused)
{
    EXPECT_FALSE(isTaken(object(R"({"Region":{"ID":5000000000}})")));
    EXPECT_FALSE(isTaken(object(R"({"Region":{"ID":"3"}})")));
    EXPECT_TRUE(isTaken(object(R"({"Region":{"ID":3}})")));
}

TEST_F(ORVCADFloorSDCDataTest, settingsAreAnArrayOfObjects)
{
    EXPECT_TRUE(isTakenWith("ConcreteAnchorJoint", "[]"));
    EXPECT_TRUE(isTakenWith("ConcreteAnchorJoint", "[{},{}]"));
    for (const char *refused : {"null", "{}", "7", "[7]", "[{},null]", "[[]]"})
        EXPECT_FALSE(isTakenWith("ConcreteAnchorJoint", refused)) << refused;
}

TEST_F(ORVCADFloorSDCDataTest, settingWithABadNumberIsRefused)
{
    for (const char *key : {"TypeID", "BasicElementTypeID", "ConcGradeID", "ConcTypeID", "MortarGradeID",
                            "MortarTypeID", "AseismicLevelID", "ProtectiveLayerThickness"}) {
        EXPECT_TRUE(isJointTakenWith(key, "7")) << key;
        for (const char *refused : {R"("7")", "1.5", "5000000000", "null"})
            EXPECT_FALSE(isJointTakenWith(key, refused)) << key << refused;
    }
    for (const char *key : {"Anchor1", "Anchor6", "Joint1", "Joint6", "Remark"})
        EXPECT_TRUE(isJointTakenWith(key, "7")) << key;
}

TEST_F(ORVCADFloorSDCDataTest, fieldIsSetFromAValueOfItsType)
{
    ORVCADFloorSDCData::Data<int> number;
    EXPECT_TRUE(format.setJsonValueToData(7, number));
    EXPECT_FALSE(number.null);
    EXPECT_EQ(number.value, 7);
    ORVCADFloorSDCData::Data<qint64> id;
    EXPECT_TRUE(format.setJsonValueToData(-7, id));
    EXPECT_EQ(id.value, -7);
    ORVCADFloorSDCData::Data<double> length;
    EXPECT_TRUE(format.setJsonValueToData(0.5, length));
    EXPECT_EQ(length.value, 0.5);
    ORVCADFloorSDCData::Data<QString> name;
    EXPECT_TRUE(format.setJsonValueToData(QStringLiteral("a"), name));
    EXPECT_EQ(name.value, "a");
}

TEST_F(ORVCADFloorSDCDataTest, refusedValueLeavesTheFieldAsItWas)
{
    ORVCADFloorSDCData::Data<int> number;
    number.set(3);
    EXPECT_FALSE(format.setJsonValueToData(QStringLiteral("7"), number));
    EXPECT_EQ(number.value, 3);
    EXPECT_FALSE(number.null);
    ORVCADFloorSDCData::Data<double> length;
    EXPECT_FALSE(format.setJsonValueToData(std::numeric_limits<double>::quiet_NaN(), length));
    EXPECT_FALSE(format.setJsonValueToData(std::numeric_limits<double>::lowest(), length));
    EXPECT_TRUE(length.null);
    ORVCADFloorSDCData::Data<QString> name;
    EXPECT_TRUE(format.setJsonValueToData(7, name));
    EXPECT_TRUE(name.null);
}
