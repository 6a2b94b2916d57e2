#include "drawing/ORVCADDrawingFloorMappings.h"

#include "DrawingJson.h"

#include <QHash>

#include <gmock/gmock.h>

#include <memory>

using namespace drawing_test;

namespace {

using Floors = QList<std::pair<qint64, QString>>;

class ORVCADDrawingFloorMappingsTest : public testing::Test
{
protected:
    void add(qint64 region, const char *floor, const char *drawing)
    {
        mappings.addMapping(region, QString::fromUtf8(floor), QString::fromUtf8(drawing));
    }
    static std::unique_ptr<ORVCADDrawingFloorMappings> readFrom(const QJsonValue &json)
    {
        return std::unique_ptr<ORVCADDrawingFloorMappings>(ORVCADDrawingFloorMappings::fromJson(json));
    }
    int recordCount() const { return mappings.toJson().toArray().size(); }

    ORVCADDrawingFloorMappings mappings;
};

QString name(const char *text) { return QString::fromUtf8(text); }

} // namespace

TEST_F(ORVCADDrawingFloorMappingsTest, emptySetFindsNothing)
{
    EXPECT_TRUE(mappings.getMappingDrawingNames(1, name("F1")).isEmpty());
    EXPECT_TRUE(mappings.getMappingFloorNames(name("plan")).isEmpty());
    EXPECT_TRUE(mappings.getMappingFloorNames(1).isEmpty());
    EXPECT_TRUE(mappings.getMappingFloors(name("plan")).isEmpty());
    EXPECT_EQ(text(mappings.toJson()), "[]");
}

TEST_F(ORVCADDrawingFloorMappingsTest, drawingIsAddedToTheRecordOfItsFloor)
{
    add(1, "F1", "a");
    add(1, "F2", "a");
    add(1, "F1", "b");
    add(2, "F1", "c");
    EXPECT_EQ(recordCount(), 3);
    EXPECT_EQ(mappings.getMappingDrawingNames(1, name("F1")), (QStringList{"a", "b"}));
    EXPECT_EQ(mappings.getMappingDrawingNames(1, name("F2")), QStringList{"a"});
    EXPECT_EQ(mappings.getMappingDrawingNames(2, name("F1")), QStringList{"c"});
    EXPECT_TRUE(mappings.getMappingDrawingNames(2, name("F2")).isEmpty());
    EXPECT_TRUE(mappings.getMappingDrawingNames(1, name("f1")).isEmpty());
}

TEST_F(ORVCADDrawingFloorMappingsTest, drawingAddedTwiceIsKeptOnce)
{
    add(1, "F1", "a");
    add(1, "F1", "b");
    add(1, "F1", "a");
    EXPECT_EQ(mappings.getMappingDrawingNames(1, name("F1")), (QStringList{"a", "b"}));
}

TEST_F(ORVCADDrawingFloorMappingsTest, emptyFloorNameMakesARecordEachTime)
{
    add(1, "", "a");
    add(1, "", "a");
    EXPECT_EQ(recordCount(), 2);
    EXPECT_EQ(mappings.getMappingFloorNames(name("a")), (QStringList{"", ""}));
    EXPECT_TRUE(mappings.getMappingDrawingNames(1, QString()).isEmpty());
}

TEST_F(ORVCADDrawingFloorMappingsTest, manyRecordsWithoutAFloorNameAreAddedInTheTimeThatTheirNumberTakes)
{
    constexpr int count = 100000;
    for (int i = 0; i < count; ++i)
        mappings.addMapping(1, QString(), QStringLiteral("S-%1").arg(i));
    EXPECT_EQ(recordCount(), count);
    EXPECT_EQ(mappings.getMappingFloorNames(qint64(1)).size(), count);
}

TEST_F(ORVCADDrawingFloorMappingsTest, regionMinusOneIsKeptAndNotAnswered)
{
    add(-1, "F1", "a");
    add(-1, "F1", "b");
    EXPECT_EQ(recordCount(), 1);
    EXPECT_TRUE(mappings.getMappingDrawingNames(-1, name("F1")).isEmpty());
    EXPECT_TRUE(mappings.getMappingFloorNames(-1).isEmpty());
    EXPECT_EQ(mappings.getMappingFloors(name("a")), (Floors{{-1, "F1"}}));
}

TEST_F(ORVCADDrawingFloorMappingsTest, floorsOfADrawingAreGivenForAllRegionsWithEqualNamesAsOftenAsTheyOccur)
{
    add(1, "F1", "a");
    add(1, "F2", "b");
    add(2, "F1", "a");
    add(2, "F3", "a");
    EXPECT_EQ(mappings.getMappingFloorNames(name("a")), (QStringList{"F1", "F1", "F3"}));
    EXPECT_EQ(mappings.getMappingFloors(name("a")), (Floors{{1, "F1"}, {2, "F1"}, {2, "F3"}}));
}

