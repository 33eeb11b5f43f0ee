// Every exported function runs its body through guardedExport, so no C++
// exception ever crosses into the host: an export that fails this way
// returns its documented failure value instead.
#pragma once

#include <type_traits>

namespace kvs {

template <typename Body>
auto guardedExport(std::invoke_result_t<Body> fallback, Body&& body) noexcept -> std::invoke_result_t<Body> {
    try {
        return body();
    } catch (...) {
        return fallback;
    }
}

// The same for exports that return nothing.
template <typename Body>
void guardedExport(Body&& body) noexcept {
    try {
        body();
    } catch (...) {
    }
}

}  // namespace kvs
