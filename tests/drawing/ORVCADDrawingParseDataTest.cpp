#include "drawing/ORVCADDrawingParseData.h"

#include "DrawingJson.h"
#include "drawing/ORVCADFlatDrawingInfo.h"
#include "drawing/ORVCADProjectInfo.h"

#include <gmock/gmock.h>

using namespace drawing_test;

namespace {

using Tables = QList<ORVCADTableData>;

Tables readFrom(const char *text) { return ORVCADDrawingParseData::fromJson(object(text)); }

/** Reads one table under a name of its own. */
Tables readTable(const char *table) { return readFrom(QByteArray(R"({"any":)").append(table).append('}')); }

ORVCADTableData wholeTable()
{
    ORVCADTableData table;
    table.drawingName = QStringLiteral("plan");
    table.type = kColumnTable;
    table.range = {{1, 2, 30, 40}};
    table.rows = {{0, {"KZ1", "500x500"}}, {1, {"KZ2", ""}}};
    table.concrete = {{0, {{"column", "C40"}, {"beam", "C30"}}}};
    return table;
}

} // namespace

TEST(ORVCADDrawingParseDataTest, freshTableHasNoRangeAndNoRows)
{
    const ORVCADTableData table;
    EXPECT_EQ(table.drawingName, "");
    EXPECT_EQ(table.type, 0);
    EXPECT_EQ(table.range, (std::array<int, 4>{0, 0, 0, 0}));
    EXPECT_TRUE(table.rows.isEmpty());
    EXPECT_TRUE(table.concrete.isEmpty());
}

TEST(ORVCADDrawingParseDataTest, tableIsWrittenWithAllItsKeys)
{
    EXPECT_EQ(QString::fromUtf8(text(ORVCADDrawingParseData({wholeTable()}).toJson())),
              R"({"table0":{"concrete":{"0":{"beam":"C30","column":"C40"}},)"
              R"("data":{"0":["KZ1","500x500"],"1":["KZ2",""]},)"
              R"("drawingName":"plan","range":[1,2,30,40],"type":"柱表"}})");
}

TEST(ORVCADDrawingParseDataTest, tablesAreNumberedInListOrder)
{
    ORVCADDrawingParseData data;
    EXPECT_EQ(text(data.toJson()), "{}");
    for (int i = 0; i < 12; ++i) {
        ORVCADTableData table;
        table.drawingName = QString::number(i);
        data.getTables().append(table);
    }
    const QJsonObject json = data.toJson();
    EXPECT_EQ(json.size(), 12);
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(json.value(QStringLiteral("table%1").arg(i)).toObject().value("drawingName"),
                  QJsonValue(QString::number(i)));
}

TEST(ORVCADDrawingParseDataTest, typesHaveWordsAndAnyOtherNumberHasNone)
{
    const auto wordOf = [](int type) {
        ORVCADTableData table;
        table.type = type;
        return ORVCADDrawingParseData({table}).toJson().value("table0").toObject().value("type").toString();
    };
    EXPECT_EQ(wordOf(0), QStringLiteral("楼层表"));
    EXPECT_EQ(wordOf(1), QStringLiteral("柱表"));
    for (const int type : {-1, 2, 10000})
        EXPECT_EQ(wordOf(type), "") << type;
}

TEST(ORVCADDrawingParseDataTest, typeIsReadFromItsWord)
{
    EXPECT_EQ(readTable(R"({"type":"楼层表"})").at(0).type, 0);
    EXPECT_EQ(readTable(R"({"type":"柱表"})").at(0).type, 1);
    for (const char *type : {R"("")", R"("梁表")", R"("楼层表 ")", "0", "null", "[]"})
        EXPECT_EQ(readTable(QByteArray(R"({"type":)").append(type).append('}')).at(0).type, 10000) << type;
}

TEST(ORVCADDrawingParseDataTest, tableOfAnotherTypeIsWrittenBackWithoutAWord)
{
    const Tables tables = readTable(R"({"type":"梁表"})");
    EXPECT_EQ(tables.at(0).type, 10000);
    EXPECT_EQ(ORVCADDrawingParseData(tables).toJson().value("table0").toObject().value("type"), QJsonValue(""));
}

TEST(ORVCADDrawingParseDataTest, keysThatAreMissingLeaveTheDefaults)
{
    const Tables tables = readTable("{}");
    ASSERT_EQ(tables.size(), 1);
    EXPECT_EQ(tables.at(0).drawingName, "");
    EXPECT_EQ(tables.at(0).type, 0);
    EXPECT_TRUE(tables.at(0).rows.isEmpty());
    EXPECT_EQ(readTable(R"({"drawingName":7})").at(0).drawingName, "");
}

