#include "platform/services/ORVCADOptionOperator.h"

#include "platform/embedded/HBXModelStore.h"
#include "platform/host/IHBXService.h"
#include "platform/services/HBXOptionNames.h"

#include <gtest/gtest.h>

namespace {

using hbx::embedded::HBXModelStore;
using hbx::embedded::ProjectRecord;

class ORVCADOptionOperatorTest : public ::testing::Test
{
protected:
    ORVCADOptionOperator options(const QString &value)
    {
        return options({{ptnBeamSetting, "KL", value}, {ptnWallSetting, "KL", "wall"}});
    }
    ORVCADOptionOperator options(const std::vector<hbx::embedded::OptionRecord> &rows)
    {
        ProjectRecord record;
        record.options = rows;
        m_store.load(std::move(record));
        return ORVCADOptionOperator(m_store.service()->model());
    }
    HBXModelStore m_store;
};

TEST_F(ORVCADOptionOperatorTest, groupIsAddedToTheMapAndWhatIsThereStays)
{
    QMap<QString, QString> map{{"b", "mine"}};
    options({{ptnBeamSetting, "a", "1"}, {ptnBeamSetting, "b", "2"}, {ptnBeamSetting, "a", "3"}})
        .getOption(ptnBeamSetting, map);
    EXPECT_EQ(map, (QMap<QString, QString>{{"a", "1"}, {"b", "mine"}}));
}

TEST_F(ORVCADOptionOperatorTest, optionOfTheBeamGroupIsSplitAtEachSeparator)
{
    const QStringList expected = {"KL", "KZL", "WKL"};
    EXPECT_EQ(options("KL,KZL,WKL").asStringArray("KL"), expected);
    EXPECT_EQ(options("KL;KZL;WKL").asStringArray("KL"), expected);
    EXPECT_EQ(options(QStringLiteral("KL、KZL、WKL")).asStringArray("KL"), expected);
    EXPECT_EQ(options(QStringLiteral("KL，KZL；WKL")).asStringArray("KL"), expected);
    EXPECT_EQ(options(QStringLiteral("KL\uFF64KZL,WKL")).asStringArray("KL"), expected);
}

TEST_F(ORVCADOptionOperatorTest, blanksAroundAPartAreLeftOutAndEmptyPartsAreGiven)
{
    EXPECT_EQ(options(" KL , ,L 1;").asStringArray("KL"), (QStringList{"KL", "", "L 1", ""}));
}

TEST_F(ORVCADOptionOperatorTest, missingAndEmptyOptionsGiveOneEmptyPart)
{
    EXPECT_EQ(options("").asStringArray("KL"), QStringList{""});
    EXPECT_EQ(options("KL").asStringArray("other"), QStringList{""});
    EXPECT_EQ(ORVCADOptionOperator(nullptr).asStringArray("KL"), QStringList{""});
}

TEST_F(ORVCADOptionOperatorTest, firstRowOfANameCounts)
{
    EXPECT_EQ(options({{ptnBeamSetting, "KL", "first"}, {ptnBeamSetting, "KL", "second"}}).asStringArray("KL"),
              QStringList{"first"});
}

} // namespace
