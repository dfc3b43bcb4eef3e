#include "bench/ServerProcess.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {
namespace {

constexpr std::chrono::seconds startLimit{60};

pid_t spawn(const std::vector<std::string>& words, const std::string& logFile) {
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (const auto& word : words) {
        arguments.push_back(const_cast<char*>(word.c_str()));
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, logFile.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    posix_spawn_file_actions_adddup2(&files, STDOUT_FILENO, STDERR_FILENO);
    pid_t process = 0;
    const int error = posix_spawnp(&process, arguments[0], &files, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    if (error != 0) {
        throw std::runtime_error("Cannot start " + words[0]);
    }
    return process;
}

} // namespace

std::uint64_t peakMemoryOf(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string word; status >> word;) {
        std::uint64_t kilobytes = 0;
        if (word == "VmHWM:" && status >> kilobytes) {
            return kilobytes * 1024;
        }
    }
    throw std::runtime_error("The system does not tell what memory a process has used");
}

void forgetPeakMemoryOf(pid_t process) {
    std::ofstream("/proc/" + std::to_string(process) + "/clear_refs") << "5\n";
}

ServerProcess::ServerProcess(const std::filesystem::path& database, const std::vector<std::string>& options,
                             const std::vector<std::string>& before) {
    const auto portFile = database.string() + ".port";
    std::filesystem::remove(portFile);
    // An interrupted benchmark leaves no server behind.
    std::vector<std::string> words{"setpriv", "--pdeathsig", "TERM"};
    words.insert(words.end(), before.begin(), before.end());
    words.insert(words.end(), {VANTREL_SERVER, "--database", database.string(), "--port", "0", "--port-file", portFile,
                               "--login-required", "0"});
    words.insert(words.end(), options.begin(), options.end());
    process_ = spawn(words, database.string() + ".log");
    try {
        waitUntilListening(portFile);
    } catch (...) {
        stop();
        throw;
    }
}

ServerProcess::~ServerProcess() {
    stop();
}

void ServerProcess::waitUntilListening(const std::filesystem::path& portFile) {
    const auto end = std::chrono::steady_clock::now() + startLimit;
    while (!(std::ifstream(portFile) >> port_)) {
        if (waitpid(process_, nullptr, WNOHANG) != 0) {
            process_ = 0;
            throw std::runtime_error("vantreld ended before it listened");
        }
        if (std::chrono::steady_clock::now() > end) {
            throw std::runtime_error("vantreld does not listen");
        }
        std::this_thread::sleep_for(std::chrono::microseconds(500));
    }
}

std::uint64_t ServerProcess::residentMemory() const {
    std::ifstream pages("/proc/" + std::to_string(process_) + "/statm");
    std::uint64_t total = 0;
    std::uint64_t resident = 0;
    pages >> total >> resident;
    return resident * static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
}

void ServerProcess::stop() {
    if (process_ != 0) {
        kill(process_, SIGTERM);
        waitpid(process_, nullptr, 0);
        process_ = 0;
    }
}

} // namespace bench
