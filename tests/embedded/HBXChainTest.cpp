#include "embedded/EmbeddedBuilding.h"

#include <QJsonObject>

namespace hbx::embedded {
namespace {

class HBXChainTest : public EmbeddedBuilding
{
protected:
    HBXChainTest()
    {
        for (IHBXElementDrawObj *&link : links)
            link = placed(beam);
    }
    void linkAll()
    {
        links[1]->linkNext(links[2]); // from the end to the start, as beams are rebuilt
        links[0]->linkNext(links[1]);
    }
    static QJsonObject span(int number) { return {{QStringLiteral("SpanNumber"), number}}; }

    IHBXElement *beam = element(15);
    IHBXElementDrawObj *links[3] = {};
};

TEST_F(HBXChainTest, aBeamObjectThatIsLinkedToNothingIsItsOwnHead)
{
    for (const qint64 type : {15, 17, 18, 47}) {
        IHBXElementDrawObj *alone = placed(element(type));
        EXPECT_EQ(alone->chainHead(), alone) << type;
    }
}

TEST_F(HBXChainTest, otherTypesAndObjectsThatAreNotEnteredHaveNoHead)
{
    EXPECT_EQ(placed(element(1003))->chainHead(), nullptr);
    EXPECT_EQ(drawObjs().createDrawObj(floor(), beam, true)->chainHead(), nullptr);
}

TEST_F(HBXChainTest, everyLinkKnowsTheHeadAndTheNext)
{
    linkAll();
    for (IHBXElementDrawObj *link : links)
        EXPECT_EQ(link->chainHead(), links[0]);
    EXPECT_EQ(links[0]->nextInChain(), links[1]);
    EXPECT_EQ(links[1]->nextInChain(), links[2]);
    EXPECT_EQ(links[2]->nextInChain(), nullptr);
}

TEST_F(HBXChainTest, aLinkThatWouldCloseARingChangesNothing)
{
    linkAll();
    links[2]->linkNext(links[0]);
    links[2]->linkNext(links[1]);
    links[2]->linkNext(links[2]);
    EXPECT_EQ(links[2]->nextInChain(), nullptr);
    EXPECT_EQ(links[2]->chainHead(), links[0]);
}

TEST_F(HBXChainTest, aLinkToAnObjectOfAnotherElementChangesNothing)
{
    linkAll();
    links[2]->linkNext(placed(element(15)));
    EXPECT_EQ(links[2]->nextInChain(), nullptr);
}

TEST_F(HBXChainTest, objectsOfOtherTypesFormNoChain)
{
    for (const qint64 type : {0, 19, 25, 1003}) {
        IHBXElement *of = element(type);
        IHBXElementDrawObj *first = placed(of);
        first->linkNext(placed(of));
        EXPECT_EQ(first->nextInChain(), nullptr) << type;
    }
}

TEST_F(HBXChainTest, nullEndsTheChainHere)
{
    linkAll();
    links[0]->linkNext(nullptr);
    EXPECT_EQ(links[0]->nextInChain(), nullptr);
    EXPECT_EQ(links[2]->chainHead(), links[1]);
}

TEST_F(HBXChainTest, anObjectFollowsOneOnly)
{
    links[0]->linkNext(links[2]);
    links[1]->linkNext(links[2]);
    EXPECT_EQ(links[0]->nextInChain(), nullptr);
    EXPECT_EQ(links[2]->chainHead(), links[1]);
    links[1]->linkNext(links[0]);
    EXPECT_EQ(links[2]->chainHead(), links[2]);
}

TEST_F(HBXChainTest, spansAreKeptAtTheHead)
{
    linkAll();
    EXPECT_TRUE(store.spans(links[2]).empty());
    EXPECT_TRUE(store.setSpans(links[2], {span(1), span(2)}));
    EXPECT_EQ(store.spans(links[1]).size(), 2u);
    EXPECT_EQ(store.drawObjRecord(links[0]->id())->spans.size(), 2u);
    EXPECT_TRUE(store.drawObjRecord(links[2]->id())->spans.empty());
}

TEST_F(HBXChainTest, spansGoUpToANewHead)
{
    store.setSpans(links[1], {span(1)});
    links[0]->linkNext(links[1]);
    EXPECT_EQ(store.spans(links[0]).size(), 1u);
    EXPECT_TRUE(store.drawObjRecord(links[1]->id())->spans.empty());
}

TEST_F(HBXChainTest, spansGoUpPastEveryLinkToTheHead)
{
    store.setSpans(links[2], {span(1)});
    links[0]->linkNext(links[1]);
    links[1]->linkNext(links[2]);
    EXPECT_EQ(store.drawObjRecord(links[0]->id())->spans.size(), 1u);
    EXPECT_TRUE(store.drawObjRecord(links[1]->id())->spans.empty());
    EXPECT_TRUE(store.drawObjRecord(links[2]->id())->spans.empty());
}

TEST_F(HBXChainTest, spansOfTheHeadStayWhenAChainWithSpansFollows)
{
    store.setSpans(links[0], {span(1), span(2)});
    store.setSpans(links[1], {span(7)});
    links[0]->linkNext(links[1]);
    EXPECT_EQ(store.drawObjRecord(links[0]->id())->spans.size(), 2u);
    EXPECT_TRUE(store.drawObjRecord(links[1]->id())->spans.empty());
}

TEST_F(HBXChainTest, whatIsInNoChainHasNoSpans)
{
    EXPECT_FALSE(store.setSpans(nullptr, {span(1)}));
    EXPECT_FALSE(store.setSpans(placed(element(19)), {span(1)}));
    EXPECT_TRUE(store.spans(nullptr).empty());
}

TEST_F(HBXChainTest, recordsNameTheNextLinkAndReadBack)
{
    linkAll();
    const qint64 last = links[2]->id();
    EXPECT_EQ(store.drawObjRecord(links[1]->id())->next, last);
    EXPECT_EQ(store.drawObjRecord(last)->next, 0);
    store.load(store.snapshot());
    EXPECT_EQ(drawObjs().drawObjById(last)->chainHead(), drawObjs().at(0));
}

TEST_F(HBXChainTest, longChainsAreLinkedQuicklyFromEitherEnd)
{
    constexpr int kLong = 20000;
    std::vector<IHBXElementDrawObj *> objects;
    objects.reserve(kLong);
    for (int i = 0; i < kLong; ++i)
        objects.push_back(placed(beam));
    for (std::size_t i = objects.size() - 1; i > 0; --i)
        objects[i - 1]->linkNext(objects[i]);
    EXPECT_EQ(objects.back()->chainHead(), objects.front());
    store.load(store.snapshot());
    EXPECT_EQ(drawObjs().at(drawObjs().count() - 1)->chainHead(), drawObjs().at(3));
}

} // namespace
} // namespace hbx::embedded
