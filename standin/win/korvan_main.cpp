// KORVAN.exe, the stand-in host.
//
//   KORVAN.exe                               the demo host
//   KORVAN.exe --scenario OUT.txt FILE.scn...  runs scenarios, transcripts to OUT.txt
//   KORVAN.exe --tour FOLDER                 screenshots of every dialog
#include <string>
#include <vector>

#include "standin/win/demo_host.h"
#include "standin/win/scenario_driver.h"
#include "standin/win/tour.h"

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    if (args.empty()) return kvs::standin::runDemoHost();
    if (args[0] == "--scenario" && args.size() >= 2)
        return kvs::standin::runScenarioFiles(args[1], {args.begin() + 2, args.end()});
    if (args[0] == "--tour" && args.size() == 2) return kvs::standin::runTour(args[1]);
    return 2;
}
