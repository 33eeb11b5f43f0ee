# Cross-compiling for x86_64 Windows with mingw-w64.
set(CMAKE_SYSTEM_PROCESSOR x86_64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-toolchain.cmake)
