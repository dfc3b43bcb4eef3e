#include "hosts/desktop/window/Options.h"

#include "tests/support/Environment.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace desktoptest {
namespace {

using desktop::Options;
using desktop::Refusal;

std::variant<Options, Refusal> read(const QStringList& arguments) {
    return desktop::readOptions(QStringList{QStringLiteral("vantrel-admin")} + arguments);
}

Refusal refusal(const QStringList& arguments) {
    const auto result = read(arguments);
    return std::holds_alternative<Refusal>(result) ? std::get<Refusal>(result)
                                                   : Refusal{QStringLiteral("accepted"), -1};
}

TEST(Options, theConnectionIsPrefilled) {
    const auto result = read({"--server", "print.example", "--port", "5005", "--user", "admin", "--domain", "D"});
    ASSERT_TRUE(std::holds_alternative<Options>(result));
    const auto& login = std::get<Options>(result).login;
    EXPECT_EQ(u"print.example", login.at("ServerName"));
    EXPECT_EQ(u"5005", login.at("ServerPort"));
    EXPECT_EQ(u"admin", login.at("UserName"));
    EXPECT_EQ(u"D", login.at("DomainName"));
}

TEST(Options, whatIsNotGivenComesFromTheSettings) {
    const auto result = read({"--user", "admin"});
    EXPECT_EQ(1U, std::get<Options>(result).login.size());
}

TEST(Options, aPictureHasSizeScaleAndPath) {
    const auto result =
        read({"--screenshot", "a.png", "--size", "1200x800", "--scale", "1.5", "--look", "dark", "P/B"});
    const auto& options = std::get<Options>(result);
    EXPECT_EQ(QSize(1200, 800), options.size);
    EXPECT_EQ(1.5, options.scale);
    EXPECT_EQ(desktop::ColorScheme::dark, options.look);
    EXPECT_EQ(QStringLiteral("P/B"), options.path);
}

TEST(Options, wrongOnesAreRefusedWithAClearLine) {
    for (const QStringList& wrong : {QStringList{"--nonsense"},
                                     {"--port", "70000"},
                                     {"--port", "x"},
                                     {"--look", "pink"},
                                     {"--size", "12"},
                                     {"--size", "-4x20"},
                                     {"--scale", "0"},
                                     {"--scale", "big"},
                                     {"a", "b"},
                                     {"--screenshot"}}) {
        const auto told = refusal(wrong);
        EXPECT_EQ(2, told.status) << wrong.join(' ').toStdString();
        EXPECT_TRUE(told.text.startsWith(QStringLiteral("vantrel-admin: "))) << told.text.toStdString();
    }
}

TEST(Options, helpAndVersionAreNoErrors) {
    EXPECT_EQ(0, refusal({"--help"}).status);
    EXPECT_TRUE(refusal({"--help"}).text.contains(QStringLiteral("--screenshot")));
    EXPECT_FALSE(refusal({"--help"}).text.contains(QStringLiteral("executable_name")));
    EXPECT_EQ(QStringLiteral("vantrel-admin 1.0.2\n"), refusal({"--version"}).text);
}

TEST(Options, aPasswordComesFromTheFirstLineOfItsFile) {
    const QTemporaryDir folder;
    Options options;
    options.passwordFile = folder.filePath(QStringLiteral("pw"));
    QFile file(options.passwordFile);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("s\xC3\xA9"
               "cret\r\nsecond line\n");
    file.close();
    const auto password = desktop::readPassword(options);
    ASSERT_TRUE(std::holds_alternative<std::optional<wire::WideString>>(password));
    EXPECT_EQ(u"s\u00E9cret", std::get<0>(password));
}

TEST(Options, aMissingPasswordFileIsTold) {
    Options options;
    options.passwordFile = QStringLiteral("/nonexistent/pw");
    const auto password = desktop::readPassword(options);
    ASSERT_TRUE(std::holds_alternative<Refusal>(password));
    EXPECT_EQ(3, std::get<Refusal>(password).status);
}

TEST(Options, aPasswordMayComeFromTheEnvironment) {
    const support::EnvironmentVariable variable("VANTREL_PASSWORD", "pw");
    EXPECT_EQ(u"pw", std::get<0>(desktop::readPassword({})));
}

} // namespace
} // namespace desktoptest
