#include "hosts/ctl/Password.h"

#include "hosts/ctl/Failure.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

#include <termios.h>
#include <unistd.h>

namespace ctl {
namespace {

wire::WideString fromFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::string line;
    if (!std::getline(stream, line) && line.empty()) {
        throw Failure(ExitStatus::noConnection, "The password file " + file.string() + " can't be read or is empty");
    }
    if (line.ends_with('\r')) {
        line.pop_back();
    }
    return wire::toWide(line);
}

// Turns off the terminal's echo while it lives.
class SilentTerminal {
public:
    SilentTerminal() : changed_(tcgetattr(STDIN_FILENO, &before_) == 0) {
        termios silent = before_;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        changed_ = changed_ && tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent) == 0;
    }
    SilentTerminal(const SilentTerminal&) = delete;
    SilentTerminal& operator=(const SilentTerminal&) = delete;
    ~SilentTerminal() {
        if (changed_) {
            tcsetattr(STDIN_FILENO, TCSAFLUSH, &before_);
        }
    }

private:
    termios before_{};
    bool changed_;
};

wire::WideString fromTerminal(const std::string& account) {
    std::cerr << "Password of " << account << ": " << std::flush;
    std::string line;
    {
        const SilentTerminal silent;
        if (!std::getline(std::cin, line)) {
            line.clear();
        }
    }
    std::cerr << '\n';
    return wire::toWide(line);
}

} // namespace

wire::WideString obtainPassword(const std::optional<std::filesystem::path>& file, const std::string& account) {
    if (file) {
        return fromFile(*file);
    }
    if (const char* const value = std::getenv("VANTREL_PASSWORD")) {
        return wire::toWide(value);
    }
    if (isatty(STDIN_FILENO) != 0 && isatty(STDERR_FILENO) != 0) {
        return fromTerminal(account);
    }
    throw Failure(ExitStatus::noConnection, "There is no password: give --password-file FILE or set VANTREL_PASSWORD");
}

} // namespace ctl
