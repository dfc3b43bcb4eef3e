#pragma once

#include "console/CSnapInItem.h"
#include "console/IConsole.h"

#include <cstdint>
#include <memory>

namespace shell {

// The snap-in as a console sees it: its root node, and where notifications go.
class SnapIn {
public:
    virtual ~SnapIn() = default;

    virtual std::shared_ptr<console::CSnapInItem> root() = 0;
    // Called once, before everything else. Gives the snap-in its console; may start a login.
    virtual console::Result Initialize(console::IConsole& console) = 0;
    // Notifications about the scope tree: expand, and the rename of a scope item.
    virtual console::Result notifyScope(console::CSnapInItem& node, const console::Notification& notification) = 0;
    // Notifications about the view: show, select, refresh, clicks, cut and paste, and the rename of a row.
    virtual console::Result notifyView(console::CSnapInItem& node, const console::Notification& notification) = 0;
    virtual console::Result GetResultViewType(console::CSnapInItem& node, const char16_t*& viewType,
                                              std::int32_t& viewOptions) = 0;
    virtual void Destroy() = 0;
};

} // namespace shell
