#pragma once

#include "forms/Form.h"
#include "forms/Tabs.h"
#include "queues/NewQueue.h"
#include "queues/QueueHead.h"
#include "queues/QueuePropertyGeneralTab.h"
#include "regions/CPrinterPrefRulesTab.h"

#include <memory>
#include <string>

namespace queues {

// Edits a queue or a follow-print queue, or makes one, on tabbed pages. It does not offer the two check boxes for local
// handling of a queue's preferences.
class QueuePropertiesDlg final : public forms::Form {
public:
    // Edits the queue with the id.
    QueuePropertiesDlg(platform::Platform& platform, QueueMode mode, std::string queueId, const wire::WideString& name);
    QueuePropertiesDlg(platform::Platform& platform, NewQueue queue);

    QueueHead head{*this};
    forms::Tabs tabs{*this};
    QueuePropertyGeneralTab general{tabs};
    regions::CPrinterPrefRulesTab rules{tabs};

protected:
    void onInitDialog() override;
    void onOk() override;

private:
    [[nodiscard]] bool isNew() const { return queueId_.empty(); }
    [[nodiscard]] std::unique_ptr<client::PrinterRecordEdit> begin() const;
    void watchHead();
    void openExisting();

    NewQueue queue_;
    std::string queueId_; // empty for a new one
    std::unique_ptr<client::PrinterRecordEdit> edit_;
};

} // namespace queues
