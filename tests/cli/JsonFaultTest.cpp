#include "cli/JsonFault.h"

#include <QJsonObject>

#include <gtest/gtest.h>

using namespace orvcad;

namespace {

const std::vector<JsonFault> kFaults{{"a[0]", "is no text"}, {"b.c", "is missing"}};

TEST(JsonFaultTest, faultsAreObjectsOfPlaceAndReason)
{
    EXPECT_EQ(faultsToJson(kFaults), (QJsonArray{QJsonObject{{"place", "a[0]"}, {"reason", "is no text"}},
                                                 QJsonObject{{"place", "b.c"}, {"reason", "is missing"}}}));
    EXPECT_EQ(faultsToJson({}), QJsonArray());
}

TEST(JsonFaultTest, faultsAreLinesBehindWhatTheyAreAbout)
{
    EXPECT_EQ(faultLines("a.json", kFaults), (QStringList{"a.json: a[0]: is no text", "a.json: b.c: is missing"}));
    EXPECT_EQ(faultLines("a.json", {}), QStringList());
}

TEST(JsonFaultTest, placesAtWhichADocumentDiffersAreCounted)
{
    EXPECT_EQ(writtenAgainText(0), "written again, it is the same document");
    EXPECT_EQ(writtenAgainText(1), "written again, it differs at 1 place");
    EXPECT_EQ(writtenAgainText(2), "written again, it differs at 2 places");
}

} // namespace
