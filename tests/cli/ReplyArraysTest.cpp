#include "cli/ReplyArrays.h"

#include "CommandFailures.h"
#include "JsonTexts.h"
#include "platform/dwgx/KeyLiteral.h"

using clitest::failureOf;
using clitest::objectOf;
using namespace dwgx::literals;
using namespace orvcad;

namespace {

const std::vector<ReplyArray> kArrays{{"Beam"_key, 15}, {"LinkBeam"_key, 17}, {"FDBeam"_key, 47}};

/** "type place value" of each member. */
std::string members(const QByteArray &reply)
{
    QStringList told;
    forEachMember(objectOf(reply), "reply.json", kArrays, "reply of beams",
                  [&](const ReplyArray &array, const QString &place, const QJsonValue &member) {
                      told.append(QStringLiteral("%1 %2 %3").arg(array.elementType).arg(place, member.toString("?")));
                  });
    return told.join(", ").toStdString();
}

TEST(ReplyArraysTest, membersComeArrayByArrayWithTheirPlaces)
{
    EXPECT_EQ(members(R"({"FDBeam": ["c"], "Beam": ["a", "b"], "Slab": ["d"]})"),
              "15 Beam[0] a, 15 Beam[1] b, 47 FDBeam[0] c");
}

TEST(ReplyArraysTest, membersOfAnyKindComeAsTheyStand) { EXPECT_EQ(members(R"({"Beam": [null]})"), "15 Beam[0] ?"); }

TEST(ReplyArraysTest, oneEmptyArrayMakesAReply) { EXPECT_EQ(members(R"({"LinkBeam": []})"), ""); }

TEST(ReplyArraysTest, documentWithoutAnyOfTheArraysIsRefused)
{
    EXPECT_EQ(failureOf([] { members(R"({"Slab": []})"); }),
              "reply.json: has none of the keys \"Beam\", \"LinkBeam\" and \"FDBeam\": no reply of beams");
}

TEST(ReplyArraysTest, keyWithSomethingElseThanAnArrayIsRefused)
{
    EXPECT_EQ(failureOf([] { members(R"({"Beam": [], "FDBeam": null})"); }), "reply.json: FDBeam: is no array");
}

} // namespace
