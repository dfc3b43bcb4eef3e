#include "hosts/desktop/pictures/QueueSamples.h"

#include "client/CQVXAdminClass.h"
#include "queues/AddQueueDlg.h"
#include "queues/QueuePreferencesDlg.h"
#include "queues/QueuePropertiesDlg.h"

#include <stdexcept>
#include <utility>

namespace desktop {
namespace {

using protocol::PrinterRecord;
using queues::QueueMode;

// The first printer or queue that the list of a region has, in any region.
PrinterRecord firstOf(bool (client::CQVXAdminClass::*list)(std::int32_t, std::int16_t&)) {
    client::CQVXAdminClass regions;
    regions.listRegions(protocol::RegionKind::printersAndQueues);
    for (const auto& region : regions.regions()) {
        client::CQVXAdminClass client;
        std::int16_t count = 0;
        if ((client.*list)(region.id, count) && count > 0) {
            return client.printerRecords().front();
        }
    }
    throw std::runtime_error("the sample estate lacks a printer or a queue");
}

PrinterRecord someQueue() {
    return firstOf(&client::CQVXAdminClass::getQueuesInRegion);
}

std::unique_ptr<forms::Form> queueToAdd(platform::Platform& platform) {
    const auto printer = firstOf(&client::CQVXAdminClass::getPrintersInRegion);
    return std::make_unique<queues::AddQueueDlg>(
        platform, queues::NewQueue{.mode = QueueMode::queue, .printerId = printer.id, .regionId = printer.regionId});
}

std::unique_ptr<forms::Form> followQueueToAdd(platform::Platform& platform) {
    return std::make_unique<queues::AddQueueDlg>(
        platform, queues::NewQueue{.mode = QueueMode::followPrint, .printerId = {}, .regionId = 1});
}

void fillNewQueue(forms::Form& form) {
    auto& dialog = dynamic_cast<queues::AddQueueDlg&>(form);
    enter(dialog.head.name, u"Guests");
    dialog.head.models.brand.select(0);
    dialog.head.models.brand.userSelected(0);
    dialog.head.models.model.select(0);
    enter(dialog.comment, u"Ground floor, beside the reception");
    enter(dialog.adminComment, u"Until the new printer comes in May");
}

std::unique_ptr<forms::Form> queueToEdit(platform::Platform& platform) {
    const auto queue = someQueue();
    return std::make_unique<queues::QueuePropertiesDlg>(platform, QueueMode::queue, queue.id, queue.name);
}

std::unique_ptr<forms::Form> queueOnOnePage(platform::Platform& platform) {
    return std::make_unique<queues::QueuePreferencesDlg>(platform, someQueue().id);
}

void selectFirst(queues::QueueConfigurations& configurations) {
    configurations.list.select(0);
    configurations.list.userSelected(0);
}

void selectConfiguration(forms::Form& form) {
    selectFirst(dynamic_cast<queues::QueuePropertiesDlg&>(form).general.configurations);
}

void selectConfigurationOnOnePage(forms::Form& form) {
    selectFirst(dynamic_cast<queues::QueuePreferencesDlg&>(form).configurations);
}

void showRulesOfQueue(forms::Form& form) {
    auto& dialog = dynamic_cast<queues::QueuePropertiesDlg&>(form);
    dialog.tabs.show(1);
    dialog.tabs.userShowed(1);
}

} // namespace

std::vector<Sample> queueSamples() {
    return {
        {"queue-add", queueToAdd, fillNewQueue},
        {"follow-queue-add", followQueueToAdd, fillNewQueue},
        {"queue-properties", queueToEdit, selectConfiguration},
        {"queue-rules", queueToEdit, showRulesOfQueue},
        {"queue-preferences", queueOnOnePage, selectConfigurationOnOnePage},
    };
}

} // namespace desktop
