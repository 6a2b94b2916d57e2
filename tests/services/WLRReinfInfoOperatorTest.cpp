#include "platform/services/WLRReinfInfoOperator.h"

#include "embedded/EmbeddedBuilding.h"

namespace {

using namespace hbx::embedded;

class WLRReinfInfoOperatorTest : public EmbeddedBuilding
{
protected:
    static QString linksOf(IHBXElementDrawObj *object) { return textIn(object->properties(), L"ReinforcementInfo"); }
    static QString link(IHBXElementDrawObj *object, int kind = 1)
    {
        return QStringLiteral("%1,%2;").arg(object->id()).arg(kind);
    }

    IHBXElementDrawObj *bar = placed(element(22, "bars"));
    IHBXElementDrawObj *first = placed(element(19, "first"));
    IHBXElementDrawObj *second = placed(element(19, "second"));
    WLRReinfInfoOperator links{store.service()};
};

TEST_F(WLRReinfInfoOperatorTest, barListsItsSlabsInOrder)
{
    links.addReinfInfo2Reinf(bar, second, 1);
    links.addReinfInfo2Reinf(bar, first, 2);
    EXPECT_EQ(linksOf(bar), link(second, 1) + link(first, 2));
    EXPECT_EQ(linksOf(first), "");
}

TEST_F(WLRReinfInfoOperatorTest, slabListsItsBars)
{
    links.addReinfInfo2Slab(first, bar, 1);
    EXPECT_EQ(linksOf(first), link(bar));
    EXPECT_EQ(linksOf(bar), "");
}

TEST_F(WLRReinfInfoOperatorTest, linkStandsOnce)
{
    links.addReinfInfo2Reinf(bar, first, 1);
    links.addReinfInfo2Reinf(bar, first, 2);
    EXPECT_EQ(linksOf(bar), link(first, 1));
}

TEST_F(WLRReinfInfoOperatorTest, idWithinAnotherOrBehindACommaIsNoLink)
{
    const QString others = QStringLiteral("1%1,%1;").arg(first->id());
    bar->properties()->setString(L"ReinforcementInfo", others, false);
    links.addReinfInfo2Reinf(bar, first, 1);
    EXPECT_EQ(linksOf(bar), others + link(first));
}

TEST_F(WLRReinfInfoOperatorTest, whatCannotBeLinkedStays)
{
    IHBXElementDrawObj *beam = placed(element(15));
    links.addReinfInfo2Reinf(nullptr, first, 1);
    links.addReinfInfo2Reinf(bar, nullptr, 1);
    links.addReinfInfo2Slab(beam, bar, 1);
    WLRReinfInfoOperator(nullptr).addReinfInfo2Slab(nullptr, nullptr, 1);
    EXPECT_EQ(linksOf(bar), "");
    EXPECT_EQ(linksOf(beam), "");
}

} // namespace
