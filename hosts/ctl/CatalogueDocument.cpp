#include "hosts/ctl/CatalogueDocument.h"

#include "protocol/Catalogue.h"

#include <map>
#include <string>

namespace ctl {
namespace {

using protocol::FieldKind;
using protocol::RecordLayout;

constexpr auto commandsHead = R"(## All commands

The fields in order, with their encoding; if a request has several forms, they are listed one below the other. This
chapter and the next are the output of `vantrelctl commands --markdown`.

| Op | Ver | Command | Does | Request | Reply |
|---|---|---|---|---|---|
)";

constexpr auto recordsHead = R"(
## All records

The records of lists, and those contained in other records and requests.

| Record | Fields |
|---|---|
)";

using Records = std::map<std::string_view, const RecordLayout*>;

std::string inBackticks(std::string_view text) {
    return '`' + std::string(text) + '`';
}

std::string_view kindName(FieldKind kind, const RecordLayout* element) {
    return kind == FieldKind::record ? element->name : nameOf(kind);
}

std::string kindText(const protocol::FieldInfo& field) {
    switch (field.kind) {
    case FieldKind::optional:
        return "opt<" + std::string(kindName(field.elementKind, field.element)) + '>';
    case FieldKind::list:
        return "list16<" + std::string(kindName(field.elementKind, field.element)) + '>';
    default:
        return std::string(kindName(field.kind, field.element));
    }
}

// Collects the records that this one contains, and those that they contain.
void noteParts(Records& records, const RecordLayout* layout) {
    if (layout == nullptr) {
        return;
    }
    for (const auto& field : layout->fields) {
        if (field.element != nullptr) {
            records.emplace(field.element->name, field.element);
            noteParts(records, field.element);
        }
    }
}

Records recordsOf(std::span<const protocol::Command> commands) {
    Records records;
    for (const auto& command : commands) {
        noteParts(records, command.request);
        for (const auto& form : command.forms) {
            noteParts(records, form.layout);
        }
        for (const auto* const reply : {command.replyRecord, command.otherRecord.layout}) {
            noteParts(records, reply);
            if (reply != nullptr && command.reply == protocol::ReplyShape::list) {
                records.emplace(reply->name, reply);
            }
        }
    }
    return records;
}

// "`str8` id, `str16` name", or "none".
std::string fieldsText(const RecordLayout* layout) {
    if (layout == nullptr || layout->fields.empty()) {
        return "none";
    }
    std::string text;
    for (const auto& field : layout->fields) {
        text += (text.empty() ? "" : ", ") + inBackticks(kindText(field)) + ' ' + std::string(field.name);
    }
    return text;
}

std::string requestText(const protocol::Command& command) {
    if (command.forms.empty()) {
        return fieldsText(command.request);
    }
    std::string text;
    for (const auto& form : command.forms) {
        text += (text.empty() ? "" : "<br>") + std::string(form.when) + ": " + fieldsText(form.layout);
    }
    return text;
}

// A record's name if the record is described elsewhere, otherwise its fields.
std::string recordText(const RecordLayout* layout, const Records& records) {
    return layout != nullptr && records.contains(layout->name) ? inBackticks(layout->name) : fieldsText(layout);
}

std::string replyText(const protocol::Command& command, const Records& records) {
    auto text = recordText(command.replyRecord, records);
    if (command.reply == protocol::ReplyShape::singleAndBlock) {
        return text + "; then a block";
    }
    if (command.reply == protocol::ReplyShape::list) {
        text = "list of " + text;
    }
    if (command.otherRecord.layout != nullptr) {
        text += ", or of " + recordText(command.otherRecord.layout, records) + " when the request begins with " +
                std::to_string(command.otherRecord.firstByte);
    }
    return text;
}

} // namespace

void writeCatalogueDocument(std::ostream& out) {
    const auto commands = protocol::catalogue();
    const auto records = recordsOf(commands);
    out << commandsHead;
    for (const auto& command : commands) {
        out << "| " << command.opcode << " | " << command.version << " | " << command.name << " | " << command.purpose
            << " | " << requestText(command) << " | " << replyText(command, records) << " |\n";
    }
    out << recordsHead;
    for (const auto& [name, layout] : records) {
        out << "| " << inBackticks(name) << " | " << fieldsText(layout) << " |\n";
    }
}

} // namespace ctl
