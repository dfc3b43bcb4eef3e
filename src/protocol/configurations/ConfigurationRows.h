#pragma once

#include "protocol/CatalogueRow.h"
#include "protocol/configurations/Configuration.h"
#include "protocol/configurations/QueueConfiguration.h"

namespace protocol {

// The commands for the configurations of driver models and of queues.
inline constexpr Command configurationRows[] = {
    row(17, "ListQueueConfigurations", "lists the configurations of a queue, all or of one driver")
        .asks<ListQueueConfigurationsRequest>()
        .list<QueueConfigEntry>(ReaderForm::plain)
        .leftOpen(),
    row(18, "ListConfigurationChoices", "lists the configurations to choose from for a driver")
        .asks<ListConfigurationChoicesRequest>()
        .list<QueueConfigChoice>(ReaderForm::plain)
        .leftOpen(),
    row(19, "ApplyQueueConfiguration", "applies a configuration to a queue, or takes it away")
        .asks<ApplyQueueConfigurationRequest>()
        .leftOpen(),
    row(50, "ListConfigurations", "lists the configurations of a driver model")
        .asks<ListConfigurationsRequest>()
        .list<ConfigurationRecord>(ReaderForm::plain)
        .leftOpen(),
    row(51, "SetConfigurationComment", "writes the comment of a configuration")
        .asks<SetConfigurationCommentRequest>()
        .leftOpen(),
    row(52, "DeleteConfiguration", "deletes a configuration").asks<DeleteConfigurationRequest>().leftOpen(),
    row(53, "ListConfigurationQueues", "lists the queues that use a configuration")
        .asks<ListConfigurationQueuesRequest>()
        .list<ConfigQueueRecord>(ReaderForm::plain)
        .leftOpen(),
    row(54, "RemoveConfigurationFromQueue", "takes a configuration away from a queue")
        .asks<RemoveConfigurationFromQueueRequest>()
        .leftOpen(),
    row(79, "ApplyConfigurationForDriver", "applies a configuration to a driver")
        .asks<ApplyConfigurationForDriverRequest>()
        .leftOpen(),
};

} // namespace protocol
