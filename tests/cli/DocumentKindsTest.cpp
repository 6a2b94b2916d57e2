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
    EXPECT_EQ(documentKindNames().size(), 21);
}

} // namespace
