#include "hosts/desktop/list/ListView.h"

#include "hosts/desktop/look/TextDelegate.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <array>
#include <utility>

namespace desktop {

ListView::ListView(Operations& operations, shell::Observers& observers, ListModel& model, ViewSettings& settings,
                   QWidget* parent)
    : QTreeView(parent),
      operations_(operations),
      observers_(observers),
      model_(model),
      columns_(operations, settings, *header()) {
    setAccessibleName(QStringLiteral("List"));
    setModel(&model);
    setItemDelegate(new TextDelegate(this));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true); // otherwise every row would be measured
    setAllColumnsShowFocus(true);
    setTextElideMode(Qt::ElideRight);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setFrameShape(QFrame::NoFrame);

    header()->setAccessibleName(QStringLiteral("Columns"));
    header()->setSectionsMovable(true);
    header()->setFirstSectionMovable(true);
    header()->setSectionsClickable(true);
    header()->setSortIndicatorShown(true);
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(24);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header()->setTextElideMode(Qt::ElideRight);
    header()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header(), &QWidget::customContextMenuRequested, this,
            [this](const QPoint& place) { columns_.showMenu(header()->mapToGlobal(place)); });
    connect(header(), &QHeaderView::sectionClicked, this, [this](int column) {
        operations_.later([this, column] {
            operations_.perform([&](shell::Shell& console) { return console.clickColumn(column); });
        });
    });
    connect(this, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) { open(index); });
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        if (!following_) {
            operations_.later([this] { selectCurrent(); });
        }
    });
    connect(&model_, &QAbstractItemModel::modelReset, this, [this] { columns_.rowsChanged(); });
    connect(&model_, &QAbstractItemModel::rowsInserted, this, [this] { columns_.rowsChanged(); });
    model_.onAboutToChange = [this] { beforeChange(); };
    observers_.add(*this);
}

ListView::~ListView() {
    observers_.remove(*this);
    model_.onAboutToChange = nullptr;
}

void ListView::open(const QModelIndex& index) {
    operations_.later([this, id = model_.idOf(index)] {
        operations_.perform([&](shell::Shell& console) { return id != 0 && console.doubleClick(id); });
    });
}

void ListView::selectCurrent() {
    const auto id = model_.idOf(currentIndex());
    if (id != 0 && id != operations_.shell().selection().row) {
        operations_.perform([&](shell::Shell& console) { return console.selectRow(id); });
    }
}

void ListView::focusInEvent(QFocusEvent* event) {
    QTreeView::focusInEvent(event);
    const auto reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason) {
        if (!currentIndex().isValid() && model_.rowCount() > 0) {
            setCurrentIndex(model_.index(0, 0));
        }
        operations_.later([this] { selectCurrent(); });
    }
}

void ListView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = byKey ? currentIndex() : indexAt(event->pos());
    if (operations_.busy() || !onMenu) {
        return;
    }
    event->accept();
    const auto place =
        byKey && index.isValid() ? viewport()->mapToGlobal(visualRect(index).bottomLeft()) : event->globalPos();
    if (index.isValid()) {
        setCurrentIndex(index);
        selectCurrent();
        onMenu(model_.targetOf(index), place);
    } else {
        operations_.perform([](shell::Shell& console) { return console.selectRow(0); });
        onMenu({operations_.shell().selection().scope, 0}, place);
    }
}

void ListView::keyPressEvent(QKeyEvent* event) {
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && state() != EditingState &&
        currentIndex().isValid()) {
        open(currentIndex());
        event->accept();
        return;
    }
    if (event->key() == Qt::Key_F10 &&
        event->modifiers() == Qt::ShiftModifier) { // not all platforms make a menu key of it
        const QPoint place = visualRect(currentIndex()).bottomLeft();
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, place, viewport()->mapToGlobal(place));
        contextMenuEvent(&menu);
        event->accept();
        return;
    }
    QTreeView::keyPressEvent(event);
    constexpr std::array moves{Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Home, Qt::Key_End,
                               Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Space};
    if (std::ranges::find(moves, event->key()) != moves.end()) {
        operations_.later([this] { selectCurrent(); }); // of a single row, which is current already
    }
}

void ListView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (model_.rowCount() > 0 || !emptyText) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
    const int margin = 2 * fontMetrics().height();
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, emptyText());
}

void ListView::selectionChanged() {
    const auto scope = operations_.shell().selection().scope;
    if (scope_ != scope) {
        scope_ = scope;
        anchor_.reset();
        columns_.apply();
        scrollToTop();
        showOrder();
    }
    showSelection();
}

void ListView::showSelection() {
    const QScopedValueRollback following(following_, true);
    const auto row = operations_.shell().selection().row;
    if (row == 0) {
        clearSelection(); // keeps the current row
        return;
    }
    const auto index = model_.indexOf(row);
    if (index.isValid() && (index.row() != currentIndex().row() || !selectionModel()->isSelected(index))) {
        const auto column = currentIndex().isValid() ? currentIndex().column() : 0;
        selectionModel()->setCurrentIndex(index.siblingAtColumn(column),
                                          QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
}

void ListView::columnsChanged() {
    following_ = false;
    anchor_.reset();
    columns_.apply();
    showSelection();
}

// Qt moves the current row to a neighbour when it is removed, but the console decides which row is selected then.
void ListView::beforeChange() {
    following_ = true;
    const QModelIndex top = indexAt(QPoint(0, 0));
    if (!anchor_ && top.isValid() && verticalScrollBar()->value() > 0 &&
        scope_ == operations_.shell().selection().scope) {
        anchor_ = Anchor{model_.idOf(top), visualRect(top).top()};
    }
}

void ListView::afterChange() {
    const auto anchor = std::exchange(anchor_, std::nullopt);
    const auto index = anchor ? model_.indexOf(anchor->id) : QModelIndex();
    if (index.isValid()) {
        executeDelayedItemsLayout();
        scrollTo(index, PositionAtTop);
        verticalScrollBar()->setValue(verticalScrollBar()->value() + visualRect(index).top() - anchor->top);
    }
    following_ = false;
}

void ListView::rowsInserted(std::size_t /*first*/, std::size_t /*count*/) {
    afterChange();
}

void ListView::rowsRemoved(std::size_t /*first*/, std::size_t /*count*/) {
    afterChange();
}

void ListView::rowsReset() {
    showOrder();
    afterChange();
    showSelection();
}

void ListView::showOrder() {
    const auto& order = operations_.shell().pane().sortOrder();
    header()->setSortIndicator(order ? order->column : -1,
                               !order || order->ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

} // namespace desktop
