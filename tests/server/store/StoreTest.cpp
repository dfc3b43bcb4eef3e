#include "server/store/Store.h"

#include "server/Schema.h"
#include "server/estate/RegionTable.h"
#include "server/store/SqlFunction.h"
#include "server/store/StoreError.h"
#include "tests/server/support/TestEstate.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

namespace server {
namespace {

using test::TestFolder;

std::string messageOf(const std::filesystem::path& file) {
    try {
        const Store store(file, schema());
    } catch (const StoreError& error) {
        return error.what();
    }
    return {};
}

TEST(Store, aNewDatabaseBelongsToItsOwnerOnly) {
    const TestFolder folder;
    const Store store(folder / "estate.db", schema());
    EXPECT_EQ(std::filesystem::status(store.file()).permissions(), std::filesystem::perms(0600));
}

TEST(Store, aSecondServerOnTheSameDatabaseIsRefused) {
    const TestFolder folder;
    const auto file = folder / "estate.db";
    const Store store(file, schema());
    EXPECT_EQ(messageOf(file), file.string() + ": the database is in use by another vantreld");
}

TEST(Store, theDatabaseIsFreeAgainWhenItsStoreIsGone) {
    const TestFolder folder;
    const auto file = folder / "estate.db";
    { const Store store(file, schema()); }
    EXPECT_EQ(messageOf(file), "");
}

TEST(Store, aFileThatIsNoDatabaseIsRefusedAndStaysAsItIs) {
    const TestFolder folder;
    const std::string text = "This is a letter to the editor, and long enough to be looked at as a page of a file. "
                             "It goes on for more than a hundred bytes.";
    const auto file = folder.write("letter.txt", text);
    EXPECT_EQ(messageOf(file), file.string() + ": the file is not a database");
    EXPECT_EQ(std::filesystem::file_size(file), text.size());
}

TEST(Store, aFolderIsRefused) {
    const TestFolder folder;
    std::filesystem::create_directory(folder / "sub");
    EXPECT_NE(messageOf(folder / "sub").find("the database cannot be opened"), std::string::npos);
}

TEST(Store, aFolderThatDoesNotExistIsNamed) {
    const TestFolder folder;
    const auto file = folder / "nowhere/estate.db";
    EXPECT_EQ(messageOf(file), file.string() + ": the database cannot be opened: No such file or directory");
}

TEST(Store, aDeviceIsNoDatabase) {
    EXPECT_EQ(messageOf("/dev/null"), "/dev/null: the database must be an ordinary file");
}

TEST(Store, aDatabaseThatAnotherProgramHasLockedIsTold) {
    const TestFolder folder;
    const auto file = folder / "estate.db";
    { const Store store(file, schema()); }
    SQLite::Database other(file.string(), SQLite::OPEN_READWRITE);
    other.exec("PRAGMA locking_mode = EXCLUSIVE");
    other.exec("BEGIN EXCLUSIVE");
    EXPECT_EQ(messageOf(file), file.string() + ": the database is locked by another program");
}

TEST(Store, connectionsWriteThroughToTheDisk) {
    const TestFolder folder;
    const Store store(folder / "estate.db", schema());
    auto database = store.openDatabase();
    EXPECT_EQ(database.execAndGet("PRAGMA journal_mode").getString(), "wal");
    EXPECT_EQ(database.execAndGet("PRAGMA synchronous").getInt(), 2);
    EXPECT_EQ(database.execAndGet("PRAGMA foreign_keys").getInt(), 1);
}

// Rows of a number and a text, in memory.
struct Notes {
    Notes() { database.exec("CREATE TABLE note (number INTEGER PRIMARY KEY, text TEXT)"); }
    Query query(std::string sql) { return {database.getHandle(), std::move(sql)}; }

