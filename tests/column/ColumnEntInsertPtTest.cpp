#include "column/ColumnEntInsertPt.h"

#include "ColumnFixture.h"

namespace {

using Point = vks::CVec2<double>;

class ColumnEntInsertPtTest : public ColumnFixture
{
protected:
    /** Of a column with these properties. */
    Point insertPt(const QByteArray &properties)
    {
        load(R"({"name": "K1", "type": 25, "properties": {)" + properties + "}}");
        return project ? getColumnEntInsertPt(find("K1")) : Point(-9, -9);
    }
};

TEST_F(ColumnEntInsertPtTest, oddSizeShiftsByHalfAMillimetre)
{
    EXPECT_EQ(insertPt(R"("SectionTypeID": 0, "SectionWidth": 501, "SectionHeight": 500)"), Point(-0.5, 0));
    EXPECT_EQ(insertPt(R"("SectionTypeID": 0, "SectionWidth": 500, "SectionHeight": 601)"), Point(0, -0.5));
    EXPECT_EQ(insertPt(R"("SectionTypeID": 0, "SectionWidth": 501, "SectionHeight": 601)"), Point(-0.5, -0.5));
    EXPECT_EQ(insertPt(R"("SectionTypeID": 0, "SectionWidth": 500, "SectionHeight": 600)"), Point(0, 0));
}

TEST_F(ColumnEntInsertPtTest, sizedSectionTakesHalfItsSizeFromThePointOfItsText)
{
    EXPECT_EQ(insertPt(R"("SectionTypeID": 0, "SectionWidth": 500, "SectionHeight": 600,
                          "SectionInfo": "100*5;100*6;300,250")"),
              Point(50, -50));
}

TEST_F(ColumnEntInsertPtTest, halfMillimetreOfAnOddSectionStaysInTheResult)
{
    EXPECT_EQ(insertPt(R"("SectionTypeID": 0, "SectionWidth": 501, "SectionHeight": 601,
                          "SectionInfo": "100*5;100*6;251,301")"),
              Point(0, 0)); // -0.5 + 251 - 250.5
}

TEST_F(ColumnEntInsertPtTest, sizedSectionReadsWholeNumbersAndMissingOnesAsZero)
{
    const QByteArray size = R"("SectionTypeID": 0, "SectionWidth": 500, "SectionHeight": 600, "SectionInfo": )";
    EXPECT_EQ(insertPt(size + R"("100*5;100*6")"), Point(-250, -300));
    EXPECT_EQ(insertPt(size + R"("100*5;100*6;40")"), Point(-210, -300));
    EXPECT_EQ(insertPt(size + R"("100*5;100*6;40.5,20")"), Point(-250, -280)); // 40.5 is no whole number
    EXPECT_EQ(insertPt(size + R"("100*5;100*6;40,20,7")"), Point(-210, -280));
    EXPECT_EQ(insertPt(size + R"("rubbish")"), Point(-250, -300));
}

TEST_F(ColumnEntInsertPtTest, drawnSectionHasItsPointAsAProperty)
{
    EXPECT_EQ(insertPt(R"("SectionTypeID": 2, "InsertPt": [250.25, 300], "SectionInfo": "1;2;3,4")"),
              Point(250.25, 300));
}

TEST_F(ColumnEntInsertPtTest, drawnSectionWithoutAPointIsAtTheOrigin)
{
    EXPECT_EQ(insertPt(R"("SectionTypeID": 2, "SectionWidth": 501, "SectionInfo": "1;2;3,4")"), Point(0, 0));
    EXPECT_EQ(insertPt(R"("SectionTypeID": 2, "InsertPt": null)"), Point(0, 0));
}

TEST_F(ColumnEntInsertPtTest, parametricSectionHasItsPointInItsText)
{
    EXPECT_EQ(insertPt(R"("SectionTypeID": 3, "SectionInfo": "100*5;100*6;40.5,-20.25", "SectionWidth": 501)"),
              Point(40.5, -20.25));
    EXPECT_EQ(insertPt(R"("SectionTypeID": 3, "SectionInfo": "100*5;100*6;40.5,-20,7")"), Point(40.5, -20));
}

TEST_F(ColumnEntInsertPtTest, parametricSectionWithLessThanTwoPartsIsAtTheOrigin)
{
    EXPECT_EQ(insertPt(R"("SectionTypeID": 3, "SectionInfo": "100*5;100*6")"), Point(0, 0));
    EXPECT_EQ(insertPt(R"("SectionTypeID": 3, "SectionInfo": "100*5;100*6;40")"), Point(0, 0));
    EXPECT_EQ(insertPt(R"("SectionTypeID": 3)"), Point(0, 0));
    EXPECT_EQ(insertPt(R"("SectionTypeID": 3, "SectionInfo": "1;2;x,7")"), Point(0, 7));
}

TEST_F(ColumnEntInsertPtTest, pointOfAnotherKindIsNotUsed)
{
    EXPECT_EQ(insertPt(R"("SectionTypeID": 0, "InsertPt": [1, 2])"), Point(0, 0));
    EXPECT_EQ(insertPt(R"("SectionTypeID": 3, "InsertPt": [1, 2])"), Point(0, 0));
}

TEST_F(ColumnEntInsertPtTest, otherKindsAreAtTheOrigin)
{
    for (const char *kind : {"1", "4", "-1"})
        EXPECT_EQ(insertPt(QByteArray(R"("SectionTypeID": )") + kind +
                           R"(, "SectionWidth": 501, "InsertPt": [1, 2], "SectionInfo": "1;2;3,4")"),
                  Point(0, 0));
}

TEST_F(ColumnEntInsertPtTest, elementWithoutAKindCountsAsSized)
{
    EXPECT_EQ(insertPt(R"("SectionWidth": 501)"), Point(-0.5, 0));
    load(R"({"name": "Q1", "type": 1003})");
    EXPECT_EQ(getColumnEntInsertPt(find("Q1")), Point(0, 0));
}

TEST_F(ColumnEntInsertPtTest, nullIsAtTheOrigin) { EXPECT_EQ(getColumnEntInsertPt(nullptr), Point(0, 0)); }

} // namespace
