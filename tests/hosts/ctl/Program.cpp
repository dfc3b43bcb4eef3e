#include "tests/hosts/ctl/Program.h"

#include <array>
#include <chrono>
#include <csignal>
#include <stdexcept>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace hosttest {
namespace {

using Clock = std::chrono::steady_clock;

struct Pipe {
    Pipe() {
        if (pipe2(ends.data(), O_CLOEXEC) != 0) {
            throw std::runtime_error("no pipe");
        }
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    ~Pipe() {
        close(ends[0]);
        closeWriting();
    }
    void closeWriting() {
        if (ends[1] >= 0) {
            close(ends[1]);
            ends[1] = -1;
        }
    }
    std::array<int, 2> ends{};
};

[[noreturn]] void become(std::vector<std::string>& arguments, const std::map<std::string, std::string>& environment,
                         int output, int errors) {
    for (const auto& [name, value] : environment) {
        value.empty() ? unsetenv(name.c_str()) : setenv(name.c_str(), value.c_str(), 1);
    }
    std::vector<char*> pointers;
    for (auto& argument : arguments) {
        pointers.push_back(argument.data());
    }
    pointers.push_back(nullptr);
    const int nothing = open("/dev/null", O_RDONLY);
    dup2(nothing, STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    dup2(errors, STDERR_FILENO);
    execv(pointers[0], pointers.data());
    _exit(127);
}

// Reads both to the end; false when that takes too long.
bool readAll(int output, int errors, Outcome& outcome) {
    const auto limit = Clock::now() + std::chrono::minutes(1);
    std::array<pollfd, 2> entries{{{output, POLLIN, 0}, {errors, POLLIN, 0}}};
    while (entries[0].fd >= 0 || entries[1].fd >= 0) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(limit - Clock::now()).count();
        if (left <= 0 || poll(entries.data(), entries.size(), static_cast<int>(left)) <= 0) {
            return false;
        }
        for (auto& entry : entries) {
            std::array<char, 4096> piece{};
            if (entry.fd < 0 || entry.revents == 0) {
                continue;
            }
            const auto count = read(entry.fd, piece.data(), piece.size());
            auto& text = entry.fd == output ? outcome.output : outcome.errors;
            if (count > 0) {
                text.append(piece.data(), static_cast<std::size_t>(count));
            } else {
                entry.fd = -1;
            }
        }
    }
    return true;
}

} // namespace

Outcome runProgram(std::vector<std::string> arguments, const std::map<std::string, std::string>& environment) {
    Pipe output;
    Pipe errors;
    const pid_t process = fork();
    if (process == 0) {
        become(arguments, environment, output.ends[1], errors.ends[1]);
    }
    output.closeWriting();
    errors.closeWriting();
    Outcome outcome;
    const bool ended = readAll(output.ends[0], errors.ends[0], outcome);
    if (!ended) {
        kill(process, SIGKILL);
    }
    int status = 0;
    waitpid(process, &status, 0);
    if (!ended) {
        throw std::runtime_error(arguments.front() + " does not end: " + outcome.errors);
    }
    outcome.status = WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
    return outcome;
}

} // namespace hosttest
