#pragma once

#include "hosts/ctl/ListChoice.h"
#include "hosts/ctl/NodePath.h"
#include "shell/Shell.h"

#include <ostream>

namespace ctl {

// The list of the selected node, as the user wants to see it.
class ListWriter {
public:
    // The shell outlives it; its list must not change meanwhile. Throws Failure (refused) for a column that the list
    // does not have.
    ListWriter(const shell::Shell& shell, const ListChoice& choice);

    // {"path", "columns", "rows": [[text...]], "records": [{"id", "kind", "values": {title: value}}]}: a value is the
    // number that the column sorts by, or else its text. One row per line, so that long lists stay readable.
    void writeJson(std::ostream& out, const NodePath& path) const;
    // As CSV or as a table.
    void write(std::ostream& out, Format format) const;

private:
    std::vector<std::int32_t> columns_;
    std::vector<wire::WideString> titles_; // of these columns
    std::vector<const shell::Row*> rows_;
};

// The titles of the selected node's list.
std::vector<wire::WideString> titlesOf(const shell::Shell& shell);

} // namespace ctl
