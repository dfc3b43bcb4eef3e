#include "server/Schema.h"

#include "protocol/estate/Printer.h"
#include "server/SampleEstate.h"
#include "server/store/StoreError.h"
#include "tests/server/support/TestEstate.h"
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
    EXPECT_EQ(database.execAndGet("PRAGMA user_version").getInt(), 7);
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

// A database of the version before the keys of names were recomputed, with the rows that the statement inserts.
SQLite::Database withOldKeys(const test::TestFolder& folder, const std::string& statement) {
    auto database = openNew(folder);
    auto old = schema();
    old.steps.resize(6);
    migrate(database, old);
    database.exec(statement);
    migrate(database, schema());
    return database;
}

std::string keysOfRegions(SQLite::Database& database) {
    return database.execAndGet("SELECT group_concat(hex(name) || ' ' || hex(nameKey), ', ') FROM region").getString();
}

TEST(Schema, keysThatTellCaseWhereNamesHaveNoneAreMadeAnew) {
    const test::TestFolder folder;
    auto database =
        withOldKeys(folder, "INSERT INTO region (kind, name, nameKey) VALUES (0, x'78014100', x'01780061')");
    EXPECT_EQ(keysOfRegions(database), "78014100 00FF0061");
}

TEST(Schema, twoNamesThatHaveBecomeEqualBothStay) {
    const test::TestFolder folder;
    auto database = withOldKeys(folder, "INSERT INTO region (kind, name, nameKey) "
                                        "VALUES (0, x'7801', x'0178'), (0, x'FF00', x'00FF'), (1, x'7801', x'0178')");
    EXPECT_EQ(keysOfRegions(database), "7801 0178, FF00 00FF, 7801 00FF");
}

TEST(Schema, theKeyOfAnEmptyTextStaysEmpty) {
    const test::TestFolder folder;
    auto database = withOldKeys(folder, "INSERT INTO ruleGroup (id, name, comment, extra1, extra2, nameKey) "
                                        "VALUES ('g', x'', x'', x'', x'', x'')");
    EXPECT_EQ(database.execAndGet("SELECT hex(nameKey) FROM ruleGroup").getString(), "");
}

// Everything in the tables was already stored with the current keys, so nothing changes.
TEST(Schema, makingKeysAnewChangesNoKeyThatIsRight) {
    test::TestEstate place;
    place.connection().change([&] {
        SampleEstate(place.connection()).fillSmall();
        return true;
    });
    SQLite::Database database(place.store().file().string(), SQLite::OPEN_READWRITE);
    database.exec("PRAGMA user_version = 6");
    const auto before = database.getTotalChanges();
    migrate(database, schema());
    EXPECT_EQ(database.getTotalChanges(), before);
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
              "the database was written by a newer server (version 99, this server knows up to 7)");
}

} // namespace
} // namespace server
