#include "hosts/common/IniSettingsStore.h"
#include "tests/support/Environment.h"

#include <sys/stat.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace common {
namespace {

namespace fs = std::filesystem;

class IniSettingsStoreTest : public testing::Test {
protected:
    std::string folderName = (fs::temp_directory_path() / "vantrel-settings-XXXXXX").string();
    fs::path folder = ::mkdtemp(folderName.data());
    fs::path file = folder / "vantrel" / "admin.ini";
    IniSettingsStore store{file};

    ~IniSettingsStoreTest() override { fs::remove_all(folder); }

    static void put(const fs::path& where, std::string_view content) {
        fs::create_directories(where.parent_path());
        std::ofstream(where, std::ios::binary) << content;
    }
    static std::string contentOf(const fs::path& where) {
        std::ifstream stream(where, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    [[nodiscard]] std::size_t filesInFolder() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(file.parent_path()), {}));
    }
};

TEST_F(IniSettingsStoreTest, withoutAFileThereIsNoStore) {
    EXPECT_FALSE(store.exists());
    EXPECT_FALSE(store.read("ServerName").has_value());
    EXPECT_FALSE(fs::exists(folder / "vantrel")) << "reading makes nothing";
}

TEST_F(IniSettingsStoreTest, whatIsWrittenIsThereForTheNextOne) {
    EXPECT_TRUE(store.write("ServerName", u"Grüße = ; \n\U0001F5A8"));
    EXPECT_TRUE(store.write("ServerPort", u"5005"));
    EXPECT_TRUE(store.write("ServerPort", u"5006"));
    const IniSettingsStore next(file);
    EXPECT_TRUE(next.exists());
    EXPECT_EQ(next.read("ServerName"), u"Grüße = ; \n\U0001F5A8");
    EXPECT_EQ(next.read("ServerPort"), u"5006");
    EXPECT_FALSE(next.read("UserName").has_value());
}

TEST_F(IniSettingsStoreTest, anEmptyValueIsAValue) {
    EXPECT_TRUE(store.write("DomainName", u""));
    EXPECT_EQ(store.read("DomainName"), u"");
}

TEST_F(IniSettingsStoreTest, onlyTheOwnerMayReadFileAndFolder) {
    const mode_t mask = ::umask(0);
    store.write("UserName", u"eva");
    ::umask(mask);
    struct stat status {};
    ASSERT_EQ(::stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600U);
    ASSERT_EQ(::stat(file.parent_path().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0700U);
}

TEST_F(IniSettingsStoreTest, aFileThatOthersCouldReadIsClosedToThem) {
    put(file, "UserName=eva\n");
    fs::permissions(file, fs::perms(0644));
    store.write("UserName", u"adam");
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600));
}

TEST_F(IniSettingsStoreTest, writingLeavesNothingElseBehind) {
    store.write("UserName", u"eva");
    store.write("UserName", u"adam");
    EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(IniSettingsStoreTest, garbageHasNoValuesAndIsKeptBesideTheNewFile) {
    const std::string garbage = "ServerName=print\n\x01\x02\xFF garbage";
    put(file, garbage);
    EXPECT_TRUE(store.exists());
    EXPECT_FALSE(store.read("ServerName").has_value());
    EXPECT_EQ(contentOf(file), garbage) << "reading changes nothing";
    EXPECT_TRUE(store.write("UserName", u"eva"));
    EXPECT_EQ(store.read("UserName"), u"eva");
    EXPECT_FALSE(store.read("ServerName").has_value());
    EXPECT_EQ(contentOf(file.string() + ".bad"), garbage);
}

TEST_F(IniSettingsStoreTest, aSecondBadFileDoesNotTakeTheFirstOnesPlace) {
    put(file, "first");
    store.write("UserName", u"eva");
    put(file, "second");
    store.write("UserName", u"eva");
    EXPECT_EQ(contentOf(file.string() + ".bad"), "first");
    EXPECT_EQ(contentOf(file.string() + ".bad2"), "second");
}

TEST_F(IniSettingsStoreTest, aFileFarTooLongIsGarbage) {
    put(file, "A=" + std::string(2 << 20, 'x') + "\n");
    EXPECT_FALSE(store.read("A").has_value());
}

TEST_F(IniSettingsStoreTest, aFolderInThePlaceOfTheFileIsNeitherReadNorReplaced) {
    fs::create_directories(file);
    EXPECT_FALSE(store.exists());
    EXPECT_FALSE(store.read("UserName").has_value());
    EXPECT_FALSE(store.write("UserName", u"eva"));
    EXPECT_TRUE(fs::is_directory(file));
    EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(IniSettingsStoreTest, aPlaceThatCannotBeMadeIsAFailureAndNoMore) {
    put(folder / "file", "");
    IniSettingsStore below(folder / "file" / "admin.ini");
    EXPECT_FALSE(below.exists());
    EXPECT_FALSE(below.write("UserName", u"eva"));
}

TEST_F(IniSettingsStoreTest, aNameThatCannotStandInTheFileLosesNothing) {
    store.write("UserName", u"eva");
    EXPECT_FALSE(store.write("User=Name", u"x"));
    EXPECT_EQ(store.read("UserName"), u"eva");
}

TEST_F(IniSettingsStoreTest, aLinkToTheFileStaysALink) {
    const fs::path real = folder / "dotfiles" / "admin.ini";
    put(real, "UserName=eva\n");
    fs::create_directories(file.parent_path());
    fs::create_symlink(real, file);
    EXPECT_TRUE(store.write("UserName", u"adam"));
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(contentOf(real), "UserName=adam\n");
}

TEST_F(IniSettingsStoreTest, theUsualPlaceIsInTheUsersConfiguration) {
    const support::EnvironmentVariable home("HOME", "/home/eva");
    const support::EnvironmentVariable configuration("XDG_CONFIG_HOME", "/config");
    EXPECT_EQ(IniSettingsStore::defaultPath(), "/config/vantrel/admin.ini");
    ::setenv("XDG_CONFIG_HOME", "not/absolute", 1);
    EXPECT_EQ(IniSettingsStore::defaultPath(), "/home/eva/.config/vantrel/admin.ini");
    ::unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(IniSettingsStore::defaultPath(), "/home/eva/.config/vantrel/admin.ini");
    ::unsetenv("HOME");
    EXPECT_TRUE(IniSettingsStore::defaultPath().is_absolute());
}

} // namespace
} // namespace common
