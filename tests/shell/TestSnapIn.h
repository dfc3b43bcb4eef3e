#pragma once

#include "console/IConsole.h"
#include "shell/SnapIn.h"

#include <functional>
#include <string>
#include <vector>

namespace shelltest {

// A snap-in around any root node. Records every notification, as "expand Top 1" or "select Leaf row on".
class TestSnapIn final : public shell::SnapIn, public console::IComponentData, public console::IComponent {
public:
    explicit TestSnapIn(std::shared_ptr<console::CSnapInItem> root) : root_(std::move(root)) {}

    std::shared_ptr<console::CSnapInItem> root() override { return root_; }
    console::Result Initialize(console::IConsole& console) override;
    console::Result notifyScope(console::CSnapInItem& node, const console::Notification& notification) override;
    console::Result notifyView(console::CSnapInItem& node, const console::Notification& notification) override;
    console::Result GetResultViewType(console::CSnapInItem& node, const char16_t*& viewType,
                                      std::int32_t& viewOptions) override;
    void Destroy() override { destroyed = true; }
    console::IConsole* console() override { return console_; }

    std::vector<std::string> log;
    std::function<void()> onInitialize;
    console::Result initializeResult = console::Result::ok;
    bool throwOnShow = false;
    bool destroyed = false;

private:
    std::shared_ptr<console::CSnapInItem> root_;
    console::IConsole* console_ = nullptr;
};

} // namespace shelltest
