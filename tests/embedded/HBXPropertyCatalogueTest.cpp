#include "platform/embedded/HBXPropertyCatalogue.h"

#include <gmock/gmock.h>

#include <map>
#include <set>

using namespace hbx::embedded;

namespace {

const HBXPropertyCatalogue &catalogue() { return HBXPropertyCatalogue::instance(); }

const PropertyEntry *ofElement(qint64 type, const char *name)
{
    return catalogue().find(type, QString::fromLatin1(name), false);
}

const PropertyEntry *ofDrawObj(qint64 type, const char *name)
{
    return catalogue().find(type, QString::fromLatin1(name), true);
}

/** Names that some conversion reads or writes on objects of the types. */
struct Touched
{
    const char *where;
    std::vector<qint64> types;
    std::vector<const char *> onElement;
    std::vector<const char *> onDrawObj;
};

const std::vector<Touched> kTouched{
    {"beams to local records",
     {15, 17, 18, 47},
     {"SectionWidth", "SectionHeight", "SectionPoly", "StartPtTopElev", "EndPtTopElev", "HoopBar", "Limb", "TieBar",
      "AxisOffset", "AxisOffset_JZBZ"},
     {"AxisOffset", "AxisOffset_JZBZ", "StartPtTopElev", "EndPtTopElev"}},
    {"beams with spans to local records",
     {15, 18, 47},
     {"SpanCount", "TopThroughBar", "BottomThroughBar", "SideBar"},
     {"SpanCount"}},
    {"kind of a beam", {15}, {"Type1"}, {}},
    {"kind of other beams", {18, 47}, {"Type"}, {}},
    {"link beams", {17}, {"TopHoriBar", "BottomHoriBar", "SideBarAL"}, {}},
    {"columns as seats", {25, 26, 1002}, {}, {"Type"}},
    {"foundations, piles and tie beams as seats",
     {18, 52, 53, 54},
     {},
     {"SectionPoly", "AxisOffset", "AxisOffset_JZBZ", "Type1", "Height", "SectionWidth", "SectionHeight"}},
    {"tie beams as seats", {18}, {"StartPtTopElev", "EndPtTopElev"}, {"StartPtTopElev", "EndPtTopElev"}},
    {"point solids as seats", {52, 53, 54}, {"TopElev", "BottomElev"}, {"TopElev", "BottomElev"}},
    {"walls as seats", {0, 1003}, {}, {"Thickness", "AxisOffset"}},
    {"sections of beams written", {15, 17, 18, 47}, {"SectionTypeID", "SectionPoly", "InsertPt"}, {"SectionWidth"}},
    {"foundations written", {52, 53}, {"Height"}, {"TopElev", "BottomElev"}},
    {"units written", {82, 83}, {"Height", "SectionTypeID", "SectionPoly", "InsertPt"}, {}},
    {"piles written",
     {54},
     {"Type1", "TopElev", "SectionWidth", "SectionHeight", "SectionTypeID", "SectionPoly", "InsertPt", "SectionInfo",
      "Height"},
     {"TopElev"}},
    {"rafts", {48}, {"Thickness"}, {"TopElev", "BottomElev", "Remark", "ReinforcementInfo"}},
    {"slabs", {19}, {"Thickness"}, {"TopElev", "Remark", "ReinforcementInfo"}},
    {"holes",
     {24},
     {"SectionTypeID", "Width", "Length", "Radius", "SectionPoly", "InsertPt", "SectionInfo"},
     {"Remark", "LongSpanReinforcedBar", "ShortSpanReinforcedBar", "ObliqueReinforcedBar"}},
    {"area bars",
     {22, 49},
     {"BarInfo", "Type"},
     {"Type", "Position", "BarInfo", "CurveData", "Remark", "LeftHook", "RightHook", "LeftLabel", "RightLabel",
      "LabelPosition", "IsRadiate", "ReferenceCurve", "ReinforcementInfo", "Catalog"}},
    {"line bars",
     {23, 50},
     {"BarInfo"},
     {"LabelPosition", "IncludeSupport", "LeftLabel", "RightLabel", "CurveData", "LeftHook", "RightHook", "BarInfo",
      "Remark", "DependSlabID"}},
    {"bars of slabs", {22, 23}, {}, {"DistributedBar", "SaddleBarLineCount"}},
    {"columns as supports", {25, 26}, {}, {"TopElev"}},
    {"beams and walls as supports", {15, 47, 17, 18, 0, 202, 1}, {}, {"StartPtTopElev", "EndPtTopElev"}},
    {"axis nets", {74}, {}, {"Remark"}},
    {"insertion point of a column",
     {25, 26, 1002},
     {"SectionTypeID", "InsertPt", "SectionInfo", "SectionHeight", "SectionWidth"},
     {}},
    {"brick walls read",
     {1003},
     {"Type", "Material", "MasonryThroughBar", "TransverseBar", "Thickness", "VertDistributionBar",
      "HoriDistributionBar"},
     {"StartPtTopElev", "EndPtTopElev", "StartPtBottomElev", "EndPtBottomElev"}},
    {"force walls read",
     {0},
     {"Type", "TieBar", "HoriDistributionBar", "VertDistributionBar", "Thickness"},
     {"StartPtTopElev", "EndPtTopElev", "StartPtBottomElev", "EndPtBottomElev"}},
    {"doors and windows", {4, 5, 6, 7}, {"OpeningHeight", "OpeningWidth", "AboveFloorHeight"}, {"AboveFloorHeight"}},
    {"combined door and window", {6}, {"WinDoorWidth", "WindDoorFloorHeight"}, {}},
};

const std::map<QString, PropertyKind> kKinds{
    {"SectionTypeID", PropertyKind::Integer},
    {"Type", PropertyKind::Integer},
    {"Type1", PropertyKind::Integer},
    {"OpeningWidth", PropertyKind::Integer},
    {"OpeningHeight", PropertyKind::Integer},
    {"AboveFloorHeight", PropertyKind::Integer},
    {"WinDoorWidth", PropertyKind::Integer},
    {"WindDoorFloorHeight", PropertyKind::Integer},
    {"Position", PropertyKind::Integer},
    {"IsRadiate", PropertyKind::Integer},
    {"LabelPosition", PropertyKind::Integer},
    {"LeftLabel", PropertyKind::Integer},
    {"RightLabel", PropertyKind::Integer},
    {"IncludeSupport", PropertyKind::Integer},
    {"DependSlabID", PropertyKind::Integer},
    {"Thickness", PropertyKind::Double},
    {"SectionWidth", PropertyKind::Double},
    {"SectionHeight", PropertyKind::Double},
    {"Height", PropertyKind::Double},
    {"Width", PropertyKind::Double},
    {"Length", PropertyKind::Double},
    {"Radius", PropertyKind::Double},
    {"AxisOffset", PropertyKind::Double},
    {"TopElev", PropertyKind::Elevation},
    {"BottomElev", PropertyKind::Elevation},
    {"StartPtTopElev", PropertyKind::Elevation},
    {"EndPtTopElev", PropertyKind::Elevation},
    {"StartPtBottomElev", PropertyKind::Elevation},
    {"EndPtBottomElev", PropertyKind::Elevation},
    {"InsertPt", PropertyKind::Point},
    {"CurveData", PropertyKind::Curve},
    {"ReferenceCurve", PropertyKind::Curve},
    {"SectionPoly", PropertyKind::Polygon},
    {"SpanCount", PropertyKind::Text},
    {"TopThroughBar", PropertyKind::Text},
    {"BottomThroughBar", PropertyKind::Text},
    {"SideBar", PropertyKind::Text},
    {"HoopBar", PropertyKind::Text},
    {"Limb", PropertyKind::Text},
    {"TieBar", PropertyKind::Text},
    {"TopHoriBar", PropertyKind::Text},
    {"BottomHoriBar", PropertyKind::Text},
    {"SideBarAL", PropertyKind::Text},
    {"SectionInfo", PropertyKind::Text},
    {"Remark", PropertyKind::Text},
    {"LongSpanReinforcedBar", PropertyKind::Text},
    {"ShortSpanReinforcedBar", PropertyKind::Text},
    {"ObliqueReinforcedBar", PropertyKind::Text},
    {"BarInfo", PropertyKind::Text},
    {"LeftHook", PropertyKind::Text},
    {"RightHook", PropertyKind::Text},
    {"DistributedBar", PropertyKind::Text},
    {"SaddleBarLineCount", PropertyKind::Text},
    {"ReinforcementInfo", PropertyKind::Text},
    {"Catalog", PropertyKind::Text},
    {"Material", PropertyKind::Text},
    {"MasonryThroughBar", PropertyKind::Text},
    {"TransverseBar", PropertyKind::Text},
    {"HoriDistributionBar", PropertyKind::Text},
    {"VertDistributionBar", PropertyKind::Text},
};

} // namespace

