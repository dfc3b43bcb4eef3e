#include "hosts/ctl/Password.h"
#include "hosts/ctl/Failure.h"
#include "tests/server/support/TestFolder.h"

#include <gtest/gtest.h>

namespace {

using ctl::obtainPassword;

TEST(Password, isTheFirstLineOfTheFile) {
    const server::test::TestFolder folder;

    EXPECT_EQ(obtainPassword(folder.write("a", "geheim\nmore\n"), "admin at host:5005"), u"geheim");
    EXPECT_EQ(obtainPassword(folder.write("b", "geheim\r\n"), "admin at host:5005"), u"geheim");
    EXPECT_EQ(obtainPassword(folder.write("c", "geheim"), "admin at host:5005"), u"geheim");
    EXPECT_EQ(obtainPassword(folder.write("d", "schlüssel\n"), "admin at host:5005"), u"schlüssel");
}

TEST(Password, aFileThatIsMissingOrEmptyIsAnError) {
    const server::test::TestFolder folder;

    EXPECT_THROW(obtainPassword(folder / "none", "admin at host:5005"), ctl::Failure);
    EXPECT_THROW(obtainPassword(folder.write("empty", ""), "admin at host:5005"), ctl::Failure);
}

TEST(Password, comesFromTheEnvironmentWithoutAFile) {
    setenv("VANTREL_PASSWORD", "geheim", 1);
    const auto password = obtainPassword(std::nullopt, "admin at host:5005");
    unsetenv("VANTREL_PASSWORD");

    EXPECT_EQ(password, u"geheim");
}

} // namespace
