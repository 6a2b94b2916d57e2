#include "drawing/ORVCADDrawingElementMappings.h"

#include "DrawingJson.h"

#include <gmock/gmock.h>

#include <memory>

using namespace drawing_test;

namespace {

class ORVCADDrawingElementMappingsTest : public testing::Test
{
protected:
    static std::unique_ptr<ORVCADDrawingElementMappings> readFrom(const QJsonValue &json)
    {
        return std::unique_ptr<ORVCADDrawingElementMappings>(ORVCADDrawingElementMappings::fromJson(json));
    }
    QStringList drawings()
    {
        QStringList names;
        for (const auto *mapping : mappings.getDrawingElementMappings())
            names.append(mapping->getDrawingName());
        return names;
    }

    ORVCADDrawingElementMappings mappings;
    const QString plan = QStringLiteral("plan");
    const QString other = QStringLiteral("other");
};

} // namespace

TEST_F(ORVCADDrawingElementMappingsTest, typeIsAddedToTheDrawingsRecord)
{
    mappings.addMapping(plan, 15);
    mappings.addMapping(other, 25);
    mappings.addMapping(plan, 25);
    EXPECT_EQ(drawings(), (QStringList{"plan", "other"}));
    EXPECT_EQ(mappings.getMatchElementType(plan), (QSet<int>{15, 25}));
    EXPECT_EQ(mappings.getMatchElementType(other), QSet<int>{25});
}

TEST_F(ORVCADDrawingElementMappingsTest, nothingIsAddedForAnEmptyNameOrNoType)
{
    mappings.addMapping(QString(), 15);
    mappings.addMapping(plan, -1);
    mappings.addMapping(plan, QSet<int>());
    mappings.addMapping(plan, QSet<int>{-1});
    mappings.addMapping(QString(), QSet<int>{15});
    mappings.addMapping(nullptr);
    EXPECT_TRUE(mappings.getDrawingElementMappings().isEmpty());
}

TEST_F(ORVCADDrawingElementMappingsTest, setOfTypesIsAddedTypeByType)
{
    mappings.addMapping(plan, QSet<int>{15, -1, 25});
    EXPECT_EQ(mappings.getMatchElementType(plan), (QSet<int>{15, 25}));
    mappings.addMapping(plan, mappings.getDrawingElementMapping(plan)->getElementTypes());
    EXPECT_EQ(mappings.getMatchElementType(plan), (QSet<int>{15, 25}));
}

TEST_F(ORVCADDrawingElementMappingsTest, recordIsTakenOver)
{
    auto *record = new ORVCADDrawingElementMapping(plan);
    mappings.addMapping(record);
    EXPECT_EQ(mappings.getDrawingElementMapping(plan), record);
    mappings.addMapping(plan, 15);
    EXPECT_EQ(record->getElementTypes(), QSet<int>{15});
}

TEST_F(ORVCADDrawingElementMappingsTest, firstRecordOfADrawingAnswers)
{
    mappings.addMapping(plan, 15);
    auto *second = new ORVCADDrawingElementMapping(plan);
    second->addElementType(25);
    mappings.addMapping(second);
    EXPECT_EQ(mappings.getMatchElementType(plan), QSet<int>{15});
    EXPECT_EQ(mappings.getMatchDrawings(25), QStringList{"plan"});
}

TEST_F(ORVCADDrawingElementMappingsTest, unknownOrEmptyNamesHaveNoRecordAndNoTypes)
{
    mappings.addMapping(plan, 15);
    EXPECT_EQ(mappings.getDrawingElementMapping(QStringLiteral("Plan")), nullptr);
    EXPECT_TRUE(mappings.getMatchElementType(QStringLiteral("Plan")).isEmpty());
    auto *nameless = new ORVCADDrawingElementMapping(QString());
    nameless->addElementType(15);
    mappings.addMapping(nameless);
    EXPECT_TRUE(mappings.getMatchElementType(QString()).isEmpty());
    EXPECT_EQ(mappings.getDrawingElementMapping(QString()), nameless);
}

TEST_F(ORVCADDrawingElementMappingsTest, drawingsOfATypeAreGivenInListOrder)
{
    mappings.addMapping(other, 15);
    mappings.addMapping(plan, 25);
    mappings.addMapping(QStringLiteral("third"), 15);
    mappings.addMapping(plan, 15);
    EXPECT_EQ(mappings.getMatchDrawings(15), (QStringList{"other", "plan", "third"}));
    EXPECT_TRUE(mappings.getMatchDrawings(19).isEmpty());
}

TEST_F(ORVCADDrawingElementMappingsTest, removedRecordLeavesTheListAndIsNotDeleted)
{
    mappings.addMapping(plan, 15);
    mappings.addMapping(other, 25);
    const std::unique_ptr<ORVCADDrawingElementMapping> held(mappings.getDrawingElementMapping(plan));
    mappings.removeMapping(plan);
    EXPECT_EQ(drawings(), QStringList{"other"});
    EXPECT_EQ(held->getElementTypes(), QSet<int>{15});
}

