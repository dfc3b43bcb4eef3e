#pragma once

#include "hosts/common/WriteCheck.h"
#include "hosts/ctl/FailureWatch.h"
#include "hosts/ctl/NodePath.h"
#include "hosts/desktop/window/MainWindow.h"
#include "tests/support/MemorySettingsStore.h"
#include "tests/transcripts/SampleServer.h"
#include "tests/transcripts/desktop/Person.h"

#include <memory>

namespace transcripts {

// The program's window, logged in, with a person before it.
class Desk {
public:
    // Throws ctl::Failure (no connection).
    explicit Desk(const SampleServer& server);
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;
    ~Desk();

    // Until the console is idle and nothing is asked any more.
    void settle();
    // Throws ctl::Failure when a command has failed or was not carried out, or a step was left over.
    void check();

    // Goes down the tree and selects what stands at the end. Throws ctl::Failure (refused) when a name is not there.
    QModelIndex open(const ctl::NodePath& path);
    void expand(const QModelIndex& item);
    // Selects a row of the list. Throws ctl::Failure likewise.
    void selectRow(const std::string& name);

    desktop::MainWindow& window() { return *window_; }
    desktop::ScopeView& tree() { return window_->panes().tree(); }
    desktop::ListView& list() { return window_->panes().list(); }
    Person& person() { return person_; }

private:
    void checkCommands();

    support::MemorySettingsStore settings_;
    desktop::IconStrips icons_;
    desktop::ViewSettings viewSettings_;
    ctl::FailureWatch failures_;
    common::WriteCheck writes_;
    std::unique_ptr<desktop::Session> session_;
    std::unique_ptr<desktop::MainWindow> window_;
    Person person_;
};

} // namespace transcripts
