#include "protocol/Catalogue.h"
#include "tests/hosts/ctl/VantrelctlFixture.h"

#include <gmock/gmock.h>

#include <set>
#include <sstream>

namespace hosttest {
namespace {

using testing::HasSubstr;
using testing::Not;

using Calls = std::vector<std::string>;

// Goes through the commands of the protocol one by one, as a user does: a change, then the list that has to show it, at
// once and after the server was killed.
class EveryCommand : public VantrelctlFixture {
protected:
    EveryCommand() { startServerWithSample(); }

    // The replies to these calls, each written as on the command line after "call".
    std::vector<Json> replies(const Calls& calls) {
        std::string script;
        for (const auto& call : calls) {
            script += "call " + call + "\n";
        }
        std::istringstream output(VantrelctlFixture::output({"script", folder.write("script", script)}));
        std::vector<Json> all(calls.size());
        for (auto& reply : all) {
            output >> reply;
        }
        for (const auto& reply : all) {
            seen_.insert(reply.at("opcode").get<int>());
        }
        return all;
    }

    std::string shown(const std::string& list) { return replies({list}).front().dump(); }

    Json recordsOf(const std::string& list) { return replies({list}).front().at("records"); }

    // A field of the first record of a list.
    std::string first(const std::string& list, const std::string& field) {
        const auto records = recordsOf(list);
        return records.empty() ? "" : records.front().at(field).get<std::string>();
    }

    // A field of the list's record with the name.
    std::string idOf(const std::string& list, const std::string& field, const std::string& name) {
        for (const auto& record : recordsOf(list)) {
            if (record.dump().find('"' + name + '"') != std::string::npos) {
                return record.at(field).get<std::string>();
            }
        }
        ADD_FAILURE() << list << " has no " << name;
        return {};
    }

    // Makes the changes, and checks that the list contains the text.
    void expectShown(Calls calls, const std::string& list, const std::string& text) {
        calls.push_back(list);
        EXPECT_THAT(replies(calls).back().dump(), HasSubstr('"' + text + '"')) << list;
        lists_[list] = text;
    }

    void expectGone(Calls calls, const std::string& list, const std::string& text) {
        calls.push_back(list);
        EXPECT_THAT(replies(calls).back().dump(), Not(HasSubstr('"' + text + '"'))) << list;
        lists_.erase(list);
    }

    // Checks that everything shown is still there after the server was killed.
    void expectKept() {
        kill();
        startServer();
        for (const auto& [list, text] : lists_) {
            EXPECT_THAT(shown(list), HasSubstr('"' + text + '"')) << list;
        }
    }

