#pragma once

#include "protocol/WireOrder.h"

#include <cmath>
#include <concepts>
#include <cstring>
#include <span>
#include <stdexcept>

namespace server {

// A malformed request: the connection is closed, and the reason is logged.
class BadRequest : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// A source of fields: reads those of a request from the bytes of its Data message, in order. Wide text is kept as the
// units received: the console's conversion shifts characters outside the basic plane, and converting here would shift
// them again. Bytes after the last field are left unread. Throws BadRequest when a field is incomplete.
class RequestReader {
public:
    explicit RequestReader(std::span<const std::uint8_t> fields) : rest_(fields) {}

    template <protocol::Record Request>
    [[nodiscard]] Request read() {
        Request request;
        wire::FieldTraits<Request>::get(*this, request);
        return request;
    }

    // What a source of fields gives.
    template <class Number>
    [[nodiscard]] Number number() {
        Number value{};
        std::memcpy(&value, take(sizeof value).data(), sizeof value);
        if constexpr (std::floating_point<Number>) {
            if (!std::isfinite(value)) {
                throw BadRequest("a fraction that is not a number");
            }
        }
        return value;
    }
    [[nodiscard]] std::string_view text() {
        const auto bytes = take(number<std::uint16_t>());
        return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
    }
    void text(wire::WideString& value) {
        const auto bytes = take(number<std::uint16_t>());
        value.resize(bytes.size() / 2); // an odd last byte is dropped
        std::memcpy(value.data(), bytes.data(), value.size() * 2);
    }
    [[nodiscard]] wire::Uuid uuid() {
        try {
            return wire::parseUuid(text());
        } catch (const BadRequest&) {
            throw;
        } catch (const std::exception&) {
            throw BadRequest("an id that is not a uuid");
        }
    }
    [[nodiscard]] std::size_t remaining() const { return rest_.size(); }

private:
    [[nodiscard]] std::span<const std::uint8_t> take(std::size_t count) {
        if (rest_.size() < count) {
            throw BadRequest("the request is shorter than its fields");
        }
        const auto taken = rest_.first(count);
        rest_ = rest_.subspan(count);
        return taken;
    }

    std::span<const std::uint8_t> rest_;
};

} // namespace server
