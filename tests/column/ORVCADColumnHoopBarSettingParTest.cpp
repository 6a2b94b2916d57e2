#include "column/ORVCADColumnHoopBarSettingPar.h"

#include "ColumnDocuments.h"

#include <memory>

namespace {

using Par = ORVCADColumnHoopBarSettingPar;
using Picture = ORVCADColumnHoopBarPicInfo;
using Setting = ORVCADColumnHoopBarSetting;

/** Keeps what the debug log gets while it lives. */
class DebugLog
{
public:
    DebugLog() : m_before(qInstallMessageHandler(&DebugLog::take)) { s_lines.clear(); }
    ~DebugLog() { qInstallMessageHandler(m_before); }
    DebugLog(const DebugLog &) = delete;
    DebugLog &operator=(const DebugLog &) = delete;

    static const QStringList &lines() { return s_lines; }

private:
    static void take(QtMsgType type, const QMessageLogContext & /*context*/, const QString &text)
    {
        s_lines.append(type == QtDebugMsg ? text : "not debug: " + text);
    }
    inline static QStringList s_lines;
    QtMessageHandler m_before;
};

class ORVCADColumnHoopBarSettingParTest : public ::testing::Test
{
protected:
    void addPicture(qint64 id, qint64 picture, int limbs)
    {
        par.addHoopBarPicInfo(id, new Picture{picture, limbs, ""});
    }
    void addSetting(int bLimbs, int hLimbs, qint64 ofB, qint64 ofH)
    {
        par.addHoopBarSetting(new Setting{1, ofB, ofH, hLimbs, bLimbs});
    }
    bool parse(const std::wstring &text)
    {
        bPicture = hPicture = 777; // what the outputs held before
        return par.parseColumnCombLimbInfo(text, bPicture, hPicture);
    }
    /** "result b h". */
    std::string parsed(const std::wstring &text)
    {
        const bool result = parse(text);
        return (result ? "true " : "false ") + std::to_string(bPicture) + ' ' + std::to_string(hPicture);
    }