TEST(HBXPropertyCatalogueTest, everyTypeOfTheHostIsKnown)
{
    EXPECT_THAT(catalogue().types(), testing::ElementsAre(0, 1, 4, 5, 6, 7, 15, 17, 18, 19, 22, 23, 24, 25, 26, 47, 48,
                                                          49, 50, 52, 53, 54, 74, 75, 82, 83, 202, 1001, 1002, 1003));
}

TEST(HBXPropertyCatalogueTest, otherTypesAreRefused)
{
    for (const qint64 type : {-1LL, 2LL, 8LL, 16LL, 65535LL, 4294967296LL}) {
        EXPECT_FALSE(catalogue().isKnownType(type)) << type;
        EXPECT_TRUE(catalogue().entries(type).empty()) << type;
        EXPECT_EQ(catalogue().properties(type), nullptr) << type;
        EXPECT_EQ(ofDrawObj(type, "Thickness"), nullptr) << type;
    }
}

TEST(HBXPropertyCatalogueTest, everyNameThatAConversionTouchesIsKnown)
{
    for (const Touched &touched : kTouched) {
        for (const qint64 type : touched.types) {
            for (const char *name : touched.onElement) {
                EXPECT_NE(ofElement(type, name), nullptr) << touched.where << ": " << name << " of " << type;
            }
            for (const char *name : touched.onDrawObj) {
                EXPECT_NE(ofDrawObj(type, name), nullptr) << touched.where << ": " << name << " of " << type;
            }
        }
    }
}

