#pragma once

#include "wire/Text.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace unicode {

// Byte orders of 16-bit units.
enum ByteOrder : int {
    defaultOrder = 0, // as bigEndian
    nativeOrder = 1,
    bigEndian = 2,
    littleEndian = 3, // the order of the wire
};

// Decodes 16-bit units into code points and encodes them again, as the server does it.
class UTFConverter {
public:
    explicit UTFConverter(wire::WideStringView text);

    // Reads up to the first zero unit; a null pointer gives an empty text.
    UTFConverter(const char16_t* units, int order);

    virtual ~UTFConverter() = default;

    UTFConverter(const UTFConverter&) = default;
    UTFConverter(UTFConverter&&) = default;
    UTFConverter& operator=(const UTFConverter&) = default;
    UTFConverter& operator=(UTFConverter&&) = default;

    // The result ends with a zero unit.
    [[nodiscard]] std::unique_ptr<char16_t[]> toUTF16(bool withBOM, int order) const;

    // The bytes that toUTF16 fills, without the terminating unit.
    [[nodiscard]] std::uint32_t byteLength(bool withBOM) const;

    [[nodiscard]] wire::WideString toWideString() const;

private:
    void decode(wire::WideStringView units, int order);

    std::vector<char32_t> codePoints_; // ends with a 0
};

} // namespace unicode
