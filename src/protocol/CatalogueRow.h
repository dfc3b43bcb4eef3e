#pragma once

#include "protocol/Catalogue.h"

// The notation for rows of the catalogue.
namespace protocol {

template <Record... Forms>
inline constexpr RequestForm requestForms[] = {{Forms::form, &layoutOf<Forms>}...};

// A row: by default a command without a reply on a member connection that is closed, with functions to change that.
struct Row : Command {
    // With another name than that of its first form.
    [[nodiscard]] constexpr Row called(std::string_view otherName) const {
        Row row = *this;
        row.name = otherName;
        return row;
    }
    constexpr Row replies(ReplyShape shape, ReaderForm form, const RecordLayout* layout = nullptr) const {
        Row row = *this;
        row.reply = shape;
        row.reader = form;
        row.replyRecord = layout;
        return row;
    }
    [[nodiscard]] constexpr Row single(ReaderForm form) const { return replies(ReplyShape::single, form); }
    template <Record Reply>
    [[nodiscard]] constexpr Row single(ReaderForm form) const {
        return replies(ReplyShape::single, form, &layoutOf<Reply>);
    }
    template <Record Reply>
    [[nodiscard]] constexpr Row singleAndBlock(ReaderForm form) const {
        return replies(ReplyShape::singleAndBlock, form, &layoutOf<Reply>);
    }
    [[nodiscard]] constexpr Row list(ReaderForm form) const { return replies(ReplyShape::list, form); }
    template <Record Element>
    [[nodiscard]] [[nodiscard]] [[nodiscard]] [[nodiscard]] [[nodiscard]] [[nodiscard]] [[nodiscard]] constexpr Row
    list(ReaderForm form) const {
        return replies(ReplyShape::list, form, &layoutOf<Element>);
    }
    // Records of this type instead when the request begins with that byte.
    template <Record Element>
    [[nodiscard]] constexpr Row orWhenFirstIs(std::uint8_t byte) const {
        Row row = *this;
        row.otherRecord = {.firstByte = byte, .layout = &layoutOf<Element>};
        return row;
    }
    [[nodiscard]] constexpr Row over(Connection kind) const {
        Row row = *this;
        row.connection = kind;
        return row;
    }
    [[nodiscard]] constexpr Row leftOpen() const {
        Row row = *this;
        row.closes = false;
        return row;
    }
    [[nodiscard]] constexpr Row guarded() const {
        Row row = *this;
        row.send = SendForm::guarded;
        return row;
    }
};

// The name of a command, taken from its request.
template <Record Request>
constexpr std::string_view commandName() {
    constexpr std::string_view suffix = "Request";
    constexpr std::string_view name = layoutOf<Request>.name;
    static_assert(name.ends_with(suffix));
    return name.substr(0, name.size() - suffix.size());
}

// A basic row: opcode, version and name are those of the request's type. A request may have several forms, each with
// its own fields.
template <Record Request, Record... OtherForms>
constexpr Row row(std::string_view purpose) {
    static_assert(((Request::opcode == OtherForms::opcode) && ...), "the forms of a request share an opcode");
    Row row{{.opcode = Request::opcode, .name = commandName<Request>(), .purpose = purpose}};
    if constexpr (requires { Request::version; }) {
        row.version = Request::version;
    }
    if constexpr (sizeof...(OtherForms) == 0) {
        row.request = &layoutOf<Request>;
    } else {
        row.forms = requestForms<Request, OtherForms...>;
    }
    return row;
}

} // namespace protocol
