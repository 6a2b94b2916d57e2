#include "architecture/TestRules.h"

#include <gmock/gmock.h>

namespace {

using architecture::testViolations;
using architecture::Violation;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(TestRulesTest, eachSourceOfThisProjectHasATestFileOfItsName)
{
    EXPECT_THAT(testViolations(architecture::readTree(ORVCAD_SOURCE_DIR), architecture::readTree(ORVCAD_TESTS_DIR)),
                IsEmpty());
}

TEST(TestRulesTest, sourceIsTestedInTheFolderOfItsName)
{
    EXPECT_THAT(testViolations({{"beam/Seat.cpp", ""}, {"beam/Seat.h", ""}}, {{"beam/SeatTest.cpp", ""}}), IsEmpty());
    EXPECT_THAT(testViolations({{"beam/Seat.cpp", ""}}, {{"slab/SeatTest.cpp", ""}}),
                ElementsAre(Violation{"beam/Seat.cpp", 0, "has no test file of its name"}));
}

TEST(TestRulesTest, foldersOfThePlatformStandInTestsWithoutIt)
{
    EXPECT_THAT(testViolations({{"platform/geometry/CArc2d.cpp", ""}}, {{"geometry/CArc2dTest.cpp", ""}}), IsEmpty());
    EXPECT_THAT(testViolations({{"platform/geometry/CArc2d.cpp", ""}}, {{"platform/geometry/CArc2dTest.cpp", ""}}),
                ElementsAre(Violation{"platform/geometry/CArc2d.cpp", 0, "has no test file of its name"}));
}

TEST(TestRulesTest, bodyOfAServiceMayBeTestedWithTheServices)
{
    EXPECT_THAT(testViolations({{"platform/embedded/Rules.cpp", ""}}, {{"services/RulesTest.cpp", ""}}), IsEmpty());
    EXPECT_THAT(testViolations({{"platform/embedded/Rules.cpp", ""}}, {{"embedded/RulesTest.cpp", ""}}), IsEmpty());
}

TEST(TestRulesTest, programNeedsNone) { EXPECT_THAT(testViolations({{"cli/main.cpp", ""}}, {}), IsEmpty()); }

} // namespace
