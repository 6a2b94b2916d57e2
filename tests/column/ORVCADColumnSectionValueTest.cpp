#include "IdentifyInputModel/Wall/ORVCADColumnSectionValue.h"

#include "ColumnFixture.h"
#include "column/ColumnKeys.h"

namespace {

class ORVCADColumnSectionValueTest : public ColumnFixture
{
protected:
    /** The section text of a column with these properties. */
    QString sectionText(const QByteArray &properties)
    {
        load(R"({"name": "K1", "type": 25, "properties": {)" + properties + "}}");
        std::shared_ptr<IHBXProperty> property;
        find("K1")->properties()->property(property, column::property::sectionTypeId);
        return ORVCADColumnSectionValue().sectionText(property);
    }
};

TEST_F(ORVCADColumnSectionValueTest, sectionTypeIsShownInDecimal)
{
    EXPECT_EQ(sectionText(R"("SectionTypeID": 3)"), "3");
    EXPECT_EQ(sectionText(R"("SectionTypeID": 0)"), "0");
    EXPECT_EQ(sectionText(R"("SectionTypeID": -12)"), "-12");
}

TEST_F(ORVCADColumnSectionValueTest, nullHasNoText) { EXPECT_EQ(ORVCADColumnSectionValue().sectionText(nullptr), ""); }

TEST_F(ORVCADColumnSectionValueTest, addsNothingToWhatTheHostShowsWith)
{
    EXPECT_EQ(sizeof(ORVCADColumnSectionValue), sizeof(HBXSectionIDBuilder));
}

} // namespace
