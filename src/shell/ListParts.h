#pragma once

#include "shell/ResultPane.h"

namespace shell {

// A part of what a list holds that a filter can single out, such as the printers with an error.
struct ListPart {
    std::int32_t column = 0;
    std::int64_t count = 0;    // of rows, or the sum of their numbers
    wire::WideString text{};   // what is counted, in the right number: "with errors", "Printing", "job"
    wire::WideString filter{}; // the condition that the rows meet: "status:error"
};

// What a list holds, whatever its filter hides.
struct ListSummary {
    wire::WideString noun;       // for its rows, in the singular: "printer", or just "row"
    std::vector<ListPart> parts; // errors first, then warnings, then other states, then sums
};

// Reads each row once, so call it only when the rows have changed; see ResultPane::revision. Columns with a status are
// counted by state, and columns with a number of things are summed. A state that nothing has, one that only repeats the
// title, and columns with more than a few states are left out.
[[nodiscard]] ListSummary summarize(const ResultPane& pane);

// Whether a filter asks for the part already.
[[nodiscard]] bool asksFor(wire::WideStringView filter, const ListPart& part, std::span<const wire::WideString> titles);

// The filter without the part if it asks for it; otherwise with the part in place of other conditions on its column
// that a part may have brought.
[[nodiscard]] wire::WideString toggled(wire::WideStringView filter, const ListPart& part,
                                       std::span<const wire::WideString> titles);

} // namespace shell
