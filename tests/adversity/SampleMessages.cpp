#include "tests/adversity/SampleMessages.h"

#include "server/Commands.h"
#include "server/commands/Handler.h"
#include "tests/server/support/TestClient.h"

#include <array>
#include <utility>

namespace adversity {

using protocol::FieldInfo;
using protocol::FieldKind;
using protocol::RecordLayout;
using protocol::ReplyShape;
using server::test::str16;
using server::test::str8;
using server::test::u16;
using server::test::u32;
using server::test::u8;

namespace {

constexpr std::array allFillings{Filling::empty, Filling::plain, Filling::ordinary, Filling::rich};

std::uint32_t numberOf(Filling filling) {
    return filling == Filling::empty ? 0 : filling == Filling::rich ? 0x87654321 : 1;
}

std::uint32_t smallNumberOf(Filling filling) {
    return filling == Filling::plain ? 0 : numberOf(filling);
}

Bytes textOf(Filling filling) {
    return str8(filling == Filling::empty ? "" : filling == Filling::rich ? "a somewhat longer text, \xFF" : "two");
}

Bytes wideTextOf(Filling filling) {
    if (filling != Filling::rich) {
        return str16(filling == Filling::empty ? u"" : u"Nord");
    }
    // A character outside the basic plane, and one extra byte beyond whole units.
    return support::hex("07 00 41 00 3D D8 00 DE 42");
}

// Walks the fields of a layout.
class FieldWriter {
public:
    FieldWriter(Filling filling, const KnownText& known) : filling_(filling), known_(known) {}

    void writeAll(const RecordLayout& layout) {
        for (const FieldInfo& field : layout.fields) {
            write(layout, field, field.kind);
        }
    }

    [[nodiscard]] Bytes takeBytes() { return std::move(bytes_); }

private:
    void add(const Bytes& bytes) { bytes_.insert(bytes_.end(), bytes.begin(), bytes.end()); }

    void write(const RecordLayout& layout, const FieldInfo& field, FieldKind kind) {
        switch (kind) {
        case FieldKind::u8:
        case FieldKind::bool8:
            return add(u8(static_cast<std::uint8_t>(smallNumberOf(filling_))));
        case FieldKind::u16:
            return add(u16(static_cast<std::uint16_t>(smallNumberOf(filling_))));
        case FieldKind::u32:
        case FieldKind::i32:
        case FieldKind::i64:
            return add(u32(numberOf(filling_)));
        case FieldKind::f32:
            return add(support::hex("00 00 C0 3F")); // 1.5
        case FieldKind::str8:
            return writeText(layout, field, textOf(filling_));
        case FieldKind::str16:
            return add(wideTextOf(filling_));
        case FieldKind::uuid:
            return writeText(layout, field, str8("0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480"));
        case FieldKind::optional:
            add(u8(filling_ == Filling::empty ? 0 : 1));
            return filling_ == Filling::empty ? void() : write(layout, field, field.elementKind);
        case FieldKind::list:
            return writeList(layout, field);
        case FieldKind::record:
            return writeAll(*field.element);
        }
    }

    void writeText(const RecordLayout& layout, const FieldInfo& field, const Bytes& otherwise) {
        const std::string text = known_ && filling_ != Filling::empty ? known_(layout, field) : std::string();
        add(text.empty() ? otherwise : str8(text));
    }

    void writeList(const RecordLayout& layout, const FieldInfo& field) {
        const int count = filling_ == Filling::empty ? 0 : filling_ == Filling::rich ? 3 : 1;
        add(u16(static_cast<std::uint16_t>(count)));
        for (int index = 0; index < count; ++index) {
            write(layout, field, field.elementKind);
        }
    }

    Filling filling_;
    const KnownText& known_;
    Bytes bytes_;
};

std::vector<const RecordLayout*> formsOf(const protocol::Command& command) {
    if (command.request != nullptr) {
        return {command.request};
    }
    std::vector<const RecordLayout*> layouts;
    for (const auto& form : command.forms) {
        layouts.push_back(form.layout);
    }
    return layouts;
}

bool isAction(std::uint16_t opcode, std::uint8_t byte) {
    try {
        return server::commands().find(opcode, std::span(&byte, 1)) != nullptr;
    } catch (const server::BadRequest&) {
        return false;
    }
}

// A request whose first byte selects its form is added once with each byte that the server knows.
void addForm(std::vector<SampleRequest>& requests, const SampleRequest& request) {
    const auto& fields = request.layout->fields;
    std::vector<std::uint8_t> actions;
    for (int byte = 0; byte < 256; ++byte) {
        if (isAction(request.command->opcode, static_cast<std::uint8_t>(byte))) {
            actions.push_back(static_cast<std::uint8_t>(byte));
        }
    }
    if (fields.empty() || fields.front().kind != FieldKind::u8 || actions.empty() || actions.size() == 256) {
        requests.push_back(request);
        return;
    }
    for (const auto action : actions) {
        requests.push_back(request);
        requests.back().fields.front() = action;
    }
}

} // namespace

Bytes sampleFields(const RecordLayout& layout, Filling filling, const KnownText& known) {
    FieldWriter writer(filling, known);
    writer.writeAll(layout);
    return writer.takeBytes();
}

std::vector<Bytes> SampleRequest::messages() const {
    const auto message = support::commandMessage(command->opcode, command->version);
    if (fields.empty()) {
        return {message};
    }
    return {support::dataMessage(fields), message};
}

std::string SampleRequest::name() const {
    return std::to_string(command->opcode) + " " + std::string(command->name);
}

std::vector<SampleRequest> sampleRequests(const KnownText& known) {
    std::vector<SampleRequest> requests;
    for (const auto& command : protocol::catalogue()) {
        for (const auto* layout : formsOf(command)) {
            for (const Filling filling : allFillings) {
                addForm(requests, {&command, layout, sampleFields(*layout, filling, known)});
                if (layout->fields.empty()) {
                    break;
                }
            }
        }
    }
    return requests;
}

Bytes SampleReply::frames() const {
    Bytes bytes;
    for (const auto& message : messages) {
        bytes = std::move(bytes) + support::frame({message});
    }
    return bytes;
}

std::string SampleReply::name() const {
    return std::to_string(command->opcode) + " " + std::string(command->name) + " (" + std::string(layout->name) + ")";
}

std::vector<SampleReply> sampleReplies() {
    std::vector<SampleReply> replies;
    for (const auto& command : protocol::catalogue()) {
        for (const auto* layout : {command.replyRecord, command.otherRecord.layout}) {
            if (layout == nullptr) {
                continue;
            }
            std::vector<Bytes> records;
            for (const Filling filling : allFillings) {
                records.push_back(support::dataMessage(sampleFields(*layout, filling)));
            }
            if (command.reply != ReplyShape::list) {
                for (const auto& record : records) {
                    replies.push_back({&command, layout, {record}});
                }
                continue;
            }
            replies.push_back({&command, layout, {support::dataMessage(u16(0))}});
            records.insert(records.begin(), support::dataMessage(u16(static_cast<std::uint16_t>(records.size()))));
            replies.push_back({&command, layout, records});
        }
    }
    return replies;
}

} // namespace adversity
