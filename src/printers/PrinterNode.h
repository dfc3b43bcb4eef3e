#pragma once

#include "console/CBaseNodeItem.h"
#include "protocol/estate/Printer.h"
#include "queues/QueueNode.h"

#include <cstdint>
#include <string>

namespace printers {

// A printer in its region, with its queues below it.
class PrinterNode final : public console::CBaseNodeItem<PrinterNode> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Printer", .image = 2, .children = 2};

    PrinterNode(platform::Platform& platform, protocol::PrinterRecord record);

    const std::string& id() const { return id_; }
    std::string refreshKey() const override { return id_; }
    const char16_t* GetResultPaneColInfo(std::int32_t column) override;
    std::optional<std::int64_t> sortValue(std::int32_t column) const override;
    std::optional<console::RowState> rowState() const override;

protected:
    std::vector<console::ChildKind> childKinds() override;
    std::span<const console::Column> columns() const override;
    std::span<const console::NodeCommand<PrinterNode>> commands() const override;
    std::span<const console::VerbChoice> verbs() const override;
    std::vector<console::NodeBase*> rows() const override;
    console::KeySequence keysAfterCommand(std::int32_t commandId, console::CommandOrigin origin) const override;
    console::Result OnRename(console::IConsole& console, const wire::WideString& newName) override;
    console::Result OnCutOrMove(console::CSnapInItem& source) override;

private:
    console::Result editPrinter(console::CommandOrigin origin);
    console::Result addQueue(console::CommandOrigin origin);
    console::Result deletePrinter(console::CommandOrigin origin);

    std::string id_;
    std::int32_t regionId_;
    wire::WideString modelName_;
    wire::WideString location_;
    std::uint16_t jobs_;
    wire::WideString jobsText_;
    std::uint8_t snmpStatus_;
    std::uint8_t printingStatus_;
    console::NodeArray<queues::QueueNode> queues_;
};

} // namespace printers
