#pragma once

#include "hosts/ctl/ListChoice.h"
#include "shell/FilterQuery.h"
#include "shell/Shell.h"

#include <optional>
#include <vector>

namespace ctl {

// A node and what was read of the tree below it.
struct TreeItem {
    wire::WideString name;
    // In the order of the chosen columns; none where the list that the node is a row of has no such column.
    std::vector<std::optional<wire::WideString>> cells{};
    bool read = false; // its children
    std::vector<TreeItem> children{};
};

// Reads the tree below a node, and reads from the server what has not been read yet; nothing below the depth. With a
// choice, each item is taken as a row of the list of its parent: the items above one that passes the filter stay.
class TreeReader {
public:
    // The shell and the choice outlive it.
    TreeReader(shell::Shell& shell, std::optional<std::uint32_t> depth, const ListChoice& choice)
        : shell_(shell), depth_(depth), choice_(choice), titles_(choice.columns.size()), sorted_(choice.sort.size()) {}

    // Throws Failure (refused) for a column that no list of this part of the tree has.
    TreeItem read(console::ScopeId id);

    // After reading: the full titles of the chosen columns, and what no list understood of the filter.
    [[nodiscard]] std::vector<wire::WideString> titles() const;
    [[nodiscard]] std::vector<shell::FilterProblem> problems() const { return problems_.value_or(Problems()); }

private:
    using Problems = std::vector<shell::FilterProblem>;

    void readChildren(TreeItem& item, console::ScopeId id, std::uint32_t level);
    // The titles of the list that the children of the item are rows of.
    std::vector<wire::WideString> open(console::ScopeId id);
    void note(std::span<const wire::WideString> titles, const Problems& problems);
    [[nodiscard]] std::vector<std::optional<wire::WideString>> cellsOf(const shell::Row& row,
                                                                       std::span<const wire::WideString> titles) const;
    void checkColumns() const;

    shell::Shell& shell_;
    std::optional<std::uint32_t> depth_;
    const ListChoice& choice_;
    std::vector<std::optional<wire::WideString>> titles_; // of the chosen columns; none before a list has them
    std::vector<bool> sorted_;                            // whether a list has the column of that key
    std::optional<Problems> problems_;                    // none before a list was read
};

} // namespace ctl
