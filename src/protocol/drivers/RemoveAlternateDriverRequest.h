#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Ends that the drivers of another model stand in for those of a model.
struct RemoveAlternateDriverRequest {
    static constexpr std::uint16_t opcode = 49;

    std::string modelId;
    std::string alternateModelId;

    static constexpr auto fields =
        wireOrder(field("modelId", &RemoveAlternateDriverRequest::modelId),
                  field("alternateModelId", &RemoveAlternateDriverRequest::alternateModelId));

    bool operator==(const RemoveAlternateDriverRequest&) const = default;
};

} // namespace protocol
