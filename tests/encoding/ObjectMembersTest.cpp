#include "encoding/ObjectMembers.h"

#include <gtest/gtest.h>

using encoding::ObjectMembers;

namespace {

/** A reader that seeks up to eight keys in one object after the other. */
class ObjectMembersTest : public ::testing::Test
{
protected:
    ObjectMembers of(const QJsonObject &object) { return {object, places}; }

    ObjectMembers::Places<8> places{};
};

TEST_F(ObjectMembersTest, keysOfAnEmptyObjectAreUndefined)
{
    const QJsonObject empty;
    const ObjectMembers members = of(empty);
    EXPECT_TRUE(members.value(QLatin1String("a")).isUndefined());
    EXPECT_TRUE(members.value(QLatin1String()).isUndefined());
    EXPECT_FALSE(members.contains(QLatin1String("")));
}

TEST_F(ObjectMembersTest, keysAreToldApartByCaseAndLength)
{
    const QJsonObject object{{"", 1}, {"a", 2}, {"A", 3}, {"ab", 4}, {"aB", "text"}};
    for (int time = 0; time < 2; ++time) {
        const ObjectMembers members = of(object);
        EXPECT_EQ(members.value(QLatin1String("")), 1);
        EXPECT_EQ(members.value(QLatin1String("a")), 2);
        EXPECT_EQ(members.value(QLatin1String("A")), 3);
        EXPECT_EQ(members.value(QLatin1String("ab")), 4);
        EXPECT_EQ(members.value(QLatin1String("aB")), QStringLiteral("text"));
        EXPECT_TRUE(members.value(QLatin1String("abc")).isUndefined());
        EXPECT_TRUE(members.contains(QLatin1String("aB")));
        EXPECT_FALSE(members.contains(QLatin1String("b")));
    }
}

TEST_F(ObjectMembersTest, moreKeysMayBeSoughtThanThereArePlacesFor)
{
    const QJsonObject object{{"a", 1}, {"b", 2}};
    const ObjectMembers members = of(object);
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(members.value(QLatin1String("b")), 2);
        EXPECT_FALSE(members.contains(QLatin1String("c")));
    }
}

TEST_F(ObjectMembersTest, nullMemberIsThereAndIsNull)
{
    const QJsonObject object{{"a", QJsonValue()}};
    EXPECT_TRUE(of(object).contains(QLatin1String("a")));
    EXPECT_TRUE(of(object).value(QLatin1String("a")).isNull());
}

TEST_F(ObjectMembersTest, keysOutsideOfAsciiAreOthers)
{
    const QJsonObject object{{QStringLiteral("楼层"), 1}, {QStringLiteral("é"), 2}, {"e", 3}};
    EXPECT_EQ(of(object).value(QLatin1String("e")), 3);
    EXPECT_EQ(of(object).value(QLatin1String("\xE9")), 2);
    EXPECT_FALSE(of(object).contains(QLatin1String("?")));
}

TEST_F(ObjectMembersTest, placesOfAnObjectMisleadInNoOther)
{
    const char *const keys[] = {"d", "a", "f", "b", "c", "e"};
    for (unsigned other = 0; other < 64; ++other)
        for (unsigned present = 0; present < 64; ++present)
            for (const unsigned members : {other, present}) {
                QJsonObject object;
                for (unsigned i = 0; i < 6; ++i)
                    if ((members >> i & 1U) != 0)
                        object.insert(QLatin1String(keys[i]), static_cast<int>(i));
                const ObjectMembers sought = of(object);
                for (const char *key : keys)
                    EXPECT_EQ(sought.value(QLatin1String(key)), object.value(QLatin1String(key)));
            }
}

TEST_F(ObjectMembersTest, anyPlacesAreGoodOnes)
{
    const QJsonObject object{{"a", 1}, {"b", 2}};
    for (const int place : {-1, 1, 2, 2147483647, -2147483647}) {
        places.fill(place);
        const ObjectMembers members = of(object);
        EXPECT_EQ(members.value(QLatin1String("a")), 1);
        EXPECT_EQ(members.value(QLatin1String("b")), 2);
        EXPECT_TRUE(members.value(QLatin1String("c")).isUndefined());
    }
}

} // namespace
