#include "hosts/ctl/ShellWords.h"

#include "hosts/ctl/Failure.h"

#include <optional>

namespace ctl {
namespace {

// Reads the words of a line.
class Reader {
public:
    explicit Reader(std::string_view line) : rest_(line) {}

    std::optional<std::string> next() {
        rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t\r"), rest_.size()));
        if (rest_.empty() || rest_.front() == '#') {
            return std::nullopt;
        }
        std::string word;
        while (!rest_.empty() && rest_.front() != ' ' && rest_.front() != '\t' && rest_.front() != '\r') {
            takePiece(word);
        }
        return word;
    }

private:
    char take() {
        const char first = rest_.front();
        rest_.remove_prefix(1);
        return first;
    }

    void takePiece(std::string& word) {
        switch (const char first = take()) {
        case '\'':
            takeUntil('\'', "", word);
            break;
        case '"':
            takeUntil('"', "\"\\$`", word);
            break;
        case '\\':
            if (rest_.empty()) {
                throw Failure(ExitStatus::usage, "The line ends with a backslash");
            }
            word += take();
            break;
        default:
            word += first;
        }
    }

    // Reads up to the closing quote; a backslash escapes only those characters.
    void takeUntil(char quote, std::string_view escapable, std::string& word) {
        while (!rest_.empty()) {
            const char next = take();
            if (next == quote) {
                return;
            }
            const bool escapes =
                next == '\\' && !rest_.empty() && escapable.find(rest_.front()) != std::string_view::npos;
            word += escapes ? take() : next;
        }
        throw Failure(ExitStatus::usage, std::string("A ") + quote + " is not closed");
    }

    std::string_view rest_;
};

} // namespace

std::vector<std::string> shellWords(std::string_view line) {
    std::vector<std::string> words;
    Reader reader(line);
    while (auto word = reader.next()) {
        words.push_back(std::move(*word));
    }
    return words;
}

} // namespace ctl
