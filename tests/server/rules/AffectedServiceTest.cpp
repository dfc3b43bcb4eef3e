#include "server/rules/AffectedService.h"

#include "tests/server/rules/RuleEstate.h"

namespace server {
namespace {

using protocol::AffectedRecord;
using protocol::WriteAffectedRequest;
using test::RuleEstate;

WriteAffectedRequest written(std::uint8_t action) {
    return {.action = action, .equals = 0, .id = "a1", .type = 2, .name = u"N"};
}

TEST(AffectedService, aUserOrGroupIsAddedChangedAndDeleted) {
    RuleEstate place;
    auto service = place.service<AffectedService>();
    EXPECT_TRUE(isDone(service.write(written(test::adds))));
    EXPECT_EQ(place.all<AffectedRecord>(),
              (std::vector<AffectedRecord>{{.id = "a1", .type = 2, .equals = 0, .name = u"N"}}));
    auto changed = written(test::updates);
    changed.equals = 1;
    changed.type = 1;
    changed.name = u"M";
    EXPECT_TRUE(isDone(service.write(changed)));
    EXPECT_EQ(place.all<AffectedRecord>("a1"),
              (std::vector<AffectedRecord>{{.id = "a1", .type = 1, .equals = 1, .name = u"M"}}));
    EXPECT_TRUE(isDone(service.remove({.id = "a1"})));
    EXPECT_TRUE(place.all<AffectedRecord>().empty());
}

TEST(AffectedService, whatDoesNotExistIsRefused) {
    RuleEstate place;
    auto service = place.service<AffectedService>();
    const auto refuses = [&](auto change) {
        auto request = written(test::adds);
        change(request);
        return !isDone(service.write(request));
    };
    EXPECT_TRUE(refuses([](auto& request) { request.id.clear(); }));
    EXPECT_TRUE(refuses([](auto& request) { request.name.clear(); }));
    EXPECT_TRUE(refuses([](auto& request) { request.name = std::u16string(1, u'\0'); }));
    EXPECT_TRUE(refuses([](auto& request) { request.name = test::tooLongText(); }));
    EXPECT_TRUE(refuses([](auto& request) { request.type = 0; }));
    EXPECT_TRUE(refuses([](auto& request) { request.type = 3; }));
    EXPECT_TRUE(refuses([](auto& request) { request.equals = 2; }));
    EXPECT_TRUE(refuses([](auto& request) { request.action = test::updates; }));
    EXPECT_FALSE(isDone(service.remove({.id = "a1"})));
    EXPECT_TRUE(place.all<AffectedRecord>().empty());
}

TEST(AffectedService, anEntryKeepsTheNameOfWhomWasDeleted) {
    RuleEstate place;
    place.addGroup("g1");
    EXPECT_TRUE(isDone(place.service<AffectedService>().write(written(test::adds))));
    auto entry = RuleEstate::namedEntry("e1");
    entry.affectedId = "a1";
    entry.affectedName = u"N";
    EXPECT_TRUE(isDone(place.place(entry, "g1")));
    EXPECT_TRUE(isDone(place.service<AffectedService>().remove({.id = "a1"})));
    EXPECT_EQ(place.entries("g1").at(0).affectedName, u"N");
    EXPECT_EQ(place.entries("g1").at(0).affectedId, "a1");
}

} // namespace
} // namespace server
