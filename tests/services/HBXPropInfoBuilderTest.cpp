#include "platform/services/HBXPropInfoBuilder.h"

#include "embedded/EmbeddedBuilding.h"

namespace {

using namespace hbx::embedded;

/** Shows every property that it is asked for in brackets. */
class BracketBuilder : public HBXPropInfoBuilder
{
public:
    QString shown(const std::shared_ptr<IHBXProperty> &property) const { return value(property); }

private:
    QString textOf(const IHBXProperty &property) const override
    {
        return QStringLiteral("[%1]").arg(property.intValue());
    }
};

class HBXPropInfoBuilderTest : public EmbeddedBuilding
{
protected:
    QString shown(const wchar_t *name)
    {
        std::shared_ptr<IHBXProperty> property;
        return BracketBuilder().shown(column->properties()->property(property, name));
    }

    IHBXElement *column = element(25);
};

TEST_F(HBXPropInfoBuilderTest, aPropertyWithAValueIsShownAsTheBuilderTells)
{
    column->properties()->setInt(L"SectionWidth", 400, false);
    EXPECT_EQ(shown(L"SectionWidth"), "[400]");
    column->properties()->setInt(L"SectionWidth", 0, false);
    EXPECT_EQ(shown(L"SectionWidth"), "[0]");
}

TEST_F(HBXPropInfoBuilderTest, nullAndAPropertyWithoutAValueAreShownAsNothing)
{
    EXPECT_EQ(shown(L"SectionWidth"), "");
    EXPECT_EQ(shown(L"NoSuchName"), ""); // null: the column has no such property
    EXPECT_EQ(BracketBuilder().shown(nullptr), "");
}

TEST_F(HBXPropInfoBuilderTest, aPropertyThatWasClearedIsShownAsNothing)
{
    const Point point(1, 2);
    column->properties()->setPoint(L"InsertPt", &point, false);
    EXPECT_EQ(shown(L"InsertPt"), "[0]");
    column->properties()->setPoint(L"InsertPt", nullptr, false);
    EXPECT_EQ(shown(L"InsertPt"), "");
}

} // namespace
