#pragma once

namespace server {

// The tables of brands, models, drivers and deployments, and the operating systems that drivers are deployed for. Keys
// copied into other tables (a brand's id into drivers, a name into alternates) let an index return a list in its order.
inline constexpr const char* driverTables = R"sql(
    CREATE TABLE driverBrand (
        id TEXT PRIMARY KEY NOT NULL,
        name BLOB NOT NULL,
        nameKey BLOB NOT NULL UNIQUE
    ) STRICT;

    CREATE TABLE driverModel (
        id TEXT PRIMARY KEY NOT NULL,
        brandId TEXT NOT NULL REFERENCES driverBrand (id),
        name BLOB NOT NULL,
        nameKey BLOB NOT NULL,
        visible INTEGER NOT NULL DEFAULT 1 CHECK (visible IN (0, 1)),
        octetOrder INTEGER NOT NULL DEFAULT 0,
        UNIQUE (brandId, nameKey),
        UNIQUE (id, brandId),
        UNIQUE (id, nameKey)
    ) STRICT;

    CREATE TABLE alternateModel (
        modelId TEXT NOT NULL REFERENCES driverModel (id) ON DELETE CASCADE,
        alternateModelId TEXT NOT NULL CHECK (alternateModelId <> modelId),
        nameKey BLOB NOT NULL,
        PRIMARY KEY (modelId, nameKey, alternateModelId),
        UNIQUE (modelId, alternateModelId),
        FOREIGN KEY (alternateModelId, nameKey) REFERENCES driverModel (id, nameKey) ON DELETE CASCADE ON UPDATE CASCADE
    ) STRICT, WITHOUT ROWID;
    CREATE INDEX alternateModelByAlternate ON alternateModel (alternateModelId, nameKey);

    CREATE TABLE driver (
        number INTEGER PRIMARY KEY,
        id TEXT NOT NULL UNIQUE,
        modelId TEXT NOT NULL,
        brandId TEXT NOT NULL,
        version BLOB NOT NULL,
        versionKey BLOB NOT NULL,
        comment BLOB NOT NULL,
        uploadDate TEXT NOT NULL,
        uploadedBy BLOB NOT NULL,
        builtIn INTEGER NOT NULL DEFAULT 0 CHECK (builtIn IN (0, 1)),
        FOREIGN KEY (modelId, brandId) REFERENCES driverModel (id, brandId)
    ) STRICT;
    CREATE INDEX driverByModel ON driver (modelId, versionKey);
    CREATE INDEX driverByBrand ON driver (brandId, versionKey);
    CREATE UNIQUE INDEX builtInDriver ON driver (modelId) WHERE builtIn = 1;

    CREATE TABLE operatingSystem (
        number INTEGER PRIMARY KEY,
        id TEXT NOT NULL UNIQUE,
        name BLOB NOT NULL,
        value1 INTEGER NOT NULL,
        value2 INTEGER NOT NULL,
        value3 INTEGER NOT NULL
    ) STRICT;

    CREATE TABLE driverDeployment (
        number INTEGER PRIMARY KEY,
        id TEXT NOT NULL UNIQUE,
        driverId TEXT NOT NULL REFERENCES driver (id) ON DELETE CASCADE,
        modelId TEXT NOT NULL REFERENCES driverModel (id),
        osNumber INTEGER NOT NULL REFERENCES operatingSystem (number),
        locale BLOB NOT NULL,
        localeKey BLOB NOT NULL,
        comment BLOB NOT NULL,
        use INTEGER NOT NULL CHECK (use IN (0, 1)),
        install INTEGER NOT NULL CHECK (install IN (0, 1)),
        installMethod INTEGER NOT NULL CHECK (installMethod IN (0, 1, 2)),
        UNIQUE (modelId, osNumber, localeKey)
    ) STRICT;
    CREATE INDEX driverDeploymentByDriver ON driverDeployment (driverId, modelId, osNumber, localeKey);
    CREATE INDEX driverDeploymentInUse ON driverDeployment (driverId) WHERE use = 1;

