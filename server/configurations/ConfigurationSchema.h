#pragma once

namespace server {

// The tables of configurations of driver models and of queues. The model of a queue is that of its printer if the
// printer has one, or else its own; a queue whose model changes loses the configurations that it used with deployments
// of the old one.
inline constexpr const char* configurationTables = R"sql(
    CREATE TABLE configuration (
        number INTEGER PRIMARY KEY,
        id TEXT NOT NULL UNIQUE,
        modelId TEXT NOT NULL REFERENCES driverModel (id) ON DELETE CASCADE,
        uploadedBy BLOB NOT NULL,
        date BLOB NOT NULL,
        comment BLOB NOT NULL,
        configText BLOB NOT NULL,
        nameKey BLOB NOT NULL -- of the comment
    ) STRICT;
    CREATE UNIQUE INDEX configurationByName ON configuration (modelId, nameKey);

    CREATE TABLE queueConfiguration (
        queueNumber INTEGER NOT NULL REFERENCES record (number) ON DELETE CASCADE,
        deploymentId TEXT NOT NULL REFERENCES driverDeployment (id) ON DELETE CASCADE DEFERRABLE INITIALLY DEFERRED,
        configurationNumber INTEGER NOT NULL REFERENCES configuration (number) ON DELETE CASCADE,
        queueKey BLOB NOT NULL, -- the queue's nameKey, so that an index has the queues of a configuration by name
        PRIMARY KEY (queueNumber, deploymentId)
    ) STRICT, WITHOUT ROWID;
    CREATE INDEX queueConfigurationByDeployment ON queueConfiguration (deploymentId);
    CREATE INDEX queueConfigurationInOrder ON queueConfiguration (configurationNumber, queueKey, queueNumber);

    CREATE VIEW queueModel (queueNumber, queueId, nameKey, modelId) AS
        SELECT queue.number, queue.id, queue.nameKey, printer.modelId
            FROM record AS printer JOIN record AS queue ON queue.printerId = printer.id
            WHERE printer.modelId <> ''
        UNION ALL
        SELECT queue.number, queue.id, queue.nameKey, queue.modelId
            FROM record AS queue LEFT JOIN record AS printer ON printer.id = queue.printerId
            WHERE queue.recordType <> 0 AND ifnull(printer.modelId, '') = '';

    CREATE TRIGGER queueGetsName AFTER UPDATE OF nameKey ON record WHEN new.nameKey <> old.nameKey BEGIN
        UPDATE queueConfiguration SET queueKey = new.nameKey WHERE queueNumber = new.number;
    END;
    CREATE TRIGGER recordGetsModel AFTER UPDATE OF modelId ON record WHEN new.modelId <> old.modelId BEGIN
        DELETE FROM queueConfiguration
            WHERE queueNumber IN (SELECT new.number UNION ALL SELECT number FROM record WHERE printerId = new.id) AND
                  (SELECT modelId FROM driverDeployment WHERE id = deploymentId) IS NOT
                  (SELECT modelId FROM queueModel WHERE queueModel.queueNumber = queueConfiguration.queueNumber);
    END;
)sql";

// Recomputes the keys of names with the current case folding.
inline constexpr const char* configurationKeys = R"sql(
    UPDATE OR IGNORE configuration SET nameKey = keyOf(comment) WHERE nameKey <> keyOf(comment);
)sql";

} // namespace server
