#pragma once

#include "protocol/CatalogueRow.h"
#include "protocol/configurations/Configuration.h"
#include "protocol/configurations/QueueConfiguration.h"

namespace protocol {

// The commands for the configurations of driver models and of queues.
inline constexpr Command configurationRows[] = {
    row<ListQueueConfigurationsRequest>("lists the configurations of a queue, all or of one driver")
        .list<QueueConfigEntry>(ReaderForm::plain)
        .leftOpen(),
    row<ListConfigurationChoicesRequest>("lists the configurations to choose from for a driver")
        .list<QueueConfigChoice>(ReaderForm::plain)
        .leftOpen(),
    row<ApplyQueueConfigurationRequest>("applies a configuration to a queue, or takes it away").leftOpen(),
    row<ListConfigurationsRequest>("lists the configurations of a driver model")
        .list<ConfigurationRecord>(ReaderForm::plain)
        .leftOpen(),
    row<SetConfigurationCommentRequest>("writes the comment of a configuration").leftOpen(),
    row<DeleteConfigurationRequest>("deletes a configuration").leftOpen(),
    row<ListConfigurationQueuesRequest>("lists the queues that use a configuration")
        .list<ConfigQueueRecord>(ReaderForm::plain)
        .leftOpen(),
    row<RemoveConfigurationFromQueueRequest>("takes a configuration away from a queue").leftOpen(),
    row<ApplyConfigurationForDriverRequest>("applies a configuration to a driver").leftOpen(),
};

} // namespace protocol