TEST_F(ORVCADDrawingElementMappingsTest, onlyTheFirstRecordOfANameIsRemoved)
{
    const auto first = std::make_unique<ORVCADDrawingElementMapping>(plan);
    auto *second = new ORVCADDrawingElementMapping(plan);
    mappings.addMapping(first.get());
    mappings.addMapping(second);
    mappings.removeMapping(plan);
    EXPECT_EQ(mappings.getDrawingElementMappings(), QList<ORVCADDrawingElementMapping *>{second});
}

TEST_F(ORVCADDrawingElementMappingsTest, nothingIsRemovedForEmptyOrUnknownNames)
{
    mappings.addMapping(new ORVCADDrawingElementMapping(QString()));
    mappings.addMapping(plan, 15);
    mappings.removeMapping(QString());
    mappings.removeMapping(other);
    mappings.removeMapping(QString(), 15);
    mappings.removeMapping(other, 15);
    mappings.removeMapping(plan, -1);
    mappings.removeMapping(plan, QSet<int>());
    mappings.removeMapping(QString(), QSet<int>{15});
    EXPECT_EQ(drawings(), (QStringList{"", "plan"}));
    EXPECT_EQ(mappings.getMatchElementType(plan), QSet<int>{15});
}

TEST_F(ORVCADDrawingElementMappingsTest, noTypeIsNotTakenOutOfARecordThatHoldsIt)
{
    auto *record = new ORVCADDrawingElementMapping(plan);
    record->addElementType(-1);
    mappings.addMapping(record);
    mappings.removeMapping(plan, -1);
    EXPECT_EQ(record->getElementTypes(), QSet<int>{-1});
}

TEST_F(ORVCADDrawingElementMappingsTest, recordStaysWhenItsLastTypeGoes)
{
    mappings.addMapping(plan, QSet<int>{15, 25, 19});
    mappings.removeMapping(plan, 15);
    EXPECT_EQ(mappings.getMatchElementType(plan), (QSet<int>{25, 19}));
    mappings.removeMapping(plan, mappings.getDrawingElementMapping(plan)->getElementTypes());
    EXPECT_EQ(drawings(), QStringList{"plan"});
    EXPECT_TRUE(mappings.getMatchElementType(plan).isEmpty());
}

TEST_F(ORVCADDrawingElementMappingsTest, recordsAreWrittenInOrder)
{
    EXPECT_EQ(text(mappings.toJson()), "[]");
    mappings.addMapping(plan, 15);
    mappings.addMapping(other, 25);
    mappings.getDrawingElementMappings().append(nullptr);
    EXPECT_EQ(QString::fromUtf8(text(mappings.toJson())),
              R"([{"DrawingName":"plan","ElementTypes":["梁"]},{"DrawingName":"other","ElementTypes":["柱"]}])");
}

TEST_F(ORVCADDrawingElementMappingsTest, setIsReadFromWhatItWrites)
{
    mappings.addMapping(plan, QSet<int>{15, 25, 1003});
    mappings.addMapping(other, 25);
    const auto back = readFrom(mappings.toJson());
    EXPECT_EQ(back->getDrawingElementMappings().size(), 2);
    EXPECT_EQ(back->getMatchElementType(plan), (QSet<int>{15, 25, 1003}));
    EXPECT_EQ(back->getMatchDrawings(25), (QStringList{"plan", "other"}));
}

TEST_F(ORVCADDrawingElementMappingsTest, whatIsNoArrayReadsAsTheEmptySet)
{
    for (const char *value : {"null", "7", "\"x\"", "{}", R"({"DrawingName":"a","ElementTypes":[]})"}) {
        const auto back = readFrom(json(value));
        ASSERT_NE(back, nullptr) << value;
        EXPECT_TRUE(back->getDrawingElementMappings().isEmpty()) << value;
    }
    EXPECT_TRUE(readFrom(QJsonValue(QJsonValue::Undefined))->getDrawingElementMappings().isEmpty());
}

TEST_F(ORVCADDrawingElementMappingsTest, elementWithoutARequiredKeyIsLeftOut)
{
    const auto back =
        readFrom(json(R"([{"DrawingName":"a"},7,{"DrawingName":"b","ElementTypes":["梁"]},{"ElementTypes":[]},null])"));
    EXPECT_EQ(back->getDrawingElementMappings().size(), 1);
    EXPECT_EQ(back->getMatchDrawings(15), QStringList{"b"});
}

TEST_F(ORVCADDrawingElementMappingsTest, copyHoldsTheVerySameRecords)
{
    mappings.addMapping(plan, 15);
    ORVCADDrawingElementMappings copy = mappings;
    copy.addMapping(plan, 25);
    EXPECT_EQ(mappings.getMatchElementType(plan), (QSet<int>{15, 25}));
    copy.getDrawingElementMappings().clear(); // one of the two deletes them
}
