#include "cli/HtmlPage.h"

#include "ForeignMessages.h"
#include "HouseFixture.h"
#include "cli/FloorLookup.h"
#include "cli/ProjectDifference.h"

#include <QRegularExpression>

using orvcad::HtmlPage;

namespace {

class HtmlPageTest : public HouseFixture
{
protected:
    static HtmlPage pageOf(const Project &building)
    {
        return orvcad::htmlPageOf(*building, orvcad::pickFloors(*building, QString(), QString()));
    }
    static QStringList headings(const HtmlPage &page)
    {
        QStringList found;
        auto match = QRegularExpression("<h2 id=\"floor-\\d+-name\">(.*?) <span").globalMatch(page.document);
        while (match.hasNext())
            found.append(match.next().captured(1));
        return found;
    }
};

TEST_F(HtmlPageTest, floorsStandByRegionFromTheLowestUp)
{
    const HtmlPage page = pageOf(sampleOf("made-building"));
    EXPECT_EQ(headings(page).join("; "), QStringLiteral("主楼, 基础层; 主楼, 第1层; 主楼, 第2层; "
                                                        "附楼 Annex, Ground; 附楼 Annex, Roof"));
    EXPECT_EQ(page.floors, 5);
    EXPECT_EQ(page.withoutGeometry, 4);
}

TEST_F(HtmlPageTest, sameProjectGivesTheSamePage)
{
    EXPECT_EQ(pageOf(sampleOf("made-building")).document, pageOf(sampleOf("made-building")).document);
}

TEST_F(HtmlPageTest, pageIsTheSameInEveryLanguage)
{
    const Project before = houseOf(wall("Q1", "LINESTRING(0 0, 5000 0)"));
    const Project after = houseOf(wall("Q1", "LINESTRING(0 0, 4000 0)") + ',' + column("Z1", 0, 0));
    const auto difference = [&] {
        return orvcad::htmlPageOf(*before, *after, orvcad::differenceBetween(*before, *after)).document;
    };
    const QByteArray page = pageOf(before).document;
    const QByteArray pageOfDifference = difference();

    const ForeignMessages messages;
    EXPECT_EQ(pageOf(before).document, page);
    EXPECT_EQ(difference(), pageOfDifference);
}

TEST_F(HtmlPageTest, nothingIsFetchedAndNothingElseRuns)
{
    for (const char *sample : {"duplex-apartment", "masonry-block", "precast-hall", "made-building"}) {
        const QByteArray page = pageOf(sampleOf(sample)).document;
        EXPECT_FALSE(QRegularExpression("<(link|img|iframe|object|embed|base)\\b|\\bsrc=|@import|url\\((?!#)")
                         .match(page)
                         .hasMatch())
            << sample;
        EXPECT_TRUE(
            page.contains("content=\"default-src 'none'; base-uri 'none'; form-action 'none'; script-src 'sha256-"));
        EXPECT_FALSE(page.contains("{{"));
        EXPECT_LT(page.size(), 2000000) << sample;
    }
}

TEST_F(HtmlPageTest, namesAreTexts)
{
    openHouse(column("</script><b>", 0, 0));
    const QByteArray page = pageOf(project).document;
    EXPECT_TRUE(page.contains("<h1>House &amp; garden</h1>"));
    EXPECT_FALSE(page.contains("<b>"));
    EXPECT_EQ(page.count("</script>"), 2);
}

TEST_F(HtmlPageTest, differenceShowsTheFloorsOfBoth)
{
    const auto before = sampleOf("duplex-apartment");
    const auto after = sampleOf("precast-hall");
    const HtmlPage page = orvcad::htmlPageOf(*before, *after, orvcad::differenceBetween(*before, *after));
    EXPECT_EQ(page.floors, pageOf(before).floors + pageOf(after).floors);
    EXPECT_GT(page.document.count("data-d=\"gone\""), 50);
    EXPECT_GT(page.document.count("data-d=\"added\""), 50);
}

} // namespace
