#include "hosts/ctl/CatalogueTable.h"
#include "hosts/ctl/Failure.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <sstream>

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

TEST(CatalogueTable, jsonTellsTheFieldsOfACommand) {
    std::ostringstream out;
    ctl::writeCatalogue(out, ctl::Format::json);

    const auto commands = nlohmann::json::parse(out.str());
    EXPECT_EQ(commands.at(0).at("name"), "ListRegions");
    EXPECT_EQ(commands.at(0).at("requestFields").at(0).at("kind"), "u8");
}

TEST(CatalogueTable, aTableHasALineForEachCommand) {
    std::ostringstream out;
    ctl::writeCatalogue(out, ctl::Format::csv);

    EXPECT_THAT(out.str(), testing::HasSubstr("\r\n10,2,UpdateRecord,single,"));
}

} // namespace
