#include "beam/BeamSeatType.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using beam::BeamSeatType;
using beam::kSeatTypes;
using beam::seatType;

template <typename Ask> std::vector<qint64> typesWith(Ask ask)
{
    std::vector<qint64> types;
    for (const BeamSeatType &type : kSeatTypes)
        if (ask(type))
            types.push_back(type.number);
    return types;
}

TEST(BeamSeatTypeTest, typesStandInTheOrderInWhichTheyAreAskedFor)
{
    EXPECT_EQ(typesWith([](const BeamSeatType &) { return true; }),
              (std::vector<qint64>{25, 26, 1002, 0, 1003, 54, 52, 53, 15, 17, 18}));
}

TEST(BeamSeatTypeTest, kindsAreToldByType)
{
    const auto ofKind = [](BeamSeatType::Kind kind) {
        return typesWith([kind](const BeamSeatType &type) { return type.kind == kind; });
    };
    EXPECT_EQ(ofKind(BeamSeatType::kColumn), (std::vector<qint64>{25, 26, 1002}));
    EXPECT_EQ(ofKind(BeamSeatType::kWall), (std::vector<qint64>{0, 1003}));
    EXPECT_EQ(ofKind(BeamSeatType::kFoundation), (std::vector<qint64>{54, 52, 53}));
    EXPECT_EQ(ofKind(BeamSeatType::kBeam), (std::vector<qint64>{15, 17, 18}));
    EXPECT_EQ(typesWith([](const BeamSeatType &type) { return type.hasUnits; }), (std::vector<qint64>{52, 53}));
}

TEST(BeamSeatTypeTest, fourTypesHaveAnArray)
{
    EXPECT_EQ(seatType(18).arrayKey, QLatin1String("etTieBeam"));
    EXPECT_EQ(seatType(52).arrayKey, QLatin1String("etIsolatedFD"));
    EXPECT_EQ(seatType(53).arrayKey, QLatin1String("etPileCap"));
    EXPECT_EQ(seatType(54).arrayKey, QLatin1String("etPile"));
    EXPECT_EQ(typesWith([](const BeamSeatType &type) { return type.isRebuilt(); }),
              (std::vector<qint64>{54, 52, 53, 18}));
}

TEST(BeamSeatTypeTest, anyOtherTypeIsNothingSpecial)
{
    EXPECT_EQ(seatType(19).kind, BeamSeatType::kOther);
    EXPECT_FALSE(seatType(19).hasUnits || seatType(19).isRebuilt());
}

} // namespace
