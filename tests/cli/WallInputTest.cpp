#include "cli/WallInput.h"

#include "cli/FloorLookup.h"
#include "cli/WallKind.h"
#include "embedded/ExchangeDocuments.h"
#include "encoding/LocaleCodec.h"
#include "platform/dwgx/DWGXModel.h"
#include "platform/embedded/HBXFloorDrawing.h"
#include "platform/geometry/CLine2d.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXService.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

using namespace orvcad;

namespace {

const char *const kBuildings[] = {"made-building", "masonry-block", "duplex-apartment", "precast-hall"};
const WallKind &kBrick = wallKindOf("brick");
const WallKind &kForce = wallKindOf("force");

template <typename Visit> void withModel(const WallKind &kind, Visit &&visit)
{
    if (kind.isBrick())
        visit(ORVCADWallBrickDataInputModel(kind.identifyType));
    else
        visit(ORVCADWallForceDataInputModel(kind.identifyType));
}

/** The document that a model gives which has loaded one. */
QByteArray savedAgain(const QByteArray &json, const WallKind &kind)
{
    std::wstring text;
    withModel(kind, [&](auto model) {
        model.loadFromJson(QString::fromUtf8(json).toStdWString());
        model.saveToJson(text);
    });
    return QString::fromStdWString(text).toUtf8();
}

/** The same for an XML document in the local encoding. */
QJsonObject fromXml(const QByteArray &xml, const WallKind &kind)
{
    QJsonObject object;
    withModel(kind, [&](auto model) {
        model.loadFromXml(QString::fromLocal8Bit(xml).toStdWString());
        model.saveToJson(&object);
    });
    return object[QString()].toObject();
}

/** Without what is left of the axis label "1/A" of one building, whose last part is an item that nobody reads. */
QJsonValue withoutRemains(const QJsonValue &value)
{
    if (value.isArray()) {
        QJsonArray records;
        for (const QJsonValue record : value.toArray())
            records.append(withoutRemains(record));
        return records;
    }
    QJsonObject object = value.toObject();
    object.remove("A");
    for (const QString &key : object.keys())
        if (!object[key].isString())
            object[key] = withoutRemains(object[key]);
    return object;
}

QJsonObject readablePart(const QByteArray &json)
{
    return withoutRemains(QJsonDocument::fromJson(json).object()).toObject();
}

/** What XML lets through: records and maps, but no lists. */
QJsonObject withoutLists(QJsonObject document)
{
    for (const QString &key : document.keys())
        if (document[key].isArray())
            document[key] = QJsonArray();
    return document;
}

class WallInputTest : public ::testing::Test
{
protected:
    /** Calls visit(input, kind) for each floor of each sample building, with its drawing. */
    template <typename Visit> static void forEachInput(Visit visit)
    {
        for (const char *name : kBuildings) {
            SCOPED_TRACE(name);
            hbx::embedded::ProjectError error;
            const auto project = hbx::embedded::HBXProject::fromJson(exchangetest::building(name), name, error);
            ASSERT_TRUE(project) << error.text().toStdString();
            const auto floors = orvcad::pickFloors(*project, {}, {});
            ASSERT_FALSE(floors.empty());
            for (IHBXFloor *floor : floors)
                for (const WallKind &kind : wallKinds()) {
                    SCOPED_TRACE(floor->name().toStdString());
                    WallInput input(*project, *floor, kind);
                    const auto drawing = hbx::embedded::makeFloorDrawing(project->service()->model(), floor);
                    input.addDrawing(*drawing, QStringLiteral("D.cadi2"));
                    visit(input, kind);
                }
        }
    }
};

TEST_F(WallInputTest, jsonOfEveryFloorIsTheSameAfterLoadingAndSaving)
{
    int lines = 0;
    int walls = 0;
    forEachInput([&](const WallInput &input, const WallKind &kind) {
        const QByteArray again = savedAgain(input.json(), kind);
        EXPECT_TRUE(again == QJsonDocument(readablePart(input.json())).toJson());
        EXPECT_TRUE(savedAgain(again, kind) == again);
        lines += input.summary()["lines"].toInt();
        walls += input.summary()["walls"].toInt();
    });
    EXPECT_GT(lines, 1000);
    EXPECT_GT(walls, 20);
}

TEST_F(WallInputTest, xmlOfEveryFloorComesBackButForItsLists)
{
    const LocaleCodec local("GB18030");
    int readable = 0;
    forEachInput([&](const WallInput &input, const WallKind &kind) {
        const QByteArray xml = input.xml();
        if (!input.unreadable(xml).isEmpty())
            return;
        ++readable;
        EXPECT_TRUE(fromXml(xml, kind) == withoutLists(readablePart(input.json())));
    });
    EXPECT_GT(readable, 10);
}

/** A small house with the walls and the drawing that a test gives it. */
class WallInputOfADrawingTest : public ::testing::Test
{
protected:
    WallInputOfADrawingTest() : host("made-building") { drawing.reset(dwgx::DWGXModel::createObject()); }

