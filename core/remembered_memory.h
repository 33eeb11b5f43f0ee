// Memory a dialog keeps between openings besides its selection arrays: text
// blocks and tables (model terms, hypothesis or category texts) and arrays of
// variable indices. Each starts absent; a block can also be marked unusable,
// as a handle of -1 is, and is then never touched by a reset.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kvs {

class OptionBlock {
public:
    enum class State { Absent, Unusable, Present };

    State state() const { return state_; }
    bool present() const { return state_ == State::Present; }
    std::size_t size() const { return bytes_.size(); }

    // Makes a zero-filled block of size bytes (a present block keeps its text
    // if it fits).
    void create(std::size_t size);
    void markUnusable();
    // The text up to the first NUL; empty when absent.
    std::string_view text() const;
    // Stores text, cut to leave room for the terminating NUL; creates the
    // block with capacity bytes when it is absent.
    void setText(std::string_view text, std::size_t capacity);

    // Zero the whole block, or release it (state Absent).
    void clear();
    void release();

private:
    State state_ = State::Absent;
    std::vector<char> bytes_;
};

class IndexArray {
public:
    bool present() const { return present_; }
    std::vector<std::int32_t>& entries() { return entries_; }
    const std::vector<std::int32_t>& entries() const { return entries_; }

    // Makes an array of count entries, each -1.
    void create(std::size_t count);
    // Sets the first count entries (at most the array's size) to -1.
    void clear(std::int32_t count);
    void release();

private:
    bool present_ = false;
    std::vector<std::int32_t> entries_;
};

}  // namespace kvs
