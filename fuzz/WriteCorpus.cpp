#include "fuzz/Operations.h"
#include "protocol/Catalogue.h"
#include "tests/support/Bytes.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <stdexcept>
#include <string_view>

// Writes the initial inputs of the fuzzers into a folder, with a subfolder for each fuzzer. They are valid inputs,
// built by hand or field by field from the layouts of the catalogue.

namespace {

using support::Bytes;
using support::commandMessage;
using support::countedList;
using support::dataMessage;
using support::frame;
using support::hex;
using support::operator+; // NOLINT(misc-unused-using-decls): by every sum of bytes below

constexpr std::uint8_t firstOperation = 128; // of the client fuzzer
constexpr std::uint8_t everyAction[] = {0, 1, 2, 3, 88};

class Corpus {
public:
    explicit Corpus(std::filesystem::path folder) : folder_(std::move(folder)) {}

    void add(const std::string& fuzzer, const std::string& name, const Bytes& bytes) const {
        std::filesystem::create_directories(folder_ / fuzzer);
        std::ofstream file(folder_ / fuzzer / name, std::ios::binary);
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        if (!file.flush()) {
            throw std::runtime_error("cannot write " + (folder_ / fuzzer / name).string());
        }
    }

private:
    std::filesystem::path folder_;
};

// A value of the kind, short and not empty.
Bytes valueOf(protocol::FieldKind kind, const protocol::RecordLayout* element);

Bytes fieldsOf(const protocol::RecordLayout& layout) {
    Bytes bytes;
    for (const auto& field : layout.fields) {
        if (field.kind == protocol::FieldKind::optional) {
            bytes = std::move(bytes) + hex("01") + valueOf(field.elementKind, field.element);
        } else if (field.kind == protocol::FieldKind::list) {
            bytes = std::move(bytes) + hex("01 00") + valueOf(field.elementKind, field.element);
        } else {
            bytes = std::move(bytes) + valueOf(field.kind, field.element);
        }
    }
    return bytes;
}

Bytes valueOf(protocol::FieldKind kind, const protocol::RecordLayout* element) {
    using enum protocol::FieldKind;
    switch (kind) {
    case u8:
    case bool8:
        return hex("01");
    case u16:
        return hex("01 00");
    case f32:
        return hex("00 00 80 3F");
    case str8:
        return hex("02 00 61 31");
    case str16:
        return hex("04 00 41 00 E4 00");
    case uuid:
        return hex("24 00") + hex("31 32 33 34 35 36 37 38 2D 31 32 33 34 2D 34 32 33 34 2D 38 32 33 34 2D 31 32 33 34 "
                                  "35 36 37 38 39 30 61 62");
    case record:
        return element == nullptr ? Bytes{} : fieldsOf(*element);
    default:
        return hex("01 00 00 00");
    }
}

// All forms of a command's request, by the action that they begin with where there are several.
std::vector<std::pair<std::string, Bytes>> requestsOf(const protocol::Command& command) {
    std::vector<std::pair<std::string, Bytes>> requests;
    const auto name = std::to_string(command.opcode);
    if (command.request != nullptr) {
        requests.emplace_back(name, fieldsOf(*command.request));
    }
    std::size_t index = 0;
    for (const auto& form : command.forms) {
        ++index;
        auto fields = fieldsOf(*form.layout);
        for (const auto action : everyAction) {
            fields.front() = action;
            requests.emplace_back(name + "-form-" + std::to_string(index) + "-action-" + std::to_string(action),
                                  fields);
        }
    }
    return requests;
}

Bytes requestFrame(const protocol::Command& command, const Bytes& fields) {
    const auto opens = commandMessage(command.opcode, command.version);
    return fields.empty() ? frame({opens}) : frame({dataMessage(fields), opens});
}

Bytes replyOf(const protocol::Command& command, const protocol::RecordLayout& layout) {
    const auto fields = fieldsOf(layout);
    return command.reply == protocol::ReplyShape::list ? countedList({fields, fields}) : frame({dataMessage(fields)});
}

void addCommands(const Corpus& corpus) {
    for (const auto& command : protocol::catalogue()) {
        const auto opcode = static_cast<std::uint8_t>(command.opcode);
        const auto requests = requestsOf(command);
        for (const auto& [name, fields] : requests) {
            corpus.add("request", name, Bytes{opcode} + fields);
        }
        if (!requests.empty()) {
            corpus.add("connection", std::to_string(opcode), Bytes{0} + requestFrame(command, requests.front().second));
        }
        const auto addLayout = [&](std::uint8_t which, const protocol::RecordLayout* layout) {
            if (layout != nullptr) {
                corpus.add("records", std::to_string(opcode) + "-" + std::to_string(which),
                           Bytes{opcode, which} + fieldsOf(*layout));
            }
        };
        addLayout(0, command.request);
        addLayout(1, command.replyRecord);
        addLayout(2, command.otherRecord.layout);
        for (std::size_t form = 0; form < command.forms.size(); ++form) {
            addLayout(static_cast<std::uint8_t>(3 + form), command.forms[form].layout);
        }
        if (command.replyRecord != nullptr) {
            corpus.add("client", std::to_string(opcode), Bytes{0, opcode} + replyOf(command, *command.replyRecord));
        }
    }
}

// What the operations of the client fuzzer read.
void addOperations(const Corpus& corpus) {
    for (std::size_t index = 0; index < fuzz::operations().size(); ++index) {
        const auto& command = *protocol::findCommand(fuzz::operations()[index].opcode);
        const auto reply = replyOf(command, *command.replyRecord);
        const auto operation = static_cast<std::uint8_t>(firstOperation + index);
        const auto name = "operation-" + std::to_string(index) + "-" + std::string(command.name);
        corpus.add("client", name, Bytes{0, operation} + reply);
        corpus.add("client", name + "-in-pieces-then-stalls", Bytes{3U << 2 | 2, operation} + reply);
        corpus.add("client", name + "-breaks-off", Bytes{1, operation} + Bytes(reply.begin(), reply.end() - 3));
    }
    const auto regions = hex("02 00  02 00 41 00 01 00 00 00 00 00 00 00  02 00 42 00 02 00 00 00 01 00 00 00");
    corpus.add("client", "regions-in-one-message", Bytes{0, firstOperation} + frame({dataMessage(regions)}));
    corpus.add("client", "a-count-that-lies", Bytes{0, firstOperation + 1} + frame({dataMessage(hex("FF 7F"))}));
    corpus.add("client", "a-negative-count", Bytes{0, firstOperation + 1} + frame({dataMessage(hex("00 80"))}));
    // The key's message and its block, then the acknowledgements of three credentials and the status.
    const auto key = frame({dataMessage(hex("02 00 61 31 01 00 00 00"))}) + hex("04 00 00 00 30 82 01 0A");
    corpus.add("client", "key", Bytes{0, firstOperation + 5} + key);
    corpus.add("client", "login",
               Bytes{0, firstOperation + 6} + key + hex("01 01 01 01 01 01") + frame({dataMessage(hex("01 00"))}));
}

void addText(const Corpus& corpus) {
    const std::pair<const char*, const char*> inputs[] = {
        {"empty", "03"},
        {"letters", "03 41 00 E4 00 AC 20"},
        {"big-endian", "02 00 41 00 E4"},
        {"a-mark", "03 FF FE 41 00"},
        {"a-swapped-mark", "07 FE FF 00 41"},
        {"a-pair", "03 3D D8 00 DE"},
        {"lone-surrogates", "03 00 DC 41 00 00 D8"},
        {"two-high-surrogates", "03 00 D8 00 D8 00 DC"},
        {"a-zero-within", "01 41 00 00 00 42 00"},
        {"utf-8", "00 C3 A4 E2 82 AC F0 9F 98 80"},
        {"broken-utf-8", "00 C3 ED A0 80 F8 C0 80"},
        {"date", "00 32 30 31 34 2D 30 33 2D 30 35 20 31 37 3A 30 34 3A 30 39 2E 32 35 30"},
        {"date-without-fraction", "00 32 30 31 34 2D 30 33 2D 30 35 20 31 37 3A 30 34 3A 30 39"},
        {"date-of-five-numbers", "00 32 30 31 34 2D 30 33 2D 30 35 20 31 37 3A 30 34"},
        {"date-beyond-all", "00 39 39 39 39 39 39 39 39 39 2D 39 39 2D 39 39 20 39 39 3A 39 39 3A 39 39"},
        {"uuid", "00 31 32 33 34 35 36 37 38 2D 31 32 33 34 2D 34 32 33 34 2D 38 32 33 34 2D 31 32 33 34 35 36 37 38 "
                 "39 30 61 62"},
        {"uuid-in-braces", "00 7B 31 32 33 34 35 36 37 38 31 32 33 34 34 32 33 34 38 32 33 34 31 32 33 34 35 36 37 38 "
                           "39 30 41 42 7D"},
        {"version", "03 31 00 2E 00 30 00 20 00 28 00 32 00 30 00 31 00 34 00 2D 00 30 00 33 00 2D 00 30 00 35 00 "
                    "20 00 31 00 37 00 3A 00 30 00 34 00 3A 00 30 00 39 00 29 00"},
    };
    for (const auto& [name, bytes] : inputs) {
        corpus.add("text", name, hex(bytes));
    }
}

void addFilters(const Corpus& corpus) {
    const std::pair<const char*, std::string_view> filters[] = {
        {"words", "laser hall"},
        {"a-phrase", "\"hall 1\" -\"say \"\"x\"\"\""},
        {"a-column", "queue:laser -loc:store"},
        {"a-quoted-column", "\"Queue Name\":\"hall 1\""},
        {"comparisons", "jobs:>5 jobs:>=5 jobs:<15 jobs:<=15 jobs:=10"},
        {"no-text", "location:\"\" -queue:=\"\""},
        {"a-day", "jobs:>2024-02-29"},
        {"a-moment", "jobs:<=\"2024-03-05 17:04:09\""},
        {"unfinished", "queue: jobs:> - \"hall"},
        {"an-unknown-column", "colour:red 17:04"},
    };
    for (const auto& [name, text] : filters) {
        corpus.add("filter", name, Bytes{10} + Bytes(text.begin(), text.end()));
    }
}

void addFrames(const Corpus& corpus) {
    const auto command = commandMessage(29, 1);
    const auto data = dataMessage(hex("02 00 61 31  04 00 41 00 E4 00  01 00 00 00"));
    corpus.add("frame", "command", Bytes{1} + command);
    corpus.add("frame", "data-then-command", Bytes{2} + data + command);
    corpus.add("frame", "command-then-data", Bytes{2} + command + data);
    corpus.add("frame", "too-few", Bytes{1} + command + data);
    corpus.add("frame", "too-many", Bytes{3} + command + data);
    corpus.add("frame", "two-commands", Bytes{2} + command + command);
    corpus.add("frame", "empty", Bytes{0});
    corpus.add("frame", "a-length-below-the-header", hex("01 00 04 00 00 00 01 00 1D 00"));
    corpus.add("frame", "a-length-beyond-the-frame", hex("01 01 FF FF FF FF 00 00"));
    corpus.add("frame", "a-text-beyond-the-message", hex("01 01 09 00 00 00 FF FF 41 00"));
    corpus.add("frame", "an-odd-text", hex("01 01 0A 00 00 00 03 00 41 00 42"));
}

void addTransport(const Corpus& corpus) {
    const auto frames = Bytes{0, 0, 0, 0};
    const auto data = dataMessage(hex("02 00 61 31"));
    const auto one = frame({data});
    corpus.add("transport", "a-frame", Bytes{0} + frames + one);
    corpus.add("transport", "two-messages-in-pieces", Bytes{1U << 2} + frames + frame({data, commandMessage(1, 1)}));
    corpus.add("transport", "frames-then-a-reset", Bytes{1} + frames + one + one + one);
    corpus.add("transport", "a-frame-that-stalls", Bytes{2} + frames + Bytes(one.begin(), one.end() - 2));
    corpus.add("transport", "a-frame-that-fails", Bytes{3} + frames + Bytes(one.begin(), one.begin() + 6));
    corpus.add("transport", "an-empty-frame", Bytes{0} + frames + frame({}));
    corpus.add("transport", "a-wrong-checksum", Bytes{0} + frames + frame({data}, 1));
    corpus.add("transport", "a-size-at-the-limit", Bytes{0} + frames + frame({data}, {}, 128000));
    corpus.add("transport", "a-size-beyond-the-limit", Bytes{0} + frames + frame({data}, {}, 128001));
    corpus.add("transport", "a-block", hex("00  00 00 00 02  04 00 00 00 61 62 63 64"));
    corpus.add("transport", "an-empty-block", hex("00  00 00 00 02  00 00 00 00"));
    corpus.add("transport", "a-block-too-long", hex("00  00 00 00 02  FF FF FF FF"));
    corpus.add("transport", "a-block-sent", hex("00  00 00 00 03  01 01"));
    corpus.add("transport", "a-block-between-frames", Bytes{0, 0, 0, 0, 0x08} + one + hex("02 00 00 00 61 62") + one);
}

void addLogins(const Corpus& corpus) {
    const auto key = frame({commandMessage(78, 1)});
    corpus.add("connection", "key", Bytes{0} + key + hex("00 01"));
    corpus.add("connection", "key-not-acknowledged", Bytes{0} + key);
    const auto login = frame({dataMessage(hex("03 00 00 00")), commandMessage(22, 1)});
    const auto block = hex("04 00 00 00 61 62 63 64");
    corpus.add("connection", "login", Bytes{1} + login + block + block + block);
    corpus.add("connection", "login-in-pieces", Bytes{3U << 1 | 1} + login + block + block + block);
    corpus.add("connection", "login-with-an-empty-block", Bytes{1} + login + hex("00 00 00 00"));
    corpus.add("connection", "login-with-a-block-too-long", Bytes{1} + login + hex("01 10 00 00"));
    corpus.add("connection", "without-a-login", Bytes{1} + frame({commandMessage(29, 1)}));
    corpus.add("connection", "a-wrong-version", Bytes{0} + frame({commandMessage(29, 2)}));
    corpus.add("connection", "a-wrong-checksum", Bytes{0} + frame({commandMessage(29, 1)}, 1));
    corpus.add("connection", "a-size-beyond-the-limit", Bytes{0} + frame({commandMessage(29, 1)}, {}, 128001));
    corpus.add("connection", "an-opcode-not-in-use", Bytes{0} + frame({commandMessage(7, 1)}));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Usage: write_corpus FOLDER\n";
        return 2;
    }
    try {
        const Corpus corpus(argv[1]);
        addText(corpus);
        addFilters(corpus);
        addFrames(corpus);
        addTransport(corpus);
        addCommands(corpus);
        addOperations(corpus);
        addLogins(corpus);
    } catch (const std::exception& error) {
        std::cerr << "write_corpus: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
