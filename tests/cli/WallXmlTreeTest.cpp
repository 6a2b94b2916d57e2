#include "cli/WallXmlTree.h"

#include <gtest/gtest.h>

using namespace orvcad;

namespace {

std::string valueAt(const JsonTree &tree, const QString &path)
{
    const JsonTree::Index found = tree.find(path);
    if (tree.path(found) != path)
        return "nothing";
    const JsonTree::Position position = tree.position(tree.node(found).offset);
    return std::to_string(position.line) + ':' + std::to_string(position.column) + ' ' +
           std::string(tree.node(found).text);
}

constexpr char kDocument[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                             "<XmlRoot>\n"
                             " <CadEntBrickWallDataInfo>\n"
                             "  <CadEntBrickWallDataInfo edoId=\"64\" entName=\"墙\" width=\"120\"/>\n"
                             " </CadEntBrickWallDataInfo>\n"
                             " <CadLineEdoDataInfo>\n"
                             "  <key_0 WALL=\"\">\n"
                             "   <value_0 edoId=\"1\"/>\n"
                             "   <value_1 edoId=\"2\"/>\n"
                             "  </key_0>\n"
                             " </CadLineEdoDataInfo>\n"
                             " <IdentifyType identifyTpe=\"1\"/>\n"
                             "</XmlRoot>\n";

TEST(WallXmlTreeTest, recordsListsAndMapsHaveTheirJsonForm)
{
    const auto tree = wallXmlTree(kDocument);
    EXPECT_TRUE(tree->textFaults().empty());
    EXPECT_EQ(valueAt(*tree, "CadEntBrickWallDataInfo[0].entName"), "4:39 墙");
    EXPECT_EQ(valueAt(*tree, "CadEntBrickWallDataInfo[0].width"), "4:51 120");
    EXPECT_EQ(valueAt(*tree, "CadLineEdoDataInfo.key_0.WALL"), "7:10 ");
    EXPECT_EQ(valueAt(*tree, "CadLineEdoDataInfo.value_0[1].edoId"), "9:13 2");
    EXPECT_EQ(valueAt(*tree, "IdentifyType.identifyTpe"), "12:16 1");
}

TEST(WallXmlTreeTest, brokenXmlIsAFaultWithItsPlace)
{
    const auto tree = wallXmlTree("<XmlRoot>\n<ProjectName 3=\"\"/>\n</XmlRoot>");
    ASSERT_EQ(tree->textFaults().size(), 1U);
    EXPECT_TRUE(tree->textFaults()[0].reason.startsWith("not XML: "));
    EXPECT_EQ(tree->position(tree->textFaults()[0].offset).line, 2);
}

TEST(WallXmlTreeTest, documentTypesAndDepthAreNotParsed)
{
    EXPECT_EQ(wallXmlTree("<!DOCTYPE a><a/>")->textFaults().size(), 1U);
    EXPECT_EQ(wallXmlTree(QByteArray("<a>").repeated(10000))->textFaults().size(), 1U);
}

} // namespace
