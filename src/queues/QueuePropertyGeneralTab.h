#pragma once

#include "forms/MultiLineEdit.h"
#include "forms/Page.h"
#include "queues/QueueConfigurations.h"
#include "queues/QueueStatus.h"

namespace queues {

// The page of a queue's properties with everything that is neither in the head nor a rule.
class QueuePropertyGeneralTab {
public:
    explicit QueuePropertyGeneralTab(forms::Tabs& tabs) : page(tabs, u"General") {}

    forms::Page page;
    forms::MultiLineEdit comment{page, u"Comment"};
    forms::MultiLineEdit adminComment{page, u"Admin Comment"};
    QueueStatus status{page};
    QueueConfigurations configurations{page, QueueConfigurations::Details::none};
};

} // namespace queues
