#include "cli/SlabNewIdentities.h"

#include <QJsonArray>
#include <QUuid>

#include <gtest/gtest.h>

using orvcad::withNewIdentities;

namespace {

const QString kOld = QStringLiteral("{00000000-0000-4000-8000-000000000001}");

QJsonObject document()
{
    return {{"boards", QJsonArray{QJsonObject{{"id", 17}, {"recongnizedID", kOld}, {"name", "B"}}}},
            {"forced_bars", QJsonArray{QJsonObject{{"id", 18}, {"lies in", kOld}, {"of", QJsonArray{kOld, 1}}}}}};
}

TEST(SlabNewIdentitiesTest, idsGoAndIdentitiesAreFresh)
{
    const QJsonValue board = withNewIdentities(document())["boards"].toArray().at(0);
    EXPECT_EQ(board["id"], -1);
    EXPECT_EQ(board["name"], "B");
    EXPECT_FALSE(QUuid(board["recongnizedID"].toString()).isNull());
    EXPECT_NE(board["recongnizedID"], kOld);
}

TEST(SlabNewIdentitiesTest, referencesFollow)
{
    const QJsonObject renewed = withNewIdentities(document());
    const QJsonValue bar = renewed["forced_bars"].toArray().at(0);
    const QJsonValue identity = renewed["boards"].toArray().at(0)["recongnizedID"];
    EXPECT_EQ(bar["lies in"], identity);
    EXPECT_EQ(bar["of"].toArray().at(0), identity);
    EXPECT_EQ(bar["of"].toArray().at(1), 1);
    EXPECT_FALSE(QUuid(bar["recongnizedID"].toString()).isNull()); // it had none
}

TEST(SlabNewIdentitiesTest, referencesInsideObjectsFollowToo)
{
    QJsonObject nested = document();
    nested["forced_bars"] = QJsonArray{QJsonObject{{"host", QJsonObject{{"slab", kOld}, {"side", "top"}}}}};
    const QJsonObject renewed = withNewIdentities(nested);
    const QJsonValue host = renewed["forced_bars"].toArray().at(0)["host"];
    EXPECT_EQ(host["slab"], renewed["boards"].toArray().at(0)["recongnizedID"]);
    EXPECT_EQ(host["side"], "top");
}

TEST(SlabNewIdentitiesTest, membersThatSharedAnIdentityNoLongerDo)
{
    const QJsonObject same{{"recongnizedID", kOld}};
    const QJsonArray boards = withNewIdentities({{"boards", QJsonArray{same, same}}})["boards"].toArray();
    EXPECT_NE(boards[0]["recongnizedID"], boards[1]["recongnizedID"]);
}

TEST(SlabNewIdentitiesTest, ioDocumentKeepsWhatStandsAroundTheModel)
{
    const QJsonObject renewed = withNewIdentities({{"model", document()}, {"state", QJsonObject{{"floor_name", "F"}}}});
    EXPECT_EQ(renewed["state"]["floor_name"], "F");
    EXPECT_EQ(renewed["model"]["boards"].toArray().at(0)["id"], -1);
}

TEST(SlabNewIdentitiesTest, whatIsNoMemberStays)
{
    const QJsonObject odd{{"boards", QJsonArray{7, "x"}}, {"rafts", "many"}};
    EXPECT_EQ(withNewIdentities(odd), odd);
    EXPECT_EQ(withNewIdentities({}), QJsonObject());
}

} // namespace
