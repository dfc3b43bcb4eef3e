#pragma once

#include "protocol/CatalogueRow.h"

namespace protocol {

// The commands for the configurations of driver models and of queues.
inline constexpr Command configurationRows[] = {
    row(17, "ListQueueConfigurations", "lists the configurations of a queue, all or of one driver")
        .list(ReaderForm::plain)
        .leftOpen(),
    row(18, "ListConfigurationChoices", "lists the configurations to choose from for a driver").list(ReaderForm::plain).leftOpen(),
    row(19, "ApplyQueueConfiguration", "applies a configuration to a queue").leftOpen(),
    row(50, "ListConfigurations", "lists the configurations of a driver model").list(ReaderForm::plain).leftOpen(),
    row(51, "SetConfigurationComment", "writes the comment of a configuration").leftOpen(),
    row(52, "DeleteConfiguration", "deletes a configuration").leftOpen(),
    row(53, "ListConfigurationQueues", "lists the queues that use a configuration").list(ReaderForm::plain).leftOpen(),
    row(54, "RemoveConfigurationFromQueue", "takes a configuration away from a queue").leftOpen(),
    row(79, "ApplyConfigurationForDriver", "applies a configuration to a driver").leftOpen(),
};

} // namespace protocol
