#include "tests/transcripts/Run.h"

#include "tests/support/Environment.h"
#include "tests/support/MadeLocales.h"
#include "tests/transcripts/CtlHost.h"
#include "tests/transcripts/LinePattern.h"
#include "tests/transcripts/Renewal.h"
#include "tests/transcripts/Transcript.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <sstream>
#include <stdexcept>

namespace transcripts {
namespace {

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line.ends_with('\r') ? line.substr(0, line.size() - 1) : line);
    }
    return lines;
}

// As one line, without what continues it.
std::string joined(const std::vector<std::string>& command) {
    std::string line;
    for (const auto& piece : command) {
        line += piece.ends_with(" \\") ? piece.substr(0, piece.size() - 1) : piece;
    }
    return line;
}

void print(std::ostream& out, const char* mark, const std::vector<std::string>& lines, int status) {
    for (const auto& line : lines) {
        out << mark << line << '\n';
    }
    if (status != 0) {
        out << mark << "? " << status << '\n';
    }
}

// A transcript on its way through a host.
class Player {
public:
    explicit Player(const MakeHost& makeHost) : host_(makeHost(server_)) {
        std::filesystem::current_path(server_.folder() / ".");
        namePort();
    }

    Outcome play(const Exchange& exchange) {
        const auto line = withNames(joined(exchange.command), names_);
        if (line == "vantreld restart") {
            server_.restart();
            namePort();
            return {};
        }
        return exchange.byVantrelctl ? vantrelctl_.run(line) : host_->run(line);
    }

    bool isAsExpected(const Exchange& exchange, const Outcome& outcome) {
        const auto lines = linesOf(outcome.text);
        return outcome.status == exchange.status &&
               std::ranges::equal(lines, exchange.expected, [&](const std::string& line, const std::string& pattern) {
                   return matches(line, pattern, names_);
               });
    }

    // What came, in the patterns that stand there where they match.
    Exchange updated(Exchange exchange, const Outcome& outcome) {
        exchange.expected = renewed(exchange.expected, linesOf(outcome.text), names_);
        exchange.status = outcome.status;
        return exchange;
    }

private:
    void namePort() { names_["port"] = std::to_string(server_.port()); }

    const support::EnvironmentVariable locale_{"LC_ALL", "C.UTF-8"};
    SampleServer server_;
    CtlHost vantrelctl_{server_};
    std::unique_ptr<Host> host_;
    Names names_;
};

// Which it takes time to make.
bool asksForLocales(const Transcript& transcript) {
    return std::ranges::any_of(transcript.exchanges, [](const Exchange& exchange) {
        return joined(exchange.command).find("LC_ALL=") != std::string::npos;
    });
}

int play(const std::string& file, bool update, const MakeHost& makeHost) {
    const auto path = std::filesystem::absolute(file);
    std::ifstream stream(path);
    if (!stream) {
        throw std::runtime_error("there is no " + file);
    }
    auto transcript = Transcript::read(stream);
    std::optional<support::MadeLocales> locales;
    if (asksForLocales(transcript)) {
        locales.emplace(std::initializer_list<std::string>{"de_DE.UTF-8", "en_US.UTF-8"});
    }
    Player player(makeHost);
    int differences = 0;
    for (auto& exchange : transcript.exchanges) {
        const auto outcome = player.play(exchange);
        if (update) {
            exchange = player.updated(exchange, outcome);
        } else if (!player.isAsExpected(exchange, outcome)) {
            ++differences;
            std::cout << file << ':' << exchange.number << ": $ " << joined(exchange.command) << '\n';
            print(std::cout, "- ", exchange.expected, exchange.status);
            print(std::cout, "+ ", linesOf(outcome.text), outcome.status);
        }
    }
    if (update) {
        std::ofstream out(path);
        transcript.write(out);
    }
    return differences == 0 ? 0 : 1;
}

} // namespace

int playTranscript(int count, const char* const* arguments, const MakeHost& makeHost) {
    const bool update = count == 3 && std::strcmp(arguments[1], "--update") == 0;
    if (count != 2 && !update) {
        std::cerr << "usage: " << arguments[0] << " [--update] TRANSCRIPT\n";
        return 2;
    }
    try {
        return play(arguments[count - 1], update, makeHost);
    } catch (const std::exception& failure) {
        std::cout << arguments[count - 1] << ": " << failure.what() << '\n';
        return 1;
    }
}

} // namespace transcripts
