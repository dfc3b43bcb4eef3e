#include "tests/shell/TestSnapIn.h"

#include "wire/Text.h"

namespace shelltest {
namespace {

std::string describe(const console::CSnapInItem& node, const console::Notification& notification) {
    using console::Event;
    const auto name = wire::toUtf8(node.displayName());
    const std::string side = notification.type == console::DataObjectType::result ? " row" : "";
    switch (notification.event) {
    case Event::addImages:
        return "add images " + name;
    case Event::columnClick:
        return "column click " + name + " " + std::to_string(notification.arg);
    case Event::doubleClick:
        return "double click " + name + side;
    case Event::deleteItem:
        return "delete " + name + side;
    case Event::expand:
        return (notification.arg != 0 ? "expand " : "collapse ") + name;
    case Event::paste:
        return "paste " + wire::toUtf8(notification.source->displayName()) + " on " + name;
    case Event::queryPaste:
        return "query paste " + name;
    case Event::refresh:
        return "refresh " + name + side;
    case Event::rename:
        return "rename " + name + side;
    case Event::select:
        return "select " + name + side + ((notification.arg & 2) != 0 ? " on" : " off");
    case Event::show:
        return "show " + name + (notification.arg != 0 ? " on" : " off");
    case Event::viewChange:
        return "view change " + name;
    default:
        return "other " + name;
    }
}

} // namespace

console::Result TestSnapIn::Initialize(console::IConsole& console) {
    console_ = &console;
    if (onInitialize) {
        onInitialize();
    }
    return initializeResult;
}

console::Result TestSnapIn::notifyScope(console::CSnapInItem& node, const console::Notification& notification) {
    log.push_back(describe(node, notification));
    auto sent = notification;
    sent.componentData = this;
    return node.Notify(sent);
}

console::Result TestSnapIn::notifyView(console::CSnapInItem& node, const console::Notification& notification) {
    log.push_back(describe(node, notification));
    if (throwOnShow && notification.event == console::Event::show) {
        throw "a plain text";
    }
    auto sent = notification;
    sent.component = this;
    return node.Notify(sent);
}

console::Result TestSnapIn::GetResultViewType(console::CSnapInItem& node, const char16_t*& viewType,
                                              std::int32_t& viewOptions) {
    return node.GetResultViewType(viewType, viewOptions);
}

} // namespace shelltest
