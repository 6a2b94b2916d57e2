#include "platform/dwgx/Cadi2Writer.h"

#include "platform/geometry/CLine2d.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>

namespace {

using dwgx::DWGXModel;

class Cadi2WriterTest : public ::testing::Test
{
protected:
    void SetUp() override { m_model->addLayer("WALL", 3); }

    dwgx::DWGXLine line() const
    {
        dwgx::DWGXLine line;
        line.curve = new vks::CLine2d({0, 0}, {1000, 0.5});
        return line;
    }
    dwgx::DWGXText text() const
    {
        dwgx::DWGXText text;
        text.content = "Q1";
        text.point = {10, 20};
        text.height = 250.0;
        return text;
    }
    QJsonObject written(const QString &title = QString(), const QString &remark = QString()) const
    {
        return QJsonDocument::fromJson(writeCadi2(*m_model, title, remark)).object();
    }
    /** The members of the one entity that stands in a list of the one layer. */
    QJsonObject entity(const char *list) const
    {
        return written()["layers"].toArray().first().toObject().value(QLatin1String(list)).toArray().first().toObject();
    }

    std::unique_ptr<DWGXModel> m_model{DWGXModel::createObject()};
};

TEST_F(Cadi2WriterTest, documentHasTheDocumentedForm)
{
    m_model->addLine("WALL", line());
    m_model->addText("WALL", text());
    const QByteArray expected = R"json({
        "format": "cadi2", "version": 1,
        "viewer": {"orientation": [0, 0, -1, 0], "zoom": 1, "turn": 0, "flags": 0},
        "layers": [{"name": "WALL", "color": 3,
            "lines": [{"id": 1, "curve": "LINESTRING(0 0, 1000 0.5)"}],
            "texts": [{"id": 2, "text": "Q1", "point": [10, 20], "height": 250}]}]})json";
    EXPECT_EQ(written(), QJsonDocument::fromJson(expected).object());
}

TEST_F(Cadi2WriterTest, layerWithoutEntitiesHasNoListsOfThem)
{
    const QJsonObject layer = written()["layers"].toArray().first().toObject();
    EXPECT_EQ(layer, (QJsonObject{{"name", "WALL"}, {"color", 3}}));
}

TEST_F(Cadi2WriterTest, valuesOtherThanTheDefaultsOfAnEntityAreWritten)
{
    dwgx::DWGXLine red = line();
    red.color = 1;
    red.blockId = 12;
    red.setCADExtData(new HBXCADExtData);
    red.getCADExtData()->setValue("handle", "2F");
    m_model->addLine("WALL", std::move(red));
    EXPECT_EQ(entity("lines"), (QJsonObject{{"id", 1},
                                            {"color", 1},
                                            {"block", 12},
                                            {"ext", QJsonObject{{"handle", "2F"}}},
                                            {"curve", "LINESTRING(0 0, 1000 0.5)"}}));
    dwgx::DWGXText turned = text();
    turned.angle = 1.5;
    m_model->addText("WALL", std::move(turned));
    EXPECT_EQ(entity("texts").value("angle"), 1.5);
}

TEST_F(Cadi2WriterTest, titleAndRemarkThatAreEmptyLeaveTheModelsOwn)
{
    EXPECT_FALSE(written().contains("title"));
    EXPECT_FALSE(written().contains("remark"));
    m_model->setTitle("Level 1");
    m_model->setRemark("draft");
    EXPECT_EQ(written("Level 2").value("title"), "Level 2");
    EXPECT_EQ(written("Level 2").value("remark"), "draft");
    EXPECT_EQ(m_model->getTitle(), "Level 1");
}

TEST_F(Cadi2WriterTest, extensionDataThatIsAttachedIsWrittenThoughEmpty)
{
    EXPECT_FALSE(written().contains("ext"));
    m_model->setCADExtData(new HBXCADExtData);
    EXPECT_EQ(written().value("ext"), QJsonValue(QJsonObject()));
}

TEST_F(Cadi2WriterTest, sameDrawingGivesTheSameBytes)
{
    m_model->addLine("WALL", line());
    EXPECT_EQ(writeCadi2(*m_model, "a", "b"), writeCadi2(*m_model, "a", "b"));
}

} // namespace
