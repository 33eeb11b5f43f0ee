#include "core/command_queue.h"

#include <cstring>

#include "include/kvs_imports.h"

namespace kvs::queue {

namespace {

struct Pair {
    char* command;
    char* argument;
};

constexpr std::int32_t kQueueTag = 99;
constexpr std::int32_t kStringTag = 0;
constexpr std::int32_t kFirstCapacity = 32;

Pair* pairs = nullptr;
std::int32_t used = 0;
std::int32_t room = -1;

void freeString(char*& text) {
    if (!text) return;
    void* block = text;
    free_mem_ex(&block);
    text = nullptr;
}

}  // namespace

char* copyString(const char* text) {
    if (!text) return nullptr;
    const std::int32_t length = kvs_strlen_ex(text);
    void* block = nullptr;
    if (!reallocate_mem_ex(&block, length + 1, 1, kStringTag) || !block) return nullptr;
    char* copy = static_cast<char*>(block);
    std::memcpy(copy, text, static_cast<std::size_t>(length));
    copy[length] = '\0';
    return copy;
}

std::int32_t push(const char* command, const char* argument) {
    if (used >= room) {
        room = room < 0 ? kFirstCapacity : room * 2;
        void* block = pairs;
        reallocate_mem_ex(&block, room, static_cast<std::int32_t>(sizeof(Pair)), kQueueTag);
        if (!block) {
            // The kernel keeps the old block; the queued pairs are given up.
            pairs = nullptr;
            used = 0;
            room = -1;
            return -1;
        }
        pairs = static_cast<Pair*>(block);
    }
    pairs[used].command = copyString(command);
    pairs[used].argument = copyString(argument);
    return ++used;
}

void flush() {
    for (std::int32_t i = 0; i < used; ++i) {
        Pair& pair = pairs[i];
        if (pair.command) {
            AddCmd(pair.command, pair.argument);
            freeString(pair.command);
        }
        freeString(pair.argument);
    }
    used = 0;
}

std::int32_t count() { return used; }

const char* commandAt(std::int32_t index) { return index >= 0 && index < used ? pairs[index].command : nullptr; }
std::int32_t capacity() { return room; }
void clearCount() { used = 0; }

void resetForLoad() {
    for (std::int32_t i = 0; i < used; ++i) {
        freeString(pairs[i].command);
        freeString(pairs[i].argument);
    }
    void* block = pairs;
    free_mem_ex(&block);
    pairs = nullptr;
    used = 0;
    room = -1;
}

}  // namespace kvs::queue
