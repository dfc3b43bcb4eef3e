#include "hosts/ctl/Password.h"
#include "hosts/ctl/Failure.h"
#include "tests/server/support/TestFolder.h"

#include <gtest/gtest.h>

namespace {

using ctl::obtainPassword;

TEST(Password, isTheFirstLineOfTheFile) {
    const server::test::TestFolder folder;

    EXPECT_EQ(obtainPassword(folder.write("a", "geheim\nmore\n")), u"geheim");
    EXPECT_EQ(obtainPassword(folder.write("b", "geheim\r\n")), u"geheim");
    EXPECT_EQ(obtainPassword(folder.write("c", "geheim")), u"geheim");
    EXPECT_EQ(obtainPassword(folder.write("d", "schlüssel\n")), u"schlüssel");
}

TEST(Password, aFileThatIsMissingOrEmptyIsAnError) {
    const server::test::TestFolder folder;

    EXPECT_THROW(obtainPassword(folder / "none"), ctl::Failure);
    EXPECT_THROW(obtainPassword(folder.write("empty", "")), ctl::Failure);
}

TEST(Password, comesFromTheEnvironmentWithoutAFile) {
    setenv("VANTREL_PASSWORD", "geheim", 1);
    const auto password = obtainPassword(std::nullopt);
    unsetenv("VANTREL_PASSWORD");

    EXPECT_EQ(password, u"geheim");
}

} // namespace
