#include "encoding/RecordKinds.h"

#include "encoding/RecordKey.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

#include <vector>

using namespace encoding;

namespace {

enum Place : int { kTop = 0, kBottom = 1 };

struct SharedBar
{
    QString text;

    QJsonObject toJsonObj() const { return {{"text", text}}; }
    void fromJson(const QJsonObject &json) { text = json.value("text").toString(); }
};

struct OwnedBar
{
    QString text;

    QJsonObject toJson() const { return {{"text", text}}; }
    static void fromJson(OwnedBar *target, const QJsonObject &json) { target->text = json.value("text").toString(); }
};

struct Slab
{
    ~Slab() { qDeleteAll(owned); }

    std::wstring layer = L"own";
    QUuid id;
    Place place = kBottom;
    qint64 narrow = 7;
    qint64 loose = 7;
    double depth = 2.5;
    QList<QStringList> words;
    std::vector<std::shared_ptr<SharedBar>> shared;
    QList<OwnedBar *> owned;

    static constexpr auto table() // NOLINT(readability-identifier-naming)
    {
        return std::make_tuple(
            field("layer"_key, &Slab::layer), field("id"_key, &Slab::id), field("place"_key, &Slab::place),
            fieldAs<NarrowInt64>("narrow"_key, &Slab::narrow), fieldAs<LooseInt64>("loose"_key, &Slab::loose),
            fieldAs<DoubleReadAsInt>("depth"_key, &Slab::depth), fieldAppended("words"_key, &Slab::words),
            fieldAppended("shared"_key, &Slab::shared), fieldAppended("owned"_key, &Slab::owned));
    }
};

class RecordKindsTest : public ::testing::Test
{
protected:
    void read(const QJsonObject &json) { readFields(json, Slab::table(), m_slab); }
    QJsonObject written() const { return writtenFields(m_slab, Slab::table()); }
    Slab m_slab;
};

TEST_F(RecordKindsTest, wideTextIsWrittenAndRead)
{
    read({{"layer", QStringLiteral("梁")}});
    EXPECT_EQ(m_slab.layer, L"梁");
    EXPECT_EQ(written()["layer"], QStringLiteral("梁"));
    read({{"layer", 3}});
    EXPECT_EQ(m_slab.layer, L"梁");
}

TEST_F(RecordKindsTest, idIsItsTextFormAndABadTextIsTheNullId)
{
    const QString text = QStringLiteral("{67c8770b-44f1-410a-ab9a-f9b5446f13ee}");
    read({{"id", text}});
    EXPECT_EQ(m_slab.id, QUuid(text));
    EXPECT_EQ(written()["id"], text);
    read({{"id", "no id"}});
    EXPECT_TRUE(m_slab.id.isNull());
    EXPECT_EQ(written()["id"], "{00000000-0000-0000-0000-000000000000}");
}

TEST_F(RecordKindsTest, enumeratorIsItsNumberAndUnnamedNumbersAreKept)
{
    EXPECT_EQ(written()["place"], 1);
    read({{"place", 0}});
    EXPECT_EQ(m_slab.place, kTop);
    read({{"place", 9}});
    EXPECT_EQ(static_cast<int>(m_slab.place), 9);
    read({{"place", "0"}});
    EXPECT_EQ(static_cast<int>(m_slab.place), 9);
}

TEST_F(RecordKindsTest, narrowNumberIsWrittenWholeAndReadWith32Bits)
{
    read({{"narrow", 2147483647}});
    EXPECT_EQ(m_slab.narrow, 2147483647);
    read({{"narrow", 2147483648.0}});
    EXPECT_EQ(m_slab.narrow, 2147483647); // mistyped, and so as it was
    m_slab.narrow = 5000000000;
    EXPECT_EQ(written()["narrow"].toDouble(), 5e9);
}

TEST_F(RecordKindsTest, looseNumberIsReadFromNumberTextAndTruthValue)
{
    read(QJsonDocument::fromJson(R"({"loose": 9007199254740993})").object());
    EXPECT_EQ(m_slab.loose, 9007199254740993);
    read({{"loose", "12"}});
    EXPECT_EQ(m_slab.loose, 12);
    read({{"loose", true}});
    EXPECT_EQ(m_slab.loose, 1);
    read({{"loose", "twelve"}});
    EXPECT_EQ(m_slab.loose, 0);
}

TEST_F(RecordKindsTest, doubleReadAsIntRefusesFractionsAndWhatDoesNotFit)
{
    EXPECT_EQ(written()["depth"], 2.5);
    read({{"depth", 3.0}});
    EXPECT_EQ(m_slab.depth, 3.0);
    read({{"depth", 0}});
    EXPECT_EQ(m_slab.depth, 0.0);
    m_slab.depth = 2.5;
    for (const QJsonValue &mistyped : {QJsonValue(2900.5), QJsonValue(5e9), QJsonValue("3"), QJsonValue()}) {
        read({{"depth", mistyped}});
        EXPECT_EQ(m_slab.depth, 2.5);
    }
}

TEST_F(RecordKindsTest, listsKeepWhatTheyHoldAndAddWhatIsRead)
{
    const QJsonObject json = QJsonDocument::fromJson(R"({"words": [["a", "b"], [], "c", ["d", 5]],
        "shared": [{"text": "1"}, 2], "owned": [{"text": "3"}]})")
                                 .object();
    read(json);
    read(json);
    const QList<QStringList> once = {{"a", "b"}, {}, {}, {"d", ""}};
    EXPECT_EQ(m_slab.words, once + once);
    ASSERT_EQ(m_slab.shared.size(), 4U);
    EXPECT_EQ(m_slab.shared[0]->text, "1");
    EXPECT_EQ(m_slab.shared[1]->text, "");
    EXPECT_NE(m_slab.shared[0], m_slab.shared[2]);
    ASSERT_EQ(m_slab.owned.size(), 2);
    EXPECT_EQ(m_slab.owned[1]->text, "3");
}

