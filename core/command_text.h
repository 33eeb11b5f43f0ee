// The composition buffer: a command line being built, bounded like the
// 9,999-byte buffer the data and statistics builders share, or the graph
// builders' own 10,000-byte buffer. Text that does not fit is cut.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kvs {

class CommandText {
public:
    static constexpr std::size_t kCapacity = 9999;        // bytes, the NUL included
    static constexpr std::size_t kGraphCapacity = 10000;  // the graph command buffer
    static constexpr std::size_t kHostLineCapacity = 10000;  // a host's line that options are attached to

    CommandText() = default;
    explicit CommandText(std::string_view start, std::size_t capacity = kCapacity) : capacity_(capacity) {
        append(start);
    }

    CommandText& append(std::string_view text) {
        const std::size_t room = capacity_ - 1 - text_.size();
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
    std::size_t capacity_ = kCapacity;
    std::string text_;
};

}  // namespace kvs
