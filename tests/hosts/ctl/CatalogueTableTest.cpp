#include "hosts/ctl/CatalogueTable.h"
#include "hosts/ctl/Failure.h"
#include "hosts/ctl/FieldArgument.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <map>
#include <sstream>
#include <vector>

namespace {

TEST(CatalogueTable, aCommandIsFoundByNumberOrName) {
    EXPECT_EQ(ctl::findCommand("6").opcode, 6);
    EXPECT_EQ(ctl::findCommand("listregions").opcode, 0);
}

TEST(CatalogueTable, anUnusedOpcodeIsAnError) {
    for (const auto* const opcode : {"7", "63", "999", "-1", "", "6x"}) {
        EXPECT_THROW(ctl::findCommand(opcode), ctl::Failure) << opcode;
    }
}

nlohmann::json catalogueJson() {
    std::ostringstream out;
    ctl::writeCatalogue(out, ctl::Format::json);
    return nlohmann::json::parse(out.str());
}

nlohmann::json commandJson(int opcode) {
    const auto all = catalogueJson();
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const auto& command) { return command.at("opcode") == opcode; });
    return found == all.end() ? nlohmann::json() : *found;
}

TEST(CatalogueTable, jsonTellsTheFieldsOfACommand) {
    const auto commands = catalogueJson();
    EXPECT_EQ(commands.size(), 79U);
    EXPECT_EQ(commands.at(0).at("name"), "ListRegions");
    EXPECT_EQ(commands.at(0).at("requestFields").at(0).at("kind"), "u8");
}

TEST(CatalogueTable, jsonHasARecordWithinARecordInItsPlace) {
    const auto create = commandJson(9);
    EXPECT_EQ(create.at("requestFields").size(), 33U);
    EXPECT_EQ(create.at("requestFields").at(1).dump(), R"({"kind":"str8","name":"record.ip"})");
    EXPECT_EQ(create.at("replyFields").at(0).at("name"), "status.caption");
    EXPECT_EQ(create.at("replyFields").at(3).at("name"), "id");
}

TEST(CatalogueTable, jsonTellsTheFormsOfACommandWithSeveral) {
    const auto write = commandJson(58);
    EXPECT_TRUE(write.at("requestFields").is_null());
    ASSERT_EQ(write.at("forms").size(), 2U);
    EXPECT_EQ(write.at("forms").at(0).at("when"), "action 1 adds, 2 updates");
    EXPECT_EQ(write.at("forms").at(0).at("requestFields").at(0).at("name"), "action");
    EXPECT_EQ(write.at("forms").at(1).at("requestFields").at(1).at("kind"), "str8");
    EXPECT_FALSE(commandJson(9).contains("forms"));
}

TEST(CatalogueTable, jsonTellsWhatAListHoldsInstead) {
    const auto drivers = commandJson(12);
    EXPECT_EQ(drivers.at("otherRecord").at("firstByte"), 2);
    EXPECT_EQ(drivers.at("otherRecord").at("replyFields").size(), 3U);
    EXPECT_EQ(drivers.at("replyFields").size(), 6U);
}

TEST(CatalogueTable, jsonTellsTheElementsOfListsAndOptionals) {
    const auto plan = commandJson(70).at("forms").at(0).at("requestFields");
    const auto& entries = plan.at(plan.size() - 1);
    EXPECT_EQ(entries.at("name"), "entries");
    EXPECT_EQ(entries.at("kind"), "list");
    EXPECT_EQ(entries.at("of"), "record");
    EXPECT_EQ(entries.at("record"), "PriceEntryRecord");
    EXPECT_EQ(entries.at("fields").at(4).at("kind"), "f32");
    const auto limit = commandJson(65);
    const auto& fields = limit.at("replyFields");
    EXPECT_TRUE(std::any_of(fields.begin(), fields.end(), [](const auto& field) {
        return field.at("kind") == "optional" && field.at("of") == "uuid";
    }));
}

// The arguments of a field that its request takes, by the kinds that the catalogue tells; lists have one element.
void addArguments(const nlohmann::json& field, std::string kind, std::vector<std::string>& arguments) {
    static const std::map<std::string, std::string> values{
        {"u8", "7"},    {"bool", "true"},
        {"u16", "700"}, {"u32", "700"},
        {"i32", "-7"},  {"i64", "-7"},
        {"f32", "7.5"}, {"str8", "s"},
        {"str16", "s"}, {"uuid", "01234567-89ab-cdef-0123-456789abcdef"}};
    if (kind == "optional" || kind == "list") {
        arguments.emplace_back(kind == "list" ? "u16:1" : "bool:1");
        kind = field.at("of");
    }
    if (kind == "record") {
        for (const auto& one : field.at("fields")) {
            addArguments(one, one.at("kind"), arguments);
        }
    } else {
        arguments.push_back(kind + ":" + values.at(kind));
    }
}

void expectWhatTheArgumentsSay(const protocol::RecordLayout& layout, const nlohmann::json& fields) {
    std::vector<std::string> arguments;
    for (const auto& field : fields) {
        addArguments(field, field.at("kind"), arguments);
    }
    std::vector<protocol::FieldValue> values;
    std::transform(arguments.begin(), arguments.end(), std::back_inserter(values), ctl::parseField);

    const auto message = protocol::makeDataMessage(values);

    ASSERT_EQ(message == nullptr, layout.fields.empty()) << layout.name;
    if (message != nullptr) {
        wire::Message received;
        received.loadMessage(message->bytes().data(), static_cast<std::uint32_t>(message->bytes().size()));
        EXPECT_EQ(protocol::readFields(received, layout).size(), layout.fields.size());
        EXPECT_EQ(received.remaining(), 0U) << layout.name;
    }
}

TEST(CatalogueTable, everyRequestCanBeWrittenByTheKindsThatJsonTells) {
    const auto commands = catalogueJson();
    for (const auto& command : protocol::catalogue()) {
        const auto& json = commands.at(static_cast<std::size_t>(&command - protocol::catalogue().data()));
        if (command.forms.empty()) {
            expectWhatTheArgumentsSay(*command.request, json.at("requestFields"));
        }
        for (std::size_t form = 0; form < command.forms.size(); ++form) {
            expectWhatTheArgumentsSay(*command.forms[form].layout, json.at("forms").at(form).at("requestFields"));
        }
    }
}

TEST(CatalogueTable, aTableHasALineForEachCommand) {
    std::ostringstream out;
    ctl::writeCatalogue(out, ctl::Format::csv);

    EXPECT_THAT(out.str(), testing::HasSubstr("\r\n10,2,UpdateRecord,single,"));
}

} // namespace
