#include "column/ORVCADColumnSampleContextDataModel.h"

#include "ColumnFixture.h"

#include <type_traits>

namespace {

using Context = ORVCADColumnSampleContextDataModel;
using Options = QMap<QString, QString>;

class ORVCADColumnSampleContextDataModelTest : public ColumnFixture
{
protected:
    void SetUp() override
    {
        load("", R"([{"group": "ColumnSetting", "name": "KJZMark", "value": "KZ"},
                     {"group": "BeamSetting", "name": "prefix", "value": "KL"},
                     {"group": "ColumnSetting", "name": "AZMark", "value": ""},
                     {"group": "ColumnSetting", "name": "KJZMark", "value": "second"}])");
    }
};

TEST_F(ORVCADColumnSampleContextDataModelTest, floorAndRegionAreThoseThatAreSelected)
{
    ASSERT_TRUE(project->setCurrent("House", "Level 1"));
    const Context context(service());
    EXPECT_EQ(context.floorID(), floor()->id());
    EXPECT_EQ(context.floorName(), "Level 1");
    EXPECT_EQ(context.regionID(), region()->id());
    EXPECT_EQ(context.regionName(), "House");
    EXPECT_TRUE(context.getCADOption().isEmpty());
}

TEST_F(ORVCADColumnSampleContextDataModelTest, idsHave64Bits)
{
    static_assert(std::is_same_v<decltype(std::declval<Context>().floorID()), qint64>);
    static_assert(std::is_same_v<decltype(std::declval<Context>().regionID()), qint64>);
}

TEST_F(ORVCADColumnSampleContextDataModelTest, nullServiceAndNoSelectionLeaveZeroAndEmpty)
{
    for (IHBXService *host : {static_cast<IHBXService *>(nullptr), service()}) {
        const Context context(host);
        EXPECT_EQ(context.floorID(), 0);
        EXPECT_EQ(context.floorName(), "");
        EXPECT_EQ(context.regionID(), 0);
        EXPECT_EQ(context.regionName(), "");
    }
}

TEST_F(ORVCADColumnSampleContextDataModelTest, optionsAreThoseOfTheColumnGroupAndTheFirstOfANameCounts)
{
    EXPECT_EQ(Context(nullptr).parseColumnIdentifyOption(service()), (Options{{"AZMark", ""}, {"KJZMark", "KZ"}}));
}

TEST_F(ORVCADColumnSampleContextDataModelTest, optionsAreReadWithoutBeingKept)
{
    Context context(service());
    context.setCADOption({{"mine", "1"}});
    EXPECT_EQ(context.parseColumnIdentifyOption(service()).size(), 2);
    EXPECT_EQ(context.getCADOption(), (Options{{"mine", "1"}}));
}

TEST_F(ORVCADColumnSampleContextDataModelTest, hostWithoutOptionsAndNullServiceGiveNone)
{
    load("");
    EXPECT_TRUE(Context(nullptr).parseColumnIdentifyOption(service()).isEmpty());
    EXPECT_TRUE(Context(nullptr).parseColumnIdentifyOption(nullptr).isEmpty());
}

TEST_F(ORVCADColumnSampleContextDataModelTest, setOptionsReplaceThoseBeforeAndAreGivenAsACopy)
{
    Context context(nullptr);
    context.setCADOption({{"a", "1"}, {"b", "2"}});
    context.setCADOption({{"c", "3"}});
    EXPECT_EQ(context.getCADOption(), (Options{{"c", "3"}}));
    context.getCADOption().clear();
    EXPECT_EQ(context.getCADOption().size(), 1);
}

} // namespace
