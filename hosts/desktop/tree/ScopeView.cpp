#include "hosts/desktop/tree/ScopeView.h"

#include "hosts/desktop/activity/ViewKeys.h"
#include "hosts/desktop/look/TextDelegate.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QScopedValueRollback>

namespace desktop {

using console::ScopeId;

ScopeView::ScopeView(Operations& operations, shell::Observers& observers, ScopeModel& model, QWidget* parent)
    : QTreeView(parent), operations_(operations), observers_(observers), model_(model) {
    setAccessibleName(QStringLiteral("Tree"));
    setModel(&model);
    setItemDelegate(new TextDelegate(this));
    setHeaderHidden(true);
    header()->setAccessibleName(QStringLiteral("Tree columns"));
    setUniformRowHeights(true); // otherwise every row would be measured
    setTextElideMode(Qt::ElideRight);
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(true);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setDropIndicatorShown(true);
    setAutoExpandDelay(800);
    setFrameShape(QFrame::NoFrame);
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex& index) {
        const ScopeId id = ScopeModel::idOf(index);
        if (!following_ && !operations_.shell().tree().isOpen(id)) {
            operations_.later([this, id] {
                operations_.perform([&](shell::Shell& console) { return console.expand(id); });
                followOpen(id);
            });
        }
    });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        const ScopeId id = ScopeModel::idOf(index);
        if (!following_ && operations_.shell().tree().isOpen(id)) {
            operations_.later(
                [this, id] { operations_.perform([&](shell::Shell& console) { return console.collapse(id); }); });
        }
    });
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        if (!following_) {
            operations_.later([this] { selectCurrent(); });
        }
    });
    observers_.add(*this);
}

ScopeView::~ScopeView() {
    observers_.remove(*this);
}

// Items passed on the way (for instance with a key held down) are not loaded.
void ScopeView::selectCurrent() {
    if (!currentIndex().isValid()) {
        return;
    }
    const ScopeId id = ScopeModel::idOf(currentIndex());
    if (operations_.shell().selection() != shell::Target{id, 0}) {
        operations_.perform([&](shell::Shell& console) { return console.select(id); });
    }
}

void ScopeView::focusInEvent(QFocusEvent* event) {
    QTreeView::focusInEvent(event);
    const auto reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::MouseFocusReason ||
        reason == Qt::ShortcutFocusReason) {
        operations_.later([this] { selectCurrent(); });
    }
}

void ScopeView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = byKey ? currentIndex() : indexAt(event->pos());
    if (!index.isValid() || operations_.busy()) {
        return;
    }
    const auto place = byKey ? viewport()->mapToGlobal(visualRect(index).bottomLeft()) : event->globalPos();
    const ScopeId id = ScopeModel::idOf(index);
    setCurrentIndex(index);
    selectCurrent();
    if (onMenu && operations_.shell().selection().scope == id) {
        onMenu({id, 0}, place);
    }
    event->accept();
}

void ScopeView::keyPressEvent(QKeyEvent* event) {
    if (actsOnKey(*this, operations_, *event)) {
        event->accept();
        return;
    }
    QTreeView::keyPressEvent(event);
}

void ScopeView::selectionChanged() {
    showSelection();
}

void ScopeView::showSelection() {
    const auto index = model_.indexOf(operations_.shell().selection().scope);
    if (index.isValid() && index != currentIndex()) {
        const QScopedValueRollback following(following_, true);
        setCurrentIndex(index);
        // The items above it may be open only in this view.
        for (auto above = index.parent(); above.isValid(); above = above.parent()) {
            const ScopeId id = ScopeModel::idOf(above);
            if (!operations_.shell().tree().isOpen(id)) {
                operations_.later(
                    [this, id] { operations_.perform([&](shell::Shell& console) { return console.expand(id); }); });
            }
        }
    }
}

void ScopeView::scopeItemOpened(ScopeId item, bool /*open*/) {
    operations_.later([this, item] { followOpen(item); });
}

// An item that stays open across a refresh may have had no children for a moment, which closed it.
void ScopeView::scopeItemsInserted(ScopeId parent, std::size_t /*first*/, std::size_t /*count*/) {
    if (operations_.shell().tree().isOpen(parent)) {
        followOpen(parent);
    }
}

void ScopeView::followOpen(ScopeId item) {
    const auto index = model_.indexOf(item);
    if (index.isValid()) {
        const QScopedValueRollback following(following_, true);
        setExpanded(index, operations_.shell().tree().isOpen(item));
    }
}

} // namespace desktop
