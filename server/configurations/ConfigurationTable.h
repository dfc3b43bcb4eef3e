#pragma once

#include "protocol/configurations/Configuration.h"
#include "server/store/ListQuery.h"

#include <optional>
#include <string>

namespace server {

// A configuration as it is stored: the record of the wire, and the model that it is for.
struct StoredConfiguration {
    protocol::ConfigurationRecord record; // the date as the server tells it: "2014-03-05 17:04:09"
    std::string modelId;
};

// The configurations, accessed over one connection to the database without any checks. Throws StoreError.
class ConfigurationTable {
public:
    explicit ConfigurationTable(sqlite3* connection);

    [[nodiscard]] std::optional<StoredConfiguration> find(const std::string& id);

    // Whether another configuration of the model has the comment, which is its name.
    [[nodiscard]] bool nameTaken(const std::string& modelId, const wire::WideString& comment,
                                 const std::string& except);

    // Ignores the number of queues in it.
    void insert(const StoredConfiguration& stored);
    void setComment(const std::string& id, const wire::WideString& comment);
    // Also removes it from the queues that use it.
    void remove(const std::string& id);

    // The model that a deployment is for; none without such a deployment.
    [[nodiscard]] std::optional<std::string> modelOfDeployment(const std::string& deploymentId);

    // Rows of ConfigurationRecord: those of a model, by name.
    [[nodiscard]] Listing list(const std::string& modelId);

    // Rows of QueueConfigChoice: those of a deployment's model, by name.
    [[nodiscard]] Listing listChoices(const std::string& deploymentId);

private:
    Query find_;
    Query nameTaken_;
    Query insert_;
    Query setComment_;
    Query remove_;
    Query modelOfDeployment_;
    ListQuery list_;
    ListQuery listChoices_;
};

} // namespace server
