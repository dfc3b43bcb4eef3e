#pragma once

#include "hosts/desktop/activity/Operations.h"
#include "hosts/desktop/look/IconStrips.h"
#include "shell/Observers.h"

#include <QAbstractTableModel>

#include <optional>
#include <vector>

namespace desktop {

// The list for a Qt view; copies nothing, and asks for a text only when it is shown.
class ListModel final : public QAbstractTableModel, private shell::ShellObserver {
public:
    // All outlive it.
    ListModel(Operations& operations, shell::Observers& observers, const IconStrips& icons);
    ~ListModel() override;

    // 0 for an invalid index.
    [[nodiscard]] console::ResultId idOf(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOf(console::ResultId id) const;
    // The target of a menu entry, a drag or a drop on the row.
    [[nodiscard]] shell::Target targetOf(const QModelIndex& index) const;
    // Whether the column holds numbers, which are aligned to the right.
    [[nodiscard]] bool holdsNumbers(int column) const;
    // The scope item that the row represents; 0 when it represents none.
    [[nodiscard]] console::ScopeId scopeOf(const QModelIndex& index) const;

    // Called before rows change, while views are still unchanged.
    std::function<void()> onAboutToChange;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    // Renames once the editor has closed.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

private:
    [[nodiscard]] const shell::ResultPane& pane() const { return operations_.shell().pane(); }
    void selectAgain(const shell::Target& target);
    [[nodiscard]] bool isCut(const QModelIndex& index) const;
    [[nodiscard]] wire::WideStringView cell(const QModelIndex& index) const;
    [[nodiscard]] QVariant alignmentOf(int column) const;
    [[nodiscard]] QVariant iconOf(const shell::Row& row) const;
    [[nodiscard]] QString withRemarks(const QModelIndex& index, const QString& text) const;
    void announceChange();

    void columnsChanged() override;
    void rowsAboutToBeInserted(std::size_t first, std::size_t count) override;
    void rowsInserted(std::size_t first, std::size_t count) override;
    void rowsAboutToBeRemoved(std::size_t first, std::size_t count) override;
    void rowsRemoved(std::size_t first, std::size_t count) override;
    void rowsChanged(std::size_t first, std::size_t count) override;
    void rowsAboutToBeReset() override;
    void rowsReset() override;

    Operations& operations_;
    shell::Observers& observers_;
    const IconStrips& icons_;
    mutable std::optional<std::vector<bool>> numbers_; // by column; empty until it is asked for, and after a change
};

} // namespace desktop
