#pragma once

#include "client/PrinterRecordEdit.h"
#include "drivers/BrandAndModelLists.h"
#include "forms/EditBox.h"

#include <functional>

namespace queues {

// The head of a queue's dialog: its name, its model, and for how long its jobs are kept.
class QueueHead {
public:
    static constexpr const char16_t* timeToLiveOfNew = u"60"; // in the server's unit

    explicit QueueHead(forms::Container& container);
    QueueHead(const QueueHead&) = delete;
    QueueHead& operator=(const QueueHead&) = delete;

    // Fills it for a new queue, which needs a name first.
    void openForNew();
    void openFor(const protocol::PrinterRecord& queue);

    // Whether the dialog may be confirmed: all lists could be read, and the name has not been emptied.
    [[nodiscard]] bool complete() const { return models.known() && !nameMissing_; }
    // Called when complete() may have changed.
    std::function<void()> onComplete;

    // The name and the time to live are only taken if they are not empty.
    void takeName(client::PrinterRecordEdit& edit) const;
    void takeTimeToLive(client::PrinterRecordEdit& edit) const;
    // The model of the selected row.
    void takeModel(client::PrinterRecordEdit& edit) const;
    // The first model with the name that is selected.
    void takeModelByName(client::PrinterRecordEdit& edit) const;

    forms::EditBox name;
    drivers::BrandAndModelLists models;
    forms::EditBox timeToLive;

private:
    void setNameMissing(bool missing);

    bool nameMissing_ = false;
};

} // namespace queues
