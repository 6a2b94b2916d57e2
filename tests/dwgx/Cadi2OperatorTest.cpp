#include "platform/dwgx/Cadi2Operator.h"

#include "platform/dwgx/DWGXModel.h"
#include "platform/dwgx/HBXCADFileHelper.h"
#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <cmath>
#include <limits>
#include <memory>

namespace {

using dwgx::DWGXModel;

class Cadi2OperatorTest : public ::testing::Test
{
protected:
    QString path(const QString &name = "drawing.cadi2") const { return m_folder.filePath(name); }
    QString put(const QByteArray &content) const
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path();
    }
    QByteArray content(const QString &name = "drawing.cadi2") const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    QJsonObject json() const { return QJsonDocument::fromJson(content()).object(); }
    bool read() { return m_operator->read(path(), m_model.get()); }
    bool write(const QString &title = QString(), const QString &remark = QString())
    {
        return m_operator->write(path(), m_model.get(), title, remark);
    }
    /** The model written, and read into a new one. */
    void roundTrip()
    {
        ASSERT_TRUE(write()) << qPrintable(m_operator->lastErrorReason());
        m_model.reset(DWGXModel::createObject());
        ASSERT_TRUE(read()) << qPrintable(m_operator->lastErrorReason());
    }
    void addLine(vks::CCurve2d *curve, int color = dwgx::kColorByLayer, int blockId = 0, int id = 0)
    {
        dwgx::DWGXLine line;
        line.id = id;
        line.color = color;
        line.blockId = blockId;
        line.curve = curve;
        ASSERT_TRUE(m_model->addLine("WALL", std::move(line)));
    }

    QTemporaryDir m_folder;
    std::unique_ptr<HBXCADIOperator> m_operator{HBXCADFileHelper::getInstance()->createCADIOperator()};
    std::unique_ptr<DWGXModel> m_model{DWGXModel::createObject()};
};

TEST_F(Cadi2OperatorTest, emptyDrawingReadsBackEmpty)
{
    roundTrip();
    EXPECT_TRUE(m_model->layers().empty());
    EXPECT_EQ(m_model->getCADExtData(), nullptr);
}

TEST_F(Cadi2OperatorTest, linesAndArcsReadBackBitForBit)
{
    m_model->addLayer("WALL", 3);
    addLine(new vks::CLine2d({0.1, 1.0 / 3.0}, {1e7 + 0.123456789, -2.5}), 1, 12, 40);
    addLine(new vks::CArc2d({0, 0}, {100, 0}, 0.3));
    const std::string line = m_model->layers()[0].lines[0].curve->ToText();
    const std::string arc = m_model->layers()[0].lines[1].curve->ToText();
    roundTrip();
    ASSERT_EQ(m_model->lineCount(), 2);
    const auto &lines = m_model->layers()[0].lines;
    EXPECT_EQ(lines[0].curve->ToText(), line);
    EXPECT_EQ(lines[1].curve->ToText(), arc);
    EXPECT_EQ(lines[1].curve->Type(), 2);
    EXPECT_EQ(lines[0].id, 40);
    EXPECT_EQ(lines[0].color, 1);
    EXPECT_EQ(lines[0].blockId, 12);
    EXPECT_EQ(lines[1].id, 41);
    EXPECT_EQ(lines[1].color, dwgx::kColorByLayer);
    EXPECT_EQ(lines[1].blockId, 0);
}

TEST_F(Cadi2OperatorTest, textsReadBackBitForBit)
{
    dwgx::DWGXText text;
    text.content = QStringLiteral("KL1(2) 200×500\n\"层顶标高\"") + QChar(0) + "x";
    text.point = {0.1, -1.0 / 3.0};
    text.height = 1.0 / 7.0;
    text.angle = -1.2345678901234567;
    m_model->addLayer(QStringLiteral("墙标注"), 7);
    m_model->addText(QStringLiteral("墙标注"), std::move(text));
    roundTrip();
    ASSERT_EQ(m_model->textCount(), 1);
    const dwgx::DWGXText &back = m_model->layer(QStringLiteral("墙标注"))->texts[0];
    EXPECT_EQ(back.content, QStringLiteral("KL1(2) 200×500\n\"层顶标高\"") + QChar(0) + "x");
    EXPECT_EQ(back.point, (vks::CVec2<double>(0.1, -1.0 / 3.0)));
    EXPECT_EQ(back.height, 1.0 / 7.0);
    EXPECT_EQ(back.angle, -1.2345678901234567);
}