TEST(ORVCADDrawingParseDataTest, tablesAreReadInKeyOrderWhateverTheirNames)
{
    const Tables tables = readFrom(R"({"b":{"drawingName":"2"},"table0":{"drawingName":"3"},"a":{"drawingName":"1"},
                                       "c":7,"d":[{"drawingName":"4"}],"e":null})");
    ASSERT_EQ(tables.size(), 3);
    EXPECT_EQ(tables.at(0).drawingName, "1");
    EXPECT_EQ(tables.at(1).drawingName, "2");
    EXPECT_EQ(tables.at(2).drawingName, "3");
}

TEST(ORVCADDrawingParseDataTest, rangeIsWrittenAndNeverRead)
{
    const Tables back = ORVCADDrawingParseData::fromJson(ORVCADDrawingParseData({wholeTable()}).toJson());
    ASSERT_EQ(back.size(), 1);
    EXPECT_EQ(back.at(0).drawingName, "plan");
    EXPECT_EQ(back.at(0).type, kColumnTable);
    EXPECT_EQ(back.at(0).range, (std::array<int, 4>{0, 0, 0, 0}));
}

TEST(ORVCADDrawingParseDataTest, rowsComeBackWithTheirCells)
{
    const Tables back = ORVCADDrawingParseData::fromJson(ORVCADDrawingParseData({wholeTable()}).toJson());
    ASSERT_EQ(back.at(0).rows.size(), 2);
    EXPECT_EQ(back.at(0).rows.at(0).row, 0);
    EXPECT_EQ(back.at(0).rows.at(0).cells, (QStringList{"KZ1", "500x500"}));
    EXPECT_EQ(back.at(0).rows.at(1).row, 1);
    EXPECT_EQ(back.at(0).rows.at(1).cells, (QStringList{"KZ2", ""}));
}

TEST(ORVCADDrawingParseDataTest, rowsBehindAGapInTheirNumbersAreLost)
{
    ORVCADTableData table;
    table.rows = {{0, {"a"}}, {1, {"b"}}, {3, {"d"}}};
    const Tables back = ORVCADDrawingParseData::fromJson(ORVCADDrawingParseData({table}).toJson());
    ASSERT_EQ(back.at(0).rows.size(), 2);
    EXPECT_EQ(back.at(0).rows.at(1).cells, QStringList{"b"});
}

TEST(ORVCADDrawingParseDataTest, rowsAreSoughtUpToTheNumberOfMembersWhateverTheirKeys)
{
    const Tables tables = readTable(R"({"data":{"x":["no"],"1":["b"],"00":["no"]}})");
    ASSERT_EQ(tables.at(0).rows.size(), 1); // 0, 1 and 2 are looked for
    EXPECT_EQ(tables.at(0).rows.at(0).row, 1);
}

TEST(ORVCADDrawingParseDataTest, moreThanTenRowsComeBackInNumericOrder)
{
    ORVCADTableData table;
    for (int i = 0; i < 25; ++i)
        table.rows.append({i, {QString::number(i * i)}});
    const Tables back = ORVCADDrawingParseData::fromJson(ORVCADDrawingParseData({table}).toJson());
    ASSERT_EQ(back.at(0).rows.size(), 25);
    for (int i = 0; i < 25; ++i)
        EXPECT_EQ(back.at(0).rows.at(i).cells, QStringList{QString::number(i * i)});
}

TEST(ORVCADDrawingParseDataTest, laterRowOfTheSameNumberIsWritten)
{
    ORVCADTableData table;
    table.rows = {{0, {"a"}}, {0, {"b"}}};
    EXPECT_EQ(text(ORVCADDrawingParseData({table}).toJson().value("table0").toObject().value("data")),
              R"({"0":["b"]})");
}

TEST(ORVCADDrawingParseDataTest, tableWhoseDataIsNoObjectIsDropped)
{
    for (const char *data : {"[]", "null", "7", R"("x")", R"([["a"]])"})
        EXPECT_TRUE(readTable(QByteArray(R"({"drawingName":"a","data":)").append(data).append('}')).isEmpty()) << data;
}

TEST(ORVCADDrawingParseDataTest, tableWithoutDataIsKeptWithoutRows)
{
    const Tables tables = readTable(R"({"drawingName":"a"})");
    ASSERT_EQ(tables.size(), 1);
    EXPECT_TRUE(tables.at(0).rows.isEmpty());
}

