#include "beam/ORVCADBeamEdoInfoTmp.h"

#include "IdentifyResults.h"
#include "RecordChecks.h"

#include <QJsonArray>

namespace {

const QByteArray kFilled = R"({"strName": "KL1", "nElementType": 15, "nBeamType": 1, "strSpanDesc": "2A",
    "strSection": "300*600", "strHoopBar": "A8", "strTopThroughBar": "2C25", "strBottomThroughBar": "4C22",
    "strSideBar": "G4C12", "eCantileverType": 3,
    "edoInfos": [{"nSpanNum": "2", "nWidth": 300, "strStartElev": "", "strEndElev": "", "enStartElevType": 0,
                  "enEndElevType": 0, "vecSegmentInfo": []}],
    "seatEdoIDList": [
        {"eSeatIDType": 0, "nSeatID": 12, "nBeamSegmentInfoID": "{00000000-0000-0000-0000-000000000000}"},
        {"eSeatIDType": 1, "nSeatID": -1, "nBeamSegmentInfoID": "{67c8770b-44f1-410a-ab9a-f9b5446f13ee}"}]})";

const QUuid kSegment("{67c8770b-44f1-410a-ab9a-f9b5446f13ee}");

class ORVCADBeamEdoInfoTmpTest : public ::testing::Test
{
protected:
    ~ORVCADBeamEdoInfoTmpTest() override { deleteContent(m_label); }

    void addSeat(int type, qint64 id, const QUuid &segment = QUuid())
    {
        auto *seat = new ORVCADBeamSeatInfo;
        seat->eSeatIDType = static_cast<ORVCADBeamSeatIDType>(type);
        seat->nSeatID = id;
        seat->nBeamSegmentInfoID = segment;
        m_label.seatEdoIDList.append(seat);
    }
    ORVCADBeamEdoInfoTmp m_label;
};

TEST_F(ORVCADBeamEdoInfoTmpTest, eachKeyIsReadAndWritten)
{
    ORVCADBeamEdoInfoTmp::fromJson(&m_label, jsonOf(kFilled));
    EXPECT_EQ(m_label.strName, "KL1");
    EXPECT_EQ(m_label.nElementType, 15);
    EXPECT_EQ(m_label.nBeamType, 1);
    EXPECT_EQ(m_label.strSpanDesc, "2A");
    EXPECT_EQ(m_label.strSection, "300*600");
    EXPECT_EQ(m_label.strHoopBar, "A8");
    EXPECT_EQ(m_label.strTopThroughBar, "2C25");
    EXPECT_EQ(m_label.strBottomThroughBar, "4C22");
    EXPECT_EQ(m_label.strSideBar, "G4C12");
    EXPECT_EQ(m_label.eCantileverType, 3);
    ASSERT_EQ(m_label.edoInfos.size(), 1);
    EXPECT_EQ(m_label.edoInfos[0]->nWidth, 300);
    ASSERT_EQ(m_label.seatEdoIDList.size(), 2);
    EXPECT_EQ(m_label.seatEdoIDList[0]->nSeatID, 12);
    expectSameJson(m_label.toJson(), jsonOf(kFilled));
}

TEST_F(ORVCADBeamEdoInfoTmpTest, missingAndMistypedKeysGiveZeroAndEmptyText)
{
    ORVCADBeamEdoInfoTmp::fromJson(&m_label, jsonOf(R"({"strName": "KL1", "nBeamType": 1})"));
    ORVCADBeamEdoInfoTmp::fromJson(&m_label, jsonOf(R"({"strName": 1, "nBeamType": "1", "edoInfos": {}})"));
    expectSameJson(m_label.toJson(), ORVCADBeamEdoInfoTmp().toJson());
    EXPECT_EQ(m_label.strName, "");
}

TEST_F(ORVCADBeamEdoInfoTmpTest, idsAreThoseOfTheSeatsThatAreDrawObjectsInListOrder)
{
    addSeat(0, 12);
    addSeat(1, 13, kSegment);
    addSeat(0, 11);
    addSeat(2, 14);
    EXPECT_EQ(m_label.getSeatEdoIDList(), (QList<qint64>{12, 11}));
}

TEST_F(ORVCADBeamEdoInfoTmpTest, seatOfASegmentIsTheFirstOfTypeOne)
{
    addSeat(0, 1, kSegment);
    addSeat(1, 2, kSegment);
    addSeat(1, 3, kSegment);
    EXPECT_EQ(m_label.getSeatInfo(kSegment), m_label.seatEdoIDList[1]);
    EXPECT_EQ(m_label.getSeatInfo(QUuid()), nullptr);
}

TEST_F(ORVCADBeamEdoInfoTmpTest, nullSeatsArePassedOver)
{
    m_label.seatEdoIDList.append(nullptr);
    m_label.edoInfos.clear();
    EXPECT_TRUE(m_label.getSeatEdoIDList().isEmpty());
    EXPECT_EQ(m_label.getSeatInfo(QUuid()), nullptr);
    EXPECT_TRUE(m_label.toJson()["seatEdoIDList"].toArray().isEmpty());
}

TEST_F(ORVCADBeamEdoInfoTmpTest, destructorLeavesRunsAndSeatsToTheirHolder)
{
    ORVCADBeamSeatInfo seat;
    ORVCADBeamEDOInfo run;
    {
        ORVCADBeamEdoInfoTmp label;
        label.seatEdoIDList = {&seat};
        label.edoInfos = {&run};
    }
    EXPECT_EQ(seat.nSeatID, -1);
    EXPECT_EQ(run.nWidth, 0);
}

TEST_F(ORVCADBeamEdoInfoTmpTest, nullTargetIsLeftAlone) { ORVCADBeamEdoInfoTmp::fromJson(nullptr, jsonOf(kFilled)); }

} // namespace
