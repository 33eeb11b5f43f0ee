// The composition buffer: a command line being built, bounded like the
// 9,999-byte buffer the builders share. Text that does not fit is cut.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kvs {

class CommandText {
public:
    static constexpr std::size_t kCapacity = 9999;  // bytes, the NUL included

    CommandText() = default;
    explicit CommandText(std::string_view start) { append(start); }

    CommandText& append(std::string_view text) {
        const std::size_t room = kCapacity - 1 - text_.size();
        text_.append(text.substr(0, room));
        return *this;
    }
    CommandText& append(char c) { return append(std::string_view(&c, 1)); }

    void clear() { text_.clear(); }
    void dropLast() {
        if (!text_.empty()) text_.pop_back();
    }
    std::size_t size() const { return text_.size(); }
    bool empty() const { return text_.empty(); }
    const std::string& str() const { return text_; }
    const char* c_str() const { return text_.c_str(); }

private:
    std::string text_;
};

}  // namespace kvs
