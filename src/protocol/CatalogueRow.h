#pragma once

#include "protocol/Catalogue.h"

// How the rows of the catalogue are written.
namespace protocol {

template <Record... Forms>
inline constexpr RequestForm requestForms[] = {{Forms::form, &layoutOf<Forms>}...};

// A command without a reply on a member connection that is closed, and what makes another one of it.
struct Row : Command {
    constexpr Row ofVersion(std::uint16_t number) const {
        Row row = *this;
        row.version = number;
        return row;
    }
    template <Record Request>
    constexpr Row asks() const {
        Row row = *this;
        row.request = &layoutOf<Request>;
        return row;
    }
    // Several forms under one opcode, each with its own fields.
    template <Record... Forms>
    constexpr Row asksOneOf() const {
        Row row = *this;
        row.forms = requestForms<Forms...>;
        return row;
    }
    constexpr Row replies(ReplyShape shape, ReaderForm form, const RecordLayout* layout = nullptr) const {
        Row row = *this;
        row.reply = shape;
        row.reader = form;
        row.replyRecord = layout;
        return row;
    }
    constexpr Row single(ReaderForm form) const { return replies(ReplyShape::single, form); }
    template <Record Reply>
    constexpr Row single(ReaderForm form) const {
        return replies(ReplyShape::single, form, &layoutOf<Reply>);
    }
    template <Record Reply>
    constexpr Row singleAndBlock(ReaderForm form) const {
        return replies(ReplyShape::singleAndBlock, form, &layoutOf<Reply>);
    }
    constexpr Row list(ReaderForm form) const { return replies(ReplyShape::list, form); }
    template <Record Element>
    constexpr Row list(ReaderForm form) const {
        return replies(ReplyShape::list, form, &layoutOf<Element>);
    }
    // Records of this type instead when the request begins with that byte.
    template <Record Element>
    constexpr Row orWhenFirstIs(std::uint8_t byte) const {
        Row row = *this;
        row.otherRecord = {.firstByte = byte, .layout = &layoutOf<Element>};
        return row;
    }
    constexpr Row over(Connection kind) const {
        Row row = *this;
        row.connection = kind;
        return row;
    }
    constexpr Row leftOpen() const {
        Row row = *this;
        row.closes = false;
        return row;
    }
    constexpr Row guarded() const {
        Row row = *this;
        row.send = SendForm::guarded;
        return row;
    }
};

// A row to begin with.
constexpr Row row(std::uint16_t opcode, std::string_view name, std::string_view purpose) {
    return {{.opcode = opcode, .name = name, .purpose = purpose}};
}

} // namespace protocol
