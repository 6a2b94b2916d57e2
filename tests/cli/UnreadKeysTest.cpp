#include "cli/UnreadKeys.h"

#include "JsonTexts.h"

using namespace orvcad;

namespace {

TEST(UnreadKeysTest, keyNamesTheOneThatIsMeant)
{
    EXPECT_EQ(whyUnread("Width", {"height", "width"}), "is no key of this record, and not read: width is one");
    EXPECT_EQ(whyUnread("widths", {"height", "width"}), "is no key of this record, and not read: width is one");
    EXPECT_EQ(whyUnread("length", {"height", "width"}), "is no key of this record, and not read");
    EXPECT_EQ(whyUnread("width", {}), "is no key of this record, and not read");
}

TEST(UnreadKeysTest, unreadKeysOfARecordStandWithTheirReasons)
{
    EXPECT_EQ(unreadIn({{"Beams", 1}, {"beam", 2}, {"Beam", 3}}, {"Beam"}),
              (QStringList{"Beams: is no key of this record, and not read: Beam is one",
                           "beam: is no key of this record, and not read: Beam is one"}));
    EXPECT_EQ(unreadIn({{"Beam", 3}}, {"Beam"}), QStringList());
}

TEST(UnreadKeysTest, eachUnreadKeyIsAPartThatIsLeftOut)
{
    std::vector<LeftOut> leftOut;
    leaveOutUnread({{"a", 1}, {"b", 2}, {"c", 3}}, {"b"}, "boards[3]", "B1", leftOut);
    EXPECT_EQ(clitest::textOf(leftOut), "boards[3].a: is no key of this record, and not read\n"
                                        "boards[3].c: is no key of this record, and not read");
    EXPECT_EQ(leftOut[0].name, "B1");
    EXPECT_FALSE(leftOut[0].isWhole);
}

TEST(UnreadKeysTest, keyOfTheDocumentStandsAlone)
{
    std::vector<LeftOut> leftOut;
    leaveOutUnread({{"Beams", 1}}, {"Beam"}, {}, {}, leftOut);
    EXPECT_EQ(clitest::textOf(leftOut), "Beams: is no key of this record, and not read: Beam is one");
}

} // namespace
