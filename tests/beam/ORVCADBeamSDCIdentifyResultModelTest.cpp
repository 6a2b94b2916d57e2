#include "beam/ORVCADBeamSDCIdentifyResultModel.h"

#include "beam/ORVCADBeamEDOInfo.h"
#include "beam/ORVCADBeamSDCSegmentInfo.h"

#include <gtest/gtest.h>

namespace {

TEST(ORVCADBeamSDCIdentifyResultModelTest, labelsAreHandedOverAndDeletedWithTheModel)
{
    ORVCADBeamSDCIdentifyResultModel model;
    EXPECT_TRUE(model.getElementInfo().isEmpty());
    auto *label = new ORVCADBeamElementInfo;
    model.setElementInfo({label});
    EXPECT_EQ(model.getElementInfo(), QList<ORVCADBeamElementInfo *>{label});
}

TEST(ORVCADBeamSDCIdentifyResultModelTest, labelTakesRunsOfBothFamiliesAndSeatsOfItsOwn)
{
    ORVCADBeamEDOInfo run;
    ORVCADBeamSDCSeatInfo seat;
    ORVCADBeamElementInfo label;
    label.strName = "KL1";
    label.edoInfos = {&run};
    label.seatEdoIDList = {&seat};
    seat.nSeatID = 12;
    EXPECT_EQ(label.getSeatEdoIDList(), QList<qint64>{12});
}

TEST(ORVCADBeamSDCIdentifyResultModelTest, newSeatAndSegmentAreAsInTheFirstFamily)
{
    const ORVCADBeamSDCSeatInfo seat;
    EXPECT_EQ(seat.eSeatIDType, kSeatIsDrawObj);
    EXPECT_EQ(seat.nSeatID, -1);
    EXPECT_TRUE(seat.nBeamSegmentInfoID.isNull());
    const ORVCADBeamSDCSegmentInfo segment;
    EXPECT_FALSE(segment.ipLine);
    EXPECT_EQ(segment.dOffset, 0.0);
    EXPECT_TRUE(segment.id.isNull());
}

} // namespace
