#include "architecture/IncludeRules.h"

#include <gmock/gmock.h>

namespace {

using architecture::folderRules;
using architecture::includeViolations;
using architecture::libraryOf;
using architecture::SourceFile;
using architecture::Violation;
using testing::ElementsAre;
using testing::IsEmpty;

/** Reasons against one include line in a file. */
std::vector<std::string> reasons(const std::string &path, const std::string &lines)
{
    std::vector<std::string> texts;
    for (const Violation &violation : includeViolations({path, lines})) {
        texts.push_back(violation.reason);
    }
    return texts;
}

TEST(IncludeRulesTest, sourcesOfThisProjectKeepTheRules)
{
    for (const SourceFile &file : architecture::readTree(ORVCAD_SOURCE_DIR)) {
        EXPECT_THAT(includeViolations(file), IsEmpty());
    }
}

TEST(IncludeRulesTest, violationTellsFileLineAndReason)
{
    const SourceFile file{"foundation/Any.cpp", "#include \"foundation/Any.h\"\n\n#include \"slab/Slab.h\"\n"};
    EXPECT_THAT(includeViolations(file),
                ElementsAre(Violation{"foundation/Any.cpp", 3, "foundation may not include slab"}));
}

TEST(IncludeRulesTest, eachFolderMayIncludeItselfAndTheStandardLibrary)
{
    for (const architecture::FolderRule &rule : folderRules()) {
        const std::string folder(rule.folder);
        EXPECT_THAT(reasons(folder + "/A.cpp", "#include \"" + folder + "/A.h\"\n#include <vector>\n"), IsEmpty());
    }
}

TEST(IncludeRulesTest, noTwoFoldersMayIncludeEachOther)
{
    for (const architecture::FolderRule &rule : folderRules()) {
        for (const std::string_view other : rule.folders) {
            EXPECT_THAT(architecture::ruleOf(std::string(other) + "/A.h")->folders,
                        testing::Not(testing::Contains(rule.folder)));
        }
    }
}

TEST(IncludeRulesTest, geometryKnowsNoQtAndNothingAboveIt)
{
    EXPECT_THAT(reasons("platform/geometry/A.cpp", "#include <QString>\n"),
                ElementsAre("platform/geometry may not include Qt"));
    EXPECT_THAT(reasons("platform/geometry/A.cpp", "#include <QtCore/qglobal.h>\n"),
                ElementsAre("platform/geometry may not include Qt"));
    EXPECT_THAT(reasons("platform/geometry/A.h", "#include \"platform/host/IHBXModel.h\"\n"),
                ElementsAre("platform/geometry may not include platform/host"));
    EXPECT_THAT(reasons("platform/geometry/A.cpp", "#include <geos_c.h>\n"), IsEmpty());
}

TEST(IncludeRulesTest, overlayLibraryStaysInGeometryAndStorageInTheEmbeddedHost)
{
    EXPECT_THAT(reasons("encoding/A.cpp", "#include <geos_c.h>\n"), ElementsAre("encoding may not include GEOS"));
    EXPECT_THAT(reasons("platform/services/A.cpp", "#include <sqlite3.h>\n"),
                ElementsAre("platform/services may not include SQLite"));
    EXPECT_THAT(reasons("platform/embedded/A.cpp", "#include <sqlite3.h>\n"), IsEmpty());
}

TEST(IncludeRulesTest, hostAndDrawingModelDoNotKnowEachOther)
{
    EXPECT_THAT(reasons("platform/host/A.h", "#include \"platform/dwgx/B.h\"\n"),
                ElementsAre("platform/host may not include platform/dwgx"));
    EXPECT_THAT(reasons("platform/dwgx/A.h", "#include \"platform/host/B.h\"\n"),
                ElementsAre("platform/dwgx may not include platform/host"));
}

TEST(IncludeRulesTest, embeddedHostIsForTheCommandLineAlone)
{
    for (const architecture::FolderRule &rule : folderRules()) {
        const std::string folder(rule.folder);
        const bool may = folder == "cli" || folder == "platform/embedded";
        EXPECT_EQ(reasons(folder + "/A.cpp", "#include \"platform/embedded/HBXProject.h\"\n").empty(), may) << folder;
    }
}

TEST(IncludeRulesTest, elementFoldersDoNotKnowEachOther)
{
    const std::vector<std::string> elements = {"beam", "slab", "column", "IdentifyInputModel/Wall", "doorwindow"};
    for (const std::string &one : elements) {
        for (const std::string &other : elements) {
            EXPECT_EQ(reasons(one + "/A.cpp", "#include \"" + other + "/B.h\"\n").empty(), one == other)
                << one << " and " << other;
        }
    }
}

TEST(IncludeRulesTest, columnSampleContextMayKnowWallsAndOpeningsAndNothingElse)
{
    const std::string context = "column/ORVCADColumnSampleContextDataModel.cpp";
    EXPECT_THAT(reasons(context, "#include \"IdentifyInputModel/Wall/ORVCADColumnSectionValue.h\"\n"), IsEmpty());
    EXPECT_THAT(reasons(context, "#include \"doorwindow/ORVCADWindowCloudIdentifyPar.h\"\n"), IsEmpty());
    EXPECT_THAT(reasons(context, "#include \"beam/A.h\"\n"), ElementsAre("column may not include beam"));
    EXPECT_THAT(reasons("slab/ORVCADSampleContext.cpp", "#include \"doorwindow/A.h\"\n"),
                ElementsAre("slab may not include doorwindow"));
}

TEST(IncludeRulesTest, foundationIsForSlabsAlone)
{
    EXPECT_THAT(reasons("slab/A.h", "#include \"foundation/Any.h\"\n"), IsEmpty());
    EXPECT_THAT(reasons("beam/A.h", "#include \"foundation/Any.h\"\n"), ElementsAre("beam may not include foundation"));
}

TEST(IncludeRulesTest, conversionKnowsTheFolderOfOneElement)
{
    EXPECT_THAT(reasons("ModelSerialization/A.cpp", "#include \"beam/A.h\"\n#include \"beam/B.h\"\n"), IsEmpty());
    EXPECT_THAT(reasons("ModelSerialization/A.cpp", "#include \"beam/A.h\"\n#include \"slab/B.h\"\n"),
                ElementsAre("a conversion includes several element folders"));
}

TEST(IncludeRulesTest, nothingIncludesTheCommandLine)
{
    EXPECT_THAT(reasons("ModelSerialization/A.cpp", "#include \"cli/A.h\"\n"),
                ElementsAre("ModelSerialization may not include cli"));
}

TEST(IncludeRulesTest, ownHeadersAreWrittenFromSrcAndInQuotes)
{
    EXPECT_THAT(reasons("beam/A.cpp", "#include \"A.h\"\n"), ElementsAre("\"A.h\" is not written from src"));
    EXPECT_THAT(reasons("beam/A.cpp", "#include \"../encoding/A.h\"\n"),
                ElementsAre("\"../encoding/A.h\" is not written from src"));
    EXPECT_THAT(reasons("beam/A.cpp", "#include <encoding/A.h>\n"),
                ElementsAre("<encoding/A.h> is the project's own and stands in quotes"));
}

TEST(IncludeRulesTest, exportHeaderIsThatOfTheOwnLibrary)
{
    EXPECT_THAT(reasons("platform/host/A.h", "#include \"ORVCADPlatformExport.h\"\n"), IsEmpty());
    EXPECT_THAT(reasons("beam/A.h", "#include \"ORVCADModelDataExport.h\"\n"), IsEmpty());
    EXPECT_THAT(reasons("beam/A.h", "#include \"ORVCADPlatformExport.h\"\n"),
                ElementsAre("ORVCADPlatformExport.h belongs to another library"));
    EXPECT_THAT(reasons("platform/host/A.h", "#include <ORVCADModelDataExport.h>\n"),
                ElementsAre("ORVCADModelDataExport.h belongs to another library"));
}

TEST(IncludeRulesTest, fileOutsideTheFoldersOfTheTableIsReported)
{
    EXPECT_THAT(reasons("util/A.h", ""), ElementsAre("stands in no folder of the table"));
    EXPECT_THAT(reasons("platform/A.h", ""), ElementsAre("stands in no folder of the table"));
    EXPECT_THAT(reasons("beams/A.h", ""), ElementsAre("stands in no folder of the table"));
}

TEST(IncludeRulesTest, libraryIsToldFromTheHeadersName)
{
    EXPECT_EQ(libraryOf("vector"), "standard");
    EXPECT_EQ(libraryOf("string_view"), "standard");
    EXPECT_EQ(libraryOf("unistd.h"), "system");
    EXPECT_EQ(libraryOf("sys/stat.h"), "system");
    EXPECT_EQ(libraryOf("QMap"), "Qt");
    EXPECT_EQ(libraryOf("QtXml"), "Qt");
    EXPECT_EQ(libraryOf("boost/geometry/index/rtree.hpp"), "Boost");
    EXPECT_EQ(libraryOf("double-conversion/double-conversion.h"), "number text");
    EXPECT_EQ(libraryOf("fast_float/fast_float.h"), "number text");
    EXPECT_EQ(libraryOf("CLI/CLI.hpp"), "CLI11");
    EXPECT_EQ(libraryOf("rapidjson/reader.h"), "RapidJSON");
    EXPECT_EQ(libraryOf("zip.h"), "libzip");
    EXPECT_EQ(libraryOf("Stranger.hpp"), "");
    EXPECT_THAT(reasons("beam/A.cpp", "#include <Stranger.hpp>\n"),
                ElementsAre("<Stranger.hpp> belongs to no library that this project uses"));
}

} // namespace
