#include "encoding/JsonMembers.h"

#include <QStringList>

#include <gtest/gtest.h>

using encoding::JsonMember;
using encoding::objectOf;

namespace {

TEST(JsonMembersTest, noMembersAreTheEmptyObject) { EXPECT_TRUE(objectOf({}).isEmpty()); }

TEST(JsonMembersTest, membersInAnyOrderMakeTheObject)
{
    const QJsonObject object = objectOf({{"key_10", 1}, {"key_0", "a"}, {"", true}, {"key_2", QJsonValue()}});
    EXPECT_EQ(object, (QJsonObject{{"", true}, {"key_0", "a"}, {"key_10", 1}, {"key_2", QJsonValue()}}));
    EXPECT_EQ(object.keys(), (QStringList{"", "key_0", "key_10", "key_2"}));
}

TEST(JsonMembersTest, lastOfOneKeyCounts)
{
    const QJsonObject object = objectOf({{"b", 1}, {"a", 2}, {"b", 3}, {"a", 4}, {"b", 5}});
    EXPECT_EQ(object, (QJsonObject{{"a", 4}, {"b", 5}}));
}

TEST(JsonMembersTest, memberWithoutAValueIsNone)
{
    EXPECT_EQ(objectOf({{"a", 1}, {"b", QJsonValue(QJsonValue::Undefined)}}), (QJsonObject{{"a", 1}}));
}

} // namespace
