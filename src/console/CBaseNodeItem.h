#pragma once

#include "console/NodeBase.h"

#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace console {

// "class PrinterNode" for printers::PrinterNode, whatever the compiler.
template <class T>
std::string classNameOf() {
    std::string_view name =
        __PRETTY_FUNCTION__; // "... [with T = printers::PrinterNode; ...]" or "[T = printers::PrinterNode]"
    name.remove_prefix(name.find("T = ") + 4);
    name = name.substr(0, name.find_first_of(";]"));
    if (const auto scope = name.rfind("::"); scope != std::string_view::npos) {
        name.remove_prefix(scope + 2);
    }
    return "class " + std::string(name);
}

// The base of every node class X, as CBaseNodeItem<X>. X declares its identity, `static constexpr NodeIdentity
// identity{.displayName = u"Price Plans", ...}`, and lists its commands in commands(), which gives menu, handlers and
// keys. Base is NodeBase, or a class derived from it that several node classes share.
template <class T, class Base = NodeBase>
class CBaseNodeItem : public Base {
public:
    [[nodiscard]] const NodeIdentity& nodeIdentity() const final { return T::identity; }
    [[nodiscard]] const std::string& className() const final {
        static const std::string name = classNameOf<T>();
        return name;
    }

protected:
    // Arguments after the platform are passed to the base.
    template <class... More>
    explicit CBaseNodeItem(platform::Platform& platform, More&&... more)
        : Base(platform, T::identity, std::forward<More>(more)...) {}

    // In the order of the menu.
    virtual std::span<const NodeCommand<T>> commands() const { return {}; }

    [[nodiscard]] MenuEntries menu() const override { return menuOf(static_cast<const T&>(*this), commands()); }
    Result runCommand(std::int32_t commandId, CommandOrigin origin) override {
        const auto* const command = findCommand(commands(), commandId);
        return command != nullptr && command->run != nullptr ? (static_cast<T&>(*this).*command->run)(origin)
                                                             : Result::notDone;
    }
    [[nodiscard]] KeySequence keysAfterCommand(std::int32_t commandId, CommandOrigin /*origin*/) const override {
        const auto* const command = findCommand(commands(), commandId);
        return command != nullptr ? command->keys : KeySequence();
    }
};

} // namespace console
