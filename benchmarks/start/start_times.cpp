// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Starts two programs in turn, each until its first painted window, and prints the ratio of their median times.
//
//   start_times <rounds> <preloaded library> <first program> <second program> [argument of the second]...

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace {

double runMilliseconds(char *const *arguments, const std::string &library)
{
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        setenv("LD_PRELOAD", library.c_str(), 1);
        execv(arguments[0], arguments);
        _exit(127);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "%s did not come to a painted window\n", arguments[0]);
        std::exit(1);
    }
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char **argv)
{
    const int rounds = argc >= 5 ? static_cast<int>(std::strtol(argv[1], nullptr, 10)) : 0;
    if (rounds <= 0) {
        std::fprintf(stderr,
                     "usage: start_times <rounds> <library> <first program> <second program> [argument]...\n");
        return 2;
    }
    char *const first[] = {argv[3], nullptr};
    std::vector<double> firstTimes;
    std::vector<double> secondTimes;
    for (int round = 0; round <= rounds; ++round) {
        const double firstTime = runMilliseconds(first, argv[2]);
        const double secondTime = runMilliseconds(argv + 4, argv[2]);
        if (round > 0) { // the first round warms the disk's cache up
            firstTimes.push_back(firstTime);
            secondTimes.push_back(secondTime);
        }
    }
    const double one = median(firstTimes);
    const double other = median(secondTimes);
    std::printf("%.1f ms, %.1f ms, ratio %.3g\n", one, other, other / one);
    return 0;
}
