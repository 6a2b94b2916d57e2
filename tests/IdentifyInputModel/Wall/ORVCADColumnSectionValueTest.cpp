#include "IdentifyInputModel/Wall/ORVCADColumnSectionValue.h"

#include "IdentifyInputModel/Wall/WallReadingFixture.h"

#include <type_traits>

namespace {

class ORVCADColumnSectionValueTest : public WallReadingFixture
{
protected:
    QString textOf(const QByteArray &properties, const wchar_t *name = L"SectionTypeID")
    {
        open(element("KZ1", 25, 3, properties, column()));
        std::shared_ptr<IHBXProperty> property;
        find("KZ1")->properties()->property(property, name);
        return ORVCADColumnSectionValue().sectionText(property);
    }
};

TEST_F(ORVCADColumnSectionValueTest, textIsTheIntegerInDecimal)
{
    EXPECT_EQ(textOf(R"("SectionTypeID": 12)"), "12");
    EXPECT_EQ(textOf(R"("SectionTypeID": 0)"), "0");
    EXPECT_EQ(textOf(R"("SectionTypeID": -3)"), "-3");
}

TEST_F(ORVCADColumnSectionValueTest, withoutAValueOrAPropertyTheTextIsEmpty)
{
    EXPECT_EQ(textOf(""), "");
    EXPECT_EQ(textOf(R"("SectionTypeID": null)"), "");
    EXPECT_EQ(textOf("", L"NoSuchProperty"), "");
    EXPECT_EQ(ORVCADColumnSectionValue().sectionText(nullptr), "");
}

TEST_F(ORVCADColumnSectionValueTest, isOneOfTheHostsPropertyTexts)
{
    EXPECT_TRUE((std::is_base_of_v<HBXSectionIDBuilder, ORVCADColumnSectionValue>));
    EXPECT_TRUE((std::is_base_of_v<HBXPropInfoBuilder, HBXSectionIDBuilder>));
    EXPECT_TRUE((std::is_base_of_v<IHBXPropInfoBuilder, HBXPropInfoBuilder>));
    EXPECT_TRUE((std::is_base_of_v<IHBXPropInfoPainter, IHBXPropInfoBuilder>));
    EXPECT_EQ(sizeof(ORVCADColumnSectionValue), sizeof(HBXSectionIDBuilder)); // adds nothing
}

} // namespace
