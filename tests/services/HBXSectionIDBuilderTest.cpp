#include "platform/services/HBXSectionIDBuilder.h"

#include "embedded/EmbeddedBuilding.h"

namespace {

using namespace hbx::embedded;

/** Builders show what they make to their own kind alone. */
class ShownSectionID : public HBXSectionIDBuilder
{
public:
    QString shown(const std::shared_ptr<IHBXProperty> &property) const { return value(property); }
};

class HBXSectionIDBuilderTest : public EmbeddedBuilding
{
protected:
    QString shown(int sectionType)
    {
        column->properties()->setInt(L"SectionTypeID", sectionType, false);
        std::shared_ptr<IHBXProperty> property;
        return ShownSectionID().shown(column->properties()->property(property, L"SectionTypeID"));
    }

    IHBXElement *column = element(25);
};

TEST_F(HBXSectionIDBuilderTest, aSectionTypeIsShownInDecimal)
{
    EXPECT_EQ(shown(124), "124");
    EXPECT_EQ(shown(0), "0");
    EXPECT_EQ(shown(-1), "-1");
    EXPECT_EQ(shown(1000000), "1000000");
}

} // namespace
