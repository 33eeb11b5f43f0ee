// Statements that call the library's exports other than StartDialog, as the
// host would. Each domain keeps its statements in a file of its own and
// lists them in the table of call_statements.cpp. A call that runs a modal
// window behaves like `start`: the statements after it act on that window
// until the call returns.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "tools/scenario/engine.h"
#include "tools/scenario/library_exports.h"

namespace kvs::scenario {

struct CallContext {
    Backend& backend;
    const Statement& statement;
    std::function<void(const std::string&)> emit;
    // Prints an error line naming the statement.
    std::function<void(const std::string&)> fail;

    const LibraryExports& exports() const { return backend.exports(); }
    // False, with an error line, when the library lacks the export.
    bool has(const void* entry, std::string_view name) const;
    // The statement's argument i as a number, or nothing.
    std::optional<long long> number(std::size_t i) const;
    // The statement's argument i as text, or nothing when absent.
    std::optional<std::string> text(std::size_t i) const;
};

using CallRun = void (*)(CallContext&);

struct CallStatement {
    std::string_view keyword;
    CallRun run;
};

// The statement of this keyword, or null.
const CallStatement* findCallStatement(std::string_view keyword);

// Statements of the save-as and import/export option exports.
void runSaveOptions(CallContext&);
void runAttachSaveAs(CallContext&);
void runImpExpOptions(CallContext&);
void runAttachImpExp(CallContext&);

// Statements of the colour picker, the symbol pictures and the graph fonts.
void runColourPicker(CallContext&);
void runSymbols(CallContext&);
void runShowFont(CallContext&);
void runDefaultFont(CallContext&);
// Statements of the sampling exports and the progress window.
void runSamplingStart(CallContext&);
void runSamplingUpdate(CallContext&);
void runSamplingClear(CallContext&);
void runSamplingBar(CallContext&);
// The companion package's program selector.
void runTrax(CallContext&);
// Every export with the null pointers and out-of-range values a host may pass.
void runNullCalls(CallContext&);

}  // namespace kvs::scenario
