// KORVAN.exe, the stand-in host.
//
//   KORVAN.exe                               the demo host
//   KORVAN.exe --scenario OUT.txt FILE.scn...  runs scenarios, transcripts to OUT.txt
//   KORVAN.exe --tour FOLDER                 screenshots of every dialog
//   KORVAN.exe --soak OUT.txt [ROUNDS]      every dialog driven at random, resources counted
//   KORVAN.exe --bench OUT.txt [N...]        times the library against a plain list box
#include <cstdlib>
#include <string>
#include <vector>

#include "standin/win/bench.h"
#include "standin/win/demo_host.h"
#include "standin/win/soak.h"
#include "standin/win/scenario_driver.h"
#include "standin/win/tour.h"

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    if (args.empty()) return kvs::standin::runDemoHost();
    if (args[0] == "--scenario" && args.size() >= 2)
        return kvs::standin::runScenarioFiles(args[1], {args.begin() + 2, args.end()});
    if (args[0] == "--tour" && args.size() == 2) return kvs::standin::runTour(args[1]);
    if (args[0] == "--soak" && args.size() >= 2)
        return kvs::standin::runSoak(args[1], args.size() >= 3 ? std::atoi(args[2].c_str()) : 30);
    if (args[0] == "--bench" && args.size() >= 2) {
        std::vector<int> counts;
        for (std::size_t i = 2; i < args.size(); ++i) counts.push_back(std::atoi(args[i].c_str()));
        if (counts.empty()) counts = {1000, 10000, 100000};
        return kvs::standin::runBenchmark(args[1], counts);
    }
    return 2;
}
