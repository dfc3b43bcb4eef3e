#pragma once

#include "console/IImageList.h"
#include "shell/Observers.h"
#include "shell/ScopeItem.h"
#include "shell/SnapIn.h"

#include <memory>

namespace shell {

// Sends the console's notifications to nodes, and keeps each node alive while it handles one. Whatever a node throws is
// caught here: it is reported to the observers, and the result is Result::failed.
class Notifier {
public:
    using Node = std::shared_ptr<console::CSnapInItem>;

    // Both outlive it.
    Notifier(SnapIn& snapIn, const Observers& observers) : snapIn_(snapIn), observers_(observers) {}

    // Result::ok if the children could be read.
    [[nodiscard]] console::Result expand(const Node& node, console::ScopeId id) const;
    // Nothing depends on what a node makes of these.
    void collapse(const Node& node, console::ScopeId id) const;
    console::Result addImages(const Node& node, console::ScopeId id, console::IImageList& images) const;
    void show(const Node& node, console::ScopeId id, bool show) const;
    // Asks the shown node to show its columns and rows again after a refresh.
    console::Result showAnew(const Node& node, console::IConsole& console) const;
    void select(const Node& node, console::DataObjectType type, bool selected) const;
    [[nodiscard]] console::Result refresh(const Node& node, console::DataObjectType type,
                                          console::ScopeId scopeId) const;
    [[nodiscard]] console::Result doubleClick(const Node& node, console::DataObjectType type) const;
    void columnClick(const Node& node, std::int32_t column) const;
    [[nodiscard]] console::Result rename(const Node& node, console::DataObjectType type,
                                         const wire::WideString& newName) const;
    [[nodiscard]] console::Result queryPaste(const Node& node, console::DataObjectType type, const Node& source) const;
    [[nodiscard]] console::Result paste(const Node& node, console::DataObjectType type, const Node& source) const;
    [[nodiscard]] console::Result deleteItem(const Node& node, console::DataObjectType type) const;

    // Whether the console is to list the scope children of the node itself.
    [[nodiscard]] bool listsScopeChildren(const Node& node) const;

    // Runs work that may throw; false when it did.
    template <class Work>
    bool guard(std::string_view where, Work&& work) const {
        try {
            work();
            return true;
        } catch (const char* text) {
            stopped(where, text);
        } catch (const std::exception& exception) {
            stopped(where, exception.what());
        } catch (...) {
            stopped(where, "an unknown exception");
        }
        return false;
    }

private:
    enum class Side : std::uint8_t { scope, view };
    [[nodiscard]] console::Result send(Side side, Node node, const console::Notification& notification) const;
    void stopped(std::string_view where, std::string_view what) const;

    SnapIn& snapIn_;
    const Observers& observers_;
};

} // namespace shell
