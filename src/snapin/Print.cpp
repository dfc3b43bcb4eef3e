#include "snapin/Print.h"

#include "snapin/CPrintComponent.h"
#include "snapin/LoginThread.h"

#include <algorithm>
#include <string_view>

namespace snapin {

Print::Print(platform::Platform& platform) : platform_(platform), root_(std::make_shared<PrintData>(platform)) {}

Print::~Print() = default;

console::Result Print::Initialize(console::IConsole& console) {
    console_ = &console;
    console::IImageList* images = nullptr;
    if (!succeeded(console.QueryScopeImageList(images)) || images == nullptr) {
        return console::Result::unexpected;
    }
    platform::WindowHandle mainWindow = 0;
    console.GetMainWindow(mainWindow);
    platform_.ui.startThread([&platform = platform_, mainWindow] { runLoginThread(platform, mainWindow); });
    return images->ImageListSetStrip(console::commonStrip, 0, console::imageMask);
}

std::unique_ptr<CPrintComponent> Print::CreateComponent() {
    return std::make_unique<CPrintComponent>(*this);
}

console::Result Print::Notify(console::CSnapInItem* dataObject, console::Notification notification) {
    console::CSnapInItem* const node =
        notification.event == console::Event::cutOrMove ? notification.source : dataObject;
    if (node == nullptr) {
        return console::Result::ok;
    }
    notification.componentData = this;
    return node->Notify(notification);
}

console::Result Print::Destroy() {
    console_ = nullptr;
    return console::Result::ok;
}

console::CSnapInItem* Print::QueryDataObject(console::CSnapInItem* cookie, console::DataObjectType) const {
    return cookie != nullptr ? cookie : root_.get();
}

console::Result Print::GetDisplayInfo(console::ScopeItemFields& item) const {
    return QueryDataObject(item.lParam, console::DataObjectType::scope)->GetScopePaneInfo(item);
}

console::Result Print::CompareObjects(const console::CSnapInItem* a, const console::CSnapInItem* b) const {
    return a == b ? console::Result::ok : console::Result::notDone;
}

console::Guid Print::GetClassID() const {
    return console::snapInClassId;
}

// Always clean: closing a console never asks to save it because of this snap-in.
console::Result Print::IsDirty() const {
    return console::Result::notDone;
}

// What earlier versions saved is read and ignored.
console::Result Print::Load(std::istream& stream) {
    std::array<char, savedSize> ignored{};
    return stream.read(ignored.data(), ignored.size()) ? console::Result::ok : console::Result::failed;
}

console::Result Print::Save(std::ostream& stream, bool) {
    constexpr std::string_view text = "local"; // the rest of the block has no meaning
    std::array<char, savedSize> block{};
    std::ranges::copy(text, block.begin());
    return stream.write(block.data(), block.size()) ? console::Result::ok : console::Result::failed;
}

} // namespace snapin
