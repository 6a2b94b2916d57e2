#include "cli/DocumentReading.h"

#include <gtest/gtest.h>

using namespace orvcad;

namespace {

using Reading = std::vector<CheckFinding> (*)(const JsonTree &, const QByteArray &);

std::string findings(Reading reading, const QByteArray &text)
{
    const JsonTree document(text);
    std::string lines;
    for (const CheckFinding &finding : reading(document, text))
        lines += (document.path(finding.node, finding.missingKey) + ": " + finding.message).toStdString() + '\n';
    return lines;
}

TEST(DocumentReadingTest, buildingTellsNamesThatStandTwice)
{
    const QByteArray building = R"({"format": "hbx-project", "version": 1, "name": "", "regions": [%1]})";
    EXPECT_EQ(findings(readBuilding, QByteArray(building).replace("%1", R"({"name": "A"})")), "");
    const std::string twice =
        findings(readBuilding, QByteArray(building).replace("%1", R"({"name": "A"}, {"name": "A"})"));
    EXPECT_EQ(twice.substr(0, 17), "regions[1].name: ");
}

TEST(DocumentReadingTest, drawingTellsLayersThatStandTwice)
{
    const QByteArray layer = R"({"name": "A", "color": 1})";
    const QByteArray drawing = R"({"format": "cadi2", "version": 1, "layers": [)";
    EXPECT_EQ(findings(readDrawingText, drawing + layer + "]}"), "");
    EXPECT_EQ(findings(readDrawingText, drawing + layer + ',' + layer + "]}").substr(0, 16), "layers[1].name: ");
}

TEST(DocumentReadingTest, columnsTellPicturesThatAreLeftOut)
{
    EXPECT_EQ(findings(readColumns, R"({"ColumnHoopBarPicInfos": [{"id": 4}, {"id": 4}]})"),
              "ColumnHoopBarPicInfos[1]: has the id 4 of picture 0, and is left out\n");
}

} // namespace