TEST_F(Cadi2OperatorTest, layersReadBackInOrderWithTheirColours)
{
    m_model->addLayer("Z", 255);
    m_model->addLayer("A", 1);
    roundTrip();
    ASSERT_EQ(m_model->layers().size(), 2U);
    EXPECT_EQ(m_model->layers()[0].name, "Z");
    EXPECT_EQ(m_model->layers()[0].color, 255);
    EXPECT_EQ(m_model->layers()[1].name, "A");
}

TEST_F(Cadi2OperatorTest, viewerDataReadsBack)
{
    dwgx::DWGXViewerInfoData viewer;
    viewer.orientation = {0.1F, 0.2F, 0.3F, 0.4F};
    viewer.zoom = 0.7F;
    viewer.turn = -3.0F;
    viewer.flags = 0xFFFFFFFFU;
    m_model->setViewerInfoData(viewer);
    roundTrip();
    const dwgx::DWGXViewerInfoData back = m_model->getViewerInfoData();
    EXPECT_EQ(back.orientation, viewer.orientation);
    EXPECT_EQ(back.zoom, 0.7F);
    EXPECT_EQ(back.turn, -3.0F);
    EXPECT_EQ(back.flags, 0xFFFFFFFFU);
}

TEST_F(Cadi2OperatorTest, extensionDataOfDrawingAndEntitiesReadsBack)
{
    m_model->setCADExtData(new HBXCADExtData);
    m_model->getCADExtData()->setValue("scale", "1:100");
    m_model->addLayer("WALL", 3);
    dwgx::DWGXLine line;
    line.curve = new vks::CLine2d({0, 0}, {1, 0});
    line.setCADExtData(new HBXCADExtData);
    line.getCADExtData()->setValue("handle", "2F");
    m_model->addLine("WALL", std::move(line));
    roundTrip();
    ASSERT_NE(m_model->getCADExtData(), nullptr);
    EXPECT_EQ(m_model->getCADExtData()->value("scale"), "1:100");
    ASSERT_NE(m_model->layers()[0].lines[0].getCADExtData(), nullptr);
    EXPECT_EQ(m_model->layers()[0].lines[0].getCADExtData()->value("handle"), "2F");
}

TEST_F(Cadi2OperatorTest, attachedExtensionDataStaysAttachedAndIsFilled)
{
    auto *data = new HBXCADExtData;
    m_model->setCADExtData(data);
    put(R"({"format":"cadi2","version":1,"layers":[],"ext":{"scale":"1:50"}})");
    ASSERT_TRUE(read());
    EXPECT_EQ(m_model->getCADExtData(), data);
    EXPECT_EQ(data->value("scale"), "1:50");
    put(R"({"format":"cadi2","version":1,"layers":[]})");
    ASSERT_TRUE(read());
    EXPECT_EQ(m_model->getCADExtData(), data);
}

TEST_F(Cadi2OperatorTest, titleAndRemarkStandInTheHeadAndEmptyOnesLeaveTheModelsOwn)
{
    ASSERT_TRUE(write("Level 1", "first draft"));
    ASSERT_TRUE(read());
    EXPECT_EQ(m_model->getTitle(), "Level 1");
    EXPECT_EQ(m_model->getRemark(), "first draft");
    ASSERT_TRUE(write("Level 2"));
    EXPECT_EQ(json().value("title"), "Level 2");
    EXPECT_EQ(json().value("remark"), "first draft");
}

