#include "tests/transcripts/Run.h"

#include "hosts/ctl/ShellWords.h"
#include "tests/transcripts/CtlHost.h"
#include "tests/transcripts/LinePattern.h"
#include "tests/transcripts/Transcript.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iostream>
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
    explicit Player(const MakeHost& makeHost) : host_(makeHost(server_)) {}

    Outcome play(const Exchange& exchange) {
        auto words = ctl::shellWords(withNames(joined(exchange.command), names_));
        if (words == std::vector<std::string>{"vantreld", "restart"}) {
            server_.restart();
            return {};
        }
        if (words.empty() || words.front() != "vantrelctl") {
            throw std::runtime_error("line " + std::to_string(exchange.number) +
                                     ": there is only vantrelctl, and \"vantreld restart\"");
        }
        words.erase(words.begin());
        return exchange.byVantrelctl ? vantrelctl_.run(words) : host_->run(words);
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
        std::vector<std::string> lines;
        for (const auto& line : linesOf(outcome.text)) {
            const auto kept = std::ranges::find_if(
                exchange.expected, [&](const std::string& pattern) { return matches(line, pattern, names_); });
            lines.push_back(kept != exchange.expected.end() ? *kept : patternOf(line));
        }
        exchange.expected = std::move(lines);
        exchange.status = outcome.status;
        return exchange;
    }

private:
    SampleServer server_;
    CtlHost vantrelctl_{server_};
    std::unique_ptr<Host> host_;
    Names names_;
};

int play(const std::string& file, bool update, const MakeHost& makeHost) {
    std::ifstream stream(file);
    if (!stream) {
        throw std::runtime_error("there is no " + file);
    }
    auto transcript = Transcript::read(stream);
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
        std::ofstream out(file);
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
