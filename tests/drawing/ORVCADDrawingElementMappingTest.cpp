#include "drawing/ORVCADDrawingElementMapping.h"

#include "DrawingJson.h"

#include <gmock/gmock.h>

#include <memory>

using namespace drawing_test;

namespace {

std::unique_ptr<ORVCADDrawingElementMapping> readFrom(const char *text)
{
    return std::unique_ptr<ORVCADDrawingElementMapping>(ORVCADDrawingElementMapping::fromJson(object(text)));
}

} // namespace

TEST(ORVCADDrawingElementMappingTest, typesAreASet)
{
    ORVCADDrawingElementMapping mapping(QStringLiteral("plan"));
    EXPECT_EQ(mapping.getDrawingName(), "plan");
    EXPECT_TRUE(mapping.getElementTypes().isEmpty());
    mapping.addElementType(15);
    mapping.addElementType(25);
    mapping.addElementType(15);
    EXPECT_EQ(mapping.getElementTypes(), (QSet<int>{15, 25}));
    mapping.removeElementType(15);
    mapping.removeElementType(19);
    EXPECT_EQ(mapping.getElementTypes(), QSet<int>{25});
    mapping.getElementTypes().clear();
    EXPECT_TRUE(mapping.getElementTypes().isEmpty());
}

TEST(ORVCADDrawingElementMappingTest, typesAreWrittenByTheirNames)
{
    ORVCADDrawingElementMapping mapping(QStringLiteral("plan"));
    mapping.addElementType(15);
    EXPECT_EQ(QString::fromUtf8(text(mapping.toJson())), R"({"DrawingName":"plan","ElementTypes":["梁"]})");
}

TEST(ORVCADDrawingElementMappingTest, typesAreWrittenInTheOrderOfTheSet)
{
    ORVCADDrawingElementMapping mapping(QStringLiteral("plan"));
    QStringList names;
    for (const int type : {0, 4, 5, 15, 19, 25, 1003})
        mapping.addElementType(type);
    const QHash<int, QString> nameOf = {{0, "混凝土墙"}, {4, "门"},  {5, "窗"},       {15, "梁"},
                                        {19, "现浇板"},  {25, "柱"}, {1003, "砌体墙"}};
    for (const int type : mapping.getElementTypes())
        names.append(nameOf.value(type));
    EXPECT_EQ(mapping.toJson().value("ElementTypes"), QJsonArray::fromStringList(names));
}

TEST(ORVCADDrawingElementMappingTest, unknownTypeIsWrittenAsTheEmptyText)
{
    ORVCADDrawingElementMapping mapping(QStringLiteral("plan"));
    mapping.addElementType(9);
    EXPECT_EQ(text(mapping.toJson()), R"({"DrawingName":"plan","ElementTypes":[""]})");
}

TEST(ORVCADDrawingElementMappingTest, mappingIsReadFromWhatItWrites)
{
    const auto mapping = readFrom(R"({"DrawingName":"plan","ElementTypes":["柱","梁","柱"]})");
    ASSERT_NE(mapping, nullptr);
    EXPECT_EQ(mapping->getDrawingName(), "plan");
    EXPECT_EQ(mapping->getElementTypes(), (QSet<int>{15, 25}));
}

TEST(ORVCADDrawingElementMappingTest, bothKeysAreRequired)
{
    EXPECT_EQ(readFrom(R"({"DrawingName":"plan"})"), nullptr);
    EXPECT_EQ(readFrom(R"({"ElementTypes":["梁"]})"), nullptr);
    EXPECT_EQ(readFrom("{}"), nullptr);
}

TEST(ORVCADDrawingElementMappingTest, unknownTypeNameReadsAsMinusOne)
{
    const auto mapping = readFrom(R"({"DrawingName":"plan","ElementTypes":["梁","etBeam",15]})");
    ASSERT_NE(mapping, nullptr);
    EXPECT_EQ(mapping->getElementTypes(), (QSet<int>{15, -1}));
}

TEST(ORVCADDrawingElementMappingTest, mistypedValuesReadAsEmpty)
{
    const auto mapping = readFrom(R"({"DrawingName":7,"ElementTypes":"梁"})");
    ASSERT_NE(mapping, nullptr);
    EXPECT_EQ(mapping->getDrawingName(), "");
    EXPECT_TRUE(mapping->getElementTypes().isEmpty());
}
