#include "platform/host/IHBXFloor.h"

#include "host/PlainDrawObj.h"
#include "host/PlainFloor.h"

#include <gtest/gtest.h>

namespace {

class IHBXFloorTest : public ::testing::Test
{
protected:
    PlainDrawObj m_first{7};
    PlainDrawObj m_second{1234567890123};
    PlainFloor m_floor;
};

TEST_F(IHBXFloorTest, drawObjOfAnIdIsOneOfThoseOfTheTypes)
{
    m_floor.drawObjs = {&m_first, &m_second};
    EXPECT_EQ(m_floor.findDrawObj(7, {19, 48}), &m_first);
    EXPECT_EQ(m_floor.findDrawObj(1234567890123, {19, 48}), &m_second);
    EXPECT_EQ(m_floor.askedTypes, (QSet<qint64>{19, 48}));
}

TEST_F(IHBXFloorTest, idThatNoneOfThemHasIsNull)
{
    EXPECT_EQ(m_floor.findDrawObj(7, {19}), nullptr);
    m_floor.drawObjs = {&m_first, &m_second};
    for (const qint64 id : {Q_INT64_C(0), Q_INT64_C(-7), Q_INT64_C(8)})
        EXPECT_EQ(m_floor.findDrawObj(id, {19}), nullptr) << id;
}

} // namespace
