#include "start/Screen.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr double watchedMs = 2500; // after the start
constexpr double lastMs = 1100;    // longer than a text cursor needs to blink once
constexpr double clearedMs = 1000; // at most, until the windows are gone

struct Result {
    double completeMs = 0;
    long peakKb = 0;
};

double since(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

long peakMemoryKb(pid_t program) {
    std::ifstream status("/proc/" + std::to_string(program) + "/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmHWM:"))
            return std::atol(line.c_str() + 6);
    return 0;
}

// The first moment at which the screen showed what it still shows at the end (a text cursor may blink).
double completeAt(const bench::Screen& screen, Clock::time_point start) {
    struct Change {
        double at;
        std::uint64_t print;
    };
    std::vector<Change> changes{{0, screen.fingerprint()}};
    while (since(start) < watchedMs) {
        const std::uint64_t now = screen.fingerprint();
        if (now != changes.back().print)
            changes.push_back({since(start), now});
        std::this_thread::sleep_for(std::chrono::microseconds(400));
    }
    std::set<std::uint64_t> last{changes.back().print};
    for (const Change& change : changes)
        if (change.at > watchedMs - lastMs)
            last.insert(change.print);
    for (const Change& change : changes)
        if (last.contains(change.print))
            return change.at;
    return 0;
}

Result measure(const bench::Screen& screen, const std::vector<char*>& command) {
    const std::uint64_t empty = screen.fingerprint();
    Result result;
    pid_t program = 0;
    const Clock::time_point start = Clock::now();
    if (posix_spawn(&program, command[0], nullptr, nullptr, command.data(), environ) != 0)
        return result;
    result.completeMs = completeAt(screen, start);
    result.peakKb = peakMemoryKb(program);
    kill(program, SIGTERM);
    waitpid(program, nullptr, 0);
    const Clock::time_point ended = Clock::now();
    while (screen.fingerprint() != empty && since(ended) < clearedMs)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    return result;
}

} // namespace

// bench_clock FRAMEBUFFER ROUNDS COMMAND... [-- COMMAND...]: starts the commands in turn and prints, a line
// for each start, the command's position, the milliseconds from its start to its complete windows, and the
// most memory that it held, KB.
int main(int argc, char** argv) {
    if (argc < 4) {
        std::fputs("usage: bench_clock FRAMEBUFFER ROUNDS COMMAND... [-- COMMAND...]\n", stderr);
        return 2;
    }
    const bench::Screen screen(argv[1]);
    if (!screen.valid()) {
        std::fprintf(stderr, "no frame buffer: %s\n", argv[1]);
        return 1;
    }
    std::vector<std::vector<char*>> commands(1);
    for (int i = 3; i < argc; ++i) {
        if (std::strcmp(argv[i], "--") == 0)
            commands.emplace_back();
        else
            commands.back().push_back(argv[i]);
    }
    for (auto& command : commands)
        command.push_back(nullptr);
    for (int round = 0; round < std::atoi(argv[2]); ++round)
        for (std::size_t i = 0; i < commands.size(); ++i) {
            const Result result = measure(screen, commands[i]);
            std::printf("%zu %.1f %ld\n", i, result.completeMs, result.peakKb);
            std::fflush(stdout);
        }
    return 0;
}
