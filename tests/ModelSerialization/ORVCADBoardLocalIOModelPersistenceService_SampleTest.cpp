#include "ModelSerialization/ORVCADBoardLocalIOModelPersistenceService_Sample.h"

#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "platform/services/HBCZipFile.h"
#include "services/ZipBytes.h"
#include "slab/SlabIOModelFixture.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

using Service = ORVCADBoardLocalIOModelPersistenceService_Sample;
using ModelService = ORVCADBoardLocalModelPersistenceService_Sample;
using Members = QList<ZipBytes::Member>;

constexpr int kWithoutFloor = 254 & ~64;

class ORVCADBoardLocalIOModelPersistenceServiceTest : public SlabIOModelFixture
{
protected:
    /** A model with something of everything, whose drawing was read from a file of that name. */
    void fill(const QString &drawingName = QStringLiteral("plan.v2.cadi2"))
    {
        auto *board = new IOModel::Board(&model);
        board->name = "LB1";
        new IOModel::AxisNet(&model);
        IOAccess::values(model.options()) = {{"grade", "C30"}, {"empty", ""}};
        IOAccess::setFloor(model, "Block", "F2", 5.95, 2.95);
        IOAccess::setORVFileName(model, "house.orv");
        ASSERT_TRUE(model.setDrawing(drawingFile(drawingName)));
    }
    QJsonObject written(int parts = ModelService::Everything) const { return Service::model2json(&model, parts); }
    /** A document whose drawing is that archive. */
    static QJsonObject documentWith(const QByteArray &archive, const QString &name = QStringLiteral("plan"))
    {
        return {{"drawing", QJsonObject{{"drawing_name", name}, {"wzd", QString::fromLatin1(archive.toHex())}}}};
    }
    QByteArray drawingBytes() const
    {
        QFile file(drawingFile("bytes.cadi2"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    void expectRefused(const QJsonObject &document)
    {
        EXPECT_FALSE(Service::json2model(document, &model, ModelService::Everything));
        EXPECT_EQ(model.drawing(), nullptr);
    }

    IOModel model;
};

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, documentHoldsModelOptionsDrawingAndState)
{
    fill();
    const QJsonObject json = written();
    EXPECT_EQ(json.keys(), (QStringList{"drawing", "model", "options", "state"}));
    EXPECT_EQ(json["model"].toObject(), ModelService::model2json(&model, ModelService::Everything));
    EXPECT_EQ(json["options"].toObject(), (QJsonObject{{"grade", "C30"}, {"empty", ""}}));
    EXPECT_EQ(json["state"].toObject(),
              (QJsonObject{
                  {"region_name", "Block"}, {"floor_name", "F2"}, {"floor_topElev", 5.95}, {"floor_btmElev", 2.95}}));
    EXPECT_EQ(json["drawing"].toObject().keys(), (QStringList{"drawing_name", "wzd"}));
    EXPECT_EQ(json["drawing"].toObject()["drawing_name"], "plan.v2");
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, drawingIsTheHexadecimalTextOfAnArchive)
{
    fill();
    const QString hex = written()["drawing"].toObject()["wzd"].toString();
    EXPECT_EQ(hex, hex.toLower());
    const QString archive = put("out.wzd", QByteArray::fromHex(hex.toLatin1()));
    ASSERT_TRUE(HBCZipFile::uncompressFile(archive, "plan.v2.cadi2", path("out.cadi2")));
    IOModel other;
    ASSERT_TRUE(other.setDrawing(path("out.cadi2")));
    EXPECT_EQ(other.drawing()->getTitle(), "plan");
    EXPECT_EQ(other.drawing()->lineCount(), 1);
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, everythingIsWrittenWhateverTheParts)
{
    fill();
    for (const int parts : {0, 4, 64, 128})
        EXPECT_EQ(written(parts)["model"].toObject().size(), 13) << parts;
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, whatIsWrittenReadsBackThroughText)
{
    fill();
    const QByteArray text = QJsonDocument(written()).toJson();
    IOModel other;
    ASSERT_TRUE(Service::json2model(QJsonDocument::fromJson(text).object(), &other, 254));
    ASSERT_EQ(other.boards().size(), 1U);
    EXPECT_EQ(other.boards()[0]->name, "LB1");
    EXPECT_EQ(other.axisNet().size(), 1U);
    EXPECT_EQ(IOAccess::values(other.options()), IOAccess::values(model.options()));
    EXPECT_EQ(other.currentRegionName(), "Block");
    EXPECT_EQ(other.currentFloorName(), "F2");
    EXPECT_EQ(other.currentFloorTopElev(), 5.95);
    EXPECT_EQ(other.currentFloorBtmElev(), 2.95);
    ASSERT_NE(other.drawing(), nullptr);
    EXPECT_EQ(other.drawing()->getTitle(), "plan");
    EXPECT_EQ(QFileInfo(other.drawing()->getFilePath()).fileName(), "plan.v2.cadi2");
    EXPECT_EQ(Service::model2json(&other, 0)["drawing"].toObject()["drawing_name"], "plan.v2");
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, writingAndReadingLeaveNothingBehind)
{
    fill();
    const QJsonObject json = written();
    EXPECT_EQ(leftovers(), QStringList());
    ASSERT_TRUE(Service::json2model(json, &model, ModelService::Everything));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, fileNameIsReadAndNeverWritten)
{
    fill();
    EXPECT_FALSE(written().contains("case_info"));
    EXPECT_TRUE(Service::json2model({{"case_info", QJsonObject{{"orv_file_name", "other.orv"}}}}, &model, 0));
    EXPECT_EQ(model.orvFileName(), "other.orv");
    EXPECT_TRUE(Service::json2model({}, &model, 0));
    EXPECT_EQ(model.orvFileName(), "");
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, optionsTakeThePlaceOfThoseThatAreThere)
{
    fill();
    const QJsonObject options{{"cover", "15"}, {"count", 7}};
    EXPECT_TRUE(Service::json2model({{"options", options}}, &model, 0));
    EXPECT_EQ(IOAccess::values(model.options()), (std::map<QString, QString>{{"cover", "15"}, {"count", ""}}));
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, documentWithoutOptionsClearsThem)
{
    fill();
    EXPECT_TRUE(Service::json2model({}, &model, 0));
    EXPECT_TRUE(IOAccess::values(model.options()).empty());
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, floorAndDrawingAreReadOnlyWithTheBitOfRaftBars)
{
    fill();
    const QJsonObject json = written();
    IOModel other;
    const DrawingPtr borrowed = drawing();
    ASSERT_TRUE(other.setDrawing(borrowed.get()));
    EXPECT_TRUE(Service::json2model(json, &other, kWithoutFloor));
    EXPECT_EQ(other.boards().size(), 1U);
    EXPECT_EQ(other.options().value("grade"), "C30");
    EXPECT_TRUE(std::isnan(other.currentFloorTopElev()));
    EXPECT_EQ(other.currentFloorName(), "");
    EXPECT_EQ(other.drawing(), borrowed.get());
    EXPECT_TRUE(Service::json2model(json, &other, 64));
    EXPECT_EQ(other.currentFloorName(), "F2");
    EXPECT_EQ(other.drawing()->getTitle(), "plan");
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, modelPartStaysWhenTheDrawingCannotBeRead)
{
    fill();
    QJsonObject json = written();
    json.remove("drawing");
    IOModel other;
    EXPECT_FALSE(Service::json2model(json, &other, ModelService::Everything));
    EXPECT_EQ(other.boards().size(), 1U);
    EXPECT_EQ(other.currentFloorName(), "F2");
    EXPECT_EQ(other.drawing(), nullptr);
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, modelWithoutADrawingGivesTheEmptyObject)
{
    EXPECT_EQ(written(), QJsonObject());
    EXPECT_EQ(Service::model2json(nullptr, 0), QJsonObject());
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, nullModelIsNotRead)
{
    EXPECT_FALSE(Service::json2model({}, nullptr, 0));
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, drawingThatCannotBeWrittenGivesTheEmptyObject)
{
    const DrawingPtr broken = drawing();
    dwgx::DWGXViewerInfoData viewer;
    viewer.zoom = std::numeric_limits<float>::quiet_NaN();
    broken->setViewerInfoData(viewer);
    ASSERT_TRUE(model.setDrawing(broken.get()));
    EXPECT_EQ(written(), QJsonObject());
    const DrawingPtr longNamed = drawing();
    longNamed->setFilePath(QString(300, 'x') + ".cadi2");
    ASSERT_TRUE(model.setDrawing(longNamed.get()));
    EXPECT_EQ(written(), QJsonObject());
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, drawingMadeInMemoryHasAnEmptyName)
{
    const DrawingPtr made = drawing("made");
    ASSERT_TRUE(model.setDrawing(made.get()));
    const QJsonObject json = written();
    EXPECT_EQ(json["drawing"].toObject()["drawing_name"], "");
    IOModel other;
    ASSERT_TRUE(Service::json2model(json, &other, 64));
    EXPECT_EQ(other.drawing()->getTitle(), "made");
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, temporaryFolderIsNeeded)
{
    fill();
    const QJsonObject json = written();
    useTemporary(put("file", ""));
    EXPECT_EQ(written(), QJsonObject());
    IOModel other;
    EXPECT_FALSE(Service::json2model(json, &other, 64));
    EXPECT_EQ(other.drawing(), nullptr);
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, newTopElevationIsNullInTextAndReadsAsZero)
{
    ASSERT_TRUE(model.setDrawing(drawingFile("plan.cadi2")));
    const QByteArray text = QJsonDocument(written()).toJson(QJsonDocument::Compact);
    EXPECT_TRUE(text.contains("\"floor_topElev\":null"));
    IOModel other;
    ASSERT_TRUE(Service::json2model(QJsonDocument::fromJson(text).object(), &other, 64));
    EXPECT_EQ(other.currentFloorTopElev(), 0);
}

// ---- Bad documents

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, mistypedPartsAreMissing)
{
    for (const QJsonValue &wrong : {QJsonValue(), QJsonValue(5), QJsonValue("x"), QJsonValue(QJsonArray{1})}) {
        QJsonObject document;
        for (const char *key : {"model", "options", "drawing", "state", "case_info"})
            document.insert(QLatin1String(key), wrong);
        expectRefused(document);
    }
    EXPECT_TRUE(model.objects().empty());
    EXPECT_EQ(model.currentFloorTopElev(), 0);
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, drawingNameWithAFolderIsRefused)
{
    const QByteArray bytes = drawingBytes();
    for (const QString &name :
         {QStringLiteral("../plan"), path("plan"), QStringLiteral("a/plan"), QStringLiteral("/")}) {
        expectRefused(documentWith(ZipBytes::of({{(name + ".cadi2").toUtf8(), bytes}}), name));
        EXPECT_EQ(leftovers(), QStringList());
    }
    EXPECT_FALSE(QFileInfo::exists(path("plan.cadi2")));
    EXPECT_TRUE(Service::json2model(documentWith(ZipBytes::of({{"...cadi2", bytes}}), ".."), &model, 64));
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, hostileArchivesAreRefused)
{
    const QByteArray bytes = drawingBytes();
    const Members hasAnotherName{{"other.cadi2", bytes}};
    const Members links{{"plan.cadi2", "/etc/passwd", 0120777}};
    const Members isBomb{{"plan.cadi2", QByteArray(1000000, ' '), 0100644, 10}};
    const Members isTooLarge{{"plan.cadi2", bytes, 0100644, (qint64(1) << 30) + 1}};
    const Members isDamaged{{"plan.cadi2", bytes, 0100644, -1, false}};
    const Members isNoDrawing{{"plan.cadi2", "{}"}};
    for (const Members &members : {Members(), hasAnotherName, links, isBomb, isTooLarge, isDamaged, isNoDrawing})
        expectRefused(documentWith(ZipBytes::of(members)));
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, truncatedArchivesAreRefused)
{
    const QByteArray archive = ZipBytes::of({{"plan.cadi2", drawingBytes()}});
    for (int size = 0; size < archive.size(); size += 7)
        expectRefused(documentWith(archive.left(size)));
    EXPECT_TRUE(Service::json2model(documentWith(archive), &model, 64));
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, archiveThatCannotBeUnpackedIsLeftBehind)
{
    expectRefused(documentWith("no archive"));
    ASSERT_EQ(leftovers().size(), 1);
    EXPECT_EQ(QDir(QDir::temp().filePath(leftovers().first())).entryList(QDir::Files), QStringList{"plan.wzd"});
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, unpackedDrawingThatCannotBeReadIsNotLeftBehind)
{
    expectRefused(documentWith(ZipBytes::of({{"plan.cadi2", "{}"}})));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(ORVCADBoardLocalIOModelPersistenceServiceTest, archiveThatCannotBeStoredIsToldToTheLog)
{
    testing::internal::CaptureStdout();
    expectRefused(documentWith("bytes", QString(300, 'x')));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "\"File name too long\"\n");
}

} // namespace
