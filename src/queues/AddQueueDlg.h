#pragma once

#include "forms/Form.h"
#include "forms/MultiLineEdit.h"
#include "queues/NewQueue.h"
#include "queues/QueueHead.h"

#include <memory>

namespace queues {

// Makes a queue under a printer, or a follow-print queue in a region.
class AddQueueDlg final : public forms::Form {
public:
    AddQueueDlg(platform::Platform& platform, NewQueue queue);

    QueueHead head{*this};
    forms::MultiLineEdit comment{*this, u"Comment", {.limit = 255}};
    forms::MultiLineEdit adminComment{*this, u"Admin Comment", {.limit = 255}};

protected:
    void onInitDialog() override;
    void onOk() override;

private:
    NewQueue queue_;
    std::unique_ptr<client::PrinterRecordEdit> edit_;
};

} // namespace queues
