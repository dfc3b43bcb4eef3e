#include "tests/hosts/ctl/VantrelctlFixture.h"

#include <algorithm>

namespace hosttest {
namespace {

// Raw commands whose fields are those of another one's reply.
class VantrelctlCall : public VantrelctlFixture {
protected:
    void SetUp() override { startServerWithSample(); }

    [[nodiscard]] Json call(Arguments arguments) const {
        arguments.insert(arguments.begin(), "call");
        return Json::parse(output(arguments));
    }
};

TEST_F(VantrelctlCall, aRecordThatCameGoesBackFieldByField) {
    const auto printers = call({"ListPrinterRecords", "str8:", "u32:3", "u16:0"});
    const auto& printer = printers.at("records").at(0);
    Arguments back{"UpdateRecord"};
    const auto commands = Json::parse(output({"commands", "--format", "json"}));
    const auto update = std::find_if(commands.begin(), commands.end(),
                                     [](const auto& command) { return command.at("name") == "UpdateRecord"; });
    for (const auto& field : update->at("requestFields")) {
        const auto name = field.at("name").get<std::string>().substr(std::string("record.").size());
        const auto& value = name == "comment" ? Json("sent back") : printer.at(name);
        back.push_back(field.at("kind").get<std::string>() + ':' +
                       (value.is_string() ? value.get<std::string>() : value.dump()));
    }

    const auto reply = call(back);

    EXPECT_EQ(reply.at("reply").at("caption"), "");
    const auto after = call({"ListPrinterRecords", "str8:" + printer.at("id").get<std::string>(), "u32:0", "u16:5"});
    EXPECT_EQ(after.at("records").at(0).at("comment"), "sent back");
    EXPECT_EQ(after.at("records").at(0).at("ip"), printer.at("ip"));
}

} // namespace
} // namespace hosttest
