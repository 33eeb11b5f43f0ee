// WinHelp requests reach the MS_WINHELP window and read as the transcript
// writes them; malformed blocks are refused rather than read past.
#include <windows.h>

#include <cstring>
#include <string>
#include <vector>

#include "standin/win/help_catcher.h"
#include "standin/win/tests/check.h"
#include "standin/win/winhelp_request.h"

namespace {

std::vector<std::string> caught;

kvs::standin::HelpCatcher& catcher() {
    static kvs::standin::HelpCatcher instance;
    static const bool opened = instance.open([](const std::string& line) { caught.push_back(line); });
    KVS_CHECK(opened);
    return instance;
}

std::string lastHelp() { return caught.empty() ? std::string("(none)") : caught.back(); }

KVS_TEST(help_requests_of_every_kind_read_as_the_transcript_writes_them) {
    catcher();
    caught.clear();
    KVS_CHECK(WinHelpA(nullptr, "C:\\KORVAN\\KORVAN.HLP", HELP_CONTEXT, 72));
    KVS_CHECK_EQ(std::string("help \"C:\\\\KORVAN\\\\KORVAN.HLP\" context 72"), lastHelp());
    WinHelpA(nullptr, "C:\\A.HLP", HELP_CONTENTS, 0);
    KVS_CHECK_EQ(std::string("help \"C:\\\\A.HLP\" contents"), lastHelp());
    WinHelpA(nullptr, "C:\\A.HLP", HELP_PARTIALKEY, reinterpret_cast<ULONG_PTR>("keys"));
    KVS_CHECK_EQ(std::string("help \"C:\\\\A.HLP\" key \"keys\""), lastHelp());
    WinHelpA(nullptr, "C:\\A.HLP", HELP_KEY, reinterpret_cast<ULONG_PTR>("two words"));
    KVS_CHECK_EQ(std::string("help \"C:\\\\A.HLP\" key \"two words\""), lastHelp());
    WinHelpA(nullptr, "WINHELP.HLP", HELP_HELPONHELP, 0);
    KVS_CHECK_EQ(std::string("help \"WINHELP.HLP\" helponhelp"), lastHelp());
    WinHelpA(nullptr, "C:\\A.HLP", HELP_CONTEXT, 65535);
    KVS_CHECK_EQ(std::string("help \"C:\\\\A.HLP\" context 65535"), lastHelp());
    KVS_CHECK_EQ(std::size_t{6}, caught.size());
}

KVS_TEST(help_request_without_a_file_names_an_empty_one) {
    catcher();
    caught.clear();
    WinHelpA(nullptr, nullptr, HELP_CONTEXT, 5);
    KVS_CHECK_EQ(std::string("help \"\" context 5"), lastHelp());
}

// A block as Wine builds it: header, then the data, then the file name.
std::vector<unsigned char> block(unsigned command, std::uint32_t data, const std::string& key,
                                 const std::string& file) {
    std::vector<unsigned char> bytes(16, 0);
    auto put16 = [&](std::size_t at, unsigned value) {
        bytes[at] = static_cast<unsigned char>(value);
        bytes[at + 1] = static_cast<unsigned char>(value >> 8);
    };
    put16(2, command);
    for (int i = 0; i < 4; ++i) bytes[4 + i] = static_cast<unsigned char>(data >> (8 * i));
    auto append = [&](const std::string& text) {
        for (char c : text) bytes.push_back(static_cast<unsigned char>(c));
        bytes.push_back(0);
    };
    if (!key.empty()) {
        put16(14, static_cast<unsigned>(bytes.size()));
        append(key);
    }
    put16(12, static_cast<unsigned>(bytes.size()));
    append(file);
    put16(0, static_cast<unsigned>(bytes.size()));
    return bytes;
}

KVS_TEST(help_blocks_are_read_within_their_bounds) {
    using kvs::standin::winHelpLine;
    auto bytes = block(1, 4000000000u, "", "F.HLP");
    KVS_CHECK_EQ(std::string("help \"F.HLP\" context 4000000000"), winHelpLine(bytes.data(), bytes.size()).value_or(""));
    KVS_CHECK(!winHelpLine(bytes.data(), 15));
    KVS_CHECK(!winHelpLine(nullptr, 64));

    // A name running past the declared size is cut there.
    bytes = block(3, 0, "", "LONGNAME.HLP");
    bytes.push_back('X');
    bytes[bytes.size() - 2] = 'Y';  // the terminating NUL overwritten
    bytes[0] = static_cast<unsigned char>(bytes.size() - 1);
    KVS_CHECK_EQ(std::string("help \"LONGNAME.HLPY\" contents"), winHelpLine(bytes.data(), bytes.size()).value_or(""));

    // A size field smaller than the header makes no request.
    bytes = block(4, 0, "", "W.HLP");
    bytes[0] = 8;
    bytes[1] = 0;
    KVS_CHECK(!winHelpLine(bytes.data(), bytes.size()));

    bytes = block(0x102, 0, "macro", "M.HLP");
    KVS_CHECK_EQ(std::string("help \"M.HLP\" command 258"), winHelpLine(bytes.data(), bytes.size()).value_or(""));
}

// The stand-in hhctrl.ocx's blocks read back as the transcript writes HTML
// Help requests, and a short block is refused.
KVS_TEST(html_help_blocks_read_as_the_transcript_writes_them) {
    using kvs::standin::htmlHelpBlock;
    using kvs::standin::htmlHelpLine;
    const auto line = [](const std::string& block) {
        return htmlHelpLine(reinterpret_cast<const unsigned char*>(block.data()), block.size()).value_or("(none)");
    };
    KVS_CHECK_EQ(std::string("help \"C:\\\\K.CHM\" html context 72"), line(htmlHelpBlock(0x0F, 72, "C:\\K.CHM", "")));
    KVS_CHECK_EQ(std::string("help \"K.CHM\" html contents"), line(htmlHelpBlock(0x01, 0, "K.CHM", "")));
    KVS_CHECK_EQ(std::string("help \"K.CHM\" html key \"keys\""), line(htmlHelpBlock(0x02, 0, "K.CHM", "keys")));
    KVS_CHECK(!htmlHelpLine(reinterpret_cast<const unsigned char*>("\x0F\0\0"), 3));
}

}  // namespace
