#pragma once

#include "client/CommandObserver.h"
#include "console/ItemFields.h"
#include "wire/Text.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace shell {

// How a host learns what has changed in the console. Changes are reported when a handler has returned and everything
// that it asked for is done, so that tree and list never show an intermediate state; only the functions about commands
// are called while a handler runs. For a change of items or rows, the first function is called before it and the second
// after it. What an observer throws is dropped.
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
    // Its children are displayed, or no longer displayed.
    virtual void scopeItemOpened(console::ScopeId /*item*/, bool /*open*/) {}

    // Commands now go to another scope item, another row, or the other pane.
    virtual void selectionChanged() {}
    virtual void verbsChanged() {}
    // Something else is cut, or nothing any more.
    virtual void cutChanged() {}

    virtual void columnsChanged() {}
    virtual void rowsAboutToBeInserted(std::size_t /*first*/, std::size_t /*count*/) {}
    virtual void rowsInserted(std::size_t /*first*/, std::size_t /*count*/) {}
    virtual void rowsAboutToBeRemoved(std::size_t /*first*/, std::size_t /*count*/) {}
    virtual void rowsRemoved(std::size_t /*first*/, std::size_t /*count*/) {}
    // The cells of these rows may have changed.
    virtual void rowsChanged(std::size_t /*first*/, std::size_t /*count*/) {}
    // Any rows may change, in any order. A row that existed before keeps its id.
    virtual void rowsAboutToBeReset() {}
    virtual void rowsReset() {}

    virtual void commandStarted(const client::CommandReport& /*report*/) {}
    // Called about twenty times a second while a command waits. False cancels it.
    virtual bool commandWaits(std::chrono::milliseconds /*elapsed*/, std::uint32_t /*records*/) { return true; }
    virtual void commandEnded(const client::CommandReport& /*report*/) {}
    // A handler of a node or form threw; the exception was caught and the console goes on.
    virtual void handlerStopped(std::string_view /*where*/, std::string_view /*what*/) {}

    // The snap-in asks the console to close.
    virtual void closeRequested() {}
};

} // namespace shell
