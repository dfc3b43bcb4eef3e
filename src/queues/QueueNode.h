#pragma once

#include "console/CBaseNodeItem.h"
#include "protocol/estate/Printer.h"
#include "queues/QueueMode.h"

#include <cstdint>
#include <string>

namespace queues {

// A print queue, of a printer or in a region, or a follow-print queue.
class QueueNode final : public console::CBaseNodeItem<QueueNode> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Queue", .image = 3};

    QueueNode(platform::Platform& platform, protocol::PrinterRecord record, QueueMode mode);

    const std::string& id() const { return id_; }
    std::string refreshKey() const override { return id_; }
    const char16_t* GetResultPaneColInfo(std::int32_t column) override;
    std::optional<std::int64_t> sortValue(std::int32_t column) const override;
    std::optional<console::RowState> rowState() const override;

protected:
    std::span<const console::NodeCommand<QueueNode>> commands() const override;
    std::span<const console::VerbChoice> verbs() const override;

private:
    [[nodiscard]] bool isOfPrinters() const { return mode_ == QueueMode::queue; }
    [[nodiscard]] bool isOfFollowPrint() const { return mode_ == QueueMode::followPrint; }
    [[nodiscard]] bool never() const { return false; } // NOLINT(readability-convert-member-functions-to-static)
    console::Result editQueue(console::CommandOrigin origin);
    console::Result deleteQueue(console::CommandOrigin origin);

    QueueMode mode_;
    std::string id_;
    std::uint16_t jobs_;
    wire::WideString jobsText_;
    std::uint8_t printingStatus_;
};

} // namespace queues
