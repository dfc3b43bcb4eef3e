#include "hosts/common/DiagnosticsLog.h"

#include "diagnostics/LogLine.h"
#include "diagnostics/Loggers.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <system_error>
#include <utility>

namespace common {
namespace {

namespace fs = std::filesystem;

// A file descriptor that is closed on destruction.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number_ >= 0) {
            ::close(number_);
        }
    }
    [[nodiscard]] int get() const { return number_; }
    int release() { return std::exchange(number_, -1); }

private:
    int number_;
};

// Whether the file is of that kind and belongs to the user; if so, access by anybody else is taken away.
bool keepToOwner(int descriptor, mode_t kind, mode_t permissions) {
    struct stat status {};
    return ::fstat(descriptor, &status) == 0 && (status.st_mode & S_IFMT) == kind && status.st_uid == ::geteuid() &&
           ((status.st_mode & 077) == 0 || ::fchmod(descriptor, permissions) == 0);
}

// -1 when it can't be opened. A pipe in place of the file does not block.
int openLog(const fs::path& file) {
    std::error_code error;
    fs::create_directories(file.parent_path().parent_path(), error);
    ::mkdir(file.parent_path().c_str(), 0700);
    const Descriptor folder(::open(file.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (folder.get() < 0 || !keepToOwner(folder.get(), S_IFDIR, 0700)) {
        return -1;
    }
    Descriptor log(::openat(folder.get(), file.filename().c_str(),
                            O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600));
    return log.get() >= 0 && keepToOwner(log.get(), S_IFREG, 0600) ? log.release() : -1;
}

// In one write, so that the lines of two programs do not mix. A full disk is not an error.
void add(int descriptor, const std::string& text) {
    while (::write(descriptor, text.data(), text.size()) < 0 && errno == EINTR) {
    }
}

} // namespace

DiagnosticsLog::DiagnosticsLog(fs::path file, std::function<void(const std::string&)> complain)
    : file_(std::move(file)), complain_(std::move(complain)) {}

DiagnosticsLog::~DiagnosticsLog() {
    if (descriptor_ >= 0) {
        ::close(descriptor_);
    }
}

fs::path DiagnosticsLog::defaultPath() {
    constexpr auto name = "vantrel/mmc_log.txt";
    const char* const states = std::getenv("XDG_STATE_HOME");
    if (states != nullptr && fs::path(states).is_absolute()) {
        return fs::path(states) / name;
    }
    const char* const home = std::getenv("HOME");
    return home != nullptr && fs::path(home).is_absolute() ? fs::path(home) / ".local/state" / name : fs::path();
}

bool DiagnosticsLog::opened() {
    if (!std::exchange(tried_, true)) {
        descriptor_ = file_.empty() ? -1 : openLog(file_);
        if (descriptor_ < 0) {
            complain_(file_.empty() ? "There is no folder for the diagnostics log"
                                    : "The diagnostics log " + file_.string() + " can't be written");
        }
    }
    return descriptor_ >= 0;
}

void DiagnosticsLog::log(std::uint32_t flags, std::string_view file, std::uint32_t line, std::string_view function,
                         std::string_view level, std::string_view message, const std::vector<std::string>& tags) {
    const bool aborts = (flags & QvxDiagnostics::abortAfterLine) != 0;
    if (opened()) {
        add(descriptor_, QvxDiagnostics::logLine(flags, file, line, function, level, message, tags) +
                             (aborts ? "Aborting...\n" : ""));
    }
    if (aborts) {
        std::abort();
    }
}

void installDiagnosticsLog(std::function<void(const std::string&)> complain) {
    QvxDiagnostics::addLogger(std::make_unique<DiagnosticsLog>(DiagnosticsLog::defaultPath(), std::move(complain)));
}

} // namespace common