TEST_F(Cadi2OperatorTest, readingSetsThePathAndWritingLeavesIt)
{
    ASSERT_TRUE(write());
    EXPECT_TRUE(m_model->getFilePath().isEmpty());
    ASSERT_TRUE(read());
    EXPECT_EQ(m_model->getFilePath(), path());
    ASSERT_TRUE(m_operator->write(path("copy.cadi2"), m_model.get(), QString(), QString()));
    EXPECT_EQ(m_model->getFilePath(), path());
}

TEST_F(Cadi2OperatorTest, readingReplacesWhatTheModelHeld)
{
    m_model->addLayer("OLD", 3);
    put(R"({"format":"cadi2","version":1,"layers":[{"name":"NEW","color":2}]})");
    ASSERT_TRUE(read());
    ASSERT_EQ(m_model->layers().size(), 1U);
    EXPECT_EQ(m_model->layers()[0].name, "NEW");
}

TEST_F(Cadi2OperatorTest, writingTheSameDrawingTwiceGivesTheSameBytes)
{
    m_model->addLayer("WALL", 3);
    addLine(new vks::CLine2d({0, 0}, {1000, 0.5}));
    ASSERT_TRUE(write());
    const QByteArray first = content();
    ASSERT_TRUE(read());
    ASSERT_TRUE(write());
    EXPECT_EQ(content(), first);
}

TEST_F(Cadi2OperatorTest, nullModelIsRefused)
{
    EXPECT_FALSE(m_operator->read(put("{}"), nullptr));
    EXPECT_FALSE(m_operator->lastErrorReason().isEmpty());
    EXPECT_FALSE(m_operator->write(path("other"), nullptr, QString(), QString()));
    EXPECT_FALSE(QFile::exists(path("other")));
}

TEST_F(Cadi2OperatorTest, missingFileAndFolderAreRefused)
{
    EXPECT_FALSE(m_operator->read(path("missing.cadi2"), m_model.get()));
    EXPECT_EQ(m_operator->lastErrorReason(), "there is no such file");
    EXPECT_FALSE(m_operator->read(m_folder.path(), m_model.get()));
    EXPECT_FALSE(m_operator->read(QString(), m_model.get()));
}

TEST_F(Cadi2OperatorTest, fileThatCannotBeWrittenIsRefusedWithAReason)
{
    EXPECT_FALSE(m_operator->write(path("no/such/folder.cadi2"), m_model.get(), QString(), QString()));
    EXPECT_FALSE(m_operator->lastErrorReason().isEmpty());
}

TEST_F(Cadi2OperatorTest, folderIsNotReplacedByAFile)
{
    EXPECT_FALSE(m_operator->write(m_folder.path(), m_model.get(), QString(), QString()));
    EXPECT_EQ(m_operator->lastErrorReason(), "is no file");
    EXPECT_TRUE(QFileInfo(m_folder.path()).isDir());
}

TEST_F(Cadi2OperatorTest, fileBeyondTheLimitIsRefusedUnread)
{
    QFile file(put(QByteArray()));
    ASSERT_TRUE(file.resize(134217729)); // zeros that take no room on the disk
    EXPECT_FALSE(read());
    EXPECT_EQ(m_operator->lastErrorReason(), "is larger than 134217728 bytes");
    ASSERT_TRUE(file.resize(134217728));
    EXPECT_FALSE(read());
    EXPECT_EQ(m_operator->lastErrorReason().left(11), "is not JSON");
}

TEST_F(Cadi2OperatorTest, viewerDataThatIsNotFiniteIsNotWrittenAndTheOldFileStays)
{
    put("what stood here");
    dwgx::DWGXViewerInfoData viewer;
    viewer.zoom = std::numeric_limits<float>::infinity();
    m_model->setViewerInfoData(viewer);
    EXPECT_FALSE(write());
    EXPECT_EQ(m_operator->lastErrorPlace(), "viewer");
    EXPECT_EQ(content(), "what stood here");
}

