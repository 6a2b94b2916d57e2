#include "encoding/ORVCADJsonFileSerialization.h"

#include "encoding/ArchiveFixture.h"

namespace {

QByteArray compact(const ORVCADJsonFileSerialization &archive)
{
    return QJsonDocument(archive.rootObject()).toJson(QJsonDocument::Compact);
}

class ORVCADJsonFileSerializationTest : public ArchiveFixture<ORVCADJsonFileSerialization>
{};

TEST_F(ORVCADJsonFileSerializationTest, recordIsAnObjectOfTexts)
{
    written.writeRecord("k", "edoId:12/entName/width:1.5");
    EXPECT_EQ(compact(written), R"({"k":{"edoId":"12","entName":"","width":"1.5"}})");
}

TEST_F(ORVCADJsonFileSerializationTest, recordWithoutItemsHasOneMemberWithEmptyNameAndValue)
{
    written.writeRecord("k", "");
    EXPECT_EQ(compact(written), R"({"k":{"":""}})");
}

TEST_F(ORVCADJsonFileSerializationTest, valueWithASlashOrAColonIsCut)
{
    written.writeRecord("k", "a:200/3/b:KZ:1");
    EXPECT_EQ(compact(written), R"({"k":{"3":"","a":"200","b":"KZ"}})");
}

TEST_F(ORVCADJsonFileSerializationTest, laterItemOfAKeyOverwrites)
{
    written.writeRecord("k", "a:1/a:2");
    EXPECT_EQ(compact(written), R"({"k":{"a":"2"}})");
}

TEST_F(ORVCADJsonFileSerializationTest, laterWriteOfAKeyReplaces)
{
    written.writeRecord("k", "a:1");
    written.writeRecordList("k", {"b:1"});
    EXPECT_EQ(compact(written), R"({"k":[{"b":"1"}]})");
}

TEST_F(ORVCADJsonFileSerializationTest, listIsAnArrayInListOrder)
{
    written.writeRecordList("k", {"a:2", "a:1", ""});
    written.writeRecordList("none", {});
    EXPECT_EQ(compact(written), R"({"k":[{"a":"2"},{"a":"1"},{"":""}],"none":[]})");
}

TEST_F(ORVCADJsonFileSerializationTest, mapPutsKeysAndValuesSideBySideByRank)
{
    RecordMap records{{"WALL", {"a:1", "a:2"}}, {"AXIS:3/B", {}}};
    written.writeRecordMap("k", records);
    EXPECT_EQ(
        compact(written),
        R"({"k":{"key_0":{"AXIS":"3","B":""},"key_1":{"WALL":""},"value_0":[],"value_1":[{"a":"1"},{"a":"2"}]}})");
    EXPECT_EQ(records.size(), 2);
}

TEST_F(ORVCADJsonFileSerializationTest, numbersOfMapEntriesAreNotPadded)
{
    RecordMap records;
    for (char c = 'a'; c <= 'k'; ++c)
        records.insert(QString(QLatin1Char(c)), {});
    written.writeRecordMap("k", records);
    const QJsonObject map = written.rootObject().value("k").toObject();
    EXPECT_EQ(map.size(), 22);
    EXPECT_EQ(map.value("key_0").toObject().keys(), QStringList{"a"});
    EXPECT_EQ(map.value("key_10").toObject().keys(), QStringList{"k"});
}

TEST_F(ORVCADJsonFileSerializationTest, emptyMapIsAnEmptyObject)
{
    RecordMap records;
    written.writeRecordMap("k", records);
    EXPECT_EQ(compact(written), R"({"k":{}})");
}

TEST_F(ORVCADJsonFileSerializationTest, saveGivesIndentedJsonAndIgnoresItsText)
{
    written.writeRecord("k", QString::fromUtf8("a:墙"));
    written.save("ignored");
    EXPECT_EQ(written.content(), QString::fromUtf8("{\n    \"k\": {\n        \"a\": \"墙\"\n    }\n}\n"));
}

TEST_F(ORVCADJsonFileSerializationTest, rootObjectIsACopy)
{
    written.rootObject().insert("k", 1);
    EXPECT_TRUE(written.rootObject().isEmpty());
}

TEST_F(ORVCADJsonFileSerializationTest, rootIsInsertedUnderAnyKeyTheEmptyOneToo)
{
    written.writeRecord("k", "a:1");
    QJsonObject object{{"other", 1}};
    written.insertRootInto("", &object);
    written.insertRootInto("x", &object);
    written.insertRootInto("x", nullptr);
    EXPECT_EQ(QJsonDocument(object).toJson(QJsonDocument::Compact),
              R"({"":{"k":{"a":"1"}},"other":1,"x":{"k":{"a":"1"}}})");
}

TEST_F(ORVCADJsonFileSerializationTest, parseTellsWhetherTheContentIsJson)
{
    EXPECT_TRUE(parsed("{}"));
    EXPECT_TRUE(parsed("[1]"));
    for (const char *text : {"", " ", "{", "{]", "1", "null", "{\"a\":1}}", "nonsense"})
        EXPECT_FALSE(parsed(text)) << text;
}

TEST_F(ORVCADJsonFileSerializationTest, documentThatIsAnArrayLeavesAllOutputsAsTheyAre)
{
    const QString array = R"([{"k": {"a": "1"}}])";
    EXPECT_TRUE(record(array).isNull());
    EXPECT_EQ(list(array, {"x"}), QStringList{"x"});
    EXPECT_EQ(map(array, {{"x", {}}}).size(), 1);
}

TEST_F(ORVCADJsonFileSerializationTest, recordReadsInTheOrderOfItsSortedKeys)
{
    EXPECT_EQ(record(R"({"k": {"b": "2", "a": "1", "c": ""}})"), "a:1/b:2/c");
}

TEST_F(ORVCADJsonFileSerializationTest, recordIsAppended) { EXPECT_EQ(record(R"({"k": {"a": "1"}})", "x/"), "x/a:1"); }

TEST_F(ORVCADJsonFileSerializationTest, onlyTextsAreReadFromARecord)
{
    EXPECT_EQ(record(R"({"k": {"a": 1, "b": true, "c": {}, "d": null, "e": "x"}})"), "a/b/c/d/e:x");
}

TEST_F(ORVCADJsonFileSerializationTest, valueOfAWrongKindReadsAsEmpty)
{
    const QString record = ORVCADJsonFileSerializationTest::record(R"({"k": 5})");
    EXPECT_TRUE(record.isEmpty());
    EXPECT_FALSE(record.isNull());
    EXPECT_EQ(list(R"({"k": {"a": "1"}})"), QStringList());
    EXPECT_EQ(list(R"({"k": [5, "x", {"a": "1"}]})"), (QStringList{"", "", "a:1"}));
    EXPECT_TRUE(map(R"({"k": [1, 2]})").isEmpty());
}

TEST_F(ORVCADJsonFileSerializationTest, listIsAppended)
{
    EXPECT_EQ(list(R"({"k": [{"a": "2"}, {"a": "1"}]})", {"x"}), (QStringList{"x", "a:2", "a:1"}));
}

TEST_F(ORVCADJsonFileSerializationTest, mapEntryOfTheSameKeyIsReplacedAndOthersStay)
{
    EXPECT_EQ(map(R"({"k": {"key_0": {"A": ""}, "value_0": [{"a": "1"}]}})", {{"A", {"x"}}, {"B", {"y"}}}),
              (RecordMap{{"A", {"a:1"}}, {"B", {"y"}}}));
}

TEST_F(ORVCADJsonFileSerializationTest, lastKeyOfAnOddNumberIsIgnored)
{
    EXPECT_EQ(map(R"({"k": {"key_0": {"A": ""}, "value_0": [{"a": "1"}], "key_1": {"B": ""}}})"),
              (RecordMap{{"A", {"a:1"}}}));
}

TEST_F(ORVCADJsonFileSerializationTest, mapWithOtherKeysReadsAsEntriesWithoutName)
{
    EXPECT_EQ(map(R"({"k": {"a": 1, "b": 2, "c": 3, "d": 4}})"), (RecordMap{{"", {}}}));
}

TEST_F(ORVCADJsonFileSerializationTest, deepTextIsRefused)
{
    EXPECT_FALSE(parsed(QString("[").repeated(200000)));
    EXPECT_FALSE(parsed(QString("[").repeated(200000) + QString("]").repeated(200000)));
    EXPECT_FALSE(parsed(QString("{\"k\":").repeated(200000) + "1" + QString("}").repeated(200000)));
}

TEST_F(ORVCADJsonFileSerializationTest, numberOfMapEntriesIsThatOfTheKeysWhateverTheirNamesSay)
{
    EXPECT_TRUE(map(R"({"k": {"key_2147483647": {"A": ""}}})").isEmpty());
    EXPECT_EQ(map(R"({"k": {"key_2147483647": {"A": ""}, "value_2147483647": []}})"), (RecordMap{{"", {}}}));
}

TEST_F(ORVCADJsonFileSerializationTest, manyMembersAreWrittenAndReadInLinearTime)
{
    RecordMap records;
    QString wide;
    for (int i = 0; i < 50000; ++i) {
        records.insert(QString::number(i), {"a:1"});
        wide += QStringLiteral("layer_%1:x/").arg(i);
    }
    written.writeRecord("wide", wide);
    EXPECT_EQ(readBack(records), records);
    EXPECT_EQ(written.rootObject().value("wide").toObject().size(), 50001); // and the empty item at the end
}

} // namespace
