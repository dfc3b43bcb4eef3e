#include "hosts/desktop/list/ListView.h"

#include "hosts/desktop/activity/ViewKeys.h"
#include "hosts/desktop/list/ListHeader.h"
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
namespace {

QHeaderView& headerOf(QTreeView& view) {
    view.setHeader(new ListHeader(&view));
    return *view.header();
}

QItemSelectionModel& selectionModelOf(QTreeView& view, ListModel& model) {
    view.setModel(&model);
    return *view.selectionModel();
}

} // namespace

ListView::ListView(Operations& operations, shell::Observers& observers, ListModel& model, ViewSettings& settings,
                   QWidget* parent)
    : QTreeView(parent),
      operations_(operations),
      observers_(observers),
      model_(model),
      settings_(settings),
      columns_(operations, settings, headerOf(*this)),
      selectedRows_(model, selectionModelOf(*this, model)) {
    setAccessibleName(QStringLiteral("List"));
    setItemDelegate(new TextDelegate(this));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true); // otherwise every row would be measured
    setAllColumnsShowFocus(true);
    setTextElideMode(Qt::ElideRight);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
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
    connect(header(), &QHeaderView::sectionClicked, this, [this](int column) { clickTitle(column); });
    connect(this, &QTreeView::doubleClicked, this, [this] { open(); });
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
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

// A third click brings the natural order back.
void ListView::clickTitle(int column) {
    operations_.later([this, column] {
        const auto& shell = operations_.shell();
        if (operations_.perform([&](shell::Shell& console) { return console.clickColumn(column); })) {
            showOrder();
            settings_.setSortOrder(shell.tree().find(shell.selection().scope)->node->className(),
                                   shell.pane().sortOrder());
        }
    });
}

void ListView::open() {
    operations_.later([this, id = model_.idOf(selectedRows_.only())] {
        const auto index = model_.indexOf(id);
        if (model_.scopeOf(index) != 0) {
            operations_.perform([id](shell::Shell& console) { return console.doubleClick(id); });
        } else if (index.isValid() && onOpen &&
                   operations_.perform([id](shell::Shell& console) { return console.selectRow(id); })) {
            onOpen(model_.targetOf(index));
        }
    });
}

void ListView::selectOnly(const QModelIndex& index) {
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void ListView::ensureSelection() {
    if (currentIndex().isValid() && !selectionModel()->hasSelection()) {
        selectOnly(currentIndex());
    }
}

// Of several rows it knows one; what can only be done with a single row is not offered then.
void ListView::selectCurrent() {
    const auto id = model_.idOf(selectedRows_.representative());
    if (id != operations_.shell().selection().row) {
        operations_.perform([&](shell::Shell& console) { return console.selectRow(id); });
    }
}

shell::Table ListView::selectedTable() const {
    std::vector<std::size_t> columns;
    for (int place = 0; place < header()->count(); ++place) {
        if (const int column = header()->logicalIndex(place); !header()->isSectionHidden(column)) {
            columns.push_back(static_cast<std::size_t>(column));
        }
    }
    return operations_.shell().table(selectedRows_.rows(), columns);
}

void ListView::focusInEvent(QFocusEvent* event) {
    QTreeView::focusInEvent(event);
    const auto reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason) {
        if (!currentIndex().isValid() && model_.rowCount() > 0) {
            setCurrentIndex(model_.index(0, 0));
        }
        ensureSelection();
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
        if (selectionModel()->isSelected(index)) {
            selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        } else {
            selectOnly(index);
        }
        selectCurrent();
        onMenu(model_.targetOf(index), place);
    } else {
        clearSelection();
        operations_.perform([](shell::Shell& console) { return console.selectRow(0); });
        onMenu({operations_.shell().selection().scope, 0}, place);
    }
}

void ListView::keyPressEvent(QKeyEvent* event) {
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && state() != EditingState &&
        currentIndex().isValid()) {
        ensureSelection();
        open();
        event->accept();
        return;
    }
    if (actsOnKey(*this, operations_, *event)) {
        event->accept();
        return;
    }
    QTreeView::keyPressEvent(event);
    constexpr std::array moves{Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Home, Qt::Key_End,
                               Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Space};
    if (std::ranges::find(moves, event->key()) != moves.end()) {
        ensureSelection();
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
    if (index.isValid() && !selectionModel()->isSelected(index)) {
        selectOnly(index.siblingAtColumn(currentIndex().isValid() ? currentIndex().column() : 0));
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
    header()->viewport()->update(); // which columns hold numbers may have changed
}

void ListView::rowsInserted(std::size_t /*first*/, std::size_t /*count*/) {
    afterChange();
}

void ListView::rowsRemoved(std::size_t /*first*/, std::size_t /*count*/) {
    afterChange();
}

void ListView::rowsReset() {
    showOrder();
    selectedRows_.restore();
    afterChange();
    showSelection();
}

void ListView::showOrder() {
    const auto& order = operations_.shell().pane().sortOrder();
    header()->setSortIndicator(order ? order->column : -1,
                               !order || order->ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

} // namespace desktop