    void expectCalled(const std::set<int>& opcodes) { EXPECT_EQ(seen_, opcodes); }

private:
    std::map<std::string, std::string> lists_;
    std::set<int> seen_;
};

constexpr const char* newId = "3d0a4d5e-7c1b-4c53-9f4e-1a2b3c4d5e6f";
constexpr const char* otherId = "8b7f6c5d-1e2f-4a3b-8c9d-0e1f2a3b4c5d";

std::string quotedText(const std::string& kind, const std::string& text) {
    return " '" + kind + ":" + text + "'";
}
std::string str8(const std::string& text) {
    return quotedText("str8", text);
}
std::string str16(const std::string& text) {
    return quotedText("str16", text);
}

// A printer or a queue with little more than a name.
std::string record(const std::string& id, const std::string& name, int region, int type) {
    return str8("10.9.8.7") + str8("") + str8(id) + str16(name) + str16("") + str16("") + str16("") + str8("") +
           str8("") + str16("") + " u32:515 i32:" + std::to_string(region) +
           " u16:0 u8:48 u8:48 u8:48 u16:" + std::to_string(type) + " u8:0" + str16("") +
           " u16:0 bool:0 bool:0 bool:0 u8:1" + str16("public") + str8("") + str16("") + " u8:0" + str8("") +
           " u8:0 u8:0" + str8("");
}

TEST_F(EveryCommand, regionsAndPrinters) {
    const std::string regions = "0 u8:0 i32:0 u16:0";
    const std::string locals = "0 u8:1 i32:0 u16:0";
    expectShown({"1 u8:0 i32:0" + str16("Walk")}, regions, "Walk");
    const auto findRegion = [&](const std::string& name) {
        for (const auto& one : recordsOf(regions)) {
            if (one.at("name") == name) {
                return one.at("id").get<int>();
            }
        }
        return -1;
    };
    const int walk = findRegion("Walk");
    const auto region = std::to_string(walk);
    expectShown({"2 u8:0 i32:" + region + str16("Walked")}, regions, "Walked");
    expectShown({"1 u8:0 i32:0" + str16("Target")}, regions, "Target");
    const auto target = std::to_string(findRegion("Target"));
    replies({"3 u8:0 i32:" + region + " i32:" + target});
    EXPECT_THAT(shown("0 u8:0 i32:" + target + " u16:0"), HasSubstr("\"Walked\""));

    const std::string printers = "6" + str8("") + " i32:" + region + " u16:0";
    expectShown({"9" + str8("") + record("", "Printer 1", walk, 0)}, printers, "Printer 1");
    const auto printer = idOf(printers, "id", "Printer 1");
    const std::string queues = "6" + str8(printer) + " i32:0 u16:1";
    expectShown({"9" + str8(printer) + record("", "Queue 1", walk, 1)}, queues, "Queue 1");
    expectShown({"10" + record(printer, "Printer 2", walk, 0)}, printers, "Printer 2");
    replies({"74 u32:2" + str8(printer)});
    EXPECT_EQ(replies({"76" + str8(printer)}).front().at("reply").at("order"), 2);
    replies({"21" + str8(printer) + " i32:" + target});
    expectGone({}, printers, "Printer 2");
    expectShown({}, "6" + str8("") + " i32:" + target + " u16:0", "Printer 2");
    const auto queue = idOf(queues, "id", "Queue 1");
    expectGone({"36 u8:2" + str8(queue)}, queues, "Queue 1");
    expectShown({"1 u8:1 i32:0" + str16("Homes")}, locals, "Homes");
    expectGone({"45 i32:" + region + " u8:0"}, regions, "Walked");
    expectKept();
    expectCalled({0, 1, 2, 3, 6, 9, 10, 21, 36, 45, 74, 76});
}

TEST_F(EveryCommand, drivers) {
    const auto brand = first("4", "brandId");
    const std::string models = "5 u8:0" + str8(brand);
    expectShown({"46" + str8(brand) + str16("Walk 1"), "46" + str8(brand) + str16("Walk 2")}, models, "Walk 1");
    const auto model = idOf(models, "modelId", "Walk 1");
    const auto other = idOf(models, "modelId", "Walk 2");
    const std::string drivers = "12 u8:3" + str8(model);
    replies({"47" + str8(model)});
    const auto driver = first(drivers, "driverId");
    ASSERT_NE(driver, "");
    const auto system = first("11", "osId");
    const std::string deployments = "14" + str8(model) + str8("");
    expectShown({"15" + str8(driver) + str8(model) + str16("by hand") + str16("walk-WALK") + str8(system) +
                 " u8:1 u8:1 u8:0 u8:0"},
                deployments, "walk-WALK");
    const auto deployment = first(deployments, "deploymentId");
    replies({"16" + str8(deployment) + " u8:1 u8:0 u8:2 u8:0"});
    EXPECT_EQ(recordsOf(deployments).front().at("installMethod"), 2);
    EXPECT_EQ(replies({"80" + str8(model) + str8(system) + str16("walk-WALK")}).front().at("reply").at("totalQueues"),
              0);
    expectShown({"48" + str8(model) + str8(other)}, "5 u8:2" + str8(model), "Walk 2");
    expectGone({"49" + str8(model) + str8(other)}, "5 u8:2" + str8(model), "Walk 2");
    replies({"75 u32:1" + str8(model)});
    EXPECT_EQ(replies({"77" + str8(model)}).front().at("reply").at("octetOrder"), 1);
    replies({"20 u8:0" + str8(other)});
    EXPECT_THAT(shown("5 u8:3" + str8(brand)), Not(HasSubstr("\"Walk 2\"")));
    expectKept();
    expectGone({"16" + str8(deployment) + " u32:0 u32:0 u8:0 u8:0"}, deployments, "walk-WALK");
    expectGone({"13" + str8(driver)}, drivers, driver);
    expectCalled({4, 5, 11, 12, 13, 14, 15, 16, 20, 46, 47, 48, 49, 75, 77, 80});
}

TEST_F(EveryCommand, alarms) {
    const std::string recipients = "23" + str8("");
    expectShown({"24" + str8("") + str16("Ada Walk") + str16("ada@example.org") + " u8:1"}, recipients, "Ada Walk");
    const auto recipient = idOf(recipients, "id", "Ada Walk");
    replies({"25" + str8(recipient) + " u8:0"});
    EXPECT_EQ(replies({"23" + str8(recipient)}).front().at("records").front().at("active"), false);
    replies({"25" + str8(recipient) + " u8:1"});
    const std::string programs = "27 u8:0" + str8("");
    const auto program = replies({"28" + str8("") + str16("Walk program") + str16("") + str16("")})
                             .front()
                             .at("reply")
                             .at("id")
                             .get<std::string>();
    expectShown({}, programs, "Walk program");
    const auto event = first("29", "id");
    const auto actions = recordsOf("30");
    for (const auto& action : actions) {
        const auto code = std::to_string(action.at("code").get<int>());
        const auto destination = first("31 u16:" + code, "id");
        if (destination.empty()) {
            continue;
        }
        replies({"33" + str8(program) + str8(event) + " u16:" + code + str8(destination)});
        break;
    }
    const std::string ofProgram = "32" + str8(program);
    const auto action = first(ofProgram, "id");
    ASSERT_NE(action, "");
    expectKept();
    expectGone({"34" + str8(action)}, ofProgram, action);
    expectGone({"28" + str8(program) + str16("") + str16("") + str16("")}, programs, "Walk program");
    expectGone({"24" + str8(recipient) + str16("") + str16("") + " u8:0"}, recipients, "Ada Walk");
    expectCalled({23, 24, 25, 27, 28, 29, 30, 31, 32, 33, 34});
}

TEST_F(EveryCommand, inventoryAndMigration) {
    const std::string reports = "40";
    expectShown({"41" + str16("ada") + str16("Walk report") + str16("") + str16("") + str16("") + str8("") + " u16:0"},
                reports, "Walk report");
    const auto report = idOf(reports, "reportId", "Walk report");
    const auto found = replies({"43 u16:0" + str8(report), "44 u16:0" + str8(report)});
    EXPECT_FALSE(found[0].at("records").empty());
    EXPECT_FALSE(found[1].at("records").empty());
    const std::string plans = "37" + str8("") + " u32:0";
    const auto plan = [&](const std::string& operation, const std::string& id, const std::string& name) {
        return "38 u8:" + operation + str16("ada") + " i32:0" + str16("") + str8("") + str8("10.200.0.9") + str8("") +
               str16("Old one") + str16("") + str8(id) + str16(name) + " i32:1 bool:0";
    };
    expectShown({plan("1", "", "Walk plan")}, plans, "Walk plan");
    const auto planId = idOf(plans, "schemaId", "Walk plan");
    expectShown({plan("2", planId, "Walk plan 2")}, plans, "Walk plan 2");
    const std::string ranges = "55 u8:0" + str8("");
    const auto range = [&](const std::string& operation, const std::string& id, const std::string& name) {
        return "56 u8:" + operation + str8(id) + " bool:1" + str16(name) + str16("") + str16("10.200.0.1") +
               str16("10.200.0.9") + " u16:0" + str16("ada") + str16("") + " i32:1 i32:0" + str8("") + str16("");
    };
    expectShown({range("1", "", "Walk range")}, ranges, "Walk range");
    const auto rangeId = idOf(ranges, "rangeId", "Walk range");
    EXPECT_FALSE(replies({"39" + str16("BER")}).front().at("records").empty());
    expectKept();
    expectGone({plan("4", planId, "")}, plans, "Walk plan 2");
    expectGone({range("3", rangeId, "")}, ranges, "Walk range");
    expectGone({"42" + str8(report)}, reports, "Walk report");
    expectCalled({37, 38, 39, 40, 41, 42, 43, 44, 55, 56});
}

TEST_F(EveryCommand, rules) {
    const std::string id = newId;
    const std::string other = otherId;
    const std::string groups = "57" + str8("");
    expectShown({"58 u8:1" + str8(id) + str16("Walk group") + str16("") + str16("") + str16("")}, groups, "Walk group");
    const std::string affected = "59" + str8("");
    expectShown({"60 u8:1 u8:1" + str8(id) + " u8:1" + str16("Walk user")}, affected, "Walk user");
    const std::string entries = "61" + str8(id) + " i32:0";
    expectShown({"64 u8:5 i32:0" + str8("") + str8(id) + " u8:4" + str8(other) + str16("") + str16("Walk entry") +
                 str16("") + str16("") + str8("") + str8("") + str8("")},
                entries, "Walk entry");
    const std::string limits = "73";
    expectShown({"64 u8:1" + str8(id) + " u16:1" + str16("Walk limit") + str16("") + str16("") +
                 " u16:9 u8:0 u8:0 u16:20 u8:2 f32:1.5 none" + str8("") + " u8:1 bool:0" + str16("") + str8("") +
                 str16("")},
                limits, "Walk limit");
    EXPECT_EQ(replies({"65" + str8(id)}).front().at("reply").at("maxPages"), 20);
    const std::string messages = "67 u8:1" + str8("");
    expectShown({"68 u8:1 uuid:" + id + str16("Walk message") + str16("C") + str16("T") + " u32:1 u32:1 bool:0"},
                messages, "Walk message");
    const std::string plans = "69" + str8("");
    const std::string prices = "71" + str8(id);
    expectShown({"70 u8:1" + str8(id) + " u8:1" + str16("Walk plan") + str16("") +
                 " f32:1 f32:1 f32:1 f32:1 f32:0 u32:2500 u16:1" + str8(other) + str8("A4") +
                 " u8:0 u16:9 f32:0.2 f32:0 f32:0 f32:0 f32:0"},
                plans, "Walk plan");
    expectShown({}, prices, "A4");
    const std::string shortIds = "81";
    expectShown({"83 uuid:" + id + str16("Walk short id") + str16("") + " none bool:1 u32:90 none none"}, shortIds,
                "Walk short id");
    expectShown({"84 uuid:" + id + str16("Walk short id 2") + str16("") + " none none none none"}, shortIds,
                "Walk short id 2");
    expectKept();
    expectGone({"62 u8:3" + str8(other) + " u16:4"}, entries, "Walk entry");
    expectGone({"66" + str8(id)}, limits, "Walk limit");
    expectGone({"68 u8:3 uuid:" + id}, messages, "Walk message");
    expectGone({"70 u8:3" + str8(id)}, plans, "Walk plan");
    expectGone({"82 uuid:" + id}, shortIds, "Walk short id 2");
    expectGone({"60 u8:3" + str8(id)}, affected, "Walk user");
    expectGone({"58 u8:3" + str8(id)}, groups, "Walk group");
    expectCalled({57, 58, 59, 60, 61, 62, 64, 65, 66, 67, 68, 69, 70, 71, 73, 81, 82, 83, 84});
}

TEST_F(EveryCommand, configurations) {
    // A model that has deployments and configurations, and a queue of it.
    std::string model;
    std::string config;
    std::string queue;
    for (const auto& region : recordsOf("0 u8:0 i32:0 u16:0")) {
        for (const auto& printer : recordsOf("6" + str8("") + " i32:" + region.at("id").dump() + " u16:0")) {
            model = printer.at("modelId").get<std::string>();
            const auto asked = replies({"14" + str8(model) + str8(""), "50" + str8(model),
                                        "6" + str8(printer.at("id").get<std::string>()) + " i32:0 u16:1"});
            if (asked[0].at("records").empty() || asked[1].at("records").empty() || asked[2].at("records").empty()) {
                continue;
            }
            config = asked[1].at("records").front().at("configId").get<std::string>();
            queue = asked[2].at("records").front().at("id").get<std::string>();
            break;
        }
        if (!queue.empty()) {
            break;
        }
    }
    ASSERT_NE(queue, "");
    const std::string ofQueue = "17" + str8(queue) + str8("");
    const auto map = first(ofQueue, "driverMapId");
    EXPECT_EQ(idOf("18" + str8(map), "id", config), config);
    replies({"19" + str8(queue) + str8(map) + str8(config)});
    const std::string queues = "53" + str8(config);
    expectShown({}, queues, queue);
    expectShown({"51" + str8(config) + str16("Walk configuration")}, "50" + str8(model), "Walk configuration");
    expectKept();
    expectGone({"54" + str8(config) + str8(queue)}, queues, queue);
    // One that is deployed for the model.
    std::string driver;
    for (const auto& one : recordsOf("12 u8:3" + str8(model))) {
        const auto id = one.at("driverId").get<std::string>();
        if (!recordsOf("14" + str8(model) + str8(id)).empty()) {
            driver = id;
        }
    }
    replies({"79" + str8(config) + str8(model) + str8(driver)});
    expectGone({"52 u8:1" + str8(config)}, "50" + str8(model), config);
    expectCalled({0, 6, 12, 14, 17, 18, 19, 50, 51, 52, 53, 54, 79});
}

} // namespace
} // namespace hosttest
