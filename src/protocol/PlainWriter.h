#pragma once

#include "wire/Text.h"
#include "wire/WireUuid.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace protocol {

// Writes fields into memory that is known to be large enough, in the format of wire::Message. It copies wide text
// unchanged and detects text that the conversion of the wire would change: the result is then useless. Several times
// faster than one append for each field, because the texts of a record are short.
class PlainWriter {
public:
    explicit PlainWriter(std::uint8_t* to) : at_(to) {}

    // False once a text was written that the conversion of the wire would change.
    [[nodiscard]] bool plain() const {
        std::array<std::uint64_t, 2> halves;
        std::memcpy(halves.data(), &strange_, sizeof strange_);
        return !marked_ && (halves[0] | halves[1]) == 0;
    }

    template <class Number>
    void number(Number value) {
        std::memcpy(at_, &value, sizeof value);
        at_ += sizeof value;
    }

    // The count is the low 16 bits of the length.
    void text(std::string_view value) {
        std::uint8_t* const to = putCount(value.size());
        copy(to, value.data(), value.size());
        at_ = to + value.size();
    }

    void uuid(const wire::Uuid& value) {
        const auto characters = wire::uuidCharacters(value);
        text(std::string_view(characters.data(), characters.size()));
    }

    void text(wire::WideStringView value) {
        const std::size_t length = value.size() * sizeof(char16_t);
        std::uint8_t* const to = putCount(length);
        at_ = to + length;
        if (length == 0) {
            return;
        }
        marked_ |= value.front() == 0xFFFE || value.front() == 0xFEFF;
        strange_ |= copyUnits(to, reinterpret_cast<const std::uint8_t*>(value.data()), length);
    }

private:
    using Units = std::uint16_t __attribute__((vector_size(16)));
    static constexpr std::size_t step = sizeof(Units);

    std::uint8_t* putCount(std::size_t length) {
        const auto count = static_cast<std::uint16_t>(length);
        std::memcpy(at_, &count, sizeof count);
        return at_ + sizeof count;
    }

    // Non-zero where a unit is a zero or a surrogate.
    static Units strangeness(const Units& units) {
        return reinterpret_cast<Units>(units == Units{}) |
               reinterpret_cast<Units>((units & 0xF800) == (Units{} + std::uint16_t{0xD800}));
    }

    template <class Piece>
    static void copyEnds(std::uint8_t* to, const void* from, std::size_t length) {
        Piece first;
        Piece last;
        std::memcpy(&first, from, sizeof first);
        std::memcpy(&last, static_cast<const std::uint8_t*>(from) + length - sizeof last, sizeof last);
        std::memcpy(to, &first, sizeof first);
        std::memcpy(to + length - sizeof last, &last, sizeof last);
    }

    static void copy(std::uint8_t* to, const void* from, std::size_t length) {
        if (length > 2 * step) {
            std::memcpy(to, from, length);
        } else if (length >= step) {
            copyEnds<Units>(to, from, length);
        } else if (length >= sizeof(std::uint64_t)) {
            copyEnds<std::uint64_t>(to, from, length);
        } else if (length >= sizeof(std::uint32_t)) {
            copyEnds<std::uint32_t>(to, from, length);
        } else if (length >= sizeof(std::uint16_t)) {
            copyEnds<std::uint16_t>(to, from, length);
        } else if (length != 0) {
            *to = *static_cast<const std::uint8_t*>(from);
        }
    }

    // The strangeness of all units together.
    static Units copyUnits(std::uint8_t* to, const std::uint8_t* from, std::size_t length) {
        if (length < step) {
            return copyFewUnits(to, from, length);
        }
        Units units;
        Units strange{};
        for (std::size_t offset = 0; offset + step < length; offset += step) {
            std::memcpy(&units, from + offset, step);
            std::memcpy(to + offset, &units, step);
            strange |= strangeness(units);
        }
        std::memcpy(&units, from + length - step, step);
        std::memcpy(to + length - step, &units, step);
        return strange | strangeness(units);
    }

    static Units copyFewUnits(std::uint8_t* to, const std::uint8_t* from, std::size_t length) {
        std::uint64_t first = 0;
        std::uint64_t last = 0;
        if (length >= sizeof(std::uint64_t)) {
            std::memcpy(&first, from, sizeof first);
            std::memcpy(&last, from + length - sizeof last, sizeof last);
            std::memcpy(to, &first, sizeof first);
            std::memcpy(to + length - sizeof last, &last, sizeof last);
        } else {
            // One to three units: the first, the middle one and the last, some of them the same.
            std::array<std::uint16_t, 4> few{};
            std::memcpy(&few[0], from, sizeof few[0]);
            std::memcpy(&few[1], from + (length / 4) * 2, sizeof few[1]);
            std::memcpy(&few[2], from + length - 2, sizeof few[2]);
            few[3] = few[0];
            std::memcpy(to, &few[0], sizeof few[0]);
            std::memcpy(to + (length / 4) * 2, &few[1], sizeof few[1]);
            std::memcpy(to + length - 2, &few[2], sizeof few[2]);
            std::memcpy(&first, few.data(), sizeof first);
            last = first;
        }
        Units units;
        std::memcpy(&units, &first, sizeof first);
        std::memcpy(reinterpret_cast<std::uint8_t*>(&units) + sizeof first, &last, sizeof last);
        return strangeness(units);
    }

    std::uint8_t* at_;
    Units strange_{};
    bool marked_ = false;
};

} // namespace protocol
