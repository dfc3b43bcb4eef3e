#include "wire/TimeUuid.h"

#include <uuid/uuid.h>

#include <array>

namespace wire {

std::string timeUuid() {
    uuid_t uuid{};
    uuid_generate_time(uuid);
    std::array<char, UUID_STR_LEN> text{};
    uuid_unparse_lower(uuid, text.data());
    return text.data();
}

} // namespace wire
