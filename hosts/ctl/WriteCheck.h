#pragma once

#include "shell/Shell.h"
#include "shell/ShellObserver.h"

#include <set>
#include <string>

namespace ctl {

// Notices when the server did not do what it was told. Creating and deleting have no answer that says so, but both
// always change what stands around the node.
class WriteCheck final : public shell::ShellObserver {
public:
    // Remembers what stands around the node: its children, and those of its parent. Both arguments outlive it.
    WriteCheck(shell::Shell& shell, shell::Observers& observers, console::ScopeId id);
    WriteCheck(const WriteCheck&) = delete;
    WriteCheck& operator=(const WriteCheck&) = delete;
    ~WriteCheck() override;

    void commandEnded(const client::CommandReport& report) override;

    // Reads again after a create or a delete. Throws Failure (refused) when nothing has changed.
    void check();

private:
    std::set<std::string> around() const;

    shell::Shell& shell_;
    shell::Observers& observers_;
    console::ScopeId id_;
    console::ScopeId parent_;
    std::set<std::string> before_;
    std::string command_; // the last create or delete
};

} // namespace ctl
