// Feeds the settings file: the bytes as the settings file of a data folder, applied record by
// record when the main form starts, and written back when it exits.
#include "app/main_form.h"
#include "app/settings_file.h"
#include "fuzz/fuzz_support.h"

using namespace vorlexa;
using namespace vorlexa::app;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto& folder = fuzz::smallDataFolder();
    fuzz::writeFile(folder / kSettingsFileName, fuzz::asText(data, size));
    WindowlessView view;
    MainForm form(view);
    if (form.Form_Load(folder, {}) != StartResult::Started) fuzz::finding("the main form did not start");
    (void)form.exit1_Click();
    form.finish();
    return 0;
}
