// The command queue: (command, argument) string pairs pushed by the dialogs
// and handed to the host's AddCmd in push order after the dialog has ended.
// Memory comes from the kernel's allocator, as the host expects.
#pragma once

#include <cstdint>

namespace kvs::queue {

// Pushes copies of both strings (either may be null). Returns the new count,
// or -1 when the queue could not grow; the pairs queued so far are then
// abandoned and the next push starts a fresh block of 32 pairs.
std::int32_t push(const char* command, const char* argument);

// A kernel-allocated copy of text, or null for null text or no memory.
char* copyString(const char* text);

// Calls AddCmd for every pair with a command, frees the strings and empties
// the queue; the block and its capacity are kept.
void flush();

std::int32_t count();
// The command of queued pair index (0 <= index < count()), null for none.
const char* commandAt(std::int32_t index);
std::int32_t capacity();
void clearCount();

// Back to the state at load: releases the block and every queued string.
void resetForLoad();

}  // namespace kvs::queue