TEST(HBXPropertyCatalogueTest, aNameIsOfOneKindWhateverTheType)
{
    std::set<QString> names;
    for (const qint64 type : catalogue().types()) {
        for (const PropertyEntry &entry : catalogue().entries(type)) {
            ASSERT_EQ(kKinds.count(entry.name), 1u) << qPrintable(entry.name);
            EXPECT_EQ(entry.kind, kKinds.at(entry.name)) << qPrintable(entry.name) << " of " << type;
            names.insert(entry.name);
        }
    }
    EXPECT_EQ(names.size(), kKinds.size());
}

TEST(HBXPropertyCatalogueTest, aDrawObjectHasThePropertiesOfItsElementToo)
{
    for (const qint64 type : catalogue().types()) {
        for (const PropertyEntry &entry : catalogue().entries(type)) {
            EXPECT_EQ(catalogue().find(type, entry.name, true), &entry) << qPrintable(entry.name) << " of " << type;
        }
    }
}

TEST(HBXPropertyCatalogueTest, anElementLacksWhatOnlyItsDrawObjectsHave)
{
    for (const char *name : {"CurveData", "ReferenceCurve", "Position", "LeftHook", "Catalog", "ReinforcementInfo"}) {
        EXPECT_EQ(ofElement(22, name), nullptr) << name;
        EXPECT_EQ(ofDrawObj(22, name)->owner, PropertyOwner::DrawObject) << name;
    }
    EXPECT_EQ(ofElement(19, "ReinforcementInfo"), nullptr);
    EXPECT_EQ(ofElement(23, "DependSlabID"), nullptr);
    EXPECT_EQ(ofElement(22, "BarInfo")->owner, PropertyOwner::Element);
}