TEST_F(Cadi2OperatorTest, successClearsTheLastError)
{
    EXPECT_FALSE(m_operator->read(put("[]"), m_model.get()));
    EXPECT_FALSE(m_operator->lastErrorReason().isEmpty());
    EXPECT_TRUE(write());
    EXPECT_TRUE(m_operator->lastErrorReason().isEmpty());
    EXPECT_TRUE(m_operator->lastErrorPlace().isEmpty());
}

TEST_F(Cadi2OperatorTest, everyTruncationOfAFileIsRefused)
{
    m_model->addLayer("WALL", 3);
    addLine(new vks::CLine2d({0, 0}, {1000, 0.5}));
    ASSERT_TRUE(write());
    const QByteArray whole = content();
    for (int size = 0; size < whole.size(); ++size)
        ASSERT_FALSE(m_operator->read(put(whole.left(size)), m_model.get())) << size;
}

TEST_F(Cadi2OperatorTest, deepNestingIsRefused)
{
    EXPECT_FALSE(m_operator->read(put(QByteArray(1000000, '[')), m_model.get()));
    EXPECT_FALSE(
        m_operator->read(put(R"({"format":"cadi2","version":1,"layers":)" + QByteArray(1000000, '[')), m_model.get()));
}

/** tests/data/cadi2/documents.json: documents that keep to the format, and documents that break one rule each. */
QJsonObject documents(const QString &kind)
{
    QFile file(QStringLiteral(ORVCAD_TEST_DATA "/cadi2/documents.json"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QJsonDocument::fromJson(file.readAll()).object().value(kind).toObject();
}

TEST_F(Cadi2OperatorTest, soundDocumentsAreReadAndWrittenAgainWithTheSameContent)
{
    const QJsonObject accepted = documents("accepted");
    ASSERT_GE(accepted.size(), 4);
    for (const QString &name : accepted.keys()) {
        put(QJsonDocument(accepted.value(name).toObject()).toJson());
        ASSERT_TRUE(read()) << qPrintable(name) << qPrintable(m_operator->lastErrorReason());
        EXPECT_TRUE(write());
        const QByteArray first = content();
        ASSERT_TRUE(read()) << qPrintable(name) << qPrintable(m_operator->lastErrorReason());
        EXPECT_TRUE(write());
        EXPECT_EQ(content(), first) << qPrintable(name);
    }
}

TEST_F(Cadi2OperatorTest, brokenDocumentsAreRefusedWithPlaceAndReasonAndTheModelStays)
{
    const QJsonObject refused = documents("refused");
    ASSERT_GE(refused.size(), 50);
    m_model->addLayer("KEPT", 3);
    m_model->setFilePath("kept.cadi2");
    for (const QString &name : refused.keys()) {
        SCOPED_TRACE(qPrintable(name));
        const QJsonObject test = refused.value(name).toObject();
        const QJsonValue document = test.value("document");
        const QJsonDocument json =
            document.isArray() ? QJsonDocument(document.toArray()) : QJsonDocument(document.toObject());
        put(test.contains("text") ? test.value("text").toString().toUtf8() : json.toJson());
        EXPECT_FALSE(read());
        EXPECT_EQ(m_operator->lastErrorPlace().toStdString(), test.value("place").toString().toStdString());
        const QString reason = m_operator->lastErrorReason();
        EXPECT_TRUE(reason.contains(test.value("reason").toString())) << qPrintable(reason);
        EXPECT_NE(m_model->layer("KEPT"), nullptr);
        EXPECT_EQ(m_model->getFilePath(), "kept.cadi2");
    }
}

TEST_F(Cadi2OperatorTest, textThatIsNotUtf8IsRefused)
{
    put("{\"format\":\"cadi2\",\"version\":1,\"layers\":[],\"title\":\"\xff\"}");
    EXPECT_FALSE(read());
    EXPECT_TRUE(m_operator->lastErrorReason().startsWith("is not JSON"));
}

} // namespace
