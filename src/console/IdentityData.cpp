#include "console/IdentityData.h"

#include <string_view>

namespace console {
namespace {

void append(std::vector<std::uint8_t>& stream, const Guid& value) {
    stream.insert(stream.end(), value.bytes.begin(), value.bytes.end());
}

// As UTF-16LE with its terminator.
void append(std::vector<std::uint8_t>& stream, std::u16string_view text) {
    const auto appendUnit = [&stream](char16_t unit) {
        stream.push_back(static_cast<std::uint8_t>(unit & 0xFF));
        stream.push_back(static_cast<std::uint8_t>(unit >> 8));
    };
    for (const char16_t unit : text) {
        appendUnit(unit);
    }
    appendUnit(0);
}

} // namespace

Result appendIdentity(const NodeIdentity& identity, ClipboardFormat format, std::vector<std::uint8_t>& stream) {
    switch (format) {
    case ClipboardFormat::nodeType:
        append(stream, identity.nodeType.guid);
        return Result::ok;
    case ClipboardFormat::nodeTypeText:
        append(stream, identity.nodeType.text);
        return Result::ok;
    case ClipboardFormat::displayName:
        append(stream, identity.displayName); // that of the class, whatever this node is called
        return Result::ok;
    case ClipboardFormat::snapInClassId:
        append(stream, snapInClassId);
        return Result::ok;
    }
    return Result::badClipboardFormat;
}

} // namespace console
