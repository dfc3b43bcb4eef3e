#include "tests/transcripts/Transcript.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace transcripts {
namespace {

constexpr auto prompt = "$ ";
constexpr auto status = "? ";
constexpr auto onlyVantrelctl = "# host: vantrelctl";

bool isComment(const std::string& line) {
    return line.empty() || line.starts_with('#');
}

bool goesOn(const std::string& line) {
    return line.ends_with(" \\");
}

// Collects the lines of one command after the other.
class Reader {
public:
    void take(std::string line) {
        ++number_;
        if (!commands().empty() && goesOn(commands().back()) && expectsMore_) {
            expectsMore_ = goesOn(line);
            commands().push_back(std::move(line));
        } else if (line.starts_with(prompt)) {
            begin(line.substr(2));
        } else if (isComment(line)) {
            above_.push_back(std::move(line));
        } else if (transcript_.exchanges.empty() || !above_.empty()) {
            throw std::runtime_error("line " + std::to_string(number_) + " belongs to no command");
        } else if (line.starts_with(status)) {
            transcript_.exchanges.back().status = std::stoi(line.substr(2));
        } else {
            transcript_.exchanges.back().expected.push_back(std::move(line));
        }
    }

    Transcript result() {
        transcript_.below = std::move(above_);
        return std::move(transcript_);
    }

private:
    std::vector<std::string>& commands() {
        return transcript_.exchanges.empty() ? none_ : transcript_.exchanges.back().command;
    }

    void begin(const std::string& command) {
        wholeFile_ =
            wholeFile_ || (transcript_.exchanges.empty() && !above_.empty() && above_.front() == onlyVantrelctl);
        const bool marked = !above_.empty() && above_.back() == onlyVantrelctl;
        transcript_.exchanges.push_back({.number = number_,
                                         .above = std::exchange(above_, {}),
                                         .command = {command},
                                         .expected = {},
                                         .status = 0,
                                         .byVantrelctl = wholeFile_ || marked});
        expectsMore_ = goesOn(command);
    }

    Transcript transcript_;
    std::vector<std::string> above_;
    std::vector<std::string> none_;
    std::size_t number_ = 0;
    bool expectsMore_ = false;
    bool wholeFile_ = false;
};

} // namespace

Transcript Transcript::read(std::istream& text) {
    Reader reader;
    for (std::string line; std::getline(text, line);) {
        reader.take(std::move(line));
    }
    return reader.result();
}

void Transcript::write(std::ostream& out) const {
    const auto lines = [&](const std::vector<std::string>& all) {
        std::ranges::for_each(all, [&](const std::string& line) { out << line << '\n'; });
    };
    for (const auto& exchange : exchanges) {
        lines(exchange.above);
        out << prompt;
        lines(exchange.command);
        lines(exchange.expected);
        if (exchange.status != 0) {
            out << status << exchange.status << '\n';
        }
    }
    lines(below);
}

} // namespace transcripts
