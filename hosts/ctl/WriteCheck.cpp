#include "hosts/ctl/WriteCheck.h"

#include "hosts/ctl/Failure.h"
#include "protocol/estate/Printer.h"
#include "protocol/estate/Region.h"

#include <utility>

namespace ctl {

WriteCheck::WriteCheck(shell::Shell& shell, shell::Observers& observers, console::ScopeId id)
    : shell_(shell), observers_(observers), id_(id), parent_(shell.tree().parent(id)), before_(around()) {
    observers_.add(*this);
}

WriteCheck::~WriteCheck() {
    observers_.remove(*this);
}

std::set<std::string> WriteCheck::around() const {
    std::set<std::string> identities;
    for (const auto above : {id_, parent_}) {
        for (const auto child : shell_.tree().children(above)) {
            const auto& node = *shell_.tree().find(child)->node;
            identities.insert(std::to_string(above) + node.className() + '\n' + node.refreshKey());
        }
    }
    return identities;
}

void WriteCheck::commandEnded(const client::CommandReport& report) {
    if (report.outcome == client::CommandOutcome::done && (report.opcode == protocol::CreateRegionRequest::opcode ||
                                                           report.opcode == protocol::DeleteRecordRequest::opcode ||
                                                           report.opcode == protocol::DeleteRegionRequest::opcode)) {
        command_ = report.name;
    }
}

void WriteCheck::check() {
    if (command_.empty() || around() != before_) {
        return;
    }
    shell_.select(parent_);
    shell_.refresh();
    if (shell_.tree().contains(id_)) {
        shell_.select(id_);
        shell_.refresh();
    }
    if (around() == before_) {
        throw Failure(ExitStatus::refused, "The server did not carry out the command " + command_);
    }
}

} // namespace ctl
