// A plain main for a fuzz target built without libFuzzer: feeds it every file of the folders
// (or the files) named on the command line, in name order, once each.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
// Defined by the targets that prepare something before their first input.
extern "C" __attribute__((weak)) int LLVMFuzzerInitialize(int* argc, char*** argv);

int main(int argc, char** argv) {
    namespace fs = std::filesystem;
    if (LLVMFuzzerInitialize) LLVMFuzzerInitialize(&argc, &argv);
    std::vector<fs::path> files;
    for (int i = 1; i < argc; ++i) {
        const fs::path arg = argv[i];
        if (fs::is_directory(arg)) {
            for (const auto& entry : fs::directory_iterator(arg))
                if (entry.is_regular_file()) files.push_back(entry.path());
        } else {
            files.push_back(arg);
        }
    }
    std::sort(files.begin(), files.end());
    if (files.empty()) {
        std::fprintf(stderr, "no corpus files given\n");
        return 1;
    }
    for (const auto& f : files) {
        std::ifstream in(f, std::ios::binary);
        const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    std::printf("%zu inputs\n", files.size());
    return 0;
}