    SQLite::Database database{":memory:", SQLite::OPEN_READWRITE};
};

TEST(Query, tellsTheNumberOfANewRow) {
    Notes notes;
    auto insert = notes.query("INSERT INTO note (text) VALUES (?)");

    EXPECT_EQ(insert.insert(std::string("one")), 1);
    EXPECT_EQ(insert.insert(std::string("two")), 2);
}

TEST(Query, tellsWhetherItAffectedAnyRow) {
    Notes notes;
    notes.query("INSERT INTO note (text) VALUES ('one')").execute();

    EXPECT_TRUE(notes.query("UPDATE note SET text = 'two' WHERE number = ?").affects(1));
    EXPECT_FALSE(notes.query("UPDATE note SET text = 'two' WHERE number = ?").affects(2));
    EXPECT_TRUE(notes.query("DELETE FROM note").affects());
    EXPECT_FALSE(notes.query("DELETE FROM note").affects());
}

TEST(SqlPredicate, isCalledWithTextsAndBytes) {
    Notes notes;
    addPredicate(notes.database.getHandle(), "sameLength", [](const SqlValue& first, const SqlValue& second) {
        return first.isText && !second.isText && first.bytes.size() == second.bytes.size();
    });
    const auto sameLength = [&](const std::string& values) {
        auto query = notes.query("SELECT sameLength(" + values + ")");
        auto rows = query.run();
        return rows.next() && rows.number(0) == 1;
    };

    EXPECT_TRUE(sameLength("'ab', x'0001'"));
    EXPECT_TRUE(sameLength("'', x''"));
    EXPECT_FALSE(sameLength("'ab', x'00'"));
    EXPECT_FALSE(sameLength("x'0001', 'ab'"));
}

TEST(SqlPredicate, thatIsOutOfMemoryFailsTheQuery) {
    Notes notes;
    addPredicate(notes.database.getHandle(), "never",
                 [](const SqlValue&, const SqlValue&) -> bool { throw std::bad_alloc(); });
    auto query = notes.query("SELECT never(1, 2)");
    auto rows = query.run();

    EXPECT_THROW(rows.next(), StoreError);
}

TEST(StoreConnection, aChangeThatThrowsHasNotHappened) {
    test::TestEstate place;
    EXPECT_THROW(place.connection().change([&]() -> int {
        place.addRegion(u"North");
        throw StoreError("no");
    }),
                 StoreError);
    EXPECT_TRUE(place.regions().isEmpty());
    EXPECT_EQ(place.connection().change([&] { return place.addRegion(u"South"); }), 1);
}

TEST(StoreConnection, aFullDatabaseTellsSoAndKeepsWhatItHas) {
    test::TestEstate place;
    const auto kept = place.addRegion(u"North");
    auto database = place.store().openDatabase();
    const auto pages = database.execAndGet("PRAGMA page_count").getInt();
    database.exec("PRAGMA max_page_count = " + std::to_string(pages));
    StoreConnection full(std::move(database));
    const std::u16string longName(20000, u'x');
    try {
        full.change([&] { return full.table<RegionTable>().insert(0, 0, longName); });
        FAIL() << "there was space";
    } catch (const StoreError& error) {
        EXPECT_STREQ(error.what(), "there is no space left for the database");
    }
    EXPECT_TRUE(full.table<RegionTable>().find(0, kept));
    EXPECT_TRUE(full.change([&] {
        full.table<RegionTable>().rename(kept, u"N");
        return true;
    }));
}

TEST(StoreConnection, aMomentDoesNotSeeLaterChanges) {
    test::TestEstate place;
    const auto reader = place.store().openConnection();
    {
        const StoreConnection::Moment moment(*reader);
        EXPECT_TRUE(reader->table<RegionTable>().isEmpty());
        place.addRegion(u"North");
        EXPECT_TRUE(reader->table<RegionTable>().isEmpty());
    }
    EXPECT_FALSE(reader->table<RegionTable>().isEmpty());
}

} // namespace
} // namespace server
