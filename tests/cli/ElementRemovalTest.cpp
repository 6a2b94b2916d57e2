#include "cli/ElementRemoval.h"

#include "HouseFixture.h"
#include "platform/embedded/HBXJournal.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElements.h"

using hbx::embedded::JournalEntry;
using orvcad::removeElements;

namespace {

class ElementRemovalTest : public HouseFixture
{
protected:
    void SetUp() override
    {
        openHouse(wall("Q1", "LINESTRING(0 0, 5000 0)") + ',' + wall("W1", "LINESTRING(0 900, 5000 900)", 0) + ',' +
                  column("K1", 0, 0) + ',' + column("K2", 900, 0));
    }
    std::string names() const
    {
        QStringList names;
        for (int i = 0; i < model().elements()->count(); ++i) {
            QString name;
            names.append(model().elements()->at(i)->name(name));
        }
        return names.join(' ').toStdString();
    }
};

TEST_F(ElementRemovalTest, elementsOfTheTypesGoWithWhatIsPlacedOfThem)
{
    EXPECT_EQ(removeElements(model(), {floor().id()}, {25, 0}, "test"), 3);
    EXPECT_EQ(names(), "Q1");
    EXPECT_EQ(model().drawObjects()->count(), 1);
}

TEST_F(ElementRemovalTest, otherFloorsAreLeftAlone)
{
    EXPECT_EQ(removeElements(model(), {floor().id() + 1000}, {25}, "test"), 0);
    EXPECT_EQ(removeElements(model(), {}, {25}, "test"), 0);
    EXPECT_EQ(names(), "Q1 W1 K1 K2");
}

TEST_F(ElementRemovalTest, removalStandsBetweenTheBracketsOfOneBatch)
{
    const std::size_t before = project->journal().entries().size();
    removeElements(model(), {floor().id()}, {25}, "a key");
    const auto &entries = project->journal().entries();
    ASSERT_GE(entries.size(), before + 2);
    EXPECT_EQ(entries[before].kind, JournalEntry::kBracketOpened);
    EXPECT_EQ(entries[before].name, "a key");
    EXPECT_EQ(entries.back().kind, JournalEntry::kBracketClosed);
}

} // namespace
