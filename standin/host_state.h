// The stand-in host: what KORVAN.exe answers about files and modules, and a
// sink that records every call the library makes to it.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace kvs::standin {

class HostState {
public:
    static HostState& instance();

    // Where the calls the library makes to the host are reported, one line each.
    void setSink(std::function<void(const std::string&)> sink) { sink_ = std::move(sink); }
    void record(const std::string& line) const;

    void setFile(const std::string& path, std::vector<std::string> names);
    // The names of a file, looked up without regard to case as Windows does.
    const std::vector<std::string>* file(const std::string& path) const;

    void setActiveModules(std::set<std::string> modules) { active_ = std::move(modules); }
    bool isActive(const std::string& module) const { return active_.count(module) != 0; }

    bool matrix = false;
    int32_t mnType = 0;
    bool mglhActive = false;

    void reset();

private:
    std::function<void(const std::string&)> sink_;
    std::map<std::string, std::vector<std::string>> files_;
    std::set<std::string> active_;
};

}  // namespace kvs::standin
