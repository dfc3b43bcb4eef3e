#include "console/RowState.h"

namespace console {

wire::WideString describe(const RowState& state) {
    wire::WideString text;
    for (const auto word : state.words) {
        if (!text.empty() && !word.empty()) {
            text += u", ";
        }
        text += word;
    }
    return text;
}

} // namespace console
