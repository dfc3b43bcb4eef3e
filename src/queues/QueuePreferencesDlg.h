#pragma once

#include "forms/CheckBox.h"
#include "forms/Form.h"
#include "queues/QueueConfigurations.h"
#include "queues/QueueHead.h"
#include "queues/QueueStatus.h"

#include <memory>
#include <string>

namespace queues {

// Edits a queue on one page.
class QueuePreferencesDlg final : public forms::Form {
public:
    QueuePreferencesDlg(platform::Platform& platform, std::string queueId);

    QueueHead head{*this};
    forms::EditBox comment{*this, u"Comment"};
    forms::EditBox adminComment{*this, u"Admin Comment"};
    forms::CheckBox localDriverHandling{*this, u"Local Driver Handling"};
    forms::CheckBox localConfigHandling{*this, u"Local Config Handling"};
    QueueStatus status{*this};
    QueueConfigurations configurations{*this, QueueConfigurations::Details::shown};

protected:
    void onInitDialog() override;
    void onOk() override;

private:
    std::string queueId_;
    std::unique_ptr<client::PrinterRecordEdit> edit_;
};

} // namespace queues
