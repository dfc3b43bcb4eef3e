#include "wire/TimeUuid.h"

#include <windows.h>

#include <rpc.h>

namespace wire {

std::string timeUuid() {
    UUID uuid{};
    const RPC_STATUS status = UuidCreateSequential(&uuid);
    if (status != RPC_S_OK && status != RPC_S_UUID_LOCAL_ONLY) {
        return {};
    }
    RPC_CSTR characters = nullptr;
    if (UuidToStringA(&uuid, &characters) != RPC_S_OK) {
        return {};
    }
    std::string text = reinterpret_cast<const char*>(characters);
    RpcStringFreeA(&characters);
    return text;
}

} // namespace wire
