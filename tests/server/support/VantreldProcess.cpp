#include "tests/server/support/VantreldProcess.h"

#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>

namespace server::test {

namespace {

constexpr int outputMilliseconds = 30000;
constexpr auto listening = "listening on 127.0.0.1 port ";

} // namespace

VantreldProcess::VantreldProcess(std::vector<std::string> arguments, std::optional<std::uint64_t> largestFile) {
    arguments.insert(arguments.begin(), VANTRELD_PROGRAM);
    std::vector<char*> pointers;
    for (auto& argument : arguments) {
        pointers.push_back(argument.data());
    }
    pointers.push_back(nullptr);
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) {
        throw std::runtime_error("no pipe");
    }
    process_ = ::fork();
    if (process_ == 0) {
        if (largestFile) {
            const rlimit limit{.rlim_cur = *largestFile, .rlim_max = *largestFile};
            ::setrlimit(RLIMIT_FSIZE, &limit);
        }
        ::dup2(ends[1], STDOUT_FILENO);
        ::dup2(ends[1], STDERR_FILENO);
        ::close(ends[0]);
        ::close(ends[1]);
        ::execv(pointers[0], pointers.data());
        ::_exit(127);
    }
    ::close(ends[1]);
    pipe_ = ends[0];
}

VantreldProcess::~VantreldProcess() {
    if (process_ > 0) {
        ::kill(process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
    }
    ::close(pipe_);
}

std::uint16_t VantreldProcess::waitForPort() {
    for (;;) {
        const auto at = output_.find(listening);
        if (at != std::string::npos && output_.find('\n', at) != std::string::npos) {
            return static_cast<std::uint16_t>(std::stoi(output_.substr(at + std::string(listening).size())));
        }
        if (!readMore()) {
            throw std::runtime_error("vantreld has ended: " + output_);
        }
    }
}

void VantreldProcess::signal(int number) {
    ::kill(process_, number);
}

int VantreldProcess::wait() {
    while (readMore()) {
    }
    int status = 0;
    ::waitpid(process_, &status, 0);
    process_ = -1;
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

bool VantreldProcess::readMore() {
    pollfd entry{.fd = pipe_, .events = POLLIN, .revents = 0};
    if (::poll(&entry, 1, outputMilliseconds) != 1) {
        throw std::runtime_error("vantreld says nothing: " + output_);
    }
    std::array<char, 4096> piece{};
    const auto count = ::read(pipe_, piece.data(), piece.size());
    if (count > 0) {
        output_.append(piece.data(), static_cast<std::size_t>(count));
    }
    return count > 0;
}

} // namespace server::test
