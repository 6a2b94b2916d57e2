#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

/** Runs a target over the files of a corpus, without a fuzzer: what was found once stays mended.
 *      usage: <target> FOLDER... */

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);

namespace {

int runFolder(const std::filesystem::path &folder)
{
    int count = 0;
    for (const auto &entry : std::filesystem::directory_iterator(folder)) {
        std::ifstream stream(entry.path(), std::ios::binary);
        const std::vector<char> content{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(content.data()), content.size());
        ++count;
    }
    return count;
}

} // namespace

int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    int count = LLVMFuzzerTestOneInput(nullptr, 0); // the empty input, which no folder needs to hold
    for (int i = 1; i < argc; ++i)
        count += runFolder(argv[i]);
    std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
