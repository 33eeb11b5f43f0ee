// Times filling a source list and turning a full target list back into a
// selection array, for growing numbers of variables. Both should grow
// linearly: compare the time per variable across the rows.
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "core/seam.h"
#include "core/variable_list.h"
#include "headless/embedded_resources.h"
#include "headless/headless_dialog.h"
#include "standin/kernel_state.h"

namespace {

class QuietUi : public kvs::UiServices {
public:
    int runModal(kvs::WindowRef, std::string_view, kvs::DialogHandler&) override { return -1; }
    int messageBox(const kvs::MessageRequest&) override { return kvs::kIdOk; }
    std::optional<std::string> chooseFile(const kvs::FileRequest&) override { return std::nullopt; }
    void help(const kvs::HelpRequest&) override {}
    kvs::WindowRef focusWindow() override { return 0; }
    std::string windowTitle(kvs::WindowRef, std::size_t) override { return {}; }
    std::uintptr_t beginWait() override { return 0; }
    void endWait(std::uintptr_t) override {}
    void beep() override {}
    kvs::BitmapRef loadBitmap(std::string_view) override { return 0; }
    void deleteBitmap(kvs::BitmapRef) override {}
    std::uint32_t systemColour(kvs::SystemColour) override { return 0; }
    int screenPixelsPerInchY() override { return 96; }
    std::optional<KvsLogFont> chooseFont(const kvs::FontRequest&) override { return std::nullopt; }
};

double millisecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

int main() {
    QuietUi ui;
    kvs::setUi(&ui);
    kvs::headless::ResourceSet resources;
    resources.load(kvs::headless::embeddedResources());
    std::printf("%10s %12s %14s %12s %14s\n", "variables", "fill ms", "fill us/var", "store ms", "store us/var");
    for (int count : {1000, 5000, 20000, 80000}) {
        std::vector<std::string> names;
        for (int i = 1; i <= count; ++i) names.push_back(std::string("V").append(std::to_string(i)));
        kvs::standin::KernelState::instance().setVariables(names);

        kvs::headless::HeadlessDialog dialog(*resources.dialog("Sort"));
        kvs::VariableCatalogue catalogue;
        auto start = std::chrono::steady_clock::now();
        kvs::fillVariableList(dialog, 4, kvs::ListInsert::Append, count, false, 72, catalogue);
        const double fill = millisecondsSince(start);

        for (const std::string& name : names) dialog.listAdd(10, name, kvs::ListInsert::Append);
        kvs::GlobalIndices entries(static_cast<std::size_t>(2 * count), 0);
        start = std::chrono::steady_clock::now();
        kvs::storeSelection(dialog, 10, count, catalogue, entries);
        const double store = millisecondsSince(start);

        std::printf("%10d %12.2f %14.3f %12.2f %14.3f\n", count, fill, 1000.0 * fill / count, store,
                    1000.0 * store / count);
    }
    kvs::setUi(nullptr);
    return 0;
}
