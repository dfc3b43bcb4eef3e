#pragma once

#include "console/CBaseNodeItem.h"

#include <array>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace bench {

constexpr std::size_t columnCount = 8;
constexpr std::size_t rowCount = 100'000;

// The text of a cell, different in each row, not sorted by any column.
std::u16string cellText(std::size_t row, std::size_t column);

// A row of the list.
class OneRow final : public console::CBaseNodeItem<OneRow> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Row", .image = 3};
    OneRow(platform::Platform& platform, std::size_t number);

    std::string refreshKey() const override { return std::to_string(number_); }
    const char16_t* GetResultPaneColInfo(std::int32_t column) override;
    // Makes its strings again, as if they came from a server.
    void renew();

private:
    std::size_t number_;
    std::array<std::u16string, columnCount> cells_;
};

// A node with a long list, kept in memory.
class ManyRows final : public console::CBaseNodeItem<ManyRows> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Many", .openImage = 1, .children = 1};
    explicit ManyRows(platform::Platform& platform);

    console::Result OnExpand(console::ExpandCode code, console::IConsole& console, console::ScopeId scopeId) override;

protected:
    std::span<const console::Column> columns() const override;
    std::vector<console::NodeBase*> rows() const override;

private:
    std::vector<std::shared_ptr<OneRow>> rows_;
};

// The top of the tree, with the long list below it.
class Top final : public console::CBaseNodeItem<Top> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Top", .children = 1};
    explicit Top(platform::Platform& platform);

    console::Result OnExpand(console::ExpandCode code, console::IConsole& console, console::ScopeId scopeId) override;

private:
    std::shared_ptr<ManyRows> many_;
};

} // namespace bench
