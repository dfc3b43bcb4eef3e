#pragma once

#include "protocol/rules/PageLimit.h"
#include "rules/PageLimitDlg.h"
#include "tests/support/FixedLocale.h"
#include "tests/support/RuleEstate.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using Strings = std::vector<std::string>;
using Names = std::vector<wire::WideString>;

inline const wire::Uuid quotaId = wire::parseUuid("00000000-0000-4000-8000-000000000001");
inline const wire::Uuid costId = wire::parseUuid("00000000-0000-4000-8000-000000000002");

inline protocol::UserMessageRecord userMessage(const wire::Uuid& id, wire::WideString name) {
    protocol::UserMessageRecord record;
    record.id = id;
    record.name = std::move(name);
    return record;
}

// A limit of the server.
inline protocol::PageLimitRecord longJobs() {
    return {.id = "limit-1",
            .priority = 5,
            .name = u"Long jobs",
            .comment = u"Out of the way",
            .document = u"Report",
            .format = 8,
            .color = 1,
            .duplex = 2,
            .maxPages = 100,
            .action = 3,
            .maxCost = 12.5F,
            .messageId = costId,
            .destinationId = "q1",
            .enforce = 1,
            .extraFlag = true,
            .extraText1 = u"one",
            .extraId = "two",
            .extraText2 = u"three"};
}

// A dialog for page limits, with a server that has one limit, two messages and two queues.
class PageLimitFixture : public ::testing::Test {
protected:
    PageLimitFixture() {
        estate_.messages = {userMessage(quotaId, u"Quota"), userMessage(costId, u"Cost")};
        estate_.queues = {{.queueId = "q1", .queueName = u"Lobby"}, {.queueId = "q2", .queueName = u"Office"}};
        estate_.limits = {longJobs()};
    }

    protocol::PageLimitRecord written(std::uint8_t action, std::size_t changes = 1) {
        const auto request = estate_.change<protocol::WritePageLimitRequest>(changes);
        EXPECT_EQ(request.action, action);
        return request.limit;
    }

    // What is sent after a record was opened and confirmed without a change.
    protocol::PageLimitRecord savedAs(protocol::PageLimitRecord record) {
        rules::PageLimitDlg dialog(platform_, std::move(record));
        dialog.open();
        dialog.okButton().userPressed();
        EXPECT_TRUE(dialog.ended());
        return dialog.record();
    }

    support::TestPlatform platform_{support::germanLocale()};
    support::RuleEstate estate_{platform_.platform().hooks};
};