    Par par;
    qint64 bPicture = 0;
    qint64 hPicture = 0;
};

TEST_F(ORVCADColumnHoopBarSettingParTest, patternGivesItsPicturesWithoutALookAtTheCatalogue)
{
    addPicture(1, 400, 4);
    addSetting(4, 4, 45, 54);
    EXPECT_EQ(parsed(L"4*4"), "true 45 54");
}

TEST_F(ORVCADColumnHoopBarSettingParTest, catalogueGivesThePicturesOfATextWithoutAPattern)
{
    addPicture(1, 40, 4);
    addPicture(2, 60, 6);
    EXPECT_EQ(parsed(L"4*6"), "true 40 60");
    EXPECT_EQ(parsed(L"6*4"), "true 60 40");
}

TEST_F(ORVCADColumnHoopBarSettingParTest, firstNumberIsTheBSide)
{
    addSetting(4, 6, 46, 64);
    EXPECT_EQ(parsed(L"4*6"), "true 46 64");
    EXPECT_EQ(parsed(L"6*4"), "false -1 -1");
}

TEST_F(ORVCADColumnHoopBarSettingParTest, everyPairOfTheCatalogueGivesItsTwoPictures)
{
    for (int limbs = 1; limbs <= 12; ++limbs)
        addPicture(100 - limbs, 1000 + limbs, limbs);
    for (int b = 1; b <= 12; ++b)
        for (int h = 1; h <= 12; ++h) {
            const std::wstring text = std::to_wstring(b) + L'*' + std::to_wstring(h);
            ASSERT_TRUE(parse(text)) << b << '*' << h;
            EXPECT_EQ(bPicture, 1000 + b);
            EXPECT_EQ(hPicture, 1000 + h);
        }
}

TEST_F(ORVCADColumnHoopBarSettingParTest, everyPatternIsFoundByItsText)
{
    for (int b = 1; b <= 6; ++b)
        for (int h = 1; h <= 6; ++h)
            addSetting(b, h, 10 * b + h, 100 * b + h);
    for (int b = 1; b <= 6; ++b)
        for (int h = 1; h <= 6; ++h) {
            ASSERT_TRUE(parse(std::to_wstring(b) + L'*' + std::to_wstring(h)));
            EXPECT_EQ(bPicture, 10 * b + h);
            EXPECT_EQ(hPicture, 100 * b + h);
        }
}

TEST_F(ORVCADColumnHoopBarSettingParTest, firstOfTwoEqualPatternsCounts)
{
    addSetting(4, 4, 1, 2);
    addSetting(4, 4, 3, 4);
    EXPECT_EQ(parsed(L"4*4"), "true 1 2");
}

TEST_F(ORVCADColumnHoopBarSettingParTest, textThatIsNoPairOfNumbersLeavesTheOutputsAlone)
{
    addPicture(1, 40, 4);
    for (const wchar_t *text : {L"", L"   ", L"4", L"4*", L"*4", L"*", L"4*x", L"x*4", L"4*4*4", L"4**4", L"4.0*4",
                                L"4x4", L"0x4*4", L"4*4,", L"4*99999999999", L"四*四", L"4\u00d74"})
        EXPECT_EQ(parsed(text), "false 777 777") << QString::fromWCharArray(text).toStdString();
}

TEST_F(ORVCADColumnHoopBarSettingParTest, blanksAroundATextMissThePatternAndAreTrimmedForTheCatalogue)
{
    addPicture(1, 40, 4);
    addPicture(2, 50, 5);
    addSetting(4, 5, 45, 54);
    EXPECT_EQ(parsed(L"4*5"), "true 45 54");
    EXPECT_EQ(parsed(L" 4*5\t"), "true 40 50");
    EXPECT_EQ(parsed(L"4 * 5"), "true 40 50");
}

TEST_F(ORVCADColumnHoopBarSettingParTest, numberOfLimbsWithoutAPictureFailsAndSetsBothOutputsAllTheSame)
{
    addPicture(1, 40, 4);
    EXPECT_EQ(parsed(L"4*5"), "false 40 -1");
    EXPECT_EQ(parsed(L"5*4"), "false -1 40");
    EXPECT_EQ(parsed(L"5*5"), "false -1 -1");
}

TEST_F(ORVCADColumnHoopBarSettingParTest, pictureOfTheLowestIdCountsAmongThoseOfOneNumberOfLimbs)
{
    addPicture(9, 90, 4);
    addPicture(-3, 30, 4);
    addPicture(5, 50, 4);
    EXPECT_EQ(parsed(L"4*4"), "true 30 30");
}

TEST_F(ORVCADColumnHoopBarSettingParTest, patternWithoutPicturesIsFoundAllTheSame)
{
    addSetting(2, 2, -1, -1);
    EXPECT_EQ(parsed(L"2*2"), "true -1 -1");
}

TEST_F(ORVCADColumnHoopBarSettingParTest, negativeNumbersAreNumbers)
{
    addSetting(-1, 2, 1, 2);
    addPicture(1, 40, -4);
    EXPECT_EQ(parsed(L"-1*2"), "true 1 2");
    EXPECT_EQ(parsed(L"-4*-4"), "true 40 40");
}

TEST_F(ORVCADColumnHoopBarSettingParTest, knownIdKeepsItsPictureAndLogsAMessage)
{
    addPicture(1, 40, 4);
    const auto second = std::make_unique<Picture>(Picture{50, 4, "second"}); // stays ours
    const DebugLog log;
    par.addHoopBarPicInfo(1, second.get());
    EXPECT_EQ(log.lines(), QStringList{"add map failed!"});
    EXPECT_EQ(parsed(L"4*4"), "true 40 40");
    EXPECT_EQ(second->hoopBarName, "second");
}

TEST_F(ORVCADColumnHoopBarSettingParTest, newIdIsTakenWithoutAMessage)
{
    const DebugLog log;
    addPicture(1, 40, 4);
    addPicture(2, 50, 4);
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(ORVCADColumnHoopBarSettingParTest, nullIsIgnored)
{
    const DebugLog log;
    par.addHoopBarPicInfo(1, nullptr);
    par.addHoopBarSetting(nullptr);
    expectSameJson(par.toJson(), Par().toJson());
    EXPECT_TRUE(log.lines().isEmpty());
    EXPECT_EQ(parsed(L"0*0"), "false -1 -1");
}

TEST_F(ORVCADColumnHoopBarSettingParTest, whatIsAddedTwiceIsDeletedOnce)
{
    auto *picture = new Picture{40, 4, ""};
    par.addHoopBarPicInfo(1, picture);
    par.addHoopBarPicInfo(2, picture);
    auto *setting = new Setting;
    par.addHoopBarSetting(setting);
    par.addHoopBarSetting(setting);
    EXPECT_EQ(par.toJson()["ColumnHoopBarPicInfos"].toArray().size(), 2);
    EXPECT_EQ(par.toJson()["ColumnHoopBarSettings"].toArray().size(), 2);
}

TEST_F(ORVCADColumnHoopBarSettingParTest, writesPicturesInIdOrderAndPatternsAsTheyWereAdded)
{
    par.addHoopBarPicInfo(8, new Picture{62, 6, "six"});
    par.addHoopBarPicInfo(3, new Picture{41, 4, "four"});
    par.addHoopBarSetting(new Setting{9, 45, 54, 5, 4});
    par.addHoopBarSetting(new Setting{7, 22, 33, 3, 2});
    expectSameJson(par.toJson(), jsonOf(R"({
        "ColumnHoopBarPicInfos": [{"id": 3, "BarPicID": 41, "LimbCount": 4, "HoopBarName": "four"},
                                  {"id": 8, "BarPicID": 62, "LimbCount": 6, "HoopBarName": "six"}],
        "ColumnHoopBarSettings": [
            {"HLimbCount": 5, "BLimbCount": 4, "HoopBarSettingID": 9, "HoopBarBPicID": 45, "HoopBarHPicID": 54},
            {"HLimbCount": 3, "BLimbCount": 2, "HoopBarSettingID": 7, "HoopBarBPicID": 22, "HoopBarHPicID": 33}]})"));
}

TEST_F(ORVCADColumnHoopBarSettingParTest, newParWritesTwoEmptyArrays)
{
    expectSameJson(Par().toJson(), jsonOf(R"({"ColumnHoopBarPicInfos": [], "ColumnHoopBarSettings": []})"));
}

TEST_F(ORVCADColumnHoopBarSettingParTest, readsBackWhatItWrote)
{
    const QJsonObject json = jsonOf(columnDocument("identify-input"))["oHoopBarSettingPar"].toObject();
    par.fromJson(json);
    expectSameJson(par.toJson(), json);
    EXPECT_EQ(parsed(L"4*5"), "true 45 54");
    EXPECT_EQ(parsed(L"4*6"), "true 41 62");
}

TEST_F(ORVCADColumnHoopBarSettingParTest, readingAddsAndAKnownIdIsLeftOutWithoutAMessage)
{
    addPicture(3, 40, 4);
    const DebugLog log;
    const QJsonObject json = jsonOf(R"({
        "ColumnHoopBarPicInfos": [{"id": 3, "BarPicID": 41, "LimbCount": 4}, {"id": 4, "BarPicID": 1, "LimbCount": 9},
                                  {"id": 4, "BarPicID": 2, "LimbCount": 9}],
        "ColumnHoopBarSettings": [{"HLimbCount": 1, "BLimbCount": 1}]})");
    par.fromJson(json);
    par.fromJson(json);
    EXPECT_TRUE(log.lines().isEmpty());
    EXPECT_EQ(par.toJson()["ColumnHoopBarPicInfos"].toArray().size(), 2);
    EXPECT_EQ(par.toJson()["ColumnHoopBarSettings"].toArray().size(), 2);
    EXPECT_EQ(parsed(L"4*9"), "true 40 1");
}

TEST_F(ORVCADColumnHoopBarSettingParTest, idsAreWrittenWholeAndReadWith32Bits)
{
    par.addHoopBarPicInfo(5000000000, new Picture{6000000000, 4, ""});
    par.addHoopBarSetting(new Setting{7000000000, 8000000000, 9000000000, 2, 2});
    const QJsonObject json = par.toJson();
    const QJsonObject picture = json["ColumnHoopBarPicInfos"].toArray()[0].toObject();
    const QJsonObject setting = json["ColumnHoopBarSettings"].toArray()[0].toObject();
    EXPECT_EQ(picture["id"].toDouble(), 5e9);
    EXPECT_EQ(picture["BarPicID"].toDouble(), 6e9);
    EXPECT_EQ(setting["HoopBarSettingID"].toDouble(), 7e9);
    EXPECT_EQ(setting["HoopBarBPicID"].toDouble(), 8e9);
    EXPECT_EQ(setting["HoopBarHPicID"].toDouble(), 9e9);

    Par read;
    read.fromJson(json);
    expectSameJson(read.toJson(), jsonOf(R"({
        "ColumnHoopBarPicInfos": [{"id": 0, "BarPicID": 0, "LimbCount": 4, "HoopBarName": ""}],
        "ColumnHoopBarSettings": [
            {"HLimbCount": 2, "BLimbCount": 2, "HoopBarSettingID": 0, "HoopBarBPicID": 0, "HoopBarHPicID": 0}]})"));
}

TEST_F(ORVCADColumnHoopBarSettingParTest, missingAndMistypedValuesReadAsZeroOrEmpty)
{
    par.fromJson(jsonOf(R"({"ColumnHoopBarPicInfos": [{"id": "3", "BarPicID": 1.5, "LimbCount": "4", "HoopBarName": 5}],
                            "ColumnHoopBarSettings": [7, null]})"));
    expectSameJson(par.toJson(), jsonOf(R"({
        "ColumnHoopBarPicInfos": [{"id": 0, "BarPicID": 0, "LimbCount": 0, "HoopBarName": ""}],
        "ColumnHoopBarSettings": [
            {"HLimbCount": 0, "BLimbCount": 0, "HoopBarSettingID": 0, "HoopBarBPicID": 0, "HoopBarHPicID": 0},
            {"HLimbCount": 0, "BLimbCount": 0, "HoopBarSettingID": 0, "HoopBarBPicID": 0, "HoopBarHPicID": 0}]})"));
}

TEST_F(ORVCADColumnHoopBarSettingParTest, listsOfAnotherTypeAddNothing)
{
    par.fromJson({{"ColumnHoopBarPicInfos", "none"}, {"ColumnHoopBarSettings", QJsonObject{{"id", 1}}}});
    expectSameJson(par.toJson(), Par().toJson());
}

TEST_F(ORVCADColumnHoopBarSettingParTest, copyHasPicturesAndPatternsOfItsOwn)
{
    addPicture(1, 40, 4);
    addSetting(4, 6, 46, 64);
    const QJsonObject before = par.toJson();
    auto copy = std::make_unique<Par>(par);
    expectSameJson(copy->toJson(), before);
    copy->fromJson(jsonOf(R"({"ColumnHoopBarSettings": [{}]})"));
    expectSameJson(par.toJson(), before);
    copy.reset();
    expectSameJson(par.toJson(), before);
    EXPECT_EQ(parsed(L"4*6"), "true 46 64");
}

TEST_F(ORVCADColumnHoopBarSettingParTest, assignmentReplacesWhatWasThere)
{
    addPicture(1, 40, 4);
    Par other;
    other.addHoopBarPicInfo(2, new Picture{50, 5, ""});
    other = par;
    expectSameJson(other.toJson(), par.toJson());
    const Par &same = other;
    other = same;
    expectSameJson(other.toJson(), par.toJson());
    other = Par();
    expectSameJson(other.toJson(), Par().toJson());
}

} // namespace
