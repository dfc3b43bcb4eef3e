#pragma once

#include "forms/Button.h"
#include "forms/DropList.h"
#include "forms/Label.h"
#include "forms/ListView.h"
#include "protocol/configurations/QueueConfiguration.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace queues {

// Which configuration package a queue uses with each driver of its model, in a dialog of the queue. "Apply" changes the
// selected one at once, whichever button ends the dialog.
class QueueConfigurations {
public:
    // Whether the driver and the locale of the selected row are also told below the list.
    enum class Details : std::uint8_t { none, shown };

    QueueConfigurations(forms::Container& container, Details details);
    QueueConfigurations(const QueueConfigurations&) = delete;
    QueueConfigurations& operator=(const QueueConfigurations&) = delete;

    // Lists those of a queue. Throws what the client throws.
    void open(const std::string& queueId);

    forms::ListView list;
    std::unique_ptr<forms::Label> driver; // null without details
    std::unique_ptr<forms::Label> locale;
    forms::DropList package;
    forms::Button apply;

private:
    void read();
    void rowSelected();
    void showDetails(const protocol::QueueConfigEntry* entry) const;
    bool readChoices(const protocol::QueueConfigEntry& entry);
    void selectPackage(const protocol::QueueConfigEntry& entry);
    void applyPackage();
    // Goes back to the row of the driver, if it is still there.
    void readAgain(const std::string& driverMapId);
    [[nodiscard]] const protocol::QueueConfigEntry* selected() const;

    std::string queueId_;
    std::vector<protocol::QueueConfigEntry> entries_; // of the rows
};

} // namespace queues
