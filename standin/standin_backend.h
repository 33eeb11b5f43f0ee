// What both scenario backends do alike for the setup statements that only
// the stand-in host answers: the variables of other files, the active
// modules and the matrix flag.
#pragma once

#include <string>
#include <vector>

#include "tools/scenario/engine.h"

namespace kvs::standin {

class StandinBackend : public scenario::Backend {
public:
    void setFile(const std::string& path, const std::vector<std::string>& names) override;
    void setActiveModules(const std::vector<std::string>& modules) override;
    void setMatrix(bool matrix) override;
};

}  // namespace kvs::standin
