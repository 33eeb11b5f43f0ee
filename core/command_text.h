// The composition buffer: a command line being built, bounded like the
// 9,999-byte buffer the data and statistics builders share, or the graph
// builders' own 10,000-byte buffer.
//
// Text goes in whole or not at all: an append that does not fit is left
// out, so a line is never cut inside a name, number or keyword. A Piece
// makes several appends one such unit (a keyword with its value, a quoted
// label): when any part of it does not fit, the whole piece is taken back.
// A sealed line takes nothing more: the graph builders seal a line when a
// list of names passes the list bound, so the command ends after that name.
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
        if (sealed_) return *this;
        if (text.size() > room()) {
            ++leftOut_;
        } else {
            text_.append(text);
        }
        return *this;
    }
    CommandText& append(char c) { return append(std::string_view(&c, 1)); }
    // Free text, a line the user typed, is cut at the bound instead.
    CommandText& appendCut(std::string_view text) {
        if (!sealed_) text_.append(text.substr(0, room()));
        return *this;
    }
    bool fits(std::size_t length) const { return !sealed_ && length <= room(); }

    // Appends made while a Piece lives land whole or not at all.
    class Piece {
    public:
        explicit Piece(CommandText& line) : line_(line), size_(line.text_.size()), leftOut_(line.leftOut_) {}
        ~Piece() {
            if (line_.leftOut_ != leftOut_) line_.text_.resize(size_);
        }
        Piece(const Piece&) = delete;
        Piece& operator=(const Piece&) = delete;

    private:
        CommandText& line_;
        std::size_t size_;
        unsigned leftOut_;
    };

    void seal() { sealed_ = true; }
    bool sealed() const { return sealed_; }

    void clear() {
        text_.clear();
        sealed_ = false;
    }
    void dropLast() {
        if (!sealed_ && !text_.empty()) text_.pop_back();
    }
    // Removes one trailing c, when the line ends in it.
    void stripTrailing(char c) {
        if (!text_.empty() && text_.back() == c) dropLast();
    }
    std::size_t size() const { return text_.size(); }
    bool empty() const { return text_.empty(); }
    const std::string& str() const { return text_; }
    const char* c_str() const { return text_.c_str(); }

private:
    std::size_t room() const { return capacity_ - 1 - text_.size(); }

    std::size_t capacity_ = kCapacity;
    std::string text_;
    unsigned leftOut_ = 0;  // appends left out so far, for Piece
    bool sealed_ = false;
};

}  // namespace kvs
