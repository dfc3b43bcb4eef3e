#pragma once

#include "console/CBaseNodeItem.h"
#include "protocol/estate/Printer.h"

#include <cstdint>
#include <string>

namespace localprinters {

// A printer at somebody's desk, which is its own queue. Nothing is below it, and it can't be deleted: it comes and goes
// with the computer that it is connected to.
class LocalPrinterQueueNode final : public console::CBaseNodeItem<LocalPrinterQueueNode> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Local Printer", .image = 2};

    LocalPrinterQueueNode(platform::Platform& platform, protocol::PrinterRecord record);

    [[nodiscard]] const std::string& id() const { return id_; }
    [[nodiscard]] std::string refreshKey() const override { return id_; }
    const char16_t* GetResultPaneColInfo(std::int32_t column) override;
    [[nodiscard]] std::optional<std::int64_t> sortValue(std::int32_t column) const override;
    [[nodiscard]] std::optional<console::RowState> rowState() const override;

protected:
    [[nodiscard]] std::span<const console::NodeCommand<LocalPrinterQueueNode>> commands() const override;

private:
    console::Result editPrinter(console::CommandOrigin origin);

    std::string id_;
    wire::WideString modelName_;
    wire::WideString location_;
    std::uint16_t jobs_;
    wire::WideString jobsText_;
    std::uint8_t snmpStatus_;
    std::uint8_t printingStatus_;
};

} // namespace localprinters
