#include "shell/Notifier.h"

#include <string>

namespace shell {

using console::DataObjectType;
using console::Event;
using console::Notification;
using console::Result;
using console::ScopeId;

Result Notifier::send(Side side, Node node, const Notification& notification) const {
    auto result = Result::failed;
    guard(node->className(), [&] {
        result =
            side == Side::scope ? snapIn_.notifyScope(*node, notification) : snapIn_.notifyView(*node, notification);
    });
    return result;
}

void Notifier::stopped(std::string_view where, std::string_view what) const {
    observers_.tell([&](ShellObserver& observer) { observer.handlerStopped(where, what); });
}

Result Notifier::expand(const Node& node, ScopeId id) const {
    return send(Side::scope, node, {.event = Event::expand, .arg = 1, .param = id});
}

void Notifier::collapse(const Node& node, ScopeId id) const {
    static_cast<void>(send(Side::scope, node, {.event = Event::expand, .arg = 0, .param = id}));
}

Result Notifier::addImages(const Node& node, ScopeId id, console::IImageList& images) const {
    return send(Side::view, node, {.event = Event::addImages, .param = id, .images = &images});
}

void Notifier::show(const Node& node, ScopeId id, bool show) const {
    static_cast<void>(send(Side::view, node, {.event = Event::show, .arg = show ? 1 : 0, .param = id}));
}

Result Notifier::showAnew(const Node& node, console::IConsole& console) const {
    auto result = Result::failed;
    guard(node->className(), [&, keptAlive = node] { result = keptAlive->showAnew(console); });
    return result;
}

void Notifier::select(const Node& node, DataObjectType type, bool selected) const {
    const int arg = (type == DataObjectType::scope ? 1 : 0) | (selected ? 2 : 0);
    static_cast<void>(send(Side::view, node, {.event = Event::select, .arg = arg, .type = type}));
}

Result Notifier::refresh(const Node& node, DataObjectType type, ScopeId scopeId) const {
    return send(Side::view, node, {.event = Event::refresh, .arg = scopeId, .type = type});
}

Result Notifier::doubleClick(const Node& node, DataObjectType type) const {
    return send(Side::view, node, {.event = Event::doubleClick, .type = type});
}

void Notifier::columnClick(const Node& node, std::int32_t column) const {
    static_cast<void>(send(Side::view, node, {.event = Event::columnClick, .arg = column}));
}

Result Notifier::rename(const Node& node, DataObjectType type, const wire::WideString& newName) const {
    return send(type == DataObjectType::scope ? Side::scope : Side::view, node,
                {.event = Event::rename, .text = newName.c_str(), .type = type});
}

Result Notifier::queryPaste(const Node& node, DataObjectType type, const Node& source) const {
    return send(Side::view, node, {.event = Event::queryPaste, .source = source.get(), .type = type});
}

Result Notifier::paste(const Node& node, DataObjectType type, const Node& source) const {
    return send(Side::view, node, {.event = Event::paste, .source = source.get(), .type = type});
}

Result Notifier::deleteItem(const Node& node, DataObjectType type) const {
    return send(Side::view, node, {.event = Event::deleteItem, .type = type});
}

bool Notifier::listsScopeChildren(const Node& node) const {
    const char16_t* viewType = nullptr;
    std::int32_t options = 0;
    auto result = Result::failed;
    guard(node->className(), [&] { result = snapIn_.GetResultViewType(*node, viewType, options); });
    return console::succeeded(result) && (options & console::excludeScopeItemsFromList) == 0;
}

} // namespace shell
