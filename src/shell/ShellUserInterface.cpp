#include "shell/ShellUserInterface.h"

#include <algorithm>
#include <utility>

namespace shell {

void ShellUserInterface::press(std::span<const platform::Key> keys) {
    if (std::ranges::find(keys, platform::Key::f5) != keys.end()) {
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
