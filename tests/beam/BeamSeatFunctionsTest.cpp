#include "beam/BeamSeatFunctions.h"

#include <gtest/gtest.h>

namespace {

const QUuid kSegment("{67c8770b-44f1-410a-ab9a-f9b5446f13ee}");
const QUuid kOther("{00000000-0000-0000-0000-000000000001}");

/** The two families differ in nothing here. */
template <typename ElementInfo> class BeamSeatFunctionsTest : public ::testing::Test
{
protected:
    using SeatInfo = std::remove_pointer_t<typename decltype(ElementInfo::seatEdoIDList)::value_type>;
    using Seats = QList<SeatInfo *>;

    ~BeamSeatFunctionsTest() override { qDeleteAll(m_seats); }

    SeatInfo *add(ORVCADBeamSeatIDType type, qint64 id, const QUuid &segment)
    {
        auto *seat = createBeamSeatInfo<SeatInfo>(type, id, segment);
        m_seats.append(seat);
        return seat;
    }
    Seats m_seats;
};

using Families = ::testing::Types<ORVCADBeamEdoInfoTmp, ORVCADBeamElementInfo>;
TYPED_TEST_SUITE(BeamSeatFunctionsTest, Families, );

TYPED_TEST(BeamSeatFunctionsTest, seatThatIsADrawObjectHasANullSegment)
{
    const auto *seat = this->add(kSeatIsDrawObj, 12, kSegment);
    EXPECT_EQ(seat->eSeatIDType, kSeatIsDrawObj);
    EXPECT_EQ(seat->nSeatID, 12);
    EXPECT_TRUE(seat->nBeamSegmentInfoID.isNull());
}

TYPED_TEST(BeamSeatFunctionsTest, seatThatIsASegmentHasIdMinusOne)
{
    const auto *seat = this->add(kSeatIsSegment, 12, kSegment);
    EXPECT_EQ(seat->eSeatIDType, kSeatIsSegment);
    EXPECT_EQ(seat->nSeatID, -1);
    EXPECT_EQ(seat->nBeamSegmentInfoID, kSegment);
}

TYPED_TEST(BeamSeatFunctionsTest, anyOtherTypeIsStoredAsGivenAndKeepsTheSegment)
{
    const auto *seat = this->add(static_cast<ORVCADBeamSeatIDType>(7), 12, kSegment);
    EXPECT_EQ(static_cast<int>(seat->eSeatIDType), 7);
    EXPECT_EQ(seat->nSeatID, -1);
    EXPECT_EQ(seat->nBeamSegmentInfoID, kSegment);
}

TYPED_TEST(BeamSeatFunctionsTest, removeTakesOnlyTheFirstSeatOfAnId)
{
    this->add(kSeatIsDrawObj, 11, {});
    this->add(kSeatIsDrawObj, 12, {});
    auto *second = this->add(kSeatIsDrawObj, 12, {});
    removeSeatInfo(this->m_seats, 12);
    ASSERT_EQ(this->m_seats.size(), 2);
    EXPECT_EQ(this->m_seats[0]->nSeatID, 11);
    EXPECT_EQ(this->m_seats[1], second);
}

TYPED_TEST(BeamSeatFunctionsTest, removeLooksAtTheIdWhateverTheType)
{
    this->add(kSeatIsSegment, 0, kSegment); // its id is -1
    removeSeatInfo(this->m_seats, -1);
    EXPECT_TRUE(this->m_seats.isEmpty());
}

TYPED_TEST(BeamSeatFunctionsTest, removeOfAnUnknownIdDoesNothing)
{
    this->m_seats.append(nullptr);
    this->add(kSeatIsDrawObj, 12, {});
    removeSeatInfo(this->m_seats, 13);
    EXPECT_EQ(this->m_seats.size(), 2);
}

TYPED_TEST(BeamSeatFunctionsTest, replacedSeatBecomesADrawObjectAndKeepsItsSegment)
{
    auto *seat = this->add(kSeatIsSegment, 0, kSegment);
    auto *other = this->add(kSeatIsSegment, 0, kOther);
    replaceSegmentIDwithEdoID(this->m_seats, 55, kSegment);
    EXPECT_EQ(seat->eSeatIDType, kSeatIsDrawObj);
    EXPECT_EQ(seat->nSeatID, 55);
    EXPECT_EQ(seat->nBeamSegmentInfoID, kSegment);
    EXPECT_EQ(other->eSeatIDType, kSeatIsSegment);
    EXPECT_EQ(other->nSeatID, -1);
}

TYPED_TEST(BeamSeatFunctionsTest, replaceTakesEverySeatOfTheSegmentWhateverItsType)
{
    this->m_seats.append(nullptr);
    auto *first = this->add(kSeatIsSegment, 0, kSegment);
    auto *second = this->add(static_cast<ORVCADBeamSeatIDType>(7), 0, kSegment);
    replaceSegmentIDwithEdoID(this->m_seats, 55, kSegment);
    replaceSegmentIDwithEdoID(this->m_seats, 56, kSegment); // draw objects by now, of that segment still
    EXPECT_EQ(first->nSeatID, 56);
    EXPECT_EQ(second->nSeatID, 56);
    EXPECT_EQ(second->eSeatIDType, kSeatIsDrawObj);
}

TYPED_TEST(BeamSeatFunctionsTest, replaceOfTheNullSegmentMeetsSeatsOfDrawObjects)
{
    auto *seat = this->add(kSeatIsDrawObj, 12, {});
    replaceSegmentIDwithEdoID(this->m_seats, 55, QUuid());
    EXPECT_EQ(seat->nSeatID, 55);
}

TYPED_TEST(BeamSeatFunctionsTest, replacedSeatIsFoundByIdAndNoLongerBySegment)
{
    TypeParam label;
    this->add(kSeatIsSegment, 0, kSegment);
    label.seatEdoIDList = this->m_seats;
    ASSERT_EQ(label.getSeatInfo(kSegment), this->m_seats[0]);
    EXPECT_TRUE(label.getSeatEdoIDList().isEmpty());
    QList<TypeParam *> labels = {nullptr, &label};
    replaceSegmentIDwithEdoID(labels, 55, kSegment);
    EXPECT_EQ(label.getSeatInfo(kSegment), nullptr);
    EXPECT_EQ(label.getSeatEdoIDList(), QList<qint64>{55});
}

TYPED_TEST(BeamSeatFunctionsTest, replaceGoesThroughTheSeatsOfAllLabels)
{
    TypeParam first;
    TypeParam second;
    first.seatEdoIDList = {this->add(kSeatIsSegment, 0, kSegment)};
    second.seatEdoIDList = {this->add(kSeatIsSegment, 0, kSegment)};
    QList<TypeParam *> labels = {&first, &second};
    replaceSegmentIDwithEdoID(labels, 55, kSegment);
    EXPECT_EQ(first.getSeatEdoIDList(), QList<qint64>{55});
    EXPECT_EQ(second.getSeatEdoIDList(), QList<qint64>{55});
}

TEST(BeamSeatFunctionsDefaultTest, seatIsOfTheFirstFamilyUnlessToldOtherwise)
{
    const std::unique_ptr<ORVCADBeamSeatInfo> seat(createBeamSeatInfo(kSeatIsDrawObj, 12, kSegment));
    EXPECT_EQ(seat->nSeatID, 12);
}

} // namespace
