#include "encoding/RecordFields.h"

#include "encoding/RecordKey.h"

#include <QJsonDocument>

#include <gmock/gmock.h>

#include <limits>

using namespace encoding;

namespace {

struct Bar
{
    QString text;

    QJsonObject toJson() const { return {{"text", text}}; }
    static Bar fromJson(const QJsonObject &json) { return {json.value("text").toString()}; }
    bool operator==(const Bar &other) const { return text == other.text; }
};

/** Refuses an object without "text". */
struct OwnedBar
{
    QString text;

    QJsonObject toJson() const { return {{"text", text}}; }
    static OwnedBar *fromJson(const QJsonObject &json)
    {
        return json.contains("text") ? new OwnedBar{json.value("text").toString()} : nullptr;
    }
};

struct Base
{
    QString name = QStringLiteral("unnamed");
};

struct Slab : Base
{
    int count = 1;
    qint64 id = -1;
    double elev = 3.5;
    bool visible = true;
    QString grade = QStringLiteral("C30");
    QString written = QStringLiteral("own");
    QString read = QStringLiteral("own");
    int angle = 90;
    QList<int> numbers = {1, 2};
    Bar bar{QStringLiteral("default")};
    QList<Bar> bars;
};

/** Degrees that stand in text. */
struct NumberInText
{
    static QJsonValue toValue(int value) { return QString::number(value); }
    static int fromValue(const QJsonValue &json, int fallback)
    {
        bool ok = false;
        const int value = json.toString().toInt(&ok);
        return ok ? value : fallback;
    }
};

constexpr auto kTable = std::make_tuple(
    field("name"_key, &Slab::name), field("count"_key, &Slab::count), field("id"_key, &Slab::id),
    field("elev"_key, &Slab::elev), field("visible"_key, &Slab::visible),
    fieldOr("grade"_key, &Slab::grade, "none"_key), field("written"_key, &Slab::written, Flow::WriteOnly),
    field("read"_key, &Slab::read, Flow::ReadOnly), fieldAs<NumberInText>("angle"_key, &Slab::angle),
    field("numbers"_key, &Slab::numbers), field("bar"_key, &Slab::bar), field("bars"_key, &Slab::bars));

QJsonObject written(const Slab &slab) { return writtenFields(slab, kTable); }

Slab readFrom(const char *json)
{
    Slab slab;
    EXPECT_TRUE(readFields(QJsonDocument::fromJson(json).object(), kTable, slab));
    return slab;
}

/** That the fields which no row sets otherwise are as the declaration says. */
void expectDefaults(const Slab &slab)
{
    EXPECT_EQ(slab.name, "unnamed");
    EXPECT_EQ(slab.count, 1);
    EXPECT_EQ(slab.id, -1);
    EXPECT_EQ(slab.elev, 3.5);
    EXPECT_TRUE(slab.visible);
    EXPECT_EQ(slab.angle, 90);
    EXPECT_EQ(slab.numbers, (QList<int>{1, 2}));
    EXPECT_EQ(slab.bar.text, "default");
}

} // namespace

TEST(RecordFieldsTest, everyRowIsWrittenUnderItsKey)
{
    Slab slab;
    slab.id = 9007199254740992; // no greater number gets into Qt's JSON text unchanged
    slab.bars = {Bar{QStringLiteral("a")}, Bar{QStringLiteral("b")}};
    EXPECT_EQ(
        QJsonDocument(written(slab)).toJson(QJsonDocument::Compact).toStdString(),
        R"({"angle":"90","bar":{"text":"default"},"bars":[{"text":"a"},{"text":"b"}],"count":1,"elev":3.5,)"
        R"("grade":"C30","id":9007199254740992,"name":"unnamed","numbers":[1,2],"visible":true,"written":"own"})");
}

TEST(RecordFieldsTest, whatIsWrittenReadsBack)
{
    const Slab slab = readFrom(R"({"name": "基础", "count": -2, "id": 9007199254740993, "elev": 0.1, "visible": false,
        "grade": "C40", "angle": "45", "numbers": [3], "bar": {"text": "x"}, "bars": [{"text": "y"}, {}]})");
    EXPECT_EQ(slab.name, QStringLiteral("基础"));
    EXPECT_EQ(slab.count, -2);
    EXPECT_EQ(slab.id, 9007199254740993);
    EXPECT_EQ(slab.elev, 0.1);
    EXPECT_FALSE(slab.visible);
    EXPECT_EQ(slab.grade, "C40");
    EXPECT_EQ(slab.angle, 45);
    EXPECT_EQ(slab.numbers, QList<int>{3});
    EXPECT_EQ(slab.bar.text, "x");
    EXPECT_EQ(slab.bars, (QList<Bar>{{QStringLiteral("y")}, {QString()}}));
}