TEST_F(RecordKindsTest, listOfAnotherTypeOfValueAddsNothing)
{
    read({{"words", "a"}, {"shared", 1}, {"owned", QJsonObject{{"text", "1"}}}});
    EXPECT_TRUE(m_slab.words.isEmpty());
    EXPECT_TRUE(m_slab.shared.empty());
    EXPECT_TRUE(m_slab.owned.isEmpty());
}

TEST_F(RecordKindsTest, nullRecordsAreNotWritten)
{
    m_slab.shared = {nullptr, std::make_shared<SharedBar>(SharedBar{"1"})};
    m_slab.owned = {new OwnedBar{"2"}, nullptr};
    m_slab.words = {{"a"}, {}};
    EXPECT_EQ(written()["shared"].toArray(), QJsonArray{QJsonObject({{"text", "1"}})});
    EXPECT_EQ(written()["owned"].toArray(), QJsonArray{QJsonObject({{"text", "2"}})});
    EXPECT_EQ(written()["words"].toArray(), (QJsonArray{QJsonArray{"a"}, QJsonArray{}}));
}

struct Seat
{
    QString name;
    int width = 5;

    struct Fields
    {
        static constexpr auto table =
            std::make_tuple(fieldOr("name"_key, &Seat::name), field("width"_key, &Seat::width));
    };
};

/** Records by the table of another struct: one, a list, a list of shared ones, and ids that are read loosely. */
struct Beam
{
    Seat seat{"own", 7};
    QList<Seat> seats;
    std::vector<std::shared_ptr<Seat>> shared;
    std::vector<qint64> ids;

    static constexpr auto table() // NOLINT(readability-identifier-naming)
    {
        return std::make_tuple(fieldAs<Nested<Seat::Fields>>("seat"_key, &Beam::seat),
                               fieldAppendedAs<Nested<Seat::Fields>>("seats"_key, &Beam::seats),
                               fieldAppendedAs<SharedNested<Seat::Fields>>("shared"_key, &Beam::shared),
                               fieldAppendedAs<LooseInt64>("ids"_key, &Beam::ids));
    }
};

TEST(NestedRecordKindsTest, recordsAreWrittenAsObjectsOfTheirOwn)
{
    Beam beam;
    beam.seats = {{"a", 1}};
    beam.shared = {nullptr, std::make_shared<Seat>(Seat{"b", 2})};
    beam.ids = {3};
    const QJsonObject json = writtenFields(beam, Beam::table());
    EXPECT_EQ(json,
              QJsonDocument::fromJson(R"({"seat": {"name": "own", "width": 7}, "seats": [{"name": "a", "width": 1}],
        "shared": [{"name": "b", "width": 2}], "ids": [3]})")
                  .object());
}

TEST(NestedRecordKindsTest, recordIsReadByTheRowsOfItsTable)
{
    Beam beam;
    readFields({{"seat", QJsonObject{{"width", 9}}}}, Beam::table(), beam);
    EXPECT_EQ(beam.seat.name, ""); // an "or" row
    EXPECT_EQ(beam.seat.width, 9);
    readFields({{"seat", "no object"}}, Beam::table(), beam);
    EXPECT_EQ(beam.seat.width, 9); // a row that keeps what is there
}

TEST(NestedRecordKindsTest, entriesAreReadIntoNewRecordsBehindThoseThatAreThere)
{
    const QJsonObject json = QJsonDocument::fromJson(R"({"seats": [{"name": "a"}, 7], "shared": [{"width": 2}, null],
        "ids": ["12", 5]})")
                                 .object();
    Beam beam;
    readFields(json, Beam::table(), beam);
    readFields(json, Beam::table(), beam);
    ASSERT_EQ(beam.seats.size(), 4);
    EXPECT_EQ(beam.seats[2].name, "a");
    EXPECT_EQ(beam.seats[3].width, 5);
    ASSERT_EQ(beam.shared.size(), 4U);
    EXPECT_EQ(beam.shared[2]->width, 2);
    EXPECT_EQ(beam.shared[3]->width, 5);
    EXPECT_EQ(beam.ids, (std::vector<qint64>{12, 5, 12, 5}));
}

} // namespace
