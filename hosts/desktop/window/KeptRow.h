#pragma once

#include "shell/Shell.h"

#include <cstddef>
#include <vector>

namespace desktop {

// The row that is selected when an entry is chosen, to be selected again afterwards: the nodes read their lists again
// and leave the selection on the item of the tree. A new row is selected instead; the next row when it is gone.
class KeptRow {
public:
    void note(const shell::Shell& console);
    // Does nothing when something else is shown, or a row is selected already.
    bool select(shell::Shell& console) const;

private:
    [[nodiscard]] console::ResultId wanted(const shell::ResultPane& pane) const;

    shell::Target selection_;
    std::size_t place_ = 0;              // of the selected row
    std::vector<console::ResultId> ids_; // sorted
};

} // namespace desktop
