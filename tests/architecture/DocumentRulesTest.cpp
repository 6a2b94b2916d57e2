#include "architecture/DocumentRules.h"

#include <gmock/gmock.h>

namespace {

using architecture::documentViolations;
using architecture::SourceFile;
using architecture::Violation;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<SourceFile> filesOf(const std::vector<std::string> &folders, const std::vector<std::string> &endings)
{
    std::vector<SourceFile> files;
    for (const std::string &folder : folders) {
        for (SourceFile &file : architecture::readTree(std::string(ORVCAD_ROOT_DIR "/") + folder, endings)) {
            file.path = folder + "/" + file.path;
            files.push_back(std::move(file));
        }
    }
    return files;
}

TEST(DocumentRulesTest, documentsOfThisProjectNameWhatThereIs)
{
    const std::vector<SourceFile> documents = filesOf({"docs"}, {".md"});
    const std::vector<SourceFile> sources = filesOf({"src", "tests", "cmake"}, {".h", ".cpp", ".cmake", ".txt"});
    std::vector<std::string> paths;
    for (const SourceFile &file : filesOf({"docs", "examples", "schemas"}, {".md", ".json", ".svg"})) {
        paths.push_back(file.path);
    }
    EXPECT_FALSE(documents.empty());
    EXPECT_THAT(documentViolations(documents, sources, paths), IsEmpty());
}

TEST(DocumentRulesTest, linkIsFollowedFromTheFolderOfItsDocument)
{
    const std::vector<std::string> paths{"docs/cli.md", "docs/formats/beams.md"};
    EXPECT_THAT(documentViolations({{"docs/a.md", "[x](formats/beams.md) [y](cli.md#draw) [z](#here)"}}, {}, paths),
                IsEmpty());
    EXPECT_THAT(documentViolations({{"docs/formats/a.md", "[x](../cli.md)\n[y](cli.md)"}}, {}, paths),
                ElementsAre(Violation{"docs/formats/a.md", 2, "links to cli.md, which is not there"}));
}

TEST(DocumentRulesTest, addressOfTheWebIsNoFile)
{
    EXPECT_THAT(documentViolations({{"a.md", "[x](https://json-schema.org/)"}}, {}, {}), IsEmpty());
}

TEST(DocumentRulesTest, nameIsKnownByTextOrPathOfASource)
{
    const std::vector<SourceFile> sources{{"beam/SeatRows.h", "struct BeamSeat;"}};
    EXPECT_THAT(documentViolations({{"a.md", "`BeamSeat`, `SeatRows.h`"}}, sources, {}), IsEmpty());
    EXPECT_THAT(documentViolations({{"a.md", "`BeamSeats`"}}, sources, {}),
                ElementsAre(Violation{"a.md", 1, "names BeamSeats, which no source has"}));
}

TEST(DocumentRulesTest, keysAndValuesAreNoNames)
{
    EXPECT_THAT(documentViolations({{"a.md", "`floorCode`, `true`, `Type`, `orvcad slab export`, `0x101F`"}}, {}, {}),
                IsEmpty());
}

} // namespace
