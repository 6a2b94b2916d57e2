#include "platform/dwgx/DWGXModel.h"

#include "platform/geometry/CLine2d.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace {

using dwgx::DWGXLine;
using dwgx::DWGXModel;
using dwgx::DWGXText;

class DWGXModelTest : public ::testing::Test
{
protected:
    static DWGXLine line(double x0, double y0, double x1, double y1, int id = 0)
    {
        DWGXLine line;
        line.id = id;
        line.curve = new vks::CLine2d({x0, y0}, {x1, y1});
        return line;
    }
    static DWGXText text(const QString &content, double height, int id = 0)
    {
        DWGXText text;
        text.id = id;
        text.content = content;
        text.height = height;
        return text;
    }

    std::unique_ptr<DWGXModel> m_model{DWGXModel::createObject()};
};

TEST_F(DWGXModelTest, newDrawingIsEmptyAndHasNoExtensionData)
{
    EXPECT_TRUE(m_model->getFilePath().isEmpty());
    EXPECT_TRUE(m_model->layers().empty());
    EXPECT_FALSE(m_model->box().IsValid());
    EXPECT_EQ(m_model->getCADExtData(), nullptr);
    EXPECT_EQ(m_model->lineCount(), 0);
    EXPECT_EQ(m_model->textCount(), 0);
}

TEST_F(DWGXModelTest, newViewerDataLooksStraightDown)
{
    const dwgx::DWGXViewerInfoData viewer = m_model->getViewerInfoData();
    EXPECT_EQ(viewer.orientation, (std::array<float, 4>{0.0F, 0.0F, -1.0F, 0.0F}));
    EXPECT_EQ(viewer.zoom, 1.0F);
    EXPECT_EQ(viewer.turn, 0.0F);
    EXPECT_EQ(viewer.flags, 0U);
}

TEST_F(DWGXModelTest, viewerDataIsReadAsItWasSet)
{
    dwgx::DWGXViewerInfoData viewer;
    viewer.orientation = {1.0F, 0.0F, 0.0F, 0.5F};
    viewer.zoom = 2.5F;
    viewer.turn = 0.25F;
    viewer.flags = 7;
    m_model->setViewerInfoData(viewer);
    EXPECT_EQ(m_model->getViewerInfoData().orientation, viewer.orientation);
    EXPECT_EQ(m_model->getViewerInfoData().zoom, 2.5F);
    EXPECT_EQ(m_model->getViewerInfoData().turn, 0.25F);
    EXPECT_EQ(m_model->getViewerInfoData().flags, 7U);
}

TEST_F(DWGXModelTest, layerNeedsANewNameAndAColour)
{
    EXPECT_TRUE(m_model->addLayer("WALL", 3));
    EXPECT_FALSE(m_model->addLayer("WALL", 4));
    EXPECT_FALSE(m_model->addLayer("", 3));
    EXPECT_FALSE(m_model->addLayer("BEAM", 0));
    EXPECT_FALSE(m_model->addLayer("BEAM", 256));
    ASSERT_EQ(m_model->layers().size(), 1U);
    EXPECT_EQ(m_model->layers().front().color, 3);
}

TEST_F(DWGXModelTest, layerIsFoundByItsExactName)
{
    m_model->addLayer("WALL", 3);
    ASSERT_NE(m_model->layer("WALL"), nullptr);
    EXPECT_EQ(m_model->layer("WALL")->name, "WALL");
    EXPECT_EQ(m_model->layer("wall"), nullptr);
}

