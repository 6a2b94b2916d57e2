#include "docs/RelationFigures.h"

#include <gmock/gmock.h>

#include <QFile>

#include <algorithm>
#include <stdexcept>

namespace {

using docs::RelationFigure;
using testing::ElementsAre;

std::vector<int> valuesOf(const RelationFigure &figure)
{
    std::vector<int> values;
    std::transform(figure.cases.begin(), figure.cases.end(), std::back_inserter(values),
                   [](const docs::RelationCase &pair) { return pair.value; });
    return values;
}

TEST(RelationFiguresTest, eachValueOfEachRelationIsDrawnOnce)
{
    const std::vector<RelationFigure> figures = docs::relationFigures();
    ASSERT_EQ(figures.size(), 3u);
    EXPECT_THAT(valuesOf(figures[0]), ElementsAre(-1, 0, 1, 2, 3, 4, 5, 6, 7));
    EXPECT_THAT(valuesOf(figures[1]), ElementsAre(-1, 0, 1, 2, 3, 4, 5));
    EXPECT_THAT(valuesOf(figures[2]), ElementsAre(-1, 0, 1, 2));
}

TEST(RelationFiguresTest, picturesOfTheDocumentsAreWhatTheKernelTells)
{
    for (const RelationFigure &figure : docs::relationFigures()) {
        QFile file(QStringLiteral(ORVCAD_PICTURES "/%1.svg").arg(figure.name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << figure.name.toStdString();
        EXPECT_EQ(file.readAll(), docs::drawn(figure))
            << figure.name.toStdString() << ": DrawRelations docs/pictures draws it anew";
    }
}

TEST(RelationFiguresTest, pairOfAnotherRelationIsNotDrawn)
{
    RelationFigure figure = docs::relationFigures().front();
    figure.cases.front().value = 7;
    EXPECT_THROW(docs::drawn(figure), std::logic_error);
}

} // namespace
