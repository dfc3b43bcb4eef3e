#include "server/Schema.h"

#include "protocol/PrinterRecord.h"
#include "server/store/StoreError.h"
#include "tests/server/support/TestFolder.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

namespace server {
namespace {

SQLite::Database openNew(const test::TestFolder& folder) {
    return SQLite::Database((folder / "estate.db").string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
}

std::string messageOf(SQLite::Database& database) {
    try {
        migrate(database, schema());
    } catch (const StoreError& error) {
        return error.what();
    }
    return {};
}

TEST(Schema, anEmptyFileGetsTheTablesAndTheVersion) {
    const test::TestFolder folder;
    auto database = openNew(folder);
    migrate(database, schema());
    EXPECT_TRUE(database.tableExists("region"));
    EXPECT_TRUE(database.tableExists("record"));
    EXPECT_TRUE(database.tableExists("account"));
    EXPECT_TRUE(database.tableExists("loginKey"));
    EXPECT_EQ(database.execAndGet("PRAGMA user_version").getInt(), 6);
    EXPECT_EQ(database.execAndGet("PRAGMA application_id").getInt(), 0x56746C64);
}

TEST(Schema, migratingAgainChangesNothing) {
    const test::TestFolder folder;
    auto database = openNew(folder);
    migrate(database, schema());
    database.exec("INSERT INTO region (kind, name, nameKey) VALUES (0, x'4100', x'0061')");
    migrate(database, schema());
    EXPECT_EQ(database.execAndGet("SELECT count(*) FROM region").getInt(), 1);
}

TEST(Schema, eachFieldOfAPrinterRecordHasAColumnOfItsName) {
    const test::TestFolder folder;
    auto database = openNew(folder);
    migrate(database, schema());
    const protocol::PrinterRecord record;
    protocol::forEachField(record, [&](std::string_view name, const auto&) {
        SQLite::Statement query(database, "SELECT count(*) FROM pragma_table_info('record') WHERE name = ?");
        query.bind(1, std::string(name));
        query.executeStep();
        EXPECT_EQ(query.getColumn(0).getInt(), 1) << name;
    });
}

TEST(Schema, theDatabaseOfAnotherProgramIsRefused) {
    const test::TestFolder folder;
    auto database = openNew(folder);
    database.exec("CREATE TABLE notes (text)");
    EXPECT_EQ(messageOf(database), "the database belongs to another program");
    EXPECT_FALSE(database.tableExists("region"));
}

TEST(Schema, theDatabaseOfANewerServerIsRefused) {
    const test::TestFolder folder;
    auto database = openNew(folder);
    migrate(database, schema());
    database.exec("PRAGMA user_version = 99");
    EXPECT_EQ(messageOf(database),
              "the database was written by a newer server (version 99, this server knows up to 6)");
}

} // namespace
} // namespace server
