// A test that starts from a freshly loaded library over a fake user
// interface, with the stand-in host's and kernel's state reset and every
// line the host is handed collected in host.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "families/library.h"
#include "standin/host_state.h"
#include "standin/kernel_state.h"
#include "tests/unit/fake_ui.h"

namespace kvs::testing {

template <typename Ui = FakeUi>
class LoadedLibraryTest : public ::testing::Test {
protected:
    void SetUp() override {
        unloadLibrary();
        standin::KernelState::instance().reset();
        standin::HostState::instance().reset();
        standin::HostState::instance().setSink([this](const std::string& line) { host.push_back(line); });
        setUi(&ui);
        loadLibrary();
    }
    void TearDown() override {
        unloadLibrary();
        setUi(nullptr);
        standin::HostState::instance().setSink(nullptr);
        standin::HostState::instance().reset();
        standin::KernelState::instance().reset();
    }

    Ui ui;
    std::vector<std::string> host;
};

}  // namespace kvs::testing
