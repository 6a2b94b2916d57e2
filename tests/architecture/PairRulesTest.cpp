#include "architecture/PairRules.h"

#include <gmock/gmock.h>

namespace {

using architecture::pairViolations;
using architecture::Violation;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(PairRulesTest, eachSourceOfThisProjectHasItsHeaderAndEachExportItsSource)
{
    EXPECT_THAT(pairViolations(architecture::readTree(ORVCAD_SOURCE_DIR)), IsEmpty());
}

TEST(PairRulesTest, completePairPasses)
{
    EXPECT_THAT(pairViolations({{"beam/Seat.cpp", "#include \"beam/Seat.h\"\n#include <vector>\n"},
                                {"beam/Seat.h", "class ORVCADMODELDATA_EXPORT Seat\n"}}),
                IsEmpty());
}

TEST(PairRulesTest, sourceWithoutHeaderIsReported)
{
    EXPECT_THAT(pairViolations({{"beam/Seat.cpp", "#include \"beam/Span.h\"\n"}, {"beam/Span.h", ""}}),
                ElementsAre(Violation{"beam/Seat.cpp", 0, "has no header of its name beside it"}));
}

TEST(PairRulesTest, headerOfTheSameNameInAnotherFolderDoesNotCount)
{
    EXPECT_THAT(pairViolations({{"beam/Seat.cpp", "#include \"slab/Seat.h\"\n"}, {"slab/Seat.h", ""}}),
                ElementsAre(Violation{"beam/Seat.cpp", 0, "has no header of its name beside it"}));
}

TEST(PairRulesTest, ownHeaderHasToComeFirst)
{
    EXPECT_THAT(
        pairViolations({{"beam/Seat.cpp", "#include <vector>\n#include \"beam/Seat.h\"\n"}, {"beam/Seat.h", ""}}),
        ElementsAre(Violation{"beam/Seat.cpp", 0, "does not include its own header first"}));
    EXPECT_THAT(pairViolations({{"beam/Seat.cpp", ""}, {"beam/Seat.h", ""}}),
                ElementsAre(Violation{"beam/Seat.cpp", 0, "does not include its own header first"}));
}

TEST(PairRulesTest, exportWithoutSourceIsReported)
{
    const std::string reason = "exports something and has no source of its name beside it";
    EXPECT_THAT(pairViolations({{"beam/Seat.h", "class ORVCADMODELDATA_EXPORT Seat\n"}}),
                ElementsAre(Violation{"beam/Seat.h", 0, reason}));
    EXPECT_THAT(pairViolations({{"platform/geometry/Tolerance.h", "extern ORVCADPLATFORM_EXPORT double g_Epsilon;\n"}}),
                ElementsAre(Violation{"platform/geometry/Tolerance.h", 0, reason}));
}

TEST(PairRulesTest, interfacesAndHeadersThatExportNothingNeedNoSource)
{
    EXPECT_THAT(pairViolations({{"platform/host/IHBXFloor.h", "class ORVCADPLATFORM_EXPORT IHBXFloor\n"},
                                {"encoding/Fields.h", "template <class T> struct Field;\n"}}),
                IsEmpty());
}

TEST(PairRulesTest, bodyOfAServiceMayStandInTheEmbeddedHostAndNowhereElse)
{
    const architecture::SourceFile header{"platform/services/Rule.h", "class ORVCADPLATFORM_EXPORT Rule\n"};
    const std::string body = "#include \"platform/services/Rule.h\"\n";
    EXPECT_THAT(pairViolations({{"platform/embedded/Rule.cpp", body}, header}), IsEmpty());
    EXPECT_THAT(pairViolations({{"platform/host/Rule.cpp", body}, header}), testing::SizeIs(2));
}

TEST(PairRulesTest, programAndGroupsOfVerbsNeedNoHeader)
{
    EXPECT_THAT(pairViolations({{"cli/main.cpp", ""}, {"cli/DrawCommand.cpp", ""}, {"cli/FloorsCommands.cpp", ""}}),
                IsEmpty());
    EXPECT_THAT(pairViolations({{"cli/PlanSvg.cpp", ""}, {"beam/SeatCommand.cpp", ""}}), testing::SizeIs(2));
}

} // namespace