TEST_F(ORVCADDrawingFloorMappingsTest, floorsAreGivenInTheOrderOfTheRecordsNotOfTheirDrawings)
{
    add(1, "F1", "x");
    add(1, "F2", "a");
    add(1, "F1", "a");
    EXPECT_EQ(mappings.getMappingFloorNames(name("a")), (QStringList{"F1", "F2"}));
}

TEST_F(ORVCADDrawingFloorMappingsTest, floorsOfARegionAreGivenInOrder)
{
    add(1, "F2", "a");
    add(2, "F9", "a");
    add(1, "F1", "a");
    EXPECT_EQ(mappings.getMappingFloorNames(1), (QStringList{"F2", "F1"}));
    EXPECT_TRUE(mappings.getMappingFloorNames(3).isEmpty());
}

TEST_F(ORVCADDrawingFloorMappingsTest, emptyDrawingNameIsKeptAndNotAnswered)
{
    add(1, "F1", "");
    EXPECT_EQ(mappings.getMappingDrawingNames(1, name("F1")), QStringList{""});
    EXPECT_TRUE(mappings.getMappingFloorNames(QString()).isEmpty());
    EXPECT_TRUE(mappings.getMappingFloors(QString()).isEmpty());
    mappings.removeMapping(QString());
    EXPECT_EQ(recordCount(), 1);
}

TEST_F(ORVCADDrawingFloorMappingsTest, removedDrawingLeavesRecordsThatHoldOthers)
{
    add(1, "F1", "a");
    add(1, "F1", "b");
    add(2, "F1", "a");
    add(2, "F1", "c");
    mappings.removeMapping(name("a"));
    EXPECT_EQ(mappings.getMappingDrawingNames(1, name("F1")), QStringList{"b"});
    EXPECT_EQ(mappings.getMappingDrawingNames(2, name("F1")), QStringList{"c"});
    EXPECT_TRUE(mappings.getMappingFloors(name("a")).isEmpty());
    mappings.removeMapping(name("unknown"));
    EXPECT_EQ(recordCount(), 2);
}

TEST_F(ORVCADDrawingFloorMappingsTest, recordBehindOneThatWentIsNotLookedAt)
{
    add(1, "F1", "a");
    add(1, "F2", "a");
    mappings.removeMapping(name("a"));
    EXPECT_EQ(mappings.getMappingFloorNames(name("a")), QStringList{"F2"});
    mappings.removeMapping(name("a"));
    EXPECT_EQ(recordCount(), 0);
}

TEST_F(ORVCADDrawingFloorMappingsTest, everySecondOfSeveralNeighboursStands)
{
    for (const char *floor : {"F1", "F2", "F3", "F4", "F5"})
        add(1, floor, "a");
    mappings.removeMapping(name("a"));
    EXPECT_EQ(mappings.getMappingFloorNames(name("a")), (QStringList{"F2", "F4"}));
}

TEST_F(ORVCADDrawingFloorMappingsTest, onlyTheNextNeighbourIsPassedOver)
{
    add(1, "F1", "a");
    add(1, "F2", "b"); // passed over, and holds no "a" anyway
    add(1, "F3", "a");
    add(1, "F4", "a");
    add(1, "F4", "b"); // passed over behind F3
    add(1, "F5", "a");
    add(1, "F5", "b");
    mappings.removeMapping(name("a"));
    EXPECT_EQ(mappings.getMappingFloorNames(1), (QStringList{"F2", "F4", "F5"}));
    EXPECT_EQ(mappings.getMappingDrawingNames(1, name("F4")), (QStringList{"a", "b"}));
    EXPECT_EQ(mappings.getMappingDrawingNames(1, name("F5")), QStringList{"b"});
}

namespace {

/** What a record of a pattern holds: a the drawing alone, b it and another, c another alone. */
QStringList drawingsOf(QChar letter)
{
    const QHash<QChar, QStringList> drawings = {{'a', {"gone"}}, {'b', {"gone", "other"}}, {'c', {"other"}}};
    return drawings.value(letter);
}

/** The pattern after the drawing was removed: an a goes, and the record that moves up into its place is not looked at. */
QString afterRemoval(const QString &pattern)
{
    QString left;
    for (int i = 0; i < pattern.size(); ++i) {
        if (pattern.at(i) != 'a')
            left.append('c');
        else if (++i < pattern.size())
            left.append(pattern.at(i));
    }
    return left;
}

} // namespace

