#include "architecture/IncludeCircles.h"

#include <gmock/gmock.h>

namespace {

using architecture::circleViolations;
using architecture::Violation;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(IncludeCirclesTest, noFileOfThisProjectIncludesItself)
{
    EXPECT_THAT(circleViolations(architecture::readTree(ORVCAD_SOURCE_DIR)), IsEmpty());
}

TEST(IncludeCirclesTest, pathsThatMeetAgainAreNoCircle)
{
    EXPECT_THAT(circleViolations({{"a.h", "#include \"b.h\"\n#include \"c.h\"\n"},
                                  {"b.h", "#include \"d.h\"\n"},
                                  {"c.h", "#include \"d.h\"\n"},
                                  {"d.h", "#include <vector>\n"}}),
                IsEmpty());
}

TEST(IncludeCirclesTest, circleIsReportedAtEachOfItsFilesAndNotBeforeIt)
{
    EXPECT_THAT(circleViolations({{"a.h", "#include \"b.h\"\n"},
                                  {"b.h", "#include \"x.h\"\n#include \"c.h\"\n"},
                                  {"c.h", "#include \"b.h\"\n"}}),
                ElementsAre(Violation{"b.h", 2, "includes itself by way of c.h"},
                            Violation{"c.h", 1, "includes itself by way of b.h"}));
}

TEST(IncludeCirclesTest, fileThatIncludesItselfDirectlyIsReported)
{
    EXPECT_THAT(circleViolations({{"a.h", "\n#include \"a.h\"\n"}}),
                ElementsAre(Violation{"a.h", 2, "includes itself by way of a.h"}));
}

} // namespace
