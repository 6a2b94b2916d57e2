#include "architecture/SourceTree.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <set>

namespace {

using architecture::Include;
using architecture::includesOf;
using architecture::readTree;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(SourceTreeTest, includeLinesComeWithNumberKindAndTarget)
{
    const std::string text = "#pragma once\n"
                             "#include \"drawing/ORVCADFloor.h\"\n"
                             "\n"
                             "  #  include <QString>\n"
                             "int a;\n";
    EXPECT_THAT(includesOf(text), ElementsAre(Include{2, true, "drawing/ORVCADFloor.h"}, Include{4, false, "QString"}));
}

TEST(SourceTreeTest, includesInsideCommentsAndTextsAreNone)
{
    EXPECT_THAT(includesOf("// #include <QString>\n"
                           " * #include \"a/b.h\"\n"
                           "const char *a = \"#include <b>\";\n"),
                IsEmpty());
}

TEST(SourceTreeTest, includeAtTheVeryEndNeedsNoNewline)
{
    EXPECT_THAT(includesOf("#include <vector>"), ElementsAre(Include{1, false, "vector"}));
}

TEST(SourceTreeTest, headersAndSourcesAreReadSortedWithPathsBelowTheDirectory)
{
    std::filesystem::create_directories("tree/b/c");
    std::ofstream("tree/b/c/Two.h") << "two";
    std::ofstream("tree/b/One.cpp") << "one\n";
    std::ofstream("tree/b/CMakeLists.txt") << "left out";

    const std::vector<architecture::SourceFile> files = readTree("tree");

    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(files[0].path, "b/One.cpp");
    EXPECT_EQ(files[0].text, "one\n");
    EXPECT_EQ(files[1].path, "b/c/Two.h");
    EXPECT_EQ(files[1].text, "two");
}

TEST(SourceTreeTest, directoryThatIsNotThereGivesNothing) { EXPECT_THAT(readTree("nowhere"), IsEmpty()); }

TEST(SourceTreeTest, sourcesOfThisProjectAreFound)
{
    // On an empty tree every rule would hold.
    std::set<std::string> paths;
    for (const architecture::SourceFile &file : readTree(ORVCAD_SOURCE_DIR)) {
        paths.insert(file.path);
    }
    EXPECT_THAT(paths, testing::IsSupersetOf({"platform/geometry/CPolygon.h", "platform/host/HBXModelException.cpp"}));
}

} // namespace
