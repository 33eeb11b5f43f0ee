#include "tools/kvsdlg/wine_backend.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

extern char** environ;

namespace kvs::tools {

namespace {

std::string readAll(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream buffer;
    buffer << in.rdbuf();
    return buffer.str();
}

// The last lines of a log, for an error message.
std::string tail(const std::string& text, std::size_t lines) {
    if (text.empty()) return text;
    std::size_t at = text.size();
    while (lines > 0 && at > 0) {
        at = text.rfind('\n', at - 1);
        if (at == std::string::npos) return text;
        --lines;
    }
    return text.substr(at + 1);
}

std::string runnerScript() {
    if (const char* script = std::getenv("KVS_WINE_SCRIPT"); script && *script) return script;
#ifdef KVS_WINE_SCRIPT
    return KVS_WINE_SCRIPT;
#else
    return {};
#endif
}

// A temporary file that is removed again.
class TempFile {
public:
    TempFile() {
        char name[] = "/tmp/kvsdlg-wine-XXXXXX";
        const int fd = mkstemp(name);
        if (fd >= 0) {
            close(fd);
            path_ = name;
        }
    }
    ~TempFile() {
        if (!path_.empty()) unlink(path_.c_str());
    }
    const std::string& path() const { return path_; }

private:
    std::string path_;
};

// Runs argv with stdin from /dev/null and stdout and stderr into log;
// returns the exit status, or -1 when it could not run.
int run(const std::vector<std::string>& args, const std::string& log) {
    std::vector<char*> argv;
    for (const std::string& arg : args) argv.push_back(const_cast<char*>(arg.c_str()));
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, log.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_adddup2(&actions, 1, 2);
    pid_t pid = 0;
    const int spawned = posix_spawn(&pid, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (spawned != 0) return -1;
    int status = 0;
    if (waitpid(pid, &status, 0) != pid) return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

std::string windowsPath(const std::string& absolutePath) {
    std::string out = "Z:";
    for (char c : absolutePath) out += c == '/' ? '\\' : c;
    return out;
}

bool splitScenarioOutput(const std::string& output, std::size_t fileCount, std::vector<std::string>& transcripts,
                         std::string& error) {
    transcripts.assign(fileCount, std::string());
    std::vector<bool> seen(fileCount, false);
    std::string* current = nullptr;
    bool ended = false;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind("#scenario ", 0) == 0) {
            const std::size_t number = std::strtoul(line.c_str() + 10, nullptr, 10);
            if (number < 1 || number > fileCount) {
                error = "unexpected line in the Wine output: " + line;
                return false;
            }
            seen[number - 1] = true;
            current = &transcripts[number - 1];
        } else if (line == "#end") {
            ended = true;
            current = nullptr;
        } else if (current) {
            *current += line;
            *current += '\n';
        }
    }
    for (std::size_t i = 0; i < fileCount; ++i) {
        if (!seen[i]) {
            error = "the Wine run stopped before scenario " + std::to_string(i + 1);
            return false;
        }
    }
    if (!ended) {
        error = "the Wine run stopped during the last scenario";
        return false;
    }
    return true;
}

std::vector<std::pair<std::size_t, std::size_t>> commandLineBatches(const std::vector<std::string>& arguments,
                                                                    std::size_t room) {
    std::vector<std::pair<std::size_t, std::size_t>> batches;
    std::size_t first = 0, used = 0;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::size_t length = arguments[i].size() + 3;  // a blank and the quotes Wine may add
        if (i > first && used + length > room) {
            batches.emplace_back(first, i);
            first = i;
            used = 0;
        }
        used += length;
    }
    if (first < arguments.size()) batches.emplace_back(first, arguments.size());
    return batches;
}

namespace {

// One KORVAN.exe run over some of the files.
int runBatch(const std::string& script, const std::vector<std::string>& paths, std::vector<std::string>& transcripts,
             std::string& error) {
    TempFile output, log;
    if (output.path().empty() || log.path().empty()) {
        error = "cannot make a temporary file";
        return 2;
    }
    std::vector<std::string> args = {"/bin/bash", script, "--scenario", windowsPath(output.path())};
    args.insert(args.end(), paths.begin(), paths.end());
    const int status = run(args, log.path());
    if (status < 0) {
        error = "cannot run " + script;
        return 2;
    }
    const std::string produced = readAll(output.path());
    const bool complete = splitScenarioOutput(produced, paths.size(), transcripts, error);
    if (complete && status == 0) return 0;
    if (produced.empty())
        error = "the Wine run produced nothing: KORVAN.exe did not start or ended at once (status " +
                std::to_string(status) + ")";
    else if (complete)
        error = "KORVAN.exe ended with status " + std::to_string(status);
    const std::string messages = tail(readAll(log.path()), 5);
    if (!messages.empty()) error += "\n" + messages;
    return 1;
}

}  // namespace

int runUnderWine(const std::vector<std::string>& scenarioFiles, std::vector<std::string>& transcripts,
                 std::string& error) {
    transcripts.assign(scenarioFiles.size(), std::string());
    const std::string script = runnerScript();
    if (script.empty()) {
        error = "no Wine runner: set KVS_WINE_SCRIPT to tools/wine/korvan.sh";
        return 2;
    }
    std::vector<std::string> paths;
    for (const std::string& file : scenarioFiles) {
        std::error_code ignored;
        paths.push_back(windowsPath(std::filesystem::absolute(file, ignored).lexically_normal().string()));
    }
    // Windows takes 32,767 characters of command line; the program's own
    // path and the output's take part of it.
    for (const auto& [first, last] : commandLineBatches(paths, kScenarioPathRoom)) {
        const std::vector<std::string> batch(paths.begin() + static_cast<std::ptrdiff_t>(first),
                                             paths.begin() + static_cast<std::ptrdiff_t>(last));
        std::vector<std::string> batchTranscripts;
        const int status = runBatch(script, batch, batchTranscripts, error);
        for (std::size_t i = 0; i < batchTranscripts.size(); ++i) transcripts[first + i] = batchTranscripts[i];
        if (status != 0) {
            error = "scenarios " + std::to_string(first + 1) + " to " + std::to_string(last) + ": " + error;
            return status;
        }
    }
    return 0;
}

}  // namespace kvs::tools
