#include "hosts/ctl/CatalogueTable.h"

#include "hosts/ctl/Failure.h"
#include "hosts/ctl/PrintableText.h"
#include "hosts/ctl/ReplyJson.h"
#include "hosts/ctl/TableWriter.h"

#include <nlohmann/json.hpp>

#include <array>
#include <charconv>

namespace ctl {
namespace {

std::string_view nameOf(protocol::ReplyShape shape) {
    static constexpr std::array<std::string_view, 4> names{"none", "single", "list", "single and block"};
    return names[static_cast<std::size_t>(shape)];
}

// One entry for each field; a nested record is replaced by its fields, with its name as their prefix.
void addFields(Json& fields, const protocol::RecordLayout& layout, const std::string& before) {
    for (const auto& field : layout.fields) {
        const auto name = before + std::string(field.name);
        if (field.kind == protocol::FieldKind::record) {
            addFields(fields, *field.element, name + '.');
            continue;
        }
        Json json{{"name", name}, {"kind", nameOf(field.kind)}};
        if (field.kind == protocol::FieldKind::optional || field.kind == protocol::FieldKind::list) {
            json["of"] = nameOf(field.elementKind);
        }
        if (field.element != nullptr) {
            json["record"] = field.element->name;
            json["fields"] = Json::array();
            addFields(json["fields"], *field.element, {});
        }
        fields.push_back(std::move(json));
    }
}

Json fieldsJson(const protocol::RecordLayout* layout) {
    if (layout == nullptr) {
        return nullptr;
    }
    Json fields = Json::array();
    addFields(fields, *layout, {});
    return fields;
}

Json commandJson(const protocol::Command& command) {
    Json json{{"opcode", command.opcode},   {"version", command.version},
              {"name", command.name},       {"reply", nameOf(command.reply)},
              {"purpose", command.purpose}, {"requestFields", fieldsJson(command.request)}};
    for (const auto& form : command.forms) {
        json["forms"].push_back({{"when", form.when}, {"requestFields", fieldsJson(form.layout)}});
    }
    json["replyFields"] = fieldsJson(command.replyRecord);
    if (command.otherRecord.layout != nullptr) {
        json["otherRecord"] = {{"firstByte", command.otherRecord.firstByte},
                               {"replyFields", fieldsJson(command.otherRecord.layout)}};
    }
    return json;
}

} // namespace

void writeCatalogue(std::ostream& out, Format format) {
    if (format == Format::json) {
        Json all = Json::array();
        for (const auto& command : protocol::catalogue()) {
            all.push_back(commandJson(command));
        }
        out << dump(all, 2) << '\n';
        return;
    }
    std::vector<std::array<wire::WideString, 5>> rows;
    for (const auto& command : protocol::catalogue()) {
        rows.push_back({wire::toWide(std::to_string(command.opcode)), wire::toWide(std::to_string(command.version)),
                        wire::toWide(command.name), wire::toWide(nameOf(command.reply)),
                        wire::toWide(command.purpose)});
    }
    const shell::Table table{
        .columns = {u"Opcode", u"Version", u"Name", u"Reply", u"Purpose"},
        .rowCount = rows.size(),
        .cell = [&](std::size_t row, std::size_t column) -> wire::WideStringView { return rows[row][column]; }};
    writeTable(out, table, format);
}

const protocol::Command& findCommand(std::string_view opcodeOrName) {
    std::uint16_t opcode = 0;
    const auto* const end = opcodeOrName.data() + opcodeOrName.size();
    const auto [stop, error] = std::from_chars(opcodeOrName.data(), end, opcode);
    const bool isNumber = error == std::errc() && stop == end;
    for (const auto& command : protocol::catalogue()) {
        if (isNumber ? command.opcode == opcode : sameWord(wire::toWide(command.name), wire::toWide(opcodeOrName))) {
            return command;
        }
    }
    throw Failure(ExitStatus::usage, "There is no command \"" + std::string(opcodeOrName) +
                                         "\"; \"vantrelctl commands\" prints all of them");
}

} // namespace ctl
