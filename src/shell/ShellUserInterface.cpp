#include "shell/ShellUserInterface.h"

#include <utility>

namespace shell {

void ShellUserInterface::press(std::span<const platform::Key> keys) {
    if (!keys.empty()) {
        tasks_.add({.kind = Task::Kind::refresh});
    }
}

void ShellUserInterface::startThread(std::function<void()> work) {
    tasks_.add({.kind = Task::Kind::work, .work = std::move(work)});
}

void ShellUserInterface::close(platform::WindowHandle /*window*/) {
    tasks_.add({.kind = Task::Kind::close});
}

} // namespace shell
