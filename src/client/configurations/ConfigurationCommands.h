#pragma once

#include "client/CQVXAdminClass2.h"
#include "client/RecordCursor.h"
#include "client/configurations/ListedConfiguration.h"
#include "protocol/configurations/QueueConfiguration.h"

#include <string>
#include <vector>

namespace client {

// The part of CQVXAdminClass for configurations of driver models and of queues. Each list has an operation that reads
// it, one that returns its records from the last to the first (false when none are left), and the records not returned
// yet, in the order of the wire. Of a list that the server cuts short, the records
// are what arrived, and returning them one at a time throws as all cursors do, since the missing ones would come first.
class ConfigurationCommands {
public:
    explicit ConfigurationCommands(CQVXAdminClass2& client) : client_(client) {}

    // What a queue or a local printer uses with each driver map, or only with the given one unless it is empty.
    bool getConfigurations(const std::string& queueId, const std::string& driverMapId);
    bool nextConfiguration(protocol::QueueConfigEntry& entry);
    [[nodiscard]] const std::vector<protocol::QueueConfigEntry>& configurations() const { return entries_.records(); }

    // What a queue may use with a driver map.
    bool getConfigChoices(const std::string& driverMapId);
    bool nextConfigChoice(protocol::QueueConfigChoice& choice);
    [[nodiscard]] const std::vector<protocol::QueueConfigChoice>& configChoices() const { return choices_.records(); }

    // An empty configuration removes what the queue uses with the driver map.
    bool applyConfiguration(const std::string& queueId, const std::string& driverMapId, const std::string& configId);

    // The configurations of a model.
    bool listConfigurations(const std::string& modelId);
    bool nextConfigurationRecord(ListedConfiguration& record);
    [[nodiscard]] const std::vector<ListedConfiguration>& configurationRecords() const { return records_.records(); }

    bool setConfigurationComment(const std::string& configId, const wire::WideString& comment);

    // With force even while queues use it.
    bool deleteConfiguration(const std::string& configId, bool force);

    // The queues that use a configuration.
    bool listConfigurationQueues(const std::string& configId);
    bool nextConfigurationQueue(protocol::ConfigQueueRecord& record);
    [[nodiscard]] const std::vector<protocol::ConfigQueueRecord>& configurationQueues() const {
        return queues_.records();
    }

    bool removeConfigurationFromQueue(const std::string& configId, const std::string& queueId);

    // Gives it to all queues of the model with that driver.
    bool applyConfigurationForDriver(const std::string& configId, const std::string& modelId,
                                     const std::string& driverId);

private:
    CQVXAdminClass2& client_;
    RecordCursor<protocol::QueueConfigEntry> entries_;
    RecordCursor<protocol::QueueConfigChoice> choices_;
    RecordCursor<ListedConfiguration> records_;
    RecordCursor<protocol::ConfigQueueRecord> queues_;
};

} // namespace client
