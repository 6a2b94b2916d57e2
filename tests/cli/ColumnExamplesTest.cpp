#include "CliFixture.h"

#include "column/ORVCADAIIdentifyColumnResultModel.h"
#include "column/ORVCADColumnCloudIdentifyInputModel.h"

using clitest::fileContent;
using clitest::fileObject;

namespace {

const QString kInput = QStringLiteral(ORVCAD_EXAMPLES "/precast-hall.column-input.json");
const QString kResults = QStringLiteral(ORVCAD_EXAMPLES "/precast-hall.column-results.json");
constexpr int kColumn = 25;
constexpr int kGrid = 74;

class ColumnExamplesTest : public CliFixture
{
protected:
    template <typename Model> static Model modelOf(const QString &path)
    {
        Model model;
        model.fromJson(&model, fileObject(path));
        return model;
    }
    /** Elements of a type on the ground floor of the hall. */
    static QList<QJsonObject> elementsOf(int type)
    {
        QList<QJsonObject> elements;
        const QJsonObject region = fileObject(sample("precast-hall"))["regions"].toArray()[0].toObject();
        for (const QJsonValue element : region["floors"].toArray()[1].toObject()["elements"].toArray())
            if (element.toObject()["type"] == type)
                elements.append(element.toObject());
        return elements;
    }
};

TEST_F(ColumnExamplesTest, examplesAreSoundAndTheSameWhenWrittenAgain)
{
    for (const QString &file : {kInput, kResults}) {
        const Result result = run({"column", "check", file, "--json"});
        EXPECT_EQ(result.exitCode, 0) << result.out.toStdString();
        EXPECT_EQ(result.json()["findings"], QJsonArray());
        EXPECT_EQ(result.json()["missingKeys"], 0);
        EXPECT_EQ(result.json()["same"], true);
    }
    EXPECT_EQ(run({"column", "check", kInput, "--json"}).json()["kind"], "identify-input");
    const QJsonObject results = run({"column", "check", kResults, "--json"}).json();
    EXPECT_EQ(results["kind"], "results");
    EXPECT_EQ(results["columns"], 24);
    EXPECT_EQ(results["cadLines"], 24);
}

TEST_F(ColumnExamplesTest, recordsWriteTheExamplesByteForByte)
{
    EXPECT_EQ(QJsonDocument(modelOf<ORVCADColumnCloudIdentifyInputModel>(kInput).toJson()).toJson(),
              fileContent(kInput));
    EXPECT_EQ(QJsonDocument(modelOf<ORVCADAIIdentifyColumnResultModel>(kResults).toJson()).toJson(),
              fileContent(kResults));
}

TEST_F(ColumnExamplesTest, resultsAreTheColumnsOfTheBuildingAtTheirPlaces)
{
    const auto model = modelOf<ORVCADAIIdentifyColumnResultModel>(kResults);
    std::size_t index = 0;
    for (const QJsonObject &element : elementsOf(kColumn)) {
        for (const QJsonValue object : element["drawObjects"].toArray()) {
            ASSERT_LT(index, model.resultData.size());
            const ORVCADIdentifyColumnResultData &record = *model.resultData[index++];
            const QJsonArray at = object.toObject()["shape"].toObject()["insertPoint"].toArray();
            EXPECT_EQ(record.columnName, element["name"].toString());
            EXPECT_EQ(record.floorCode, "1");
            EXPECT_EQ(record.columnInfo->position, vks::CVec2<double>(at[0].toDouble(), at[1].toDouble()));
            ASSERT_TRUE(record.cadPoly);
            EXPECT_LT((record.cadPoly->Box().Center() - record.columnInfo->position).Length(), 1e-6);
            EXPECT_NEAR(record.cadPoly->Area(), record.poly->Area(), 1.0);
        }
    }
    EXPECT_EQ(index, model.resultData.size());
}

TEST_F(ColumnExamplesTest, inputHasTheElementsAndAxesOfTheBuilding)
{
    const auto model = modelOf<ORVCADColumnCloudIdentifyInputModel>(kInput);
    const QList<QJsonObject> columns = elementsOf(kColumn);
    ASSERT_EQ(model.elements.size(), static_cast<std::size_t>(columns.size()));
    for (int i = 0; i < columns.size(); ++i) {
        const ColumnElementInfo &element = *model.elements[static_cast<std::size_t>(i)];
        const QJsonObject properties = columns[i]["properties"].toObject();
        EXPECT_EQ(element.name, columns[i]["name"].toString());
        EXPECT_EQ(element.sectionWidth, properties["SectionWidth"].toInt());
        EXPECT_EQ(element.sectionHeight, properties["SectionHeight"].toInt());
        EXPECT_EQ(element.sectionTypeID, properties["SectionTypeID"].toInt());
    }
    int axes = 0;
    for (const QJsonObject &grid : elementsOf(kGrid))
        for (const QJsonValue object : grid["drawObjects"].toArray())
            for (const QJsonValue group : object.toObject()["shape"].toObject()["axes"].toArray())
                axes += group.toArray().size();
    EXPECT_EQ(static_cast<int>(model.axisLineList.size()), axes);
    EXPECT_EQ(model.columnCodes, model.columnOptions.getColumnCodes());
}

} // namespace