    void addLayer(const char *name, const char *text = "Q1")
    {
        ASSERT_TRUE(drawing->addLayer(name, 3));
        dwgx::DWGXLine line;
        line.curve = new vks::CLine2d(vks::CVec2<double>(0, 0), vks::CVec2<double>(1, 0));
        line.blockId = 2;
        ASSERT_TRUE(drawing->addLine(name, std::move(line)));
        dwgx::DWGXText entity;
        entity.content = QString::fromUtf8(text);
        entity.height = 100;
        entity.point = {10, 20};
        entity.color = 5;
        ASSERT_TRUE(drawing->addText(name, std::move(entity)));
    }
    QStringList unreadable(const WallKind &kind = kForce)
    {
        WallInput input(*host.project, *host.floor, kind);
        input.addDrawing(*drawing, "D.cadi2");
        return input.unreadable(input.xml());
    }

    struct Host
    {
        explicit Host(const char *name)
        {
            hbx::embedded::ProjectError error;
            project = hbx::embedded::HBXProject::fromJson(exchangetest::building(name), name, error);
            floor = orvcad::pickFloors(*project, {}, {}).back();
        }
        std::unique_ptr<hbx::embedded::HBXProject> project;
        IHBXFloor *floor = nullptr;
    } host;
    std::unique_ptr<dwgx::DWGXModel> drawing;
};

TEST_F(WallInputOfADrawingTest, linesAndTextsStandByLayer)
{
    addLayer("WALL");
    ASSERT_TRUE(drawing->addLayer("EMPTY", 1));
    WallInput input(*host.project, *host.floor, kForce);
    input.addDrawing(*drawing, "D.cadi2");
    const QJsonObject document = QJsonDocument::fromJson(input.json()).object();
    const QJsonObject lines = document["CadLineEdoDataInfo"].toObject();
    EXPECT_EQ(lines.keys(), (QStringList{"key_0", "value_0"})); // nothing of the empty layer
    EXPECT_EQ(lines["key_0"].toObject(), (QJsonObject{{"WALL", ""}}));
    EXPECT_EQ(lines["value_0"][0].toObject(),
              (QJsonObject{{"edoId", "1"}, {"color", "3"}, {"blockID", "2"}, {"line", "0,0,1,0"}})); // of the layer
    EXPECT_EQ(document["CadTextEdoDataInfo"]["value_0"][0].toObject(),
              (QJsonObject{{"edoId", "2"},
                           {"color", "5"},
                           {"blockID", "0"},
                           {"text", "Q1"},
                           {"dir", "1,0"},
                           {"anglePts", "10,20;130,20;130,120;10,120;"}}));
}

TEST_F(WallInputOfADrawingTest, layerThatIsNoNameIsToldAndOthersAreNot)
{
    for (const char *fine : {"WALL", "PLAN|WALL 1", "A:B", "A/B", "砌体墙线"})
        addLayer(fine);
    EXPECT_EQ(unreadable(), QStringList());
    addLayer("WALL 1");
    addLayer("0");
    addLayer("A/2");
    EXPECT_EQ(unreadable(), (QStringList{"layer \"WALL 1\" is no name in XML", "layer \"0\" is no name in XML",
                                         "layer \"A/2\" is no name in XML"}));
}

TEST_F(WallInputOfADrawingTest, textThatIsNoNameBehindItsSlashIsTold)
{
    addLayer("WALL", "a/b");
    EXPECT_EQ(unreadable(), QStringList());
    addLayer("TEXT", "200/3");
    EXPECT_EQ(unreadable(), (QStringList{"text \"200/3\" on layer \"TEXT\" is no name in XML behind its \"/\""}));
}

TEST_F(WallInputOfADrawingTest, xmlIsInTheEncodingThatItDeclares)
{
    addLayer("WALL", "墙ð");
    WallInput input(*host.project, *host.floor, kForce);
    input.addDrawing(*drawing, "D.cadi2");
    const QByteArray xml = input.xml();
    EXPECT_TRUE(xml.startsWith("<?xml version=\"1.0\" encoding=\"GB2312\"?>\n"));
    EXPECT_TRUE(xml.contains("text=\"\xC7\xBD&#xf0;\"")); // the wall as two bytes, the other as a reference
}

TEST_F(WallInputOfADrawingTest, cloudDocumentIsOfBrickWallsAlone)
{
    WallInput brick(*host.project, *host.floor, kBrick);
    brick.addDrawing(*drawing, "D.cadi2");
    const QJsonObject cloud = QJsonDocument::fromJson(brick.cloud()).object();
    EXPECT_EQ(cloud["drawingName"]["drawingName"], "D.cadi2");
    EXPECT_EQ(cloud["floorName"]["floorName"], host.floor->name());
    EXPECT_EQ(WallInput(*host.project, *host.floor, kForce).cloud(), QByteArray());
}

} // namespace
