#include "hosts/ctl/ReplyJson.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using protocol::FieldRecord;

client::RawReply replyOf(std::uint16_t opcode) {
    client::RawReply reply;
    reply.command = protocol::findCommand(opcode);
    return reply;
}

TEST(ReplyJson, aListHasRecords) {
    auto reply = replyOf(0);
    reply.records.push_back(FieldRecord{{"name", {wire::WideString(u"Zürich")}}, {"id", {std::int32_t{-7}}}});

    EXPECT_EQ(ctl::dump(ctl::replyJson(reply)),
              "{\"opcode\":0,\"name\":\"ListRegions\",\"records\":[{\"name\":\"Z\xC3\xBCrich\",\"id\":-7}]}");
}

TEST(ReplyJson, anEmptyListHasNone) {
    EXPECT_EQ(ctl::dump(ctl::replyJson(replyOf(0))), R"({"opcode":0,"name":"ListRegions","records":[]})");
}

TEST(ReplyJson, aSingleReplyIsAnObject) {
    auto reply = replyOf(76);
    reply.records.push_back(FieldRecord{{"order", {std::uint32_t{2}}}});

    EXPECT_EQ(ctl::replyJson(reply).at("reply").dump(), R"({"order":2})");
}

TEST(ReplyJson, aCommandWithoutAReplyIsItsName) {
    EXPECT_EQ(ctl::dump(ctl::replyJson(replyOf(1))), R"({"opcode":1,"name":"CreateRegion"})");
}

TEST(ReplyJson, aFractionIsWrittenWithItsOwnDigits) {
    auto reply = replyOf(65);
    reply.records.push_back(FieldRecord{{"a", {0.2F}}, {"b", {1.0F}}, {"c", {-1234.5F}}, {"d", {3.4028235e38F}}});

    EXPECT_EQ(ctl::replyJson(reply).at("reply").dump(), R"({"a":0.2,"b":1.0,"c":-1234.5,"d":3.4028235e+38})");
}

TEST(ReplyJson, bytesThatAreNoTextAreReplaced) {
    auto reply = replyOf(76);
    reply.records.push_back(FieldRecord{{"text", {std::string("a\xFF")}}});

    EXPECT_EQ(ctl::dump(ctl::replyJson(reply).at("reply")), "{\"text\":\"a\xEF\xBF\xBD\"}");
}

} // namespace
