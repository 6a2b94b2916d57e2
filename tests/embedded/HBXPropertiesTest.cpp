#include "embedded/EmbeddedBuilding.h"

#include <limits>

namespace hbx::embedded {
namespace {

class HBXPropertiesTest : public EmbeddedBuilding
{
protected:
    IHBXElement *slabElement = element(19, "S", "F2");
    IHBXProperties *ofElement = slabElement->properties();
    IHBXElementDrawObj *object = placed(slabElement);
    IHBXProperties *ofObject = object->properties();
    IHBXProperties *ofBeam = element(15)->properties();
};

TEST_F(HBXPropertiesTest, theCatalogueTellsWhichPropertiesThereAre)
{
    EXPECT_TRUE(ofElement->hasProperty(L"Thickness"));
    EXPECT_FALSE(ofElement->hasProperty(L"thickness"));
    EXPECT_FALSE(ofElement->hasProperty(L"SectionWidth"));
    EXPECT_FALSE(ofElement->hasProperty(L"ReinforcementInfo")); // of its draw objects alone
    EXPECT_TRUE(ofObject->hasProperty(L"ReinforcementInfo"));
    EXPECT_TRUE(ofObject->hasProperty(L"Thickness"));
}

TEST_F(HBXPropertiesTest, readsOfLackingNamesAndOfNoValueGiveNothingAndNeverThrow)
{
    Point point(1, 1);
    vks::CRefPtr<vks::CCurve2d> curve = curveOf("LINESTRING(0 0, 1 0)");
    vks::CRefPtr<vks::CPolygon> polygon = polygonOf("POLYGON((0 0, 1 0, 1 1, 0 0))");
    QString text = QStringLiteral("before");
    for (const wchar_t *name : {L"NoSuchName", L"Thickness", L"TopElev", L"Remark"}) {
        EXPECT_TRUE(ofElement->isNull(name));
        EXPECT_EQ(ofElement->asInt(std::wstring(name)), 0);
        EXPECT_EQ(ofElement->asDouble(QString::fromWCharArray(name)), 0.0);
        EXPECT_EQ(ofElement->asString(text, std::wstring(name)), QString());
        EXPECT_EQ(ofElement->asPoint(point, name), Point());
        EXPECT_EQ(ofElement->asCurve(curve, std::wstring(name)).get(), nullptr);
        EXPECT_EQ(ofElement->asPolygon(polygon, name).get(), nullptr);
    }
}

TEST_F(HBXPropertiesTest, bothFormsOfANameReadTheSame)
{
    ofElement->setDouble(L"Thickness", 120.75, false);
    ofElement->setString(L"Remark", QStringLiteral("roof"), false);
    QString text;
    EXPECT_EQ(ofElement->asInt(QStringLiteral("Thickness")), 120);
    EXPECT_EQ(ofElement->asInt(std::wstring(L"Thickness")), 120);
    EXPECT_EQ(ofElement->asDouble(QStringLiteral("Thickness")), 120.75);
    EXPECT_EQ(ofElement->asString(text, QStringLiteral("Remark")), QStringLiteral("roof"));
}

TEST_F(HBXPropertiesTest, aDrawObjectReadsItsOwnValueFirstElseItsElements)
{
    ofElement->setDouble(L"Thickness", 120.0, false);
    EXPECT_EQ(numberIn(ofObject, L"Thickness"), 120.0);
    ofObject->setDouble(L"Thickness", 150.0, false);
    EXPECT_EQ(numberIn(ofObject, L"Thickness"), 150.0);
    EXPECT_EQ(numberIn(ofElement, L"Thickness"), 120.0);
    ofElement->setDouble(L"Thickness", 200.0, false);
    EXPECT_EQ(numberIn(ofObject, L"Thickness"), 150.0);
}

TEST_F(HBXPropertiesTest, writesToALackingNameDoNothing)
{
    ofElement->setInt(L"SectionWidth", 300, false);
    ofElement->setString(L"NoSuchName", QStringLiteral("x"), false);
    ofElement->setString(L"ReinforcementInfo", QStringLiteral("1,1;"), false);
    EXPECT_TRUE(store.elementRecord(slabElement->id())->properties.empty());
    EXPECT_TRUE(textIn(ofObject, L"ReinforcementInfo").isEmpty());
}

TEST_F(HBXPropertiesTest, writesOfAnotherKindConvertWhereNothingIsLost)
{
    ofElement->setInt(L"Thickness", 120, false);
    EXPECT_EQ(numberIn(ofElement, L"Thickness"), 120.0);
    ofElement->setString(L"Thickness", QStringLiteral("130.5"), false);
    EXPECT_EQ(numberIn(ofElement, L"Thickness"), 130.5);
    ofElement->setInt(L"Remark", 7, false);
    EXPECT_EQ(textIn(ofElement, L"Remark"), QStringLiteral("7"));
    ofElement->setDouble(L"Remark", 1000000.25, false);
    EXPECT_EQ(textIn(ofElement, L"Remark"), QStringLiteral("1000000.25"));
    ofElement->setInt(L"TopElev", 3, false);
    EXPECT_EQ(textIn(ofElement, L"TopElev"), QStringLiteral("3"));
    ofBeam->setDouble(L"Type1", 4.0, false);
    EXPECT_EQ(wholeIn(ofBeam, L"Type1"), 4);
    ofBeam->setString(L"Type1", QStringLiteral("-5"), false);
    EXPECT_EQ(wholeIn(ofBeam, L"Type1"), -5);
}

TEST_F(HBXPropertiesTest, writesOfAnotherKindThrowElsewhereAndChangeNothing)
{
    ofElement->setDouble(L"Thickness", 120.0, false);
    ofBeam->setInt(L"Type1", 4, false);
    const Point point(1, 2);
    EXPECT_THROW(ofElement->setString(L"Thickness", QStringLiteral("thick"), false), HBXModelException);
    EXPECT_THROW(ofElement->setString(L"Thickness", QString(), false), HBXModelException);
    EXPECT_THROW(ofElement->setPoint(L"Thickness", &point, false), HBXModelException);
    EXPECT_THROW(ofElement->setPoint(L"Remark", &point, false), HBXModelException);
    EXPECT_THROW(ofElement->setDouble(L"Thickness", std::numeric_limits<double>::infinity(), false), HBXModelException);
    EXPECT_THROW(ofBeam->setDouble(L"Type1", 4.5, false), HBXModelException);
    EXPECT_THROW(ofBeam->setDouble(L"Type1", 1e12, false), HBXModelException);
    EXPECT_THROW(ofBeam->setString(L"Type1", QStringLiteral("4.5"), false), HBXModelException);
    EXPECT_THROW(ofBeam->setInt(L"SectionPoly", 4, false), HBXModelException);
    EXPECT_EQ(numberIn(ofElement, L"Thickness"), 120.0);
    EXPECT_EQ(wholeIn(ofBeam, L"Type1"), 4);
}

TEST_F(HBXPropertiesTest, aWriteThatThrewStandsInTheJournalWithItsReason)
{
    EXPECT_THROW(ofElement->setString(L"Thickness", QStringLiteral("thick"), false), HBXModelException);
    ASSERT_EQ(store.journal().entries().size(), 1u);
    const JournalEntry &entry = store.journal().entries().front();
    EXPECT_EQ(entry.kind, JournalEntry::kWriteThrew);
    EXPECT_EQ(entry.objectId, slabElement->id());
    EXPECT_EQ(entry.name, QStringLiteral("S"));
    EXPECT_EQ(entry.reason,
              QStringLiteral("The property \"Thickness\" is of the kind number and cannot take \"thick\"."));
}

TEST_F(HBXPropertiesTest, theReasonOfARefusedOutlineTellsItsText)
{
    EXPECT_THROW(ofBeam->setPolygon(L"SectionPoly", polygonOf("POLYGON((0 0, 9 0, 9 9))").get(), false),
                 HBXModelException);
    ASSERT_EQ(store.journal().entries().size(), 1u);
    EXPECT_EQ(store.journal().entries().front().reason,
              QStringLiteral("The property \"SectionPoly\" is of the kind polygon and cannot take "
                             "\"POLYGON((0 0, 9 0, 9 9))\"."));
}

TEST_F(HBXPropertiesTest, numbersAreCutOrWrittenOutWhereReadAsAnotherKind)
{
    ofElement->setDouble(L"Thickness", -120.9, false);
    EXPECT_EQ(wholeIn(ofElement, L"Thickness"), -120);
    EXPECT_EQ(textIn(ofElement, L"Thickness"), QStringLiteral("-120.9"));
    ofElement->setDouble(L"Thickness", 1e300, false);
    EXPECT_EQ(wholeIn(ofElement, L"Thickness"), std::numeric_limits<int>::max());
    ofElement->setString(L"Remark", QStringLiteral("12.7"), false);
    EXPECT_EQ(wholeIn(ofElement, L"Remark"), 12);
    EXPECT_EQ(numberIn(ofElement, L"Remark"), 12.7);
    ofElement->setString(L"Remark", QStringLiteral("3A"), false);
    EXPECT_EQ(wholeIn(ofElement, L"Remark"), 0);
}

TEST_F(HBXPropertiesTest, elevationsAreMillimetresAgainstTheObjectsFloor)
{
    ofElement->setString(L"TopElev", QStringLiteral("层顶标高-0.05"), false);
    EXPECT_NEAR(numberIn(ofElement, L"TopElev"), 6450.0, 1e-9);
    EXPECT_NEAR(numberIn(ofObject, L"TopElev"), 6450.0, 1e-9);
    EXPECT_EQ(wholeIn(ofObject, L"TopElev"), 6450);
    ofObject->setString(L"TopElev", QStringLiteral(" 2.8 "), false);
    EXPECT_NEAR(numberIn(ofObject, L"TopElev"), 2800.0, 1e-9);
    EXPECT_EQ(textIn(ofObject, L"TopElev"), QStringLiteral("2.8"));
}

TEST_F(HBXPropertiesTest, otherTextsThrowUnderAnElevationAndAreNeverStored)
{
    ofElement->setString(L"TopElev", QStringLiteral("1.5"), false);
    for (const char *text : {"", "top", "inf", "1e999", "层顶标高0.1"})
        EXPECT_THROW(ofElement->setString(L"TopElev", QString::fromUtf8(text), false), HBXModelException) << text;
    EXPECT_EQ(textIn(ofElement, L"TopElev"), QStringLiteral("1.5"));
}

TEST_F(HBXPropertiesTest, theCataloguesDefaultIsReadWhereNothingWasWritten)
{
    IHBXElement *wallElement = element(1003, "W", "F2");
    EXPECT_EQ(textIn(wallElement->properties(), L"StartPtTopElev"), QStringLiteral("层顶标高"));
    EXPECT_NEAR(numberIn(wallElement->properties(), L"EndPtBottomElev"), 3000.0, 1e-9);
    EXPECT_FALSE(wallElement->properties()->isNull(L"EndPtBottomElev"));
    EXPECT_TRUE(store.elementRecord(wallElement->id())->properties.empty());
}

TEST_F(HBXPropertiesTest, aSecondNameIsTheSameValue)
{
    ofBeam->setDouble(L"AxisOffset_JZBZ", 25.0, true);
    EXPECT_EQ(numberIn(ofBeam, L"AxisOffset"), 25.0);
    ofBeam->setDouble(L"AxisOffset", 30.0, true);
    EXPECT_EQ(numberIn(ofBeam, L"AxisOffset_JZBZ"), 30.0);
}

TEST_F(HBXPropertiesTest, settersCopyGeometryAndNullClearsIt)
{
    vks::CRefPtr<vks::CPolygon> polygon = polygonOf("POLYGON((0 0, 400 0, 400 400, 0 0))");
    ofBeam->setPolygon(L"SectionPoly", polygon, false);
    polygon->Translate(Point(1000, 0));
    vks::CRefPtr<vks::CPolygon> read;
    EXPECT_EQ(ofBeam->asPolygon(read, L"SectionPoly")->ToText(), "POLYGON((0 0, 400 0, 400 400, 0 0))");
    ofBeam->setPolygon(L"SectionPoly", nullptr, false);
    EXPECT_TRUE(ofBeam->isNull(L"SectionPoly"));
    EXPECT_EQ(ofBeam->asPolygon(read, L"SectionPoly").get(), nullptr);
    EXPECT_NE(polygon.get(), nullptr);
}

TEST_F(HBXPropertiesTest, pointsAndCurvesReadBack)
{
    IHBXElementDrawObj *bar = placed(element(22));
    const Point point(3, -4);
    ofBeam->setPoint(L"InsertPt", &point, false);
    bar->properties()->setCurve(L"CurveData", curveOf("LINESTRING(0 0, 5 0)"), true);
    Point read;
    vks::CRefPtr<vks::CCurve2d> curve;
    EXPECT_EQ(ofBeam->asPoint(read, L"InsertPt"), point);
    EXPECT_EQ(bar->properties()->asCurve(curve, QStringLiteral("CurveData"))->ToText(), "LINESTRING(0 0, 5 0)");
    bar->properties()->setCurve(L"CurveData", nullptr, true);
    EXPECT_EQ(bar->properties()->asCurve(curve, std::wstring(L"CurveData")).get(), nullptr);
    const Point unknown(std::numeric_limits<double>::quiet_NaN(), 0);
    EXPECT_THROW(ofBeam->setPoint(L"InsertPt", &unknown, false), HBXModelException);
}

TEST_F(HBXPropertiesTest, anOwnValueOfNoneHidesTheElements)
{
    IHBXElement *hole = element(24);
    IHBXElementDrawObj *ofHole = placed(hole);
    hole->properties()->setPolygon(L"SectionPoly", polygonOf("POLYGON((0 0, 9 0, 9 9, 0 0))"), false);
    EXPECT_FALSE(ofHole->properties()->isNull(L"SectionPoly"));
    ofHole->properties()->setPolygon(L"SectionPoly", nullptr, false);
    EXPECT_TRUE(ofHole->properties()->isNull(L"SectionPoly"));
    EXPECT_FALSE(hole->properties()->isNull(L"SectionPoly"));
}

TEST_F(HBXPropertiesTest, recordsHoldOwnValuesInTheOrderInWhichTheyWereGiven)
{
    ofElement->setString(L"Remark", QStringLiteral("a"), false);
    ofElement->setInt(L"Thickness", 120, false);
    ofElement->setString(L"Remark", QStringLiteral("b"), false);
    const PropertyRecords records = store.elementRecord(slabElement->id())->properties;
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0].first, QStringLiteral("Remark"));
    EXPECT_EQ(std::get<QString>(records[0].second), QStringLiteral("b"));
    EXPECT_EQ(std::get<double>(records[1].second), 120.0);
}

} // namespace
} // namespace hbx::embedded
