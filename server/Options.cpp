#include "server/Options.h"

#include "wire/Text.h"

#include <CLI/CLI.hpp>

#include <charconv>
#include <fstream>

namespace server {

namespace {

constexpr int usageStatus = 2;
constexpr int mostSamplePrinters = 1000000;

std::optional<Sample> parseSample(const std::string& text) {
    if (text == "small") {
        return Sample{};
    }
    int printers = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), printers);
    if (error != std::errc() || end != text.data() + text.size() || printers < 1 || printers > mostSamplePrinters) {
        return std::nullopt;
    }
    return Sample{.printers = printers};
}

Options::Outcome usage(const std::string& text) {
    return {.options = std::nullopt, .text = "vantreld: " + text + " (see vantreld --help)", .exitStatus = usageStatus};
}

std::string firstLine(const std::string& text) {
    return text.substr(0, text.find('\n'));
}

} // namespace

Options::Outcome Options::parse(int count, const char* const* arguments) {
    Options options;
    std::string sample;
    std::string user;
    std::string portFile;
    std::string database;
    std::string passwordFile;
    int minutes = static_cast<int>(options.loginRequired.count());

    CLI::App app("The Vantrel print management server: answers the administration console from one database file.",
                 "vantreld");
    app.set_help_flag("--help", "Print this help and exit");
    app.add_option("--database", database, "The database file; created if it does not exist")->required();
    app.add_option("--listen", options.listen, "The address to listen on")->capture_default_str();
    app.add_option("--port", options.port, "The port to listen on; 0 for any free port")
        ->capture_default_str()
        ->check(CLI::Range(0, 65535));
    app.add_option("--port-file", portFile, "Write the port to this file once the server listens");
    app.add_option("--sample", sample, "Fill an empty database: small, or a number of printers");
    auto* userOption = app.add_option("--user", user, "Add this account, or change its password");
    auto* passwordOption = app.add_option("--password-file", passwordFile, "The file with the account's password");
    userOption->needs(passwordOption);
    passwordOption->needs(userOption);
    app.add_option("--login-required", minutes,
                   "Take commands only from an address that has logged in within so many minutes; 0 for no login")
        ->capture_default_str()
        ->check(CLI::Range(0, 525600));
    try {
        app.parse(count, arguments);
    } catch (const CLI::CallForHelp&) {
        return {.options = std::nullopt, .text = app.help(), .exitStatus = 0};
    } catch (const CLI::ParseError& error) {
        return usage(firstLine(error.what()));
    }

    options.database = database;
    options.passwordFile = passwordFile;
    options.loginRequired = std::chrono::minutes(minutes);
    if (database.empty()) {
        return usage("--database needs the name of a file");
    }
    if (userOption->count() > 0 && user.empty()) {
        return usage("--user needs a name");
    }
    if (userOption->count() > 0) {
        options.user = user;
    }
    if (!portFile.empty()) {
        options.portFile = portFile;
    }
    if (!sample.empty()) {
        options.sample = parseSample(sample);
        if (!options.sample) {
            return usage("--sample takes small or a number of printers from 1 to 1000000, not \"" + sample + "\"");
        }
    }
    return {.options = options, .text = {}, .exitStatus = 0};
}

std::u16string readPassword(const std::filesystem::path& file) {
    std::ifstream stream(file);
    std::string line;
    if (!stream || std::filesystem::is_directory(file)) {
        throw std::runtime_error(file.string() + ": the password file cannot be read");
    }
    std::getline(stream, line);
    if (!line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    if (line.empty()) {
        throw std::runtime_error(file.string() + ": the password file contains no password");
    }
    return wire::toWide(line);
}

} // namespace server
