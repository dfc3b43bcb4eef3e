#include "hosts/desktop/activity/ActivityDock.h"

#include "hosts/desktop/look/TextDelegate.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTreeView>

#include <array>

namespace desktop {

ActivityDock::ActivityDock(ActivityLog& log, QWidget* parent)
    : QDockWidget(QStringLiteral("Activity Log"), parent), model_(log), view_(new QTreeView(this)) {
    setObjectName(QStringLiteral("activityLog"));
    view_->setAccessibleName(QStringLiteral("Activity log"));
    view_->setModel(&model_);
    view_->header()->setAccessibleName(QStringLiteral("Activity log columns"));
    view_->setItemDelegate(new TextDelegate(view_));
    view_->setRootIsDecorated(false);
    view_->setItemsExpandable(false);
    view_->setUniformRowHeights(true);
    view_->setAllColumnsShowFocus(true);
    view_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view_->setFrameShape(QFrame::NoFrame);
    view_->setContextMenuPolicy(Qt::ActionsContextMenu);
    constexpr std::array widths{15, 20, 16, 18, 10, 13, 16, 10, 30}; // in letters
    const int letter = fontMetrics().averageCharWidth();
    for (std::size_t column = 0; column < widths.size(); ++column) {
        view_->header()->resizeSection(static_cast<int>(column), letter * widths[column] + 12);
    }

    auto* const copy = new QAction(QStringLiteral("&Copy"), view_);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, [this] { copySelected(); });
    auto* const clear = new QAction(QStringLiteral("C&lear"), view_);
    connect(clear, &QAction::triggered, this, [&log] { log.clear(); });
    view_->addActions({copy, clear});

    const auto atEnd = std::make_shared<bool>(true);
    connect(&model_, &QAbstractItemModel::rowsAboutToBeInserted, this,
            [this, atEnd] { *atEnd = view_->verticalScrollBar()->value() >= view_->verticalScrollBar()->maximum(); });
    connect(
        &model_, &QAbstractItemModel::rowsInserted, this,
        [this, atEnd] {
            if (*atEnd) {
                view_->scrollToBottom();
            }
        },
        Qt::QueuedConnection);
    setWidget(view_);
}

void ActivityDock::copySelected() const {
    QStringList lines;
    auto rows = view_->selectionModel()->selectedRows();
    std::ranges::sort(rows, {}, &QModelIndex::row);
    for (const auto& row : rows) {
        QStringList cells;
        for (int column = 0; column < model_.columnCount(); ++column) {
            cells += row.siblingAtColumn(column).data().toString();
        }
        lines += cells.join(QLatin1Char('\t'));
    }
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

} // namespace desktop
