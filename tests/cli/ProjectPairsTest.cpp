#include "cli/ProjectPairs.h"

#include "embedded/ExchangeDocuments.h"

using namespace hbx::embedded;
using orvcad::pairsOf;
using orvcad::ProjectPairs;

namespace {

/** A project of one floor with column elements, each with its columns at places on the x axis. */
class ProjectPairsTest : public ::testing::Test
{
protected:
    struct Columns
    {
        QString name;
        std::vector<int> places;
    };

    static ProjectRecord projectOf(const std::vector<Columns> &elements, qint64 firstId = 10)
    {
        ProjectRecord project;
        project.regions = {{1, "House"}};
        project.floors = {floor(2, "F", "1")};
        for (const Columns &columns : elements) {
            ElementRecord element;
            element.id = firstId++;
            element.floorId = 2;
            element.name = columns.name;
            element.type = 25;
            project.elements.push_back(element);
        }
        for (std::size_t i = 0; i < elements.size(); ++i)
            for (const int place : elements[i].places)
                project.drawObjs.push_back(column(firstId++, project.elements[i].id, place));
        return project;
    }
    static FloorRecord floor(int id, const QString &name, const QString &code)
    {
        FloorRecord floor;
        floor.id = id;
        floor.regionId = 1;
        floor.name = name;
        floor.code = code;
        return floor;
    }
    static DrawObjRecord column(qint64 id, qint64 elementId, int place)
    {
        DrawObjRecord object;
        object.id = id;
        object.elementId = elementId;
        object.type = 25;
        object.shape.insertPoint = {static_cast<double>(place), 0};
        return object;
    }
    /** Names of the elements of the floor with the ids of their objects: "K1 12=32 13- +33". */
    static std::string textOf(const ProjectPairs &pairs)
    {
        QStringList parts;
        for (const ProjectPairs::Element &element : pairs.regions.front().floors.front().elements) {
            parts.append(element.either().name);
            for (const ProjectPairs::Object &object : element.objects) {
                const QString before = object.before ? QString::number(object.before->id) : QString();
                const QString after = object.after ? QString::number(object.after->id) : QString();
                parts.append(before + (object.isWhole() ? "=" : object.after ? "+" : "-") + after);
            }
        }
        return parts.join(' ').toStdString();
    }
};

TEST_F(ProjectPairsTest, projectsOfOneOriginAreToldByTheIdsOfTheirElements)
{
    const ProjectRecord project = projectOf({{"K1", {}}, {"K2", {}}});
    EXPECT_TRUE(pairsOf(project, project).isById);
    EXPECT_FALSE(pairsOf(project, projectOf({{"K1", {}}, {"K2", {}}}, 20)).isById);
    EXPECT_TRUE(pairsOf(project, projectOf({{"K1", {}}, {"K9", {}}})).isById);
    EXPECT_FALSE(pairsOf(project, projectOf({{"K8", {}}, {"K9", {}}})).isById);
}

TEST_F(ProjectPairsTest, objectsThatAreAlikeBelongTogetherWhateverTheirIds)
{
    const ProjectRecord before = projectOf({{"K1", {0, 500}}});         // 11, 12
    const ProjectRecord after = projectOf({{"K1", {500, 900, 0}}}, 30); // 31, 32, 33
    EXPECT_EQ(textOf(pairsOf(before, after)), "K1 11=33 12=31 +32");
}

TEST_F(ProjectPairsTest, objectsOfOneIdBelongTogetherWhereProjectsComeFromOne)
{
    const ProjectRecord before = projectOf({{"K1", {0, 500}}});
    const ProjectRecord after = projectOf({{"K1", {0, 900}}});
    EXPECT_EQ(textOf(pairsOf(before, after)), "K1 11=11 12=12");
    EXPECT_EQ(textOf(pairsOf(before, projectOf({{"K1", {0, 900}}}, 30))), "K1 11=31 12- +32");
}

TEST_F(ProjectPairsTest, objectsOfOneShapeBelongTogetherWithoutIds)
{
    const ProjectRecord before = projectOf({{"K1", {0, 500}}});
    ProjectRecord after = projectOf({{"K1", {0, 500}}}, 30);
    after.drawObjs[0].layer = 4;
    EXPECT_EQ(textOf(pairsOf(before, after)), "K1 11=31 12=32");
}

TEST_F(ProjectPairsTest, renamedElementsBelongTogetherByIdAlone)
{
    const ProjectRecord before = projectOf({{"K1", {}}, {"K2", {0}}});
    EXPECT_EQ(textOf(pairsOf(before, projectOf({{"K1", {}}, {"K9", {0}}}))), "K1 K9 12=12");
    EXPECT_EQ(textOf(pairsOf(before, projectOf({{"K1", {}}, {"K9", {0}}}, 30))), "K1 K2 12- K9 +32");
}

TEST_F(ProjectPairsTest, objectThatCameToAnotherElementStandsWithThat)
{
    const ProjectRecord before = projectOf({{"K1", {0}}, {"K2", {}}});
    ProjectRecord after = before;
    after.drawObjs[0].elementId = after.elements[1].id;
    EXPECT_EQ(textOf(pairsOf(before, after)), "K1 K2 12=12");
}

TEST_F(ProjectPairsTest, floorsBelongTogetherByNameAndElseByCode)
{
    ProjectRecord before = projectOf({});
    before.floors = {floor(2, "F1", "1"), floor(3, "F2", "2"), floor(4, "F3", "3")};
    ProjectRecord after = projectOf({});
    after.floors = {floor(5, "F1", "2"), floor(6, "Roof", "3"), floor(7, "F9", "9")};
    std::vector<std::pair<int, int>> ids;
    const ProjectPairs pairs = pairsOf(before, after);
    for (const ProjectPairs::Floor &pair : pairs.regions.front().floors)
        ids.emplace_back(pair.before ? pair.before->id : 0, pair.after ? pair.after->id : 0);
    std::sort(ids.begin(), ids.end());
    EXPECT_EQ(ids, (std::vector<std::pair<int, int>>{{0, 7}, {2, 5}, {3, 0}, {4, 6}}));
}

TEST_F(ProjectPairsTest, manyObjectsThatAreAllAlikeArePairedAtOnce)
{
    const std::vector<int> places(20000, 0);
    const ProjectRecord before = projectOf({{"K1", places}});
    const ProjectRecord after = projectOf({{"K1", places}}, 50000);
    EXPECT_EQ(pairsOf(before, after).laterIds.size(), 20000);
}

} // namespace