    CREATE INDEX recordByModel ON record (modelId, recordType);

    -- Names as UTF-16, then the version of the system in two numbers and the width of its processor.
    INSERT INTO operatingSystem (id, name, value1, value2, value3) VALUES
        -- Windows 10 ARM64
        ('7c1d5e90-3f0a-4d6e-8a57-0b2f6c9e4d01',
         x'570069006E0064006F00770073002000310030002000410052004D0036003400', 10, 0, 64),
        -- Windows 10 x64
        ('7c1d5e90-3f0a-4d6e-8a57-0b2f6c9e4d02',
         x'570069006E0064006F00770073002000310030002000780036003400', 10, 0, 64),
        -- Windows 10 x86
        ('7c1d5e90-3f0a-4d6e-8a57-0b2f6c9e4d03',
         x'570069006E0064006F00770073002000310030002000780038003600', 10, 0, 32),
        -- Windows 11 ARM64
        ('7c1d5e90-3f0a-4d6e-8a57-0b2f6c9e4d04',
         x'570069006E0064006F00770073002000310031002000410052004D0036003400', 11, 0, 64),
        -- Windows 11 x64
        ('7c1d5e90-3f0a-4d6e-8a57-0b2f6c9e4d05',
         x'570069006E0064006F00770073002000310031002000780036003400', 11, 0, 64),
        -- Windows 7 x64
        ('7c1d5e90-3f0a-4d6e-8a57-0b2f6c9e4d06',
         x'570069006E0064006F0077007300200037002000780036003400', 6, 1, 64),
        -- Windows 7 x86
        ('7c1d5e90-3f0a-4d6e-8a57-0b2f6c9e4d07',
         x'570069006E0064006F0077007300200037002000780038003600', 6, 1, 32),
        -- Windows 8.1 x64
        ('7c1d5e90-3f0a-4d6e-8a57-0b2f6c9e4d08',
         x'570069006E0064006F0077007300200038002E0031002000780036003400', 6, 3, 64),
        -- Windows 8.1 x86
        ('7c1d5e90-3f0a-4d6e-8a57-0b2f6c9e4d09',
         x'570069006E0064006F0077007300200038002E0031002000780038003600', 6, 3, 32),
        -- Windows Server 2012 R2
        ('7c1d5e90-3f0a-4d6e-8a57-0b2f6c9e4d0a',
         x'570069006E0064006F0077007300200053006500720076006500720020003200300031003200200052003200', 6, 3, 64),
        -- Windows Server 2016
        ('7c1d5e90-3f0a-4d6e-8a57-0b2f6c9e4d0b',
         x'570069006E0064006F0077007300200053006500720076006500720020003200300031003600', 10, 0, 64),
        -- Windows Server 2019
        ('7c1d5e90-3f0a-4d6e-8a57-0b2f6c9e4d0c',
         x'570069006E0064006F0077007300200053006500720076006500720020003200300031003900', 10, 0, 64),
        -- Windows Server 2022
        ('7c1d5e90-3f0a-4d6e-8a57-0b2f6c9e4d0d',
         x'570069006E0064006F0077007300200053006500720076006500720020003200300032003200', 10, 0, 64);
)sql";

// Recomputes the keys of names with the current case folding.
inline constexpr const char* driverKeys = R"sql(
    UPDATE OR IGNORE driverBrand SET nameKey = keyOf(name) WHERE nameKey <> keyOf(name);
    UPDATE OR IGNORE driverModel SET nameKey = keyOf(name) WHERE nameKey <> keyOf(name);
    UPDATE OR IGNORE driver SET versionKey = keyOf(version) WHERE versionKey <> keyOf(version);
    UPDATE OR IGNORE driverDeployment SET localeKey = keyOf(locale) WHERE localeKey <> keyOf(locale);
)sql";

} // namespace server