TEST(RecordFieldsTest, longIntegerKeepsItsBitsWhenParsed)
{
    EXPECT_EQ(readFrom(R"({"id": 9223372036854775807})").id, 9223372036854775807);
    EXPECT_EQ(readFrom(R"({"id": -9007199254740993})").id, -9007199254740993);
    EXPECT_EQ(readFrom(R"({"id": 2.7})").id, 3);
}

TEST(RecordFieldsTest, numberBeyondALongIntegerIsMistyped)
{
    for (const char *json : {R"({"id": 9223372036854775808})", R"({"id": 1e300})", R"({"id": -1e300})"})
        EXPECT_EQ(readFrom(json).id, -1) << json;
}

TEST(RecordFieldsTest, missingKeyKeepsTheDefaultOfTheDeclaration)
{
    const Slab slab = readFrom("{}");
    expectDefaults(slab);
}

TEST(RecordFieldsTest, mistypedValueKeepsTheDefaultOfTheDeclaration)
{
    const Slab slab = readFrom(R"({"name": 1, "count": "2", "id": "3", "elev": "4", "visible": 1, "angle": 45,
        "numbers": {}, "bar": [], "bars": "x"})");
    expectDefaults(slab);
    EXPECT_TRUE(slab.bars.isEmpty());
}

TEST(RecordFieldsTest, integerIsAWholeNumberOf32Bits)
{
    EXPECT_EQ(readFrom(R"({"count": 2147483647})").count, 2147483647);
    EXPECT_EQ(readFrom(R"({"count": 2147483648})").count, 1);
    EXPECT_EQ(readFrom(R"({"count": 2.5})").count, 1);
    EXPECT_EQ(readFrom(R"({"count": 2.0})").count, 2);
    EXPECT_EQ(readFrom(R"({"id": 2147483648})").id, 2147483648);
}

TEST(RecordFieldsTest, numberThatIsNotFiniteIsWrittenAsNull)
{
    Slab slab;
    slab.elev = std::numeric_limits<double>::infinity();
    const QByteArray bytes = QJsonDocument(written(slab)).toJson(QJsonDocument::Compact);
    EXPECT_TRUE(bytes.contains("\"elev\":null")) << bytes.toStdString();
    EXPECT_EQ(readFrom(bytes.constData()).elev, 3.5);
}

TEST(RecordFieldsTest, givenFallbackStandsForMissingAndMistypedAlike)
{
    EXPECT_EQ(readFrom("{}").grade, "none");
    EXPECT_EQ(readFrom(R"({"grade": 30})").grade, "none");
    EXPECT_EQ(readFrom(R"({"grade": ""})").grade, "");
}

TEST(RecordFieldsTest, fallbackThatIsNotNamedIsZero)
{
    constexpr auto table = std::make_tuple(fieldOr("name"_key, &Slab::name), fieldOr("count"_key, &Slab::count),
                                           fieldOr("bars"_key, &Slab::bars));
    Slab slab;
    slab.bars = {Bar()};
    EXPECT_TRUE(readFields(QJsonObject{{"count", "x"}}, table, slab));
    EXPECT_EQ(slab.name, "");
    EXPECT_EQ(slab.count, 0);
    EXPECT_TRUE(slab.bars.isEmpty());
}

TEST(RecordFieldsTest, writeOnlyRowIsNeverRead) { EXPECT_EQ(readFrom(R"({"written": "foreign"})").written, "own"); }

TEST(RecordFieldsTest, readOnlyRowIsNeverWritten)
{
    EXPECT_EQ(readFrom(R"({"read": "foreign"})").read, "foreign");
    EXPECT_FALSE(written(Slab()).contains("read"));
}

