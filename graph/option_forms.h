// What each option sub-dialog keeps and writes: the controls whose values
// its record holds, the entries of its drop-down lists, and the keyword
// groups those values give. The single-axis and "All Axes" sub-dialogs write
// through the axis composer; every other kind through a table of rules, each
// a keyword that follows its control (a checked box: the bare keyword; a
// filled field: the keyword and the field's text).
#pragma once

#include <array>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "core/bindings.h"
#include "core/command_text.h"
#include "graph/axis_options.h"
#include "graph/option_codes.h"

namespace kvs::graph {

// The values of a sub-dialog's controls by control id: "1" for a checked
// box or radio button, an edit's text, a drop-down list's position, a list's
// names one a line. A missing value is an unchecked box or an empty field.
using ControlValues = std::map<int, std::string>;

// How each control is kept: the core's kinds of a store by control id.
using Store = Kept;

struct FormField {
    int id;
    Store store;
};

// A drop-down list and its entries, in list order.
struct ComboEntries {
    int id;
    std::span<const std::string_view> entries;
};

enum class Rule {
    Bare,           // a checked box or radio button: the keyword
    Value,          // a filled field: the keyword and the text
    Quoted,         // a filled field: the keyword and the text in quotes
    QuotedList,     // a field of texts separated by commas: each quoted, joined by ","
    Joined,         // the filled fields (or lists' first names) of ids, joined by ","
    Word,           // a drop-down list: the keyword and the word of its position, when that word is not empty
    Numbers,        // drop-down lists: the positions other than 0, joined by ","
    OptionalValue,  // the keyword, with "=" and the field's text when it is filled
};

struct KeywordRule {
    Rule rule;
    std::string_view keyword;
    std::array<int, 3> ids{};
    std::span<const std::string_view> words{};
    int when = 0;    // written only while this box or radio button is checked
    int unless = 0;  // written only while this box is not checked
};

struct OptionForm {
    std::span<const FormField> fields;
    std::span<const ComboEntries> combos;
    std::span<const KeywordRule> rules;
};

// The form of a sub-dialog template ("XAxisCreate", "LineStyle", ...); an
// empty form for a name it does not know.
const OptionForm& formOf(std::string_view templateName);

// The controls of a form, declared as the core's bindings over the store of
// values by control id: what shows, reads and validates a record.
Bindings<ControlValues> formBindings(std::span<const FormField> fields);

// A record's values as the controls start: every radio group at its first
// button, everything else empty.
ControlValues defaultValues(const OptionForm& form);

// Why OK is refused (the message), or empty when the values may be kept.
std::string validateValues(const OptionForm& form, const ControlValues& values);

// The values of an axis or "All Axes" sub-dialog as their records.
AxisOptions axisOptionsOf(const ControlValues& values);
AllAxesOptions allAxesOptionsOf(const ControlValues& values);

// Appends the keyword groups of a record of code, as the sub-dialog of
// templateName keeps it. threeDimensional is the axis composer's flag.
void appendOptionKeywords(CommandText& line, int code, std::string_view templateName, const ControlValues& values,
                          bool threeDimensional);

// Helpers over values.
bool isChecked(const ControlValues& values, int id);
std::string_view valueOf(const ControlValues& values, int id);
int positionOf(const ControlValues& values, int id);

}  // namespace kvs::graph
