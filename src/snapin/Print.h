#pragma once

#include "console/CSnapInItem.h"
#include "console/Guid.h"
#include "console/IConsole.h"
#include "platform/Platform.h"
#include "snapin/PrintData.h"

#include <array>
#include <cstdint>
#include <istream>
#include <memory>
#include <ostream>

namespace snapin {

class CPrintComponent;

// The snap-in's scope side, one per instance of the snap-in: owns the tree and routes what the console says about it to
// the node concerned. A data object is the node itself, and so is a cookie; a null cookie is the root.
class Print final : public console::IComponentData {
public:
    // What the snap-in keeps in a saved console file, in bytes.
    static constexpr std::size_t savedSize = 260;

    // Makes the whole upper tree. The platform outlives the snap-in and the thread that Initialize starts.
    explicit Print(platform::Platform& platform);
    Print(const Print&) = delete;
    Print& operator=(const Print&) = delete;
    ~Print() override;

    // Called once. Starts the login on its own thread. Result::unexpected without an image list.
    console::Result Initialize(console::IConsole& console);
    // One per view. The view must not outlive the snap-in.
    std::unique_ptr<CPrintComponent> CreateComponent();
    console::Result Notify(console::CSnapInItem* dataObject, console::Notification notification);
    console::Result Destroy();
    console::CSnapInItem* QueryDataObject(console::CSnapInItem* cookie, console::DataObjectType type) const;
    console::Result GetDisplayInfo(console::ScopeItemFields& item) const;
    // Result::ok for the same node, else Result::notDone.
    console::Result CompareObjects(const console::CSnapInItem* a, const console::CSnapInItem* b) const;

    // The saved console file. Nothing of the tree is in it: all state is on the server.
    [[nodiscard]] console::Guid GetClassID() const;
    [[nodiscard]] console::Result IsDirty() const;
    console::Result Load(std::istream& stream);
    console::Result Save(std::ostream& stream, bool clearDirty);
    [[nodiscard]] std::uint64_t GetSizeMax() const { return savedSize; }

    // An empty text: there is no help file.
    [[nodiscard]] std::array<char16_t, 260> GetHelpTopic() const { return {}; }
    [[nodiscard]] console::Result GetLinkedTopics() const { return console::Result::notDone; }

    // Null before Initialize and after Destroy.
    console::IConsole* console() override { return console_; }
    [[nodiscard]] PrintData& root() const { return *root_; }
    [[nodiscard]] platform::Platform& platform() const { return platform_; }

private:
    platform::Platform& platform_;
    std::shared_ptr<PrintData> root_;
    console::IConsole* console_ = nullptr;
};

} // namespace snapin
