#include "snapin/CPrintComponent.h"

#include "snapin/Print.h"

#include <array>

namespace snapin {
namespace {

constexpr std::intptr_t fourthColumn = 3;

} // namespace

console::CSnapInItem* CPrintComponent::multiSelectCookie() {
    return reinterpret_cast<console::CSnapInItem*>(static_cast<std::intptr_t>(-2));
}

CPrintComponent::CPrintComponent(Print& print) : print_(print) {}

console::Result CPrintComponent::Initialize(console::IConsole& console) {
    console_ = &console;
    return console::Result::ok;
}

// The F5 on a click on the fourth column must stay, whatever the list contains. Such a click brings no data object.
console::Result CPrintComponent::Notify(console::CSnapInItem* dataObject, console::Notification notification) {
    if (notification.event == console::Event::columnClick && notification.arg == fourthColumn) {
        print_.platform().ui.press(std::array{platform::Key::f5});
    }
    console::CSnapInItem* const node =
        notification.event == console::Event::cutOrMove ? notification.source : dataObject;
    if (node == nullptr) {
        return console::Result::notImplemented;
    }
    notification.component = this;
    return node->Notify(notification);
}

console::Result CPrintComponent::Destroy() {
    console_ = nullptr;
    return console::Result::ok;
}

console::CSnapInItem* CPrintComponent::QueryDataObject(console::CSnapInItem* cookie,
                                                       console::DataObjectType type) const {
    return print_.QueryDataObject(cookie, type);
}

console::Result CPrintComponent::GetDisplayInfo(console::ResultItemFields& item) const {
    return QueryDataObject(item.lParam, console::DataObjectType::result)->GetResultPaneInfo(item);
}

console::Result CPrintComponent::CompareObjects(const console::CSnapInItem* a, const console::CSnapInItem* b) const {
    return print_.CompareObjects(a, b);
}

console::Result CPrintComponent::GetResultViewType(console::CSnapInItem* cookie, const char16_t** viewType,
                                                   std::int32_t* viewOptions) const {
    if (viewType == nullptr || viewOptions == nullptr) {
        return console::Result::badPointer;
    }
    if (cookie == multiSelectCookie()) {
        return console::Result::unexpected;
    }
    return QueryDataObject(cookie, console::DataObjectType::result)->GetResultViewType(*viewType, *viewOptions);
}

} // namespace snapin
