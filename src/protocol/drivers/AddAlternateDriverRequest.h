#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Lets the drivers of another model stand in for those of a model.
struct AddAlternateDriverRequest {
    static constexpr std::uint16_t opcode = 48;

    std::string modelId;
    std::string alternateModelId;

    static constexpr auto fields = wireOrder(field("modelId", &AddAlternateDriverRequest::modelId),
                                             field("alternateModelId", &AddAlternateDriverRequest::alternateModelId));

    bool operator==(const AddAlternateDriverRequest&) const = default;
};

} // namespace protocol
