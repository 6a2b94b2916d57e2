#include "architecture/NameRules.h"

#include <gmock/gmock.h>

namespace {

using architecture::nameViolations;
using architecture::Violation;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kHome = "platform/services/HBXPropertyNames.h";

TEST(NameRulesTest, propertiesOfThisProjectAreNamedOnce)
{
    EXPECT_THAT(nameViolations(architecture::readTree(ORVCAD_SOURCE_DIR)), IsEmpty());
}

TEST(NameRulesTest, nameOutsideItsHomeIsABreach)
{
    EXPECT_THAT(nameViolations({{"beam/Seat.cpp", "\nread(L\"Height\");\n"}}),
                ElementsAre(Violation{"beam/Seat.cpp", 2, "spells \"Height\", which has a name"}));
}

TEST(NameRulesTest, secondNameForTheSamePropertyIsABreach)
{
    EXPECT_THAT(nameViolations({{kHome, "a = L\"Height\";\nb = L\"Width\";\nc = L\"Height\";\n"}}),
                ElementsAre(Violation{kHome, 3, "names \"Height\" again"}));
}

TEST(NameRulesTest, keysOfDocumentsAndTextsThatEndInTheLetterAreNone)
{
    EXPECT_THAT(nameViolations({{"beam/BeamKeys.h", "height = \"Height\"_key;"}}), IsEmpty());
    EXPECT_THAT(nameViolations({{"cli/SvgPage.cpp", "return \" L\" + text; \"REAL\"\"x\";"}}), IsEmpty());
}

} // namespace
