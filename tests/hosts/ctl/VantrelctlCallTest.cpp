#include "tests/hosts/ctl/VantrelctlFixture.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace hosttest {
namespace {

// Raw commands of which the fields are lists, options and records within records.
class VantrelctlCall : public VantrelctlFixture {
protected:
    void SetUp() override { startServerWithSample(); }

    [[nodiscard]] Json call(Arguments arguments) const {
        arguments.insert(arguments.begin(), "call");
        return Json::parse(output(arguments));
    }
    // The record of a list with that value; null without one.
    static Json recordWith(const Json& reply, const std::string& field, const std::string& value) {
        const auto& records = reply.at("records");
        const auto found =
            std::find_if(records.begin(), records.end(), [&](const auto& one) { return one.at(field) == value; });
        return found == records.end() ? Json() : *found;
    }
};

constexpr auto planId = "3e1f9a70-52c4-4b68-9d0e-7a4b1c2d3e01";

TEST_F(VantrelctlCall, aListOfRecordsIsACountAndTheFieldsOfEach) {
    carryOut({"call",
              "WritePricePlan",
              "u8:1",
              std::string("str8:") + planId,
              "u8:2",
              "str16:Zürich",
              "str16:",
              "f32:0.5",
              "f32:2",
              "f32:1.5",
              "f32:1",
              "f32:1",
              "u32:770",
              "u16:2", //
              "str8:3e1f9a70-52c4-4b68-9d0e-7a4b1c2d3e02",
              "str8:A4",
              "u8:0",
              "u16:9",
              "f32:0",
              "f32:0.05",
              "f32:0.04",
              "f32:0.25",
              "f32:0.2", //
              "str8:3e1f9a70-52c4-4b68-9d0e-7a4b1c2d3e03",
              "str8:A3",
              "u8:0",
              "u16:8",
              "f32:0",
              "f32:0.1",
              "f32:0.08",
              "f32:0.5",
              "f32:0.4"});

    const auto plan = recordWith(call({"69", "str8:"}), "name", "Zürich");
    EXPECT_EQ(plan.at("id"), planId);
    EXPECT_EQ(plan.at("payMethod"), 2);
    EXPECT_EQ(plan.at("colorMultiplier"), 2.0);
    EXPECT_EQ(plan.at("vat"), 770);
    const auto entries = call({"ListPriceEntries", std::string("str8:") + planId});
    EXPECT_EQ(entries.at("records").size(), 2U);
    EXPECT_EQ(recordWith(entries, "paperName", "A3").at("colorSimplex"), 0.5);
}

TEST_F(VantrelctlCall, anOptionIsNoneOrATrueAndItsValue) {
    const std::string id = "3e1f9a70-52c4-4b68-9d0e-7a4b1c2d3e04";

    carryOut({"call", "AddShortId", "uuid:" + id, "str16:Guests", "str16:for a day", "none", "bool:1", "u32:60", "none",
              "bool:1", "i64:64800"});

    const auto added = recordWith(call({"ListShortIds"}), "id", id);
    EXPECT_EQ(added.at("name"), "Guests");
    EXPECT_TRUE(added.at("messageId").is_null());
    EXPECT_EQ(added.at("validMinutes"), 60);
    EXPECT_TRUE(added.at("reservedMinutes").is_null());
    EXPECT_EQ(added.at("reservedUntil"), 64800);
}

TEST_F(VantrelctlCall, aSignedNumberMayBeNegative) {
    EXPECT_EQ(ctl({"call", "CreateRegion", "u8:0", "i32:-1", "str16:nowhere"}).status, 1); // the server refuses it
    carryOut({"call", "CreateRegion", "u8:0", "i32:0", "str16:somewhere"});

    const auto regions = call({"ListRegions", "u8:0", "i32:0", "u16:0"});
    EXPECT_TRUE(recordWith(regions, "name", "nowhere").is_null());
    EXPECT_EQ(recordWith(regions, "name", "somewhere").at("parentId"), 0);
}

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

TEST_F(VantrelctlCall, whatListsHoldInsteadHasNamesToo) {
    const auto reply = call({"ListDrivers", "u8:2", "str8:5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1a01"});
    ASSERT_FALSE(reply.at("records").empty());
    for (const auto& record : reply.at("records")) {
        EXPECT_EQ(record.size(), 3U);
        EXPECT_TRUE(record.contains("version"));
    }
}

} // namespace
} // namespace hosttest
