#include "drawing/ORVCADSubDrawingDataSet.h"

#include "DrawingJson.h"
#include "SubDrawingPart.h"
#include "drawing/ORVCADSubDrawingSplitInfo.h"
#include "drawing/SplitMapInfo.h"

#include <QFileInfo>

#include <gmock/gmock.h>

#include <cmath>

using namespace drawing_test;

namespace {

const QString kParent = QStringLiteral("/in/structure.v2.dwg");

} // namespace

TEST(ORVCADSubDrawingDataSetTest, emptySetHasNothing)
{
    const ORVCADSubDrawingDataSet set;
    EXPECT_EQ(set.getCount(), 0);
    EXPECT_TRUE(set.getAllSubDrawingInfos().isEmpty());
    EXPECT_TRUE(set.getAllSubDrawingNames().isEmpty());
    EXPECT_EQ(set.getSubDrawingCompletePath(QStringLiteral("a")), "");
    EXPECT_EQ(text(set.toJson()), R"({"drawingInfo":[],"savePath":""})");
}

TEST(ORVCADSubDrawingDataSetTest, samePartOfAParentCountsOnceEvenWithAnotherBox)
{
    ORVCADSubDrawingDataSet set;
    set.addSubDrawing(kParent, part("/out/a.dwg", "t", 1));
    ORVCADSubDrawingInfo again = part("/out/a.dwg", "t", 1);
    again.xMin = 5.0;
    set.addSubDrawing(kParent, again);
    EXPECT_EQ(set.getCount(), 1);
    EXPECT_TRUE(std::isinf(set.getAllSubDrawingInfos().at(0).xMin)); // the first stays
}

TEST(ORVCADSubDrawingDataSetTest, partsThatDifferInOneOfTheThreeAreParts)
{
    ORVCADSubDrawingDataSet set;
    set.addSubDrawing(kParent, part("/out/a.dwg", "t", 1));
    set.addSubDrawing(kParent, part("/out/b.dwg", "t", 1));
    set.addSubDrawing(kParent, part("/out/a.dwg", "u", 1));
    set.addSubDrawing(kParent, part("/out/a.dwg", "t", 2));
    set.addSubDrawing(QStringLiteral("/in/other.dwg"), part("/out/a.dwg", "t", 1));
    EXPECT_EQ(set.getCount(), 5);
    EXPECT_EQ(set.getAllSubDrawingInfos().size(), 5);
}

TEST(ORVCADSubDrawingDataSetTest, namesAreCompletePaths)
{
    ORVCADSubDrawingDataSet set;
    set.addSubDrawing(kParent, part("/out/a.dwg"));
    set.addSubDrawing(QStringLiteral("/in/other.dwg"), part("/out/b.dwg"));
    EXPECT_THAT(set.getAllSubDrawingNames(), testing::UnorderedElementsAre("/out/a.dwg", "/out/b.dwg"));
}

TEST(ORVCADSubDrawingDataSetTest, partsOfAParentStandTogether)
{
    ORVCADSubDrawingDataSet set;
    for (int i = 0; i < 30; ++i)
        for (const char *parent : {"/in/a.dwg", "/in/b.dwg", "/in/c.dwg"})
            set.addSubDrawing(QString::fromUtf8(parent), part(parent, "", i));
    const QStringList paths = set.getAllSubDrawingNames();
    ASSERT_EQ(paths.size(), 90);
    for (int i = 0; i < 90; ++i)
        EXPECT_EQ(paths.at(i), paths.at(i / 30 * 30)) << i;
}

TEST(ORVCADSubDrawingDataSetTest, pathIsFoundByTheNameWithoutFolderAndLastEnding)
{
    ORVCADSubDrawingDataSet set;
    set.addSubDrawing(kParent, part("/out/plan.v2.dwg"));
    set.addSubDrawing(kParent, part("/out/section"));
    EXPECT_EQ(set.getSubDrawingCompletePath(QStringLiteral("plan.v2")), "/out/plan.v2.dwg");
    EXPECT_EQ(set.getSubDrawingCompletePath(QStringLiteral("section")), "/out/section");
    for (const char *name : {"", "plan", "plan.v2.dwg", "/out/plan.v2", "Plan.v2"})
        EXPECT_EQ(set.getSubDrawingCompletePath(QString::fromUtf8(name)), "") << name;
}

TEST(ORVCADSubDrawingDataSetTest, firstInTheListIsGivenForANameOfTwoFolders)
{
    ORVCADSubDrawingDataSet set;
    set.addSubDrawing(kParent, part("/one/plan.dwg"));
    set.addSubDrawing(kParent, part("/two/plan.dwg"));
    EXPECT_EQ(set.getSubDrawingCompletePath(QStringLiteral("plan")), set.getAllSubDrawingNames().at(0));
}