TEST(HBXPropertyCatalogueTest, kindOfABeamStandsUnderOneNameByType)
{
    EXPECT_EQ(ofElement(15, "Type"), nullptr);
    EXPECT_EQ(ofElement(47, "Type1"), nullptr);
    EXPECT_EQ(ofElement(17, "Type"), nullptr);
    EXPECT_EQ(ofElement(17, "Type1"), nullptr);
}

TEST(HBXPropertyCatalogueTest, aLinkBeamHasNoSpans)
{
    for (const char *name : {"SpanCount", "TopThroughBar", "BottomThroughBar", "SideBar"}) {
        EXPECT_EQ(ofDrawObj(17, name), nullptr) << name;
    }
}

TEST(HBXPropertyCatalogueTest, onlyTheCombinedDoorAndWindowHasADivide)
{
    for (const qint64 type : {4, 5, 7}) {
        EXPECT_EQ(ofElement(type, "WinDoorWidth"), nullptr) << type;
        EXPECT_EQ(ofElement(type, "WindDoorFloorHeight"), nullptr) << type;
    }
}

TEST(HBXPropertyCatalogueTest, barsOfRaftsHaveNoDistributionBars)
{
    for (const qint64 type : {49, 50}) {
        EXPECT_EQ(ofDrawObj(type, "DistributedBar"), nullptr) << type;
        EXPECT_EQ(ofDrawObj(type, "SaddleBarLineCount"), nullptr) << type;
    }
}

TEST(HBXPropertyCatalogueTest, unknownNamesAreRefused)
{
    for (const char *name :
         {"", "thickness", "THICKNESS", "Thickness ", "Thicknes", "Thickness2", "Zzz", "OpeningWidth"}) {
        EXPECT_EQ(ofDrawObj(19, name), nullptr) << name;
    }
    EXPECT_EQ(catalogue().find(19, QString::fromUtf8("厚度"), true), nullptr);
    EXPECT_EQ(catalogue().find(19, QString(), true), nullptr);
}

TEST(HBXPropertyCatalogueTest, wideNamesAreFoundLikeOthers)
{
    EXPECT_EQ(catalogue().find(19, std::wstring(L"Thickness"), false), ofElement(19, "Thickness"));
    EXPECT_EQ(catalogue().find(19, std::wstring(L"Thickness\U0001F600"), false), nullptr);
    EXPECT_EQ(catalogue().find(19, std::wstring(L"厚度"), true), nullptr);
    EXPECT_EQ(catalogue().find(19, std::wstring(), true), nullptr);
    EXPECT_EQ(catalogue().find(19, std::wstring(1, static_cast<wchar_t>(-1)), true), nullptr);
    EXPECT_EQ(catalogue().find(19, std::wstring(L"Thickness\0", 10), true), nullptr);
}

TEST(HBXPropertyCatalogueTest, axisOffsetHasASecondNameForTheSameValue)
{
    for (const qint64 type : {0, 1, 15, 17, 18, 47, 52, 53, 54, 202, 1001, 1003}) {
        const PropertyEntry *entry = ofElement(type, "AxisOffset");
        ASSERT_NE(entry, nullptr) << type;
        EXPECT_EQ(entry->alias, QStringLiteral("AxisOffset_JZBZ"));
        EXPECT_EQ(ofElement(type, "AxisOffset_JZBZ"), entry) << type;
        EXPECT_EQ(catalogue().find(type, std::wstring(L"AxisOffset_JZBZ"), true), entry) << type;
    }
}

