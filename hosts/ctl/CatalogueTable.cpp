#include "hosts/ctl/CatalogueTable.h"

#include "hosts/ctl/Failure.h"
#include "hosts/ctl/ReplyJson.h"
#include "hosts/ctl/Words.h"
#include "shell/ListExport.h"

#include <array>
#include <charconv>

namespace ctl {
namespace {

std::string_view nameOf(protocol::ReplyShape shape) {
    static constexpr std::array<std::string_view, 4> names{"none", "single", "list", "single and block"};
    return names[static_cast<std::size_t>(shape)];
}

Json fieldsJson(const protocol::RecordLayout* layout) {
    if (layout == nullptr) {
        return nullptr;
    }
    Json fields = Json::array();
    for (const auto& field : layout->fields) {
        Json json{{"name", field.name}, {"kind", nameOf(field.kind)}};
        if (field.kind == protocol::FieldKind::optional || field.kind == protocol::FieldKind::list) {
            json["of"] = nameOf(field.elementKind);
        }
        if (field.element != nullptr) {
            json["record"] = field.element->name;
        }
        fields.push_back(std::move(json));
    }
    return fields;
}

Json commandJson(const protocol::Command& command) {
    return {{"opcode", command.opcode},
            {"version", command.version},
            {"name", command.name},
            {"reply", nameOf(command.reply)},
            {"purpose", command.purpose},
            {"requestFields", fieldsJson(command.request)},
            {"replyFields", fieldsJson(command.replyRecord)}};
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
    format == Format::csv ? shell::writeCsv(out, table) : shell::writeText(out, table);
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
