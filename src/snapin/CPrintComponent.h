#pragma once

#include "console/CSnapInItem.h"
#include "console/IConsole.h"

#include <cstdint>

namespace snapin {

class Print;

// The snap-in's result side, one per view of the console.
class CPrintComponent final : public console::IComponent {
public:
    // The cookie that stands for several selected rows at once (MMC_MULTI_SELECT_COOKIE). Never dereferenced.
    static console::CSnapInItem* multiSelectCookie();

    explicit CPrintComponent(Print& print);

    console::Result Initialize(console::IConsole& console);
    // Result::notImplemented for a null data object. A click on the header of a fourth column presses F5 first.
    console::Result Notify(console::CSnapInItem* dataObject, console::Notification notification);
    console::Result Destroy();
    console::CSnapInItem* QueryDataObject(console::CSnapInItem* cookie, console::DataObjectType type) const;
    console::Result GetDisplayInfo(console::ResultItemFields& item) const;
    console::Result CompareObjects(const console::CSnapInItem* a, const console::CSnapInItem* b) const;
    // Result::badPointer where either of the last two is null.
    console::Result GetResultViewType(console::CSnapInItem* cookie, const char16_t** viewType,
                                      std::int32_t* viewOptions) const;

    // The console of this view; null before Initialize and after Destroy.
    console::IConsole* console() override { return console_; }

private:
    Print& print_;
    console::IConsole* console_ = nullptr;
};

} // namespace snapin