TEST(HBXPropertyCatalogueTest, indexIsThePlaceAmongThePropertiesOfTheType)
{
    for (const qint64 type : catalogue().types()) {
        const std::vector<PropertyEntry> &entries = catalogue().entries(type);
        const int elementCount = catalogue().properties(type)->elementCount();
        ASSERT_FALSE(entries.empty()) << type;
        for (std::size_t i = 0; i < entries.size(); ++i) {
            EXPECT_EQ(entries[i].index, static_cast<int>(i)) << type;
            EXPECT_EQ(entries[i].owner == PropertyOwner::Element, entries[i].index < elementCount) << type;
        }
    }
}

TEST(HBXPropertyCatalogueTest, noNameStandsTwiceInAType)
{
    for (const qint64 type : catalogue().types()) {
        std::set<QString> names;
        for (const PropertyEntry &entry : catalogue().entries(type)) {
            EXPECT_TRUE(names.insert(entry.name).second) << qPrintable(entry.name) << " of " << type;
            EXPECT_TRUE(entry.alias.isEmpty() || names.insert(entry.alias).second) << type;
        }
    }
}

TEST(HBXPropertyCatalogueTest, aWallWithoutElevationsFillsItsFloor)
{
    for (const qint64 type : {0, 1, 202, 1001, 1003}) {
        EXPECT_EQ(ofDrawObj(type, "StartPtTopElev")->defaultText, QStringLiteral("层顶标高")) << type;
        EXPECT_EQ(ofDrawObj(type, "EndPtTopElev")->defaultText, QStringLiteral("层顶标高")) << type;
        EXPECT_EQ(ofDrawObj(type, "StartPtBottomElev")->defaultText, QStringLiteral("层底标高")) << type;
        EXPECT_EQ(ofDrawObj(type, "EndPtBottomElev")->defaultText, QStringLiteral("层底标高")) << type;
    }
}

TEST(HBXPropertyCatalogueTest, nothingElseHasADefault)
{
    for (const qint64 type : catalogue().types()) {
        for (const PropertyEntry &entry : catalogue().entries(type)) {
            const bool isOfWall = entry.name.contains(QLatin1String("Pt")) && ofElement(type, "StartPtBottomElev");
            EXPECT_EQ(entry.defaultText.has_value(), isOfWall) << qPrintable(entry.name) << " of " << type;
        }
    }
}

TEST(HBXPropertyCatalogueTest, shapeFollowsTheSizesThatItShows)
{
    EXPECT_EQ(ofElement(1003, "Thickness")->role, PropertyRole::Shape);
    EXPECT_EQ(ofElement(19, "Thickness")->role, PropertyRole::Shape);
    EXPECT_EQ(ofElement(15, "SectionWidth")->role, PropertyRole::Shape);
    EXPECT_EQ(ofElement(15, "SectionHeight")->role, PropertyRole::Plain); // a beam's plan is as wide as before
    EXPECT_EQ(ofElement(15, "AxisOffset")->role, PropertyRole::Shape);
    EXPECT_EQ(ofElement(25, "SectionHeight")->role, PropertyRole::Shape);
    EXPECT_EQ(ofElement(24, "Radius")->role, PropertyRole::Shape);
    EXPECT_EQ(ofElement(82, "SectionPoly")->role, PropertyRole::Shape);
    EXPECT_EQ(ofElement(5, "OpeningWidth")->role, PropertyRole::Shape);
    EXPECT_EQ(ofElement(5, "OpeningHeight")->role, PropertyRole::Plain);
}

TEST(HBXPropertyCatalogueTest, propertiesThatHoldIdsOfDrawObjectsAreMarked)
{
    std::set<QString> marked;
    for (const qint64 type : catalogue().types()) {
        for (const PropertyEntry &entry : catalogue().entries(type)) {
            if (entry.namesDrawObjs()) {
                marked.insert(entry.name);
            }
        }
    }
    EXPECT_THAT(marked, testing::ElementsAre(QStringLiteral("Catalog"), QStringLiteral("DependSlabID"),
                                             QStringLiteral("ReinforcementInfo")));
}
