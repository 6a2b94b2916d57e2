#include "platform/dwgx/Cadi2Reader.h"

#include <gtest/gtest.h>

namespace {

using dwgx::readCadi2;

/** "place: reason" of a document that is refused; empty for one that is read. */
std::string refusalOf(const QByteArray &document)
{
    dwgx::JsonRefusal refusal{QStringLiteral("before"), QStringLiteral("nothing")};
    if (readCadi2(document, refusal)) {
        EXPECT_EQ(refusal.place, "before") << "a refusal of a document that is read";
        return {};
    }
    return (refusal.place + QStringLiteral(": ") + refusal.reason).toStdString();
}

/** A document with one layer, on which these lines stand. */
QByteArray withLines(const QByteArray &lines)
{
    return R"({"format": "cadi2", "version": 1, "layers": [{"name": "WALL", "color": 3, "lines": [)" + lines + "]}]}";
}

TEST(Cadi2ReaderTest, drawingHasWhatTheDocumentTells)
{
    dwgx::JsonRefusal refusal;
    const auto drawing = readCadi2(R"json({
        "format": "cadi2", "version": 1, "title": "Level 1", "remark": "draft", "ext": {"scale": "1:50"},
        "viewer": {"orientation": [0, 1, 0, 0.5], "zoom": 2.5, "turn": 0.25, "flags": 7},
        "layers": [{"name": "WALL", "color": 3,
            "lines": [{"id": 9, "color": 1, "block": 4, "curve": "LINESTRING(0 0, 1000 0)"}],
            "texts": [{"id": 3, "text": "Q1", "point": [10, 20], "height": 250, "angle": 1.5}]}]})json",
                                   refusal);
    ASSERT_TRUE(drawing) << qPrintable(refusal.reason);
    EXPECT_EQ(drawing->getTitle(), "Level 1");
    EXPECT_EQ(drawing->getRemark(), "draft");
    EXPECT_EQ(drawing->getCADExtData()->value("scale"), "1:50");
    EXPECT_EQ(drawing->getViewerInfoData().orientation, (std::array<float, 4>{0.0F, 1.0F, 0.0F, 0.5F}));
    EXPECT_EQ(drawing->getViewerInfoData().flags, 7U);
    ASSERT_EQ(drawing->lineCount(), 1);
    const dwgx::DWGXLine &line = drawing->layers().front().lines.front();
    EXPECT_EQ(line.id, 9);
    EXPECT_EQ(line.color, 1);
    EXPECT_EQ(line.blockId, 4);
    EXPECT_EQ(line.curve->ToText(), "LINESTRING(0 0, 1000 0)");
    ASSERT_EQ(drawing->textCount(), 1);
    const dwgx::DWGXText &text = drawing->layers().front().texts.front();
    EXPECT_EQ(text.content, "Q1");
    EXPECT_EQ(text.point, (vks::CVec2<double>(10, 20)));
    EXPECT_EQ(text.angle, 1.5);
}

TEST(Cadi2ReaderTest, membersThatMayBeMissingLeaveTheDefaults)
{
    dwgx::JsonRefusal refusal;
    const auto drawing = readCadi2(withLines(R"json({"id": 1, "curve": "LINESTRING(0 0, 1 0)"})json"), refusal);
    ASSERT_TRUE(drawing);
    EXPECT_EQ(drawing->getTitle(), QString());
    EXPECT_EQ(drawing->getCADExtData(), nullptr);
    EXPECT_EQ(drawing->getViewerInfoData().zoom, 1.0F);
    EXPECT_EQ(drawing->layers().front().lines.front().color, dwgx::kColorByLayer);
    EXPECT_EQ(drawing->layers().front().lines.front().blockId, 0);
    EXPECT_EQ(drawing->textCount(), 0);
}

TEST(Cadi2ReaderTest, newerFileIsCalledNewerWhateverElseIsInIt)
{
    EXPECT_EQ(refusalOf(R"({"format": "cadi2", "version": 2, "sheets": 4})"), "version: is newer than 1");
    EXPECT_EQ(refusalOf(R"({"format": "cadi2", "version": 0, "layers": []})"), "version: is not 1");
    EXPECT_EQ(refusalOf(R"({"format": "cadi3", "version": 2, "layers": []})"), "format: is not \"cadi2\"");
}

TEST(Cadi2ReaderTest, whatIsNoJsonObjectIsRefused)
{
    EXPECT_EQ(refusalOf("[]"), ": is not an object");
    EXPECT_EQ(refusalOf("").substr(0, 13), ": is not JSON");
    EXPECT_EQ(refusalOf("{\"format\":").substr(0, 13), ": is not JSON");
}

TEST(Cadi2ReaderTest, curveIsTheWholeTextOfOneLineOrArc)
{
    const std::string refused = "layers[0].lines[0].curve: is not the text of a line or an arc";
    EXPECT_EQ(refusalOf(withLines(R"json({"id": 1, "curve": "LINESTRING(0 0, 1 0)"})json")), "");
    EXPECT_EQ(refusalOf(withLines(R"json({"id": 1, "curve": "POLYGON((0 0, 1 0, 1 1, 0 0))"})json")), refused);
    EXPECT_EQ(refusalOf(withLines(R"json({"id": 1, "curve": "LINESTRING(0 0, 1 0)\u0000 and more"})json")), refused);
    EXPECT_EQ(refusalOf(withLines(R"json({"id": 1, "curve": ""})json")), refused);
}

TEST(Cadi2ReaderTest, idStandsOnceInTheDrawing)
{
    const QByteArray line = R"json({"id": 5, "curve": "LINESTRING(0 0, 1 0)"})json";
    EXPECT_EQ(refusalOf(withLines(line + ", " + line)), "layers[0].lines[1].id: stands twice in the drawing");
}

TEST(Cadi2ReaderTest, viewerNumberBeyondSinglePrecisionIsRefused)
{
    EXPECT_EQ(refusalOf(R"({"format": "cadi2", "version": 1, "layers": [],
                            "viewer": {"orientation": [0, 0, -1, 0], "zoom": 1e39, "turn": 0, "flags": 0}})"),
              "viewer.zoom: is out of range");
}

} // namespace
