#include "cli/DocumentKinds.h"

#include <gtest/gtest.h>

using namespace orvcad;

namespace {

std::string kindOf(const QByteArray &json)
{
    const DocumentKind *kind = kindOfDocument(JsonTree(json));
    return kind ? kind->name : "";
}

TEST(DocumentKindsTest, kindIsToldByTheKeys)
{
    EXPECT_EQ(kindOf(R"({"Beam": [], "LinkBeam": [], "FDBeam": []})"), "beams");
    EXPECT_EQ(kindOf(R"({"AreaName": "A", "Floors": []})"), "floors");
    EXPECT_EQ(kindOf(R"({"eWall": {}})"), "wall-reply");
    EXPECT_EQ(kindOf(R"({"format": "cadi2", "version": 1, "layers": []})"), "cadi2");
}

TEST(DocumentKindsTest, kindIsToldByMisspeltKeysToo)
{
    EXPECT_EQ(kindOf(R"({"eDoorWni": {}})"), "opening-reply");
    EXPECT_EQ(kindOf(R"({"format": "hbx-projcet"})"), "hbx-project");
}

TEST(DocumentKindsTest, ofKindsWithTheSameKeysTheOneThatFitsCounts)
{
    EXPECT_EQ(kindOf(R"({"17": "{00000000-0000-0000-0000-000000000002}"})"), "id-map");
    EXPECT_EQ(kindOf(R"({"17": []})"), "beam-spans");
}

TEST(DocumentKindsTest, kindOfAListIsToldByItsFirstEntry)
{
    EXPECT_EQ(kindOf(R"([{"regionID": 7, "FloorName": "F1", "DrawingNames": []}])"), "drawing-floors");
    EXPECT_EQ(kindOf(R"([{"DrawingName": "S-02", "ElementTypes": []}])"), "drawing-elements");
    EXPECT_EQ(kindOf(R"([{"DrawingName": "S-02", "ElementType": "", "Layers": []}])"), "drawing-layers");
    EXPECT_EQ(kindOf(R"([{"drawingName": "S-02", "originScale": 100, "newScale": 1}])"), "drawing-scales");
    EXPECT_EQ(kindOf(R"([{"drawingName": "S-02", "axsiInfo": []}])"), "drawing-locations");
    EXPECT_EQ(kindOf(R"([{"cat": 1}])"), "");
    EXPECT_EQ(kindOf("[[{}]]"), "");
}

TEST(DocumentKindsTest, partsOfADrawingSetAreKindsOfTheirOwn)
{
    EXPECT_EQ(kindOf(R"({"savePath": "", "drawingInfo": []})"), "drawing-parts");
    EXPECT_EQ(kindOf(R"({"table0": {}, "table1": {}})"), "drawing-tables");
    EXPECT_EQ(kindOf(R"({"DrawingName": "S-02", "ElementType": "", "Layers": []})"), "layer-group");
}

TEST(DocumentKindsTest, documentWithoutAKnownKeyHasNoKind)
{
    EXPECT_EQ(kindOf(R"({"cat": 1})"), "");
    EXPECT_EQ(kindOf("[]"), "");
    EXPECT_EQ(kindOf(""), "");
}

TEST(DocumentKindsTest, kindsAreFoundByTheirNames)
{
    EXPECT_STREQ(documentKind("slab-io")->title, "slab IO document");
    EXPECT_EQ(documentKind("slab"), nullptr);
    EXPECT_EQ(documentKindNames().size(), 29);
}

} // namespace
