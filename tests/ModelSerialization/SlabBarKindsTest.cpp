#include "ModelSerialization/SlabBarKinds.h"

#include "ModelSerialization/SlabWriterFixture.h"

namespace {

using namespace slabhost;

struct KindCase
{
    const SlabBarKind &(*kind)();
    qint64 type;
    qint64 subType;
    const char *namePrefix;
    bool straddles;
    SlabBarPlaces places;
    QStringList properties;
};

QStringList mainNames()
{
    return {"CurveData", "BarInfo", "IsRadiate", "ReferenceCurve", "Position", "Type", "LeftHook", "RightHook"};
}

std::vector<KindCase> kindCases()
{
    return {
        {forcedBarKind, 22, 171, "SLJ-", false, {0.25, 0.75, 0.618, 0.382}, mainNames()},
        {straddleForcedBarKind,
         22,
         171,
         "KBSLJ-",
         true,
         {0, 0, 0, 0},
         {"CurveData", "BarInfo", "LabelPosition", "Position", "Type", "LeftLabel", "RightLabel", "LeftHook",
          "RightHook", "DistributedBar", "SaddleBarLineCount", "ReferenceCurve"}},
        {negativeForcedBarKind,
         23,
         173,
         "FJ-",
         false,
         {0, 0, 0, 0},
         {"CurveData", "BarInfo", "LeftHook", "RightHook", "DistributedBar", "SaddleBarLineCount", "LeftLabel",
          "RightLabel", "LabelPosition", "IncludeSupport"}},
        {raftMainForcedBarKind, 49, 190, "FBZJ-", false, {0.25, 0.75, 0.5, 0.5}, mainNames()},
        {raftMainStraddleForcedBarKind,
         49,
         190,
         "KFBZJ-",
         true,
         {0, 0, 0, 0},
         {"CurveData", "BarInfo", "Position", "Type", "LabelPosition", "LeftLabel", "RightLabel", "LeftHook",
          "RightHook", "ReferenceCurve"}},
        {raftNegativeForcedBarKind,
         50,
         177,
         "FBFJ-",
         false,
         {0, 0, 0, 0},
         {"CurveData", "BarInfo", "LeftLabel", "RightLabel", "LabelPosition", "IncludeSupport", "LeftHook",
          "RightHook"}},
    };
}

class SlabBarKindsTest : public SlabWriterFixture, public ::testing::WithParamInterface<KindCase>
{};

TEST_P(SlabBarKindsTest, rowIsAsStated)
{
    const SlabBarKind &kind = GetParam().kind();
    EXPECT_EQ(kind.type, GetParam().type);
    EXPECT_EQ(kind.subType, GetParam().subType);
    EXPECT_STREQ(kind.namePrefix, GetParam().namePrefix);
    EXPECT_EQ(kind.straddles, GetParam().straddles);
    const int positions[] = {0, 1, 2, 3, -1, 99};
    const SlabBarPlaces &places = GetParam().places;
    const double expected[] = {places.first, places.second, places.third, places.other, places.other, places.other};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(kind.places.of(positions[i]), expected[i]) << positions[i];
}

TEST_P(SlabBarKindsTest, propertiesStandInTheOrderOfWriting)
{
    QStringList names;
    for (const SlabBarProperty &property : GetParam().kind().properties)
        names.append(QString::fromStdWString(property.name));
    EXPECT_EQ(names, GetParam().properties) << names.join(' ').toStdString();
}

TEST_P(SlabBarKindsTest, hostHasEveryProperty)
{
    const IHBXProperties *properties = placed(element(GetParam().type))->properties();
    for (const SlabBarProperty &property : GetParam().kind().properties)
        EXPECT_TRUE(properties->hasProperty(property.name)) << QString::fromStdWString(property.name).toStdString();
}

INSTANTIATE_TEST_SUITE_P(Kinds, SlabBarKindsTest, ::testing::ValuesIn(kindCases()));

} // namespace
