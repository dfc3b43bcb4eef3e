#include "client/drivers/VersionText.h"
#include "fuzz/Expect.h"
#include "fuzz/Fuzzer.h"
#include "fuzz/Input.h"
#include "wire/Text.h"
#include "wire/UTFConverter.h"
#include "wire/WireDate.h"
#include "wire/WireUuid.h"

#include <cstring>
#include <string>

// Text, dates, versions and ids as a peer can send them.

namespace {

std::u16string unitsOf(std::span<const std::uint8_t> bytes) {
    std::u16string units(bytes.size() / 2, u'\0');
    if (!units.empty()) {
        std::memcpy(units.data(), bytes.data(), units.size() * 2);
    }
    return units;
}

void convert(const std::u16string& units, int order, bool withMark) {
    const unicode::UTFConverter converter(units.c_str(), order);
    const auto encoded = converter.toUTF16(withMark, order);
    const std::size_t length = std::char_traits<char16_t>::length(encoded.get());
    fuzz::expect(length * 2 == converter.byteLength(withMark));
    fuzz::expect(converter.toWideString().size() == converter.byteLength(false) / 2);
    fuzz::expect(unicode::UTFConverter(wire::WideStringView(units)).toWideString().size() <= units.size());
}

void readUuid(const std::string& text) {
    const auto uuid = wire::parseUuid(text);
    fuzz::expect(wire::parseUuid(wire::toText(uuid)) == uuid);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input(data, size);
    const std::uint8_t choice = input.byte();
    const auto units = unitsOf(input.rest());
    const std::string bytes(input.rest().begin(), input.rest().end());

    convert(units, choice % 4, (choice & 4) != 0);
    // Converting proper text a second time changes nothing.
    const auto utf8 = wire::toUtf8(units);
    fuzz::expect(wire::toUtf8(wire::toWide(utf8)) == utf8);
    fuzz::expect(wire::toUtf8(wire::toWide(bytes)) == wire::toUtf8(wire::toWide(wire::toUtf8(wire::toWide(bytes)))));
    static_cast<void>(wire::fromCodePage(wire::toCodePage(units)));

    bool valid = false;
    static_cast<void>(wire::formatWireDate(bytes, &valid));
    static_cast<void>(wire::formatWireDateWide(units));
    static_cast<void>(wire::wireDateOrder(bytes));
    static_cast<void>(client::localVersionText(units));
    fuzz::tolerate([&] { readUuid(bytes); });
    return 0;
}