TEST(ORVCADDrawingParseDataTest, rowThatIsNoArrayIsLeftOut)
{
    const Tables tables = readTable(R"({"data":{"0":"a","1":["b"],"2":{"0":"c"}}})");
    ASSERT_EQ(tables.at(0).rows.size(), 1);
    EXPECT_EQ(tables.at(0).rows.at(0).row, 1);
}

TEST(ORVCADDrawingParseDataTest, cellsThatAreNoTextsAreDroppedAndTheOthersCloseUp)
{
    const Tables tables = readTable(R"({"data":{"0":["a",7,null,"b",["c"],true,"d"]}})");
    EXPECT_EQ(tables.at(0).rows.at(0).cells, (QStringList{"a", "b", "d"}));
}

TEST(ORVCADDrawingParseDataTest, gradesAreReadFromTheRootNotFromTheTable)
{
    const Tables tables = readFrom(R"({"concrete":{"0":{"beam":"C30","column":"C40","n":7},"1":"x","2":{}},
        "t1":{"concrete":{"0":{"beam":"C99"}}}, "t2":{"concrete":7}, "t3":{}})");
    ASSERT_EQ(tables.size(), 4); // the root's member of that name is a table like any other
    for (const int i : {1, 2}) {
        ASSERT_EQ(tables.at(i).concrete.size(), 2) << i;
        EXPECT_EQ(tables.at(i).concrete.at(0).row, 0);
        EXPECT_EQ(tables.at(i).concrete.at(0).values,
                  (QList<QPair<QString, QString>>{{"beam", "C30"}, {"column", "C40"}}));
        EXPECT_EQ(tables.at(i).concrete.at(1).row, 2);
        EXPECT_TRUE(tables.at(i).concrete.at(1).values.isEmpty());
    }
    EXPECT_TRUE(tables.at(0).concrete.isEmpty());
    EXPECT_TRUE(tables.at(3).concrete.isEmpty());
}

TEST(ORVCADDrawingParseDataTest, gradesThatWereWrittenDoNotComeBack)
{
    const Tables back = ORVCADDrawingParseData::fromJson(ORVCADDrawingParseData({wholeTable()}).toJson());
    EXPECT_TRUE(back.at(0).concrete.isEmpty());
}

TEST(ORVCADDrawingParseDataTest, rootWhoseGradesAreNoObjectHasNone)
{
    for (const char *grades : {"7", "null", "[]", R"("C30")"}) {
        const Tables tables =
            readFrom(QByteArray(R"({"concrete":)").append(grades).append(R"(,"t":{"concrete":{"0":{"a":"b"}}}})"));
        ASSERT_EQ(tables.size(), 1) << grades;
        EXPECT_TRUE(tables.at(0).concrete.isEmpty()) << grades;
    }
}

TEST(ORVCADDrawingParseDataTest, emptyRootGivesNoTables)
{
    EXPECT_TRUE(ORVCADDrawingParseData::fromJson(QJsonObject()).isEmpty());
}

TEST(ORVCADDrawingParseDataTest, manyTablesShareTheGradesOfTheRoot)
{
    constexpr int kMany = 20000;
    QJsonObject root;
    QJsonObject grades;
    for (int i = 0; i < kMany; ++i) {
        root.insert(QStringLiteral("t%1").arg(i, 5, 10, QLatin1Char('0')), QJsonObject{{"concrete", 0}});
        grades.insert(QString::number(i), QJsonObject{{"beam", "C30"}});
    }
    root.insert(QStringLiteral("concrete"), grades);
    const Tables tables = ORVCADDrawingParseData::fromJson(root);
    ASSERT_EQ(tables.size(), kMany + 1);
    EXPECT_EQ(tables.last().concrete.size(), kMany);
    EXPECT_TRUE(tables.last().concrete.isSharedWith(tables.at(1).concrete));
}

TEST(ORVCADDrawingParseDataTest, recordsThatAreHandedOnAreEmptyAndCopied)
{
    ORVCADProjectInfo project;
    EXPECT_EQ(project.firstNumber + project.secondNumber + project.thirdNumber, 0);
    EXPECT_FALSE(project.value.isValid());
    project.values.insert(QStringLiteral("a"), 1);
    const ORVCADProjectInfo projectCopy = project;
    EXPECT_EQ(projectCopy.values.value(QStringLiteral("a")), 1);

    ORVCADFlatDrawingInfo drawing;
    EXPECT_EQ(drawing.first + drawing.second + drawing.third + drawing.fourth, 0.0);
    drawing.text = QStringLiteral("plan");
    ORVCADFlatDrawingInfo drawingCopy;
    drawingCopy = drawing;
    EXPECT_EQ(drawingCopy.text, "plan");
}
