#include "protocol/Catalogue.h"
#include "server/Commands.h"
#include "server/commands/Handler.h"
#include "tests/server/support/QueryPlans.h"
#include "tests/server/support/TestClient.h"
#include "tests/server/support/TestEstate.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using protocol::FieldKind;
using test::Bytes;

// A value of the kind's size, or an empty text, list or optional.
Bytes fieldOf(FieldKind kind, std::uint8_t number) {
    switch (kind) {
    case FieldKind::u8:
    case FieldKind::bool8:
        return test::u8(number);
    case FieldKind::u16:
        return test::u16(number);
    case FieldKind::i64:
    case FieldKind::u32:
    case FieldKind::i32:
    case FieldKind::f32:
        return test::u32(0);
    case FieldKind::optional:
        return test::u8(0);
    case FieldKind::uuid:
        return test::str8("5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1a01");
    default:
        return test::u16(0);
    }
}

// A request in which each kind of list and each mode has this number. Texts are empty or, if they name something, one
// letter.
Bytes fieldsOf(const protocol::RecordLayout& layout, std::uint8_t number, bool named) {
    Bytes fields;
    for (const auto& field : layout.fields) {
        const bool isText = field.kind == FieldKind::str8;
        const auto value = isText && named ? test::str8("x") : fieldOf(field.kind, number);
        fields.insert(fields.end(), value.begin(), value.end());
    }
    return fields;
}

// Requests the list and takes its first piece; requests that no handler takes are skipped.
void askForList(StoreConnection& connection, std::uint16_t opcode, const Bytes& fields) {
    try {
        ReplyBuffer buffer;
        const auto* const handler = commands().find(opcode, fields);
        ASSERT_NE(handler, nullptr) << opcode;
        handler->answer(fields, connection)->append(buffer, 1);
    } catch (const BadRequest&) {
    }
}

TEST(ListQuery, ofEveryCommandAndKindGoOutWithoutBeingGatheredAndSorted) {
    test::TestEstate place;
    for (const auto& command : protocol::catalogue()) {
        if (command.reply == protocol::ReplyShape::list && command.request != nullptr) {
            for (std::uint8_t number = 0; number <= 10; ++number) {
                for (const bool named : {false, true}) {
                    askForList(place.connection(), command.opcode, fieldsOf(*command.request, number, named));
                }
            }
        }
    }
    const auto& plans = place.connection().table<test::QueryPlans>();
    EXPECT_GE(plans.readingStatements().size(), 30U);
    EXPECT_EQ(plans.sortingStatements(), "");
}

TEST(ListQuery, thatAreSortedWouldBeNoticed) {
    test::TestEstate place;
    EXPECT_NE(
        place.connection().table<test::QueryPlans>().of("SELECT name FROM record ORDER BY comment").find("TEMP B-TREE"),
        std::string::npos);
}

} // namespace
} // namespace server