TEST(RecordFieldsTest, missingRequiredKeyFails)
{
    constexpr auto table =
        std::make_tuple(fieldRequired("name"_key, &Slab::name), fieldRequired("count"_key, &Slab::count),
                        fieldRequired("grade"_key, &Slab::grade, Flow::WriteOnly));
    Slab slab;
    EXPECT_FALSE(readFields(QJsonObject(), table, slab));
    EXPECT_FALSE(readFields(QJsonObject{{"name", "n"}}, table, slab));
    EXPECT_FALSE(readFields(QJsonObject{{"count", 1}}, table, slab));
    EXPECT_TRUE(readFields(QJsonObject{{"count", 1}, {"name", "n"}}, table, slab));
}

TEST(RecordFieldsTest, mistypedRequiredValueReadsAsZero)
{
    constexpr auto table =
        std::make_tuple(fieldRequired("name"_key, &Slab::name), fieldRequired("count"_key, &Slab::count));
    Slab slab;
    EXPECT_TRUE(readFields(QJsonObject{{"count", "x"}, {"name", QJsonValue()}}, table, slab));
    EXPECT_EQ(slab.count, 0);
    EXPECT_EQ(slab.name, "");
}

TEST(RecordFieldsTest, keysOfOthersStayInTheObject)
{
    QJsonObject json{{"other", 1}, {"count", 99}};
    writeFields(Slab(), std::make_tuple(field("count"_key, &Slab::count)), json);
    EXPECT_EQ(json, (QJsonObject{{"other", 1}, {"count", 1}}));
}

TEST(RecordFieldsTest, writtenFieldsStandInAnObjectOfTheirOwn)
{
    EXPECT_EQ(writtenFields(Slab(), std::make_tuple(field("count"_key, &Slab::count))), (QJsonObject{{"count", 1}}));
}

TEST(RecordFieldsTest, readingIntoNoRecordDoesNothing)
{
    constexpr auto table = std::make_tuple(field("count"_key, &Slab::count));
    Slab slab;
    readFieldsInto(&slab, table, {{"count", 7}});
    EXPECT_EQ(slab.count, 7);
    readFieldsInto(static_cast<Slab *>(nullptr), table, {{"count", 8}});
    EXPECT_EQ(slab.count, 7);
}

TEST(RecordFieldsTest, freshRecordKeepsItsDefaultsBehindAMissingRequiredKey)
{
    const auto table = std::make_tuple(field("count"_key, &Slab::count), fieldRequired("name"_key, &Slab::name),
                                       field("elev"_key, &Slab::elev));
    const auto slab = readRecord<Slab>({{"count", 7}, {"elev", 1.0}}, table);
    EXPECT_EQ(slab.count, 7);
    EXPECT_EQ(slab.elev, 3.5);
}

TEST(RecordFieldsTest, ownedRecordsAreNewAndRefusedOnesAreLeftOut)
{
    struct Owner
    {
        QList<OwnedBar *> bars;
    };
    constexpr auto table = std::make_tuple(field("bars"_key, &Owner::bars));
    Owner owner;
    ASSERT_TRUE(readFields(QJsonDocument::fromJson(R"({"bars": [{"text": "a"}, {}, 1, {"text": "b"}]})").object(),
                           table, owner));
    owner.bars.insert(1, nullptr);
    QJsonObject json;
    writeFields(owner, table, json);
    EXPECT_EQ(QJsonDocument(json).toJson(QJsonDocument::Compact), R"({"bars":[{"text":"a"},{"text":"b"}]})");
    qDeleteAll(owner.bars);
}

TEST(RecordFieldsTest, ownedRecordsStayWhereNoArrayStands)
{
    struct Owner
    {
        QList<OwnedBar *> bars;
    };
    constexpr auto table = std::make_tuple(field("bars"_key, &Owner::bars));
    OwnedBar bar{QStringLiteral("a")};
    Owner owner{{&bar}};
    EXPECT_TRUE(readFields({{"bars", 5}}, table, owner));
    EXPECT_EQ(owner.bars, QList<OwnedBar *>{&bar});
}

TEST(RecordFieldsTest, rowsAreVisitedInTableOrder)
{
    QStringList keys;
    forEachField(kTable, [&](const auto &row) { keys.append(row.key); });
    EXPECT_EQ(keys.join(','), "name,count,id,elev,visible,grade,written,read,angle,numbers,bar,bars");
}
