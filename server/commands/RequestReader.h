#pragma once

#include "protocol/WireOrder.h"

#include <cmath>
#include <cstring>
#include <span>
#include <stdexcept>

namespace server {

// A request that cannot be understood: the connection is closed, and the reason goes to the log.
class BadRequest : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Takes the fields of a request off the bytes of its Data message, in order. Wide text is taken as the units that came:
// the console's conversion moves characters outside of the basic plane, and would move them once more here. Bytes that
// follow the last field are left unread. Throws BadRequest when a field is not there as a whole.
class RequestReader {
public:
    explicit RequestReader(std::span<const std::uint8_t> fields) : rest_(fields) {}

    template <protocol::Record Request>
    [[nodiscard]] Request read() {
        Request request;
        readValue(request);
        return request;
    }

private:
    template <class Value>
    void readValue(Value& value) {
        if constexpr (protocol::Record<Value>) {
            protocol::forEachField(value, [&](std::string_view, auto& member) { readValue(member); });
        } else if constexpr (std::same_as<Value, std::string>) {
            const auto bytes = take(number<std::uint16_t>());
            value.assign(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        } else if constexpr (std::same_as<Value, wire::WideString>) {
            const auto bytes = take(number<std::uint16_t>());
            value.resize(bytes.size() / 2); // an odd last byte is lost
            std::memcpy(value.data(), bytes.data(), value.size() * 2);
        } else if constexpr (std::same_as<Value, bool>) {
            value = number<std::uint8_t>() != 0;
        } else if constexpr (std::same_as<Value, float>) {
            value = number<float>();
            if (!std::isfinite(value))
                throw BadRequest("a fraction that is no number");
        } else if constexpr (std::same_as<Value, wire::Uuid>) {
            std::string text;
            readValue(text);
            value = parse(text);
        } else if constexpr (protocol::detail::isOptional<Value>) {
            if (number<std::uint8_t>() != 0)
                readValue(value.emplace());
        } else if constexpr (protocol::detail::isList<Value>) {
            // A count is a peer's word: what it announces is not reserved before it has come.
            for (auto left = number<std::uint16_t>(); left > 0; --left)
                readValue(value.emplace_back());
        } else if constexpr (std::same_as<Value, std::int64_t>) {
            value = number<std::int32_t>(); // the wire carries the low 32 bits
        } else {
            static_assert(std::integral<Value>);
            value = number<Value>();
        }
    }

    template <class Number>
    [[nodiscard]] Number number() {
        Number value{};
        std::memcpy(&value, take(sizeof value).data(), sizeof value);
        return value;
    }

    [[nodiscard]] static wire::Uuid parse(const std::string& text) {
        try {
            return wire::parseUuid(text);
        } catch (const std::exception&) {
            throw BadRequest("an id that is no uuid");
        }
    }

    [[nodiscard]] std::span<const std::uint8_t> take(std::size_t count) {
        if (rest_.size() < count)
            throw BadRequest("the request is shorter than its fields");
        const auto taken = rest_.first(count);
        rest_ = rest_.subspan(count);
        return taken;
    }

    std::span<const std::uint8_t> rest_;
};

} // namespace server