TEST(DrawingFloorMappingsRemovalTest, everyPatternOfNeighboursIsLeftAsTheWalkLeavesIt)
{
    constexpr int kPatterns = 3 * 3 * 3 * 3 * 3 * 3;
    EXPECT_EQ(afterRemoval("aabab"), "acb");
    for (int number = 0; number < kPatterns; ++number) {
        QString pattern;
        for (int rest = number; pattern.size() < 6; rest /= 3)
            pattern.append(QChar('a' + rest % 3));
        ORVCADDrawingFloorMappings mappings;
        for (int i = 0; i < pattern.size(); ++i)
            for (const QString &drawing : drawingsOf(pattern.at(i)))
                mappings.addMapping(1, QStringLiteral("F%1").arg(i), drawing);
        mappings.removeMapping(name("gone"));

        QStringList left;
        for (const QJsonValue record : mappings.toJson().toArray()) {
            QStringList drawings;
            for (const QJsonValue drawing : record.toObject().value("DrawingNames").toArray())
                drawings.append(drawing.toString());
            left.append(drawings.join('+'));
        }
        QStringList expected;
        for (const QChar letter : afterRemoval(pattern))
            expected.append(drawingsOf(letter).join('+'));
        EXPECT_EQ(left, expected) << pattern.toStdString();
    }
}

TEST_F(ORVCADDrawingFloorMappingsTest, removedRegionLosesItsFirstRecordOnly)
{
    add(2, "F1", "a");
    add(1, "F1", "a");
    add(1, "F2", "a");
    mappings.removeMapping(1);
    EXPECT_EQ(mappings.getMappingFloorNames(1), QStringList{"F2"});
    EXPECT_EQ(mappings.getMappingFloorNames(2), QStringList{"F1"});
    mappings.removeMapping(7);
    EXPECT_EQ(recordCount(), 2);
}

TEST_F(ORVCADDrawingFloorMappingsTest, regionMinusOneRemovesNothing)
{
    add(-1, "F1", "a");
    mappings.removeMapping(-1);
    EXPECT_EQ(recordCount(), 1);
    mappings.removeMapping(-1, name("F1"));
    EXPECT_EQ(recordCount(), 0);
}

TEST_F(ORVCADDrawingFloorMappingsTest, removedFloorIsTheFirstOfRegionAndName)
{
    add(1, "F1", "a");
    add(2, "F1", "a");
    add(1, "", "a");
    mappings.removeMapping(1, QString());
    mappings.removeMapping(1, name("F2"));
    EXPECT_EQ(recordCount(), 3);
    mappings.removeMapping(1, name("F1"));
    EXPECT_EQ(mappings.getMappingFloors(name("a")), (Floors{{2, "F1"}, {1, ""}}));
    add(1, "F1", "b");
    EXPECT_EQ(mappings.getMappingFloorNames(1), (QStringList{"", "F1"}));
}

TEST_F(ORVCADDrawingFloorMappingsTest, recordsAreWrittenInOrderWithWholeRegionIds)
{
    add(5000000000, "F1", "a");
    add(5000000000, "F1", "b");
    add(1, "F2", "a");
    EXPECT_EQ(text(mappings.toJson()), R"([{"DrawingNames":["a","b"],"FloorName":"F1","regionID":5000000000},)"
                                       R"({"DrawingNames":["a"],"FloorName":"F2","regionID":1}])");
}

TEST_F(ORVCADDrawingFloorMappingsTest, whatIsWrittenComesBackWithRegionIdsAlone)
{
    add(3, "F1", "a");
    add(4, "F2", "b");
    const auto back = readFrom(mappings.toJson());
    EXPECT_EQ(text(back->toJson()), R"([{"DrawingNames":[],"FloorName":"","regionID":3},)"
                                    R"({"DrawingNames":[],"FloorName":"","regionID":4}])");
    EXPECT_EQ(back->getMappingFloorNames(3), QStringList{""});
    EXPECT_TRUE(back->getMappingFloorNames(name("a")).isEmpty());
}

TEST_F(ORVCADDrawingFloorMappingsTest, floorNameAndDrawingsAreReadFromAKeyThatNobodyWrites)
{
    const auto named =
        readFrom(json(R"([{"regionID":3,"FloorName":"no","DrawingNames":["no"],"DrawingFloorMappings":"F1"}])"));
    EXPECT_EQ(named->getMappingFloorNames(3), QStringList{"F1"});
    EXPECT_TRUE(named->getMappingDrawingNames(3, name("F1")).isEmpty());

    const auto drawn = readFrom(
        json(R"([{"regionID":3,"FloorName":"no","DrawingNames":["no"],"DrawingFloorMappings":["a","b","a"]}])"));
    EXPECT_EQ(drawn->getMappingFloors(name("a")), (Floors{{3, ""}}));
    EXPECT_EQ(drawn->getMappingFloors(name("b")), (Floors{{3, ""}}));
    EXPECT_TRUE(drawn->getMappingFloors(name("no")).isEmpty());
}

