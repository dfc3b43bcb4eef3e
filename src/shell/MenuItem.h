#pragma once

#include "wire/Text.h"

#include <cstdint>

namespace shell {

// An entry of a context menu; without a text it is a separator.
struct MenuItem {
    wire::WideString text;
    wire::WideString statusText;
    std::int32_t id = 0;
    bool separator = false;
    bool checked = false;
    bool disabled = false; // shown, but can't be chosen

    friend bool operator==(const MenuItem&, const MenuItem&) = default;
};

} // namespace shell
