#pragma once

#include "protocol/Catalogue.h"
#include "tests/support/Bytes.h"

#include <functional>
#include <string>
#include <vector>

// Messages of every kind in the catalogue, made from its layouts, so that new commands are included automatically.
namespace adversity {

using support::Bytes;
using support::operator+;

// How a sample's fields are filled.
enum class Filling {
    empty,    // zeros, empty texts and lists, nothing optional
    plain,    // as ordinary, but zero in all numbers of one or two bytes, which mostly select a kind
    ordinary, // small numbers, short texts, lists of one
    rich,     // large numbers, texts outside the basic plane and of odd length, lists of three
};

// The text of a str8 or uuid field that a peer would understand, such as an id; empty leaves the choice to the filling.
using KnownText = std::function<std::string(const protocol::RecordLayout& record, const protocol::FieldInfo& field)>;

// The bytes of a record's fields.
[[nodiscard]] Bytes sampleFields(const protocol::RecordLayout& layout, Filling filling, const KnownText& known = {});

// One request, as it would be sent.
struct SampleRequest {
    const protocol::Command* command = nullptr;
    const protocol::RecordLayout* layout = nullptr;
    Bytes fields;

    // The messages of its frame: the fields first, if there are any, then the command.
    [[nodiscard]] std::vector<Bytes> messages() const;
    [[nodiscard]] std::string name() const;
};

// Every form of every request in every filling; a form selected by a first byte is included with each byte that the
// server knows for the opcode.
[[nodiscard]] std::vector<SampleRequest> sampleRequests(const KnownText& known = {});

// One reply: a message for each of its frames.
struct SampleReply {
    const protocol::Command* command = nullptr;
    const protocol::RecordLayout* layout = nullptr;
    std::vector<Bytes> messages;

    [[nodiscard]] Bytes frames() const;
    [[nodiscard]] std::string name() const;
};

// The reply of every command that has one, in every filling; a list contains a record of each filling, or none.
[[nodiscard]] std::vector<SampleReply> sampleReplies();

} // namespace adversity
