#include "hosts/common/SystemLauncher.h"

#include <fcntl.h>
#include <linux/close_range.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <string>

namespace common {
namespace {

// Everything that the new process needs, made before the fork: after it nothing may be allocated.
class CommandLine {
public:
    CommandLine(const wire::WideString& program, const std::vector<wire::WideString>& arguments) {
        texts_.push_back(wire::toCodePage(program));
        for (const auto& argument : arguments) {
            texts_.push_back(wire::toCodePage(argument));
        }
        for (auto& text : texts_) {
            pointers_.push_back(text.data());
        }
        pointers_.push_back(nullptr);
    }

    [[nodiscard]] char* const* arguments() const { return pointers_.data(); }

private:
    std::vector<std::string> texts_;
    std::vector<char*> pointers_;
};

// From here to becomeProgram the code runs in the child, where only functions that are safe after a fork may be called.

void tellAndExit(int pipe, int error) {
    [[maybe_unused]] const ssize_t written = ::write(pipe, &error, sizeof error);
    ::_exit(127);
}

void closeAllOnExec() {
    constexpr int first = STDERR_FILENO + 1;
    if (::close_range(first, ~0U, CLOSE_RANGE_CLOEXEC) == 0) {
        return;
    }
    const long end = ::sysconf(_SC_OPEN_MAX); // an older kernel
    for (int descriptor = first; descriptor < end; ++descriptor) {
        ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    }
}

void leaveStandardStreams() {
    const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        ::dup2(nothing, stream);
    }
}

void forgetSignals() {
    for (int signal = 1; signal < NSIG; ++signal) {
        ::signal(signal, SIG_DFL);
    }
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

// Forks again, so that the program becomes a child of the system and leaves no zombie in this process.
[[noreturn]] void becomeProgram(char* const* arguments, int pipe) {
    ::setsid();
    const pid_t grandchild = ::fork();
    if (grandchild < 0) {
        tellAndExit(pipe, errno);
    }
    if (grandchild > 0) {
        ::_exit(0);
    }
    forgetSignals();
    leaveStandardStreams();
    closeAllOnExec();
    ::execv(arguments[0], arguments);
    tellAndExit(pipe, errno);
    ::_exit(127);
}

std::error_code errorOf(int number) {
    return {number, std::generic_category()};
}

// The error that the child reports; none once the program runs, because that closes the child's end of the pipe.
std::error_code told(int pipe) {
    int error = 0;
    ssize_t count = 0;
    do {
        count = ::read(pipe, &error, sizeof error);
    } while (count < 0 && errno == EINTR);
    return count == sizeof error ? errorOf(error) : std::error_code();
}

} // namespace

std::error_code SystemLauncher::start(const wire::WideString& program, const std::vector<wire::WideString>& arguments) {
    const CommandLine line(program, arguments);
    std::array<int, 2> pipe{};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0) {
        return errorOf(errno);
    }
    const pid_t child = ::fork();
    const int failure = errno;
    if (child == 0) {
        becomeProgram(line.arguments(), pipe[1]);
    }
    ::close(pipe[1]);
    const auto error = child < 0 ? errorOf(failure) : told(pipe[0]);
    ::close(pipe[0]);
    while (child > 0 && ::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    return error;
}

} // namespace common
