// KORVAN.exe --soak OUT.txt [ROUNDS]: every dialog of the library opened,
// driven at random and closed ROUNDS times in one process, with the
// process's window, USER/GDI object and memory counts read before and after.
#pragma once

#include <string>

namespace kvs::standin {
int runSoak(const std::string& outPath, int rounds);
}