TEST_F(DWGXModelTest, entitiesStandOnTheirLayerInOrder)
{
    m_model->addLayer("WALL", 3);
    m_model->addLayer("TEXT", 7);
    EXPECT_TRUE(m_model->addLine("WALL", line(0, 0, 1000, 0)));
    EXPECT_TRUE(m_model->addLine("WALL", line(0, 200, 1000, 200)));
    EXPECT_TRUE(m_model->addText("TEXT", text("Q1", 250.0)));
    EXPECT_EQ(m_model->lineCount(), 2);
    EXPECT_EQ(m_model->textCount(), 1);
    EXPECT_EQ(m_model->layer("WALL")->lines[1].curve->ToText(), "LINESTRING(0 200, 1000 200)");
    EXPECT_EQ(m_model->layer("TEXT")->texts[0].content, "Q1");
}

TEST_F(DWGXModelTest, unknownLayerAndUnsoundEntitiesAreRefused)
{
    m_model->addLayer("WALL", 3);
    EXPECT_FALSE(m_model->addLine("BEAM", line(0, 0, 1000, 0)));
    EXPECT_FALSE(m_model->addText("BEAM", text("Q1", 250.0)));
    EXPECT_FALSE(m_model->addLine("WALL", DWGXLine()));
    EXPECT_FALSE(m_model->addText("WALL", text("Q1", 0.0)));
    EXPECT_EQ(m_model->lineCount() + m_model->textCount(), 0);
}

TEST_F(DWGXModelTest, idsCountUpBehindTheHighestAndAreUniqueInTheDrawing)
{
    m_model->addLayer("WALL", 3);
    m_model->addLine("WALL", line(0, 0, 1000, 0));
    m_model->addText("WALL", text("Q1", 250.0, 40));
    m_model->addLine("WALL", line(0, 0, 1000, 0, 7));
    m_model->addLine("WALL", line(0, 0, 1000, 0));
    EXPECT_FALSE(m_model->addLine("WALL", line(0, 0, 1000, 0, 40)));
    EXPECT_FALSE(m_model->addText("WALL", text("Q1", 250.0, 1)));
    const auto &lines = m_model->layers().front().lines;
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].id, 1);
    EXPECT_EQ(lines[1].id, 7);
    EXPECT_EQ(lines[2].id, 41);
}

TEST_F(DWGXModelTest, drawingWhoseIdsAreUsedUpRefusesMore)
{
    m_model->addLayer("WALL", 3);
    EXPECT_TRUE(m_model->addLine("WALL", line(0, 0, 1000, 0, std::numeric_limits<int>::max())));
    EXPECT_FALSE(m_model->addLine("WALL", line(0, 0, 1000, 0)));
}

TEST_F(DWGXModelTest, boxHoldsLinesAndTexts)
{
    m_model->addLayer("WALL", 3);
    m_model->addLine("WALL", line(-500, 0, 100, 50));
    m_model->addText("WALL", text("KL1", 100.0));
    const vks::CBox2<double> box = m_model->box();
    EXPECT_DOUBLE_EQ(box.minPt.x, -500.0);
    EXPECT_DOUBLE_EQ(box.minPt.y, 0.0);
    EXPECT_DOUBLE_EQ(box.maxPt.x, 180.0);
    EXPECT_DOUBLE_EQ(box.maxPt.y, 100.0);
}

TEST_F(DWGXModelTest, swapOfContentLeavesPathAndExtensionData)
{
    const std::unique_ptr<DWGXModel> other(DWGXModel::createObject());
    m_model->setFilePath("here.cadi2");
    auto *data = new HBXCADExtData;
    m_model->setCADExtData(data);
    other->addLayer("WALL", 3);
    other->addLine("WALL", line(0, 0, 1000, 0, 5));
    other->setTitle("Level 1");
    m_model->swapContent(*other);
    EXPECT_EQ(m_model->lineCount(), 1);
    EXPECT_EQ(m_model->getTitle(), "Level 1");
    EXPECT_EQ(m_model->getFilePath(), "here.cadi2");
    EXPECT_EQ(m_model->getCADExtData(), data);
    EXPECT_TRUE(other->layers().empty());
    EXPECT_FALSE(m_model->addLine("WALL", line(0, 0, 1000, 0, 5))) << "ids go along";
}

} // namespace
