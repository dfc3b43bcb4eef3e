#pragma once

#include "hosts/desktop/activity/Operations.h"
#include "hosts/desktop/look/IconStrips.h"
#include "shell/Observers.h"

#include <QAbstractItemModel>

namespace desktop {

// The scope tree for a Qt view; copies nothing.
class ScopeModel final : public QAbstractItemModel, private shell::ShellObserver {
public:
    // All outlive it.
    ScopeModel(Operations& operations, shell::Observers& observers, const IconStrips& icons);
    ~ScopeModel() override;

    static console::ScopeId idOf(const QModelIndex& index) { return static_cast<console::ScopeId>(index.internalId()); }
    // Invalid for an item that does not exist.
    QModelIndex indexOf(console::ScopeId id) const;

    QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent) const override;
    bool hasChildren(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    // Renames once the editor has closed.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

private:
    const shell::ScopeTree& tree() const { return operations_.shell().tree(); }
    [[nodiscard]] bool isCut(console::ScopeId id) const;
    [[nodiscard]] QIcon iconOf(console::ScopeId id) const;
    int rowOf(console::ScopeId id) const;
    // The insertion of the root is not reported: the model notices it with the first change to it.
    void noticeRoot();

    void scopeItemsAboutToBeInserted(console::ScopeId parent, std::size_t first, std::size_t count) override;
    void scopeItemsInserted(console::ScopeId parent, std::size_t first, std::size_t count) override;
    void scopeItemsAboutToBeRemoved(console::ScopeId parent, std::size_t first, std::size_t count) override;
    void scopeItemsRemoved(console::ScopeId parent, std::size_t first, std::size_t count) override;
    void scopeItemChanged(console::ScopeId item) override;
    void scopeItemOpened(console::ScopeId item, bool open) override;

    Operations& operations_;
    shell::Observers& observers_;
    const IconStrips& icons_;
    bool hasRoot_ = false;
    mutable std::size_t lastRow_ = 0; // of the last item looked up: views ask for the same parent again and again
};

} // namespace desktop
