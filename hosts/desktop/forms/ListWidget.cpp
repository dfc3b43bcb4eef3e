#include "hosts/desktop/forms/ListWidget.h"

#include "forms/ListView.h"
#include "hosts/desktop/forms/ListRows.h"
#include "hosts/desktop/forms/NaturalOrder.h"
#include "hosts/desktop/forms/RoomyView.h"
#include "hosts/desktop/forms/ShownText.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>
#include <utility>

namespace desktop {

ListWidget::ListWidget(forms::ListView& list)
    : ControlWidget(list),
      list_(list),
      view_(new RoomyView),
      rows_(new ListRows(list, this)),
      sorted_(new NaturalOrder(this)) {
    setUp(view_);
    sorted_->setSourceModel(rows_);
    view_->setModel(sorted_);
    view_->setRootIsDecorated(false);
    view_->setItemsExpandable(false);
    view_->setUniformRowHeights(true);
    view_->setAllColumnsShowFocus(true);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->header()->setSortIndicatorClearable(true);
    view_->header()->setSortIndicator(-1, Qt::AscendingOrder);
    view_->setSortingEnabled(true);
    connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!mirroring()) {
            selected();
        }
    });
    connect(view_, &QTreeView::doubleClicked, this, &ListWidget::open);
    view_->doItemsLayout(); // stretches the last column, so that an empty list is as wide as one with rows
    view_->viewport()->installEventFilter(this); // right clicks go there, the menu key to the view
}

std::optional<std::size_t> ListWidget::rowAt(const QModelIndex& shown) const {
    const auto index = sorted_->mapToSource(shown);
    return index.isValid() && !stale() ? std::optional(static_cast<std::size_t>(index.row())) : std::nullopt;
}

void ListWidget::selected() {
    const auto rows = view_->selectionModel()->selectedRows();
    if (!stale()) {
        list_.userSelected(rows.isEmpty() ? std::nullopt : rowAt(rows.front()));
    }
    mirror(forms::Aspect::selection); // restore the form's state in case the change was refused
}

void ListWidget::open(const QModelIndex& shown) {
    if (const auto row = rowAt(shown)) {
        list_.userDoubleClicked(*row);
    }
}

// The form may have other rows by the time an entry is chosen from the open menu.
void ListWidget::showRowMenu(const QModelIndex& shown, const QPoint& place) {
    const auto row = rowAt(shown);
    const auto& entries = list_.rowMenu();
    if (!row || entries.empty() || !list_.reachable()) {
        return;
    }
    view_->setCurrentIndex(shown);
    auto* const menu = new QMenu(view_);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (std::size_t entry = 0; entry < entries.size(); ++entry) {
        const QAction* const action = menu->addAction(withoutAccessKey(shownLine(entries[entry])));
        connect(action, &QAction::triggered, this, [this, row = *row, entry] {
            if (!stale()) {
                list_.userChoseFromRowMenu(row, entry);
            }
        });
    }
    menu->popup(place);
}

bool ListWidget::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* const key = static_cast<const QKeyEvent*>(event);
        const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (isEnter && key->modifiers().testFlag(Qt::ControlModifier)) {
            open(view_->currentIndex());
            return true;
        }
    }
    if (event->type() == QEvent::ContextMenu) {
        const auto* const asked = static_cast<const QContextMenuEvent*>(event);
        const QModelIndex row =
            asked->reason() == QContextMenuEvent::Keyboard ? view_->currentIndex() : view_->indexAt(asked->pos());
        const QPoint below = view_->viewport()->mapToGlobal(view_->visualRect(row).bottomLeft());
        showRowMenu(row, asked->reason() == QContextMenuEvent::Keyboard ? below : asked->globalPos());
        return true;
    }
    return ControlWidget::eventFilter(watched, event);
}

void ListWidget::update(forms::Aspect aspect) {
    if (aspect == forms::Aspect::items || aspect == forms::Aspect::columns) {
        newColumns_ = newColumns_ || aspect == forms::Aspect::columns;
        refillSoon();
    } else if (aspect == forms::Aspect::selection && !stale()) {
        showSelection();
    }
}

void ListWidget::refill() {
    rows_->refresh();
    if (std::exchange(newColumns_, false)) {
        showColumns();
    }
    showSelection();
}

void ListWidget::showColumns() {
    QHeaderView* const header = view_->header();
    const auto& columns = list_.columns();
    int section = 0;
    for (const auto& column : columns) {
        view_->setColumnHidden(section, column.hidden());
        if (!column.hidden()) {
            view_->setColumnWidth(section, std::max(column.width, header->sectionSizeHint(section)));
        }
        ++section;
    }
    view_->setHeaderHidden(std::ranges::all_of(columns, [](const auto& column) { return column.title.empty(); }));
    view_->updateGeometry();
}

void ListWidget::showSelection() {
    const auto row = list_.selection();
    if (!row) {
        view_->clearSelection();
        return;
    }
    const auto index = sorted_->mapFromSource(rows_->index(static_cast<int>(*row), 0));
    view_->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    view_->scrollTo(index);
}

} // namespace desktop
