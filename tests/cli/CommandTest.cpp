#include "cli/Command.h"

#include <gtest/gtest.h>

using namespace orvcad;

namespace {

TEST(CommandTest, messageOfAFailureIsFilePlaceAndReason)
{
    const CommandFailure failure(kBadInput, "a.json", "Beam[3]", "is no object");
    EXPECT_EQ(failure.message(), "a.json: Beam[3]: is no object");
    EXPECT_EQ(failure.code(), kBadInput);
    EXPECT_EQ(failure.toJson(), (QJsonObject{{"exitCode", 2},
                                             {"error", QJsonObject{{"message", "a.json: Beam[3]: is no object"},
                                                                   {"file", "a.json"},
                                                                   {"place", "Beam[3]"},
                                                                   {"reason", "is no object"}}}}));
}

TEST(CommandTest, partsOfAFailureThatAreEmptyAreNotTold)
{
    const CommandFailure failure(kBadInput, "a.json", {}, "the file is empty");
    EXPECT_EQ(failure.message(), "a.json: the file is empty");
    EXPECT_EQ(failure.toJson()["error"].toObject().keys(), (QStringList{"file", "message", "reason"}));
}

TEST(CommandTest, placeAndReasonOfAFailureAreCutWhereNobodyWouldReadOn)
{
    const QString longText(100000, 'x');
    const CommandFailure failure(kBadInput, "a.json", longText, longText);
    const QString cut = QString(2000, 'x') + QChar(0x2026);
    EXPECT_EQ(failure.message(), "a.json: " + cut + ": " + cut);
    EXPECT_EQ(failure.toJson()["error"].toObject()["place"].toString(), cut);
    EXPECT_EQ(failure.toJson()["error"].toObject()["reason"].toString(), cut);
}

TEST(CommandTest, failureWithoutAFileHasItsMessageAlone)
{
    const CommandFailure failure(kWrongUsage, QStringLiteral("FLOOR: 楼层 unknown"));
    EXPECT_EQ(failure.message(), QStringLiteral("FLOOR: 楼层 unknown"));
    EXPECT_EQ(failure.toJson(),
              (QJsonObject{{"exitCode", 1}, {"error", QJsonObject{{"message", "FLOOR: 楼层 unknown"}}}}));
}

TEST(CommandTest, summaryIsThatOfACommandThatIsDoneUnlessToldOtherwise)
{
    const Summary summary;
    EXPECT_EQ(summary.exitCode, 0);
    EXPECT_FALSE(summary.documentOnStdout);
}

} // namespace
