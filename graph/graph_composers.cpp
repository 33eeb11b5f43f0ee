#include "graph/graph_composers.h"

#include <array>

namespace kvs::graph {

namespace {

constexpr std::array<std::string_view, 5> kScatterplotMessages = {
    "You must select a Y-variable(s), or a Z-variable(s) with the Matrix columns option, to produce a Scatterplot.",
    "You must also select a Y-variable(s) to produce a Scatterplot.",
    "You must also select an X-variable and a Y-variable(s), or the Matrix columns option, to produce a "
    "Scatterplot.",
    "You must also select an X-variable to produce a Scatterplot.",
    "You must also select an X-variable, Y-variable(s), and Z-variable(s) to produce a 3D Triangular plot.",
};

constexpr std::string_view kHighLowMessage = "Need High, Low, and Close variables!";
constexpr std::string_view kQuantileMessage = "You must select an X-variable to produce a Quantile Plot.";

std::size_t count(const Names& names) { return names.size(); }

// The first scatterplot rule that fires, 0 when none does.
int scatterplotRule(const ScatterplotState& s) {
    const std::size_t x = count(s.x), y = count(s.y), z = count(s.z), g = count(s.group), w = count(s.w);
    if (w == 0) {
        if (x == 0 && y == 0 && z == 0 && g == 0) return 1;
        if (x == 0 && y == 0 && z == 0 && g == 1) return 1;
        if (x == 0 && y == 0 && g == 1 && s.mirrorChecked) return 1;
        if (x == 0 && y == 0 && z == 0 && g == 2) return 1;
        if (x == 1 && y == 0 && z == 0 && g == 0) return 2;
        if (x == 1 && y == 0 && z == 0 && g == 1) return 2;
        if (x == 1 && y == 0 && g == 1 && s.mirrorChecked) return 2;
        if (x == 1 && y == 0 && z == 0 && g == 2) return 2;
        if (x == 0 && y == 0 && z >= 1 && !s.matrixChecked) return 3;
        if (x == 1 && y == 0 && z >= 1) return 2;
        if (x == 0 && y >= 1 && z == 1) return 4;
        if (x == 0 && y == 1 && z >= 2) return 4;
    } else if (x == 0 || y == 0 || z == 0) {
        return 5;
    }
    return 0;
}

// The dialog's own keywords, written in each builder's order when checked
// and enabled.
enum class OwnWord { None, Repeat, Matrix, Stack, Range, Overlay, Tile };

struct BarFamilyKind {
    int id;
    std::string_view verb;
    std::string_view name;
    std::array<OwnWord, 6> words;  // in the builder's order, None ends
    int optionsButton, appearanceButton;
    std::array<int, 12> codes;  // in the builder's order, 0 ends
};

// The common-axes button (507) serves 2001 to 2004 and the layout button
// (504) 2005 and 2010 in all five.
using W = OwnWord;
constexpr BarFamilyKind kBarFamily[] = {
    {103, "BAR ", "Bar", {W::Repeat, W::Matrix, W::Stack, W::Range, W::Overlay, W::Tile}, 506, 530,
     {2018, 2017, 2019, 2001, 2002, 2003, 2004, 2005, 2010, 2006, 2020}},
    {102, "PYRAMID ", "Pyramid", {W::Repeat, W::Matrix, W::Overlay}, 511, 512,
     {2018, 2019, 2017, 2001, 2002, 2003, 2004, 2005, 2010, 2006, 2020}},
    {108, "DOT ", "Dot", {W::Repeat, W::Matrix, W::Overlay}, 508, 503,
     {2021, 2017, 2019, 2001, 2002, 2003, 2004, 2005, 2010, 2006, 2007, 2008}},
    {109, "LINE ", "Line", {W::Repeat, W::Matrix, W::Overlay}, 509, 512,
     {2022, 2017, 2019, 2001, 2002, 2003, 2004, 2005, 2010, 2006, 2008}},
    {1124, "PROFILE ", "Profile", {W::Repeat, W::Matrix, W::Overlay, W::Stack}, 510, 512,
     {2022, 2019, 2017, 2001, 2002, 2003, 2004, 2005, 2010, 2006}},
};

const BarFamilyKind* barFamilyKind(int graphId) {
    for (const BarFamilyKind& kind : kBarFamily)
        if (kind.id == graphId) return &kind;
    return nullptr;
}

int buttonOf(const BarFamilyKind& kind, int code) {
    if (code >= 2001 && code <= 2004) return 507;
    if (code == 2005 || code == 2010) return kLayoutButton;
    if (code == 2006 || code == 2007 || code == 2008 || code == 2020) return kind.appearanceButton;
    return kind.optionsButton;
}

void appendOwnWord(CommandText& line, OwnWord word, const BarFamilyState& s) {
    switch (word) {
    case OwnWord::None: break;
    case OwnWord::Repeat: if (s.repeat) line.append(" REPEAT"); break;
    case OwnWord::Matrix: if (s.matrix) line.append(" MATRIX"); break;
    case OwnWord::Stack: if (s.stack) line.append(" STACK"); break;
    case OwnWord::Range: if (s.range) line.append(" RANGE"); break;
    case OwnWord::Overlay: if (s.overlay) line.append(" OVERLAY"); break;
    case OwnWord::Tile: if (s.displayEnabled && s.display == 1) line.append(" TILE"); break;
    }
}

// The first rule that fires, 0 when none does.
int barFamilyRule(const BarFamilyState& s) {
    const bool x = !s.x.empty(), y = !s.y.empty(), z = !s.z.empty(), g = !s.group.empty();
    if (!x && !y && !z) return g ? 6 : 1;
    if (z && !s.matrixChecked && (!x || !y) && !s.counts) return 3;
    if (y && !x && !s.repeatChecked && !s.matrixChecked) return 2;
    if (s.counts && !x) return 5;
    if (x && !y && !z && !s.counts) return 4;
    return 0;
}

}  // namespace

std::string barFamilyMessage(int number, std::string_view graphName) {
    static constexpr std::array<std::string_view, 6> kMessages = {
        "You must select an X-variable(s), or a Y-variable(s) with the Repeated trials option, or a Z-variable(s) "
        "with the Matrix columns option, to produce a ",
        "You must also select an X-variable(s) or the Repeated trials option to produce a ",
        "You must also select an X-variable(s) and a Y-variable(s), or the Matrix columns option, to produce a ",
        "You must also select a Y-variable to produce a ",
        "You must also select an X-variable to produce a ",
        "You must also select an X-variable(s) and a Y-variable(s) to produce a ",
    };
    if (number < 1 || number > 6) return {};
    return std::string(kMessages[static_cast<std::size_t>(number - 1)]) + std::string(graphName);
}

Composition composeBarFamily(int graphId, const BarFamilyState& s, const OptionSource& options) {
    const BarFamilyKind* kind = barFamilyKind(graphId);
    if (!kind) return {};
    if (const int rule = barFamilyRule(s)) return Composition::refuse(barFamilyMessage(rule, kind->name));
    CommandText line = graphLine(kind->verb);
    if (!s.z.empty()) {
        appendNames(line, s.z, ' ');
        line.append('*');
    } else if (s.counts) {
        line.append(" . *");  // the dot stands for the count
    }
    if (!s.matrix) {
        appendNames(line, s.y, ' ');
        if (!s.repeat) {
            if (!s.y.empty()) line.append('*');
            appendNames(line, s.x, ' ');
        }
    }
    stripTrailing(line, '*');
    line.append(" /");
    for (OwnWord word : kind->words) appendOwnWord(line, word, s);
    appendCommaGrouping(line, s.group, s.mirror);
    const bool threeD = !s.z.empty() && s.display == 0;
    for (int code : kind->codes) {
        if (code == 0 || !options.buttonEnabled(buttonOf(*kind, code))) continue;
        if (code == 2003 && !threeD) continue;  // as in the scatterplot: no Z axis without a 3-D graph
        options.append(line, code, threeD);
    }
    return finishGraphLine(line);
}

void appendNames(CommandText& line, const Names& names, char separator) {
    if (names.empty()) return;
    if (line.size() > kJoinLimit) {
        line.seal();
        return;
    }
    const int added = joinNames(names, line, separator);
    if (line.size() <= kJoinLimit) return;
    // Past the bound the command ends after the name that passed it.
    if (static_cast<std::size_t>(added) < names.size()) line.dropLast();
    line.seal();
}

bool startList(CommandText& line, std::string_view keyword, const Names& names) {
    if (names.empty()) return false;
    if (line.size() > kJoinLimit || !line.fits(keyword.size() + names.front().size())) {
        line.seal();
        return false;
    }
    line.append(keyword);
    return true;
}

void appendCodes(CommandText& line, const OptionSource& options, std::initializer_list<int> codes, bool threeD) {
    for (int code : codes) options.append(line, code, threeD);
}

void appendCommaGrouping(CommandText& line, const Names& group, bool dual) {
    if (startList(line, dual ? " DUAL=" : " GROUP=", group)) appendNames(line, group, ',');
}

void appendSpaced(CommandText& line, const Names& y, const Names& x) {
    appendNames(line, y, ' ');
    if (!y.empty()) line.append(" * ");
    appendNames(line, x, ' ');
}

Composition finishGraphLine(CommandText& line) {
    stripTrailing(line, '/');
    return Composition().add(line);
}


std::string_view scatterplotMessage(int number) {
    return number >= 1 && number <= 5 ? kScatterplotMessages[static_cast<std::size_t>(number - 1)]
                                      : std::string_view();
}

Composition composeScatterplot(const ScatterplotState& s, const OptionSource& options) {
    if (const int rule = scatterplotRule(s)) return Composition::refuse(scatterplotMessage(rule));
    CommandText line = graphLine("PLOT ");
    if (!s.w.empty()) {
        appendNames(line, s.w, ' ');
        line.append('*');
    }
    if (!s.z.empty()) {
        appendNames(line, s.z, ' ');
        line.append('*');
    }
    if (!s.y.empty()) {
        appendNames(line, s.y, ' ');
        line.append('*');
    }
    appendNames(line, s.x, ' ');
    stripTrailing(line, '*');
    line.append(" /");
    if (s.overlay) line.append(" OVERLAY");
    if (s.repeat) line.append(" REPEAT");
    if (s.matrix) line.append(" MATRIX");
    if (s.mirror) {
        if (startList(line, " DUAL=", s.group)) appendNames(line, Names(s.group.begin(), s.group.begin() + 1), ' ');
    } else if (startList(line, " GROUP=", s.group)) {
        appendNames(line, s.group, ' ');
    }
    if (s.displayEnabled && s.display == 1) line.append(" CONTOUR");
    if (s.displayEnabled && s.display == 2) line.append(" TILE");
    const bool threeD = !s.z.empty() && s.display == 0;
    if (options.buttonEnabled(kOptionsButton)) appendCodes(line, options, {2012, 2013, 2014, 2015}, threeD);
    if (options.buttonEnabled(kAxesButton)) {
        appendCodes(line, options, {2001, 2002}, threeD);
        if (threeD) appendCodes(line, options, {2003, 2016}, threeD);
        appendCodes(line, options, {2004}, threeD);
    }
    if (options.buttonEnabled(kAppearanceButton)) appendCodes(line, options, {2006, 2007, 2008}, threeD);
    if (options.buttonEnabled(kLayoutButton)) appendCodes(line, options, {2005, 2010}, threeD);
    return finishGraphLine(line);
}

Composition composeHighLow(const HighLowState& s, const OptionSource& options) {
    if (s.high.empty() || s.low.empty() || s.close.empty()) return Composition::refuse(kHighLowMessage);
    // Close, High, Low: the order the command wants, not the order on screen.
    CommandText line = graphLine("PLOT ");
    line.append(s.close.front()).append(' ').append(s.high.front()).append(' ').append(s.low.front());
    if (!s.x.empty()) line.append('*').append(s.x.front());
    stripTrailing(line, '*');
    line.append("/ HILO");
    appendCommaGrouping(line, s.group, s.mirror);
    if (s.overlay) line.append(" OVERLAY");
    appendCodes(line, options, {2013, 2019, 2001, 2002, 2004, 2006, 2007, 2008, 2005, 2010});
    return finishGraphLine(line);
}

Composition composeQuantile(const QuantileState& s, const OptionSource& options) {
    if (s.x.empty()) return Composition::refuse(kQuantileMessage);
    CommandText line = graphLine("QPLOT ");
    appendSpaced(line, s.y, s.x);
    line.append('/');
    appendCommaGrouping(line, s.group, s.mirror && s.group.size() == 1);
    if (s.overlay) line.append(" OVERLAY");
    appendCodes(line, options, {2012, 2019, 2013, 2014, 2001, 2002, 2004, 2005, 2010, 2006, 2007, 2008});
    return finishGraphLine(line);
}

}  // namespace kvs::graph
