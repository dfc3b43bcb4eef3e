#pragma once

#include "console/NodeBase.h"

#include <string>
#include <string_view>

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

// The base of every node class X, as CBaseNodeItem<X>. X names itself with a
// `static constexpr NodeIdentity identity{.displayName = u"Price Plans", ...}`.
template <class T>
class CBaseNodeItem : public NodeBase {
public:
    const NodeIdentity& nodeIdentity() const final { return T::identity; }
    const std::string& className() const final {
        static const std::string name = classNameOf<T>();
        return name;
    }

protected:
    explicit CBaseNodeItem(platform::Platform& platform) : NodeBase(platform, T::identity) {}
};

} // namespace console