TEST_F(ORVCADDrawingFloorMappingsTest, drawingAddedToAFloorThatWasReadIsFound)
{
    const auto back = readFrom(json(R"([{"regionID":3,"FloorName":0,"DrawingNames":0,"DrawingFloorMappings":"F1"},
                                        {"regionID":3,"FloorName":0,"DrawingNames":0,"DrawingFloorMappings":"F1"}])"));
    back->addMapping(3, name("F1"), name("a"));
    EXPECT_EQ(back->getMappingDrawingNames(3, name("F1")), QStringList{"a"});
    EXPECT_EQ(back->getMappingFloors(name("a")), (Floors{{3, "F1"}})); // the first of the two holds it
    EXPECT_EQ(back->getMappingFloorNames(3), (QStringList{"F1", "F1"}));
}

TEST_F(ORVCADDrawingFloorMappingsTest, elementWithoutARequiredKeyIsLeftOut)
{
    const QJsonObject whole = object(R"({"regionID":3,"FloorName":"","DrawingNames":[]})");
    QJsonArray array = {whole, 7, QJsonValue(), QJsonArray()};
    for (const char *key : {"regionID", "FloorName", "DrawingNames"}) {
        QJsonObject json = whole;
        json.remove(key);
        array.append(json);
    }
    array.append(whole);
    EXPECT_EQ(readFrom(array)->getMappingFloorNames(3).size(), 2);
}

TEST_F(ORVCADDrawingFloorMappingsTest, regionIdIsCutTo32Bits)
{
    for (const char *id : {"5000000000", "1.5", "\"3\"", "null", "[]"}) {
        const auto back =
            readFrom(json(QByteArray(R"([{"regionID":?,"FloorName":"","DrawingNames":[]}])").replace("?", id)));
        EXPECT_EQ(back->getMappingFloorNames(0).size(), 1) << id;
    }
}

TEST_F(ORVCADDrawingFloorMappingsTest, whatIsNoArrayReadsAsTheEmptySet)
{
    for (const char *value : {"null", "7", "\"x\"", R"({"regionID":3,"FloorName":"","DrawingNames":[]})"}) {
        const auto back = readFrom(json(value));
        ASSERT_NE(back, nullptr) << value;
        EXPECT_EQ(text(back->toJson()), "[]") << value;
    }
}

TEST_F(ORVCADDrawingFloorMappingsTest, copySharesTheRecordsAndHasAListOfItsOwn)
{
    add(1, "F1", "a");
    ORVCADDrawingFloorMappings copy = mappings;
    copy.addMapping(1, name("F1"), name("b")); // into the record of both
    copy.addMapping(1, name("F2"), name("b")); // into a record of the copy
    EXPECT_EQ(mappings.getMappingDrawingNames(1, name("F1")), (QStringList{"a", "b"}));
    EXPECT_EQ(mappings.getMappingFloorNames(name("b")), QStringList{"F1"});
    EXPECT_EQ(copy.getMappingFloorNames(name("b")), (QStringList{"F1", "F2"}));

    mappings.removeMapping(1, name("F1"));
    EXPECT_TRUE(mappings.getMappingFloorNames(1).isEmpty());
    EXPECT_EQ(copy.getMappingDrawingNames(1, name("F1")), (QStringList{"a", "b"}));
}

TEST_F(ORVCADDrawingFloorMappingsTest, drawingRemovedFromACopyIsRemovedFromTheSharedRecord)
{
    add(1, "F1", "a");
    add(1, "F1", "b");
    ORVCADDrawingFloorMappings copy = mappings;
    copy.removeMapping(name("a"));
    EXPECT_TRUE(mappings.getMappingFloorNames(name("a")).isEmpty());
    EXPECT_EQ(mappings.getMappingDrawingNames(1, name("F1")), QStringList{"b"});
}

TEST_F(ORVCADDrawingFloorMappingsTest, copyOutlivesTheSetItWasMadeFrom)
{
    auto original = std::make_unique<ORVCADDrawingFloorMappings>();
    original->addMapping(1, name("F1"), name("a"));
    mappings = *original;
    original.reset();
    add(1, "F1", "b");
    EXPECT_EQ(mappings.getMappingDrawingNames(1, name("F1")), (QStringList{"a", "b"}));
}
