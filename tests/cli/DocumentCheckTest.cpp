#include "cli/DocumentCheck.h"

#include "TestFiles.h"

using namespace orvcad;

namespace {

class DocumentCheckTest : public TestFiles
{
protected:
    /** All lines about a file of that content, without its folder. */
    std::string linesOf(const QByteArray &content, const char *kind = nullptr) const
    {
        const DocumentCheck check(fileOf("f", content), kind ? documentKind(kind) : nullptr);
        return check.lines().join('\n').replace(path("f"), "f").toStdString();
    }
};

TEST_F(DocumentCheckTest, cleanDocumentIsCalledSo)
{
    EXPECT_EQ(linesOf(R"({"AreaName": "A", "Floors": []})"), "f: floors document: clean");
}

TEST_F(DocumentCheckTest, eachFaultHasLineAndColumnAndPlace)
{
    EXPECT_EQ(linesOf("{\"AreaName\": 5,\n \"Floros\": []}"),
              "f:1:14: AreaName: is the number 5; a text is expected (Name of the area)\n"
              "f:2:2: Floros: is no key of this object; \"Floors\" is meant, which is missing\n"
              "f: floors document: faulty, 2 faults");
}

TEST_F(DocumentCheckTest, valueThatIsNotReadIsNoFault)
{
    EXPECT_EQ(linesOf(R"({"AreaName": "A", "Floors": [], "Remark": ""})"),
              "f:1:33: Remark: is no key of this object, and not read\n"
              "f: floors document: not read whole, 1 value not read");
}

TEST_F(DocumentCheckTest, missingKeysAreToldWithWhatTheyReadAs)
{
    EXPECT_EQ(linesOf(R"({"eDoorWin": {"ElementsAndEdos": [
        {"elementName": "M1", "X": 1, "Y": 2, "floorName": "1", "regionName": "A"}]}})"),
              "f: reply of doors and windows: clean\n"
              "f: missing keys read as: eDoorWin.ElementsAndEdos[*].nHeightFromFloor (1) as 0");
}

TEST_F(DocumentCheckTest, keyThatRecordsOfSeveralFormsLackIsToldOnce)
{
    EXPECT_EQ(linesOf(R"({"eDoorWin": {"ElementsAndEdos": [
        {"elementID": 1, "name": "M1", "nElementType": 4, "nSubElementType": 14, "nWidth": 900, "nHeight": 2100,
         "floorName": "1", "regionName": "A"},
        {"elementName": "M1", "X": 1, "Y": 2, "floorName": "1", "regionName": "A"},
        {"elementName": "M1", "X": 5, "Y": 2, "floorName": "1", "regionName": "A"}]}})"),
              "f: reply of doors and windows: clean\n"
              "f: missing keys read as: eDoorWin.ElementsAndEdos[*].nHeightFromFloor (3) as 0");
}

TEST_F(DocumentCheckTest, whatApplyingAReplyWouldLeaveOutStandsBetweenTheFaults)
{
    EXPECT_EQ(linesOf(R"({"eDoorWin": {"ElementsAndEdos": [
{"elementName": "M1", "X": 1, "Y": 2, "nHeightFromFloor": 0, "floorName": "1", "regionName": "A", "width": 5},
{"elementID": 1, "name": "M1", "nElementType": 4, "nSubElementType": 14, "nWidth": 900, "nHeight": 2100,
 "nHeightFromFloor": 0, "floorName": "1", "regionName": "A"},
{"elementName": "M1", "X": "1", "Y": 2, "nHeightFromFloor": 0, "floorName": "1", "regionName": "A"}]}})"),
              "f:2:1: eDoorWin.ElementsAndEdos[0]: its element \"M1\" stands behind it, as member 1\n"
              "f:2:99: eDoorWin.ElementsAndEdos[0].width: is no key of this object, and not read\n"
              "f:5:28: eDoorWin.ElementsAndEdos[2].X: is the text \"1\"; a number is expected "
              "(World position of the insertion point, mm)\n"
              "f: reply of doors and windows: faulty, 1 fault, 1 value not read, 1 value left out");
}

TEST_F(DocumentCheckTest, whatIsNoDocumentIsToldAndNeverRead)
{
    EXPECT_EQ(linesOf(" \n"), "f: the file is empty\nf: faulty, 1 fault");
    EXPECT_EQ(linesOf("{\"a\": 1", "floors"),
              "f:1:8: not JSON: Missing a comma or '}' after an object member.\nf: floors document: faulty, 1 fault");
    EXPECT_EQ(linesOf("SQLite format 3\x01", nullptr).substr(0, 3), "f: ");
    EXPECT_EQ(linesOf("PK\x03\x04"), "f: the archive cannot be unpacked\nf: faulty, 1 fault");
    const std::string unknown = linesOf(R"({"cat": 1})");
    EXPECT_EQ(unknown.substr(0, 60), "f: the kind of document cannot be told from its keys; name o");
}

TEST_F(DocumentCheckTest, directoryAndMissingFileAreFaults)
{
    const DocumentCheck missing(path("none"), nullptr);
    EXPECT_EQ(missing.verdict(), "faulty");
    EXPECT_EQ(missing.findings()[0].message, "No such file or directory");
    EXPECT_EQ(DocumentCheck(path(""), nullptr).findings()[0].message, "is a directory");
}

TEST_F(DocumentCheckTest, listsOfXmlAreLeftOut)
{
    const DocumentCheck check(fileOf("f", "<XmlRoot><CadEntBrickWallDataInfo/></XmlRoot>"), nullptr);
    EXPECT_EQ(check.kind(), "wall-input");
    EXPECT_EQ(check.count(CheckFinding::Weight::Fault), 11); // the other sections are missing
}

TEST_F(DocumentCheckTest, summaryHoldsEverything)
{
    const QJsonObject json = DocumentCheck(fileOf("f", R"({"AreaName": 5, "Floors": []})"), nullptr).toJson();
    EXPECT_EQ(json["kind"], "floors");
    EXPECT_EQ(json["verdict"], "faulty");
    EXPECT_EQ(json["faults"].toArray(),
              QJsonArray{QJsonObject({{"place", "AreaName"},
                                      {"pointer", "/AreaName"},
                                      {"rule", "type"},
                                      {"line", 1},
                                      {"column", 14},
                                      {"value", "5"},
                                      {"expected", "a text"},
                                      {"message", "is the number 5; a text is expected (Name of the area)"}})});
    EXPECT_TRUE(json["ignored"].toArray().isEmpty());
}

} // namespace