TEST(ORVCADSubDrawingDataSetTest, partAddedAfterASearchIsFoundByTheNext)
{
    ORVCADSubDrawingDataSet set;
    set.addSubDrawing(kParent, part("/one/plan.dwg"));
    EXPECT_EQ(set.getSubDrawingCompletePath(QStringLiteral("section")), "");
    set.addSubDrawing(kParent, part("/one/section.dwg"));
    set.addSubDrawing(kParent, part("/two/plan.dwg")); // stands in front of the other now
    EXPECT_EQ(set.getSubDrawingCompletePath(QStringLiteral("section")), "/one/section.dwg");
    EXPECT_EQ(set.getSubDrawingCompletePath(QStringLiteral("plan")), "/two/plan.dwg");
}

TEST(ORVCADSubDrawingDataSetTest, partWithoutANameIsNotFoundByTheEmptyOne)
{
    ORVCADSubDrawingDataSet set;
    set.addSubDrawing(kParent, part("/out/"));
    EXPECT_EQ(set.getSubDrawingCompletePath(QString()), "");
}

TEST(ORVCADSubDrawingDataSetTest, parentsAndPartsAreWrittenByTheirNames)
{
    ORVCADSubDrawingDataSet set;
    set.setSavePath(QStringLiteral("/out"));
    set.addSubDrawing(kParent, part("/out/a.dwg"));
    set.addSubDrawing(kParent, part("/out/b.1.dwg"));
    EXPECT_EQ(set.getSavePath(), "/out");
    EXPECT_EQ(text(set.toJson()), R"({"drawingInfo":[{"count":2,"parenDrawing":"structure.v2",)"
                                  R"("subDrawing":["b.1","a"]}],"savePath":"/out"})");
}

TEST(ORVCADSubDrawingDataSetTest, namesAreTheCompleteBaseNamesOfFiles)
{
    const char *const pieces[] = {"/", ".", "a", "dwg", "\\", "楼"};
    constexpr int count = 6;
    for (int code = 0; code < count * count * count * count * count; ++code) {
        QString path;
        for (int rest = code; rest > 0; rest /= count)
            path += QString::fromUtf8(pieces[rest % count]);
        ORVCADSubDrawingDataSet set;
        set.addSubDrawing(path, part("/out/1.dwg"));
        const QJsonObject parent = set.toJson().value("drawingInfo").toArray().at(0).toObject();
        ASSERT_EQ(parent.value("parenDrawing").toString(), QFileInfo(path).completeBaseName()) << path.toStdString();
    }
}

TEST(ORVCADSubDrawingDataSetTest, everyParentIsWrittenOnce)
{
    ORVCADSubDrawingDataSet set;
    set.addSubDrawing(QStringLiteral("/in/a.dwg"), part("/out/1.dwg"));
    set.addSubDrawing(QStringLiteral("/in/b.dwg"), part("/out/2.dwg"));
    set.addSubDrawing(QStringLiteral("/in/a.dwg"), part("/out/3.dwg"));
    QMap<QString, int> counts;
    for (const QJsonValue parent : set.toJson().value("drawingInfo").toArray())
        counts.insert(parent.toObject().value("parenDrawing").toString(), parent.toObject().value("count").toInt());
    EXPECT_EQ(counts, (QMap<QString, int>{{"a", 2}, {"b", 1}}));
}

TEST(ORVCADSubDrawingDataSetTest, copiesAreTheirOwn)
{
    ORVCADSubDrawingDataSet set;
    set.addSubDrawing(kParent, part("/out/a.dwg"));
    ORVCADSubDrawingDataSet copy = set;
    copy.addSubDrawing(kParent, part("/out/b.dwg"));
    EXPECT_EQ(set.getCount(), 1);
    EXPECT_EQ(copy.getCount(), 2);
}

TEST(ORVCADSubDrawingDataSetTest, recordsThatAreHandedOnAreEmptyAndCopied)
{
    ORVCADSubDrawingSplitInfo split;
    EXPECT_EQ(split.drawing, "");
    split.subDrawings.append(part("/out/a.dwg"));
    const ORVCADSubDrawingSplitInfo splitCopy = split;
    EXPECT_EQ(splitCopy.subDrawings.at(0).drawingPath, "/out/a.dwg");

    SplitMapInfo map;
    EXPECT_EQ(map.first + map.second, "");
    map.second = QStringLiteral("b");
    const SplitMapInfo mapCopy = map;
    EXPECT_EQ(mapCopy.second, "b");
}
