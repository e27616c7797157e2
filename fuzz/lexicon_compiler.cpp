// Feeds the lexicon compiler: the input, cut at each record separator (0x1E), becomes
// lexicon/en-hy.tsv, lexicon/hy-en.tsv, lexicon/second-senses.txt and the pair lists' sources;
// they are compiled into a data folder, which is then checked.
#include "dictionary_tools/lexicon_compiler.h"
#include "fuzz/fuzz_support.h"

using namespace vorlexa;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const char* const kFiles[] = {"lexicon/en-hy.tsv", "lexicon/hy-en.tsv", "lexicon/second-senses.txt",
                                         "pairs/uxxuma.tsv",  "pairs/uxxume.tsv",  "pairs/uxxumy.tsv"};
    const auto parts = fuzz::splitInput(fuzz::asText(data, size), std::size(kFiles));
    const auto source = fuzz::scratchFolder() / "lexicon-source";
    for (std::size_t i = 0; i < std::size(kFiles); ++i) fuzz::writeFile(source / kFiles[i], parts[i]);
    const auto target = fuzz::scratchFolder() / "lexicon-target";
    std::error_code ignored;
    std::filesystem::remove_all(target, ignored);
    const CompileReport built = buildDataFolder(source, target);
    if (built.ok()) (void)checkDataFolder(target);
    for (const auto& d : built.diagnostics) (void)d.str();
    return 0;
}
