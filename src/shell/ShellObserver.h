#pragma once

#include "client/CommandObserver.h"
#include "console/ItemFields.h"
#include "wire/Text.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace shell {

// How a host learns what has changed in the console. Changes are told when a handler has returned and everything that
// it asked for is done, so that tree and list never show a state in between; only the functions about commands come
// while a handler runs. Of a change of items or rows the first call comes before, and the second after it.
// What an observer throws is dropped.
class ShellObserver {
public:
    virtual ~ShellObserver() = default;

    virtual void scopeItemsAboutToBeInserted(console::ScopeId /*parent*/, std::size_t /*first*/,
                                             std::size_t /*count*/) {}
    virtual void scopeItemsInserted(console::ScopeId /*parent*/, std::size_t /*first*/, std::size_t /*count*/) {}
    virtual void scopeItemsAboutToBeRemoved(console::ScopeId /*parent*/, std::size_t /*first*/, std::size_t /*count*/) {
    }
    virtual void scopeItemsRemoved(console::ScopeId /*parent*/, std::size_t /*first*/, std::size_t /*count*/) {}
    // Its text, its images, or whether it may have children.
    virtual void scopeItemChanged(console::ScopeId /*item*/) {}
    // Its children are, or are no longer, to be seen.
    virtual void scopeItemOpened(console::ScopeId /*item*/, bool /*open*/) {}

    // Another scope item, another row, or another of the two panes is the one that commands go to.
    virtual void selectionChanged() {}
    virtual void verbsChanged() {}

    virtual void columnsChanged() {}
    virtual void rowsAboutToBeInserted(std::size_t /*first*/, std::size_t /*count*/) {}
    virtual void rowsInserted(std::size_t /*first*/, std::size_t /*count*/) {}
    virtual void rowsAboutToBeRemoved(std::size_t /*first*/, std::size_t /*count*/) {}
    virtual void rowsRemoved(std::size_t /*first*/, std::size_t /*count*/) {}
    // The same rows may have other cells.
    virtual void rowsChanged(std::size_t /*first*/, std::size_t /*count*/) {}
    // Any rows, in any order. A row that was there before has its id still.
    virtual void rowsAboutToBeReset() {}
    virtual void rowsReset() {}

    virtual void commandStarted(const client::CommandReport& /*report*/) {}
    // Called some twenty times a second while a command waits. False gives up on it.
    virtual bool commandWaits(std::chrono::milliseconds /*elapsed*/, std::uint32_t /*records*/) { return true; }
    virtual void commandEnded(const client::CommandReport& /*report*/) {}
    // A node's or a form's handler threw; it was stopped there and the console goes on.
    virtual void handlerStopped(std::string_view /*where*/, std::string_view /*what*/) {}

    // The snap-in wants the console to end.
    virtual void closeRequested() {}
};

} // namespace shell
