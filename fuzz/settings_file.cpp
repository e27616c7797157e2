// Feeds the settings file: the bytes as the settings file of a data folder, applied record by
// record when the main form starts, and written back when it exits.
#include "app/main_form.h"
#include "app/settings_file.h"
#include "fuzz/fuzz_support.h"

using namespace vorlexa;
using namespace vorlexa::app;

namespace {

// A window without widgets that answers every question No.
class QuietView : public Form1View {
public:
    int ask(const Question&, Language) override { return kAnswerNo; }
    void notify(const Notice&, Language) override {}
    FontText text3() const override { return text3_; }
    void setText3(const FontText& t) override { text3_ = t; }
    FontText text4() const override { return text4_; }
    void setText4(const FontText& t) override { text4_ = t; }
    TextSelection text4Selection() const override { return {}; }
    void selectText4(TextSelection) override {}
    void progressChanged(int) override {}
    void stateChanged() override {}
    void minimise() override {}
    void setBusy(bool) override {}

private:
    FontText text3_;
    FontText text4_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto& folder = fuzz::smallDataFolder();
    fuzz::writeFile(folder / kSettingsFileName, fuzz::asText(data, size));
    QuietView view;
    MainForm form(view);
    if (form.Form_Load(folder, {}) != StartResult::Started) fuzz::finding("the main form did not start");
    (void)form.exit1_Click();
    form.finish();
    return 0;
}
