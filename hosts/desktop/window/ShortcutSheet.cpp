#include "hosts/desktop/window/ShortcutSheet.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <span>

namespace desktop {
namespace {

constexpr QSize naturalSheet{460, 520};

struct Key {
    const char* keys;
    const char* meaning;
};

// What Qt's views and dialogs do by themselves.
constexpr Key viewKeys[] = {
    {"Up, Down, Home, End, Page Up, Page Down", "Another row or item"},
    {"Right, Left", "Open or close an item of the tree"},
    {"Enter", "Open the selected row or its dialog"},
    {"Shift or Ctrl with these keys, Ctrl+Space", "Select several rows"},
    {"Any letters", "The next row or item that begins with them"},
    {"Shift+F10, Menu", "The menu of the selection"},
    {"Tab, Shift+Tab", "Between search, tree, path, filter and list"},
    {"Esc", "Leave the filter or the search, take back a cut, or cancel a dialog or a slow command"},
};
constexpr Key dialogKeys[] = {
    {"Tab, Shift+Tab", "The next or the previous control"},
    {"Alt and the underlined letter", "That control"},
    {"Alt+Down", "Open a drop-down list"},
    {"Enter", "OK"},
    {"Esc", "Cancel"},
};

QTreeWidgetItem* addGroup(QTreeWidget& sheet, const QString& name) {
    auto* const group = new QTreeWidgetItem(&sheet, {name});
    QFont bold = sheet.font();
    bold.setBold(true);
    group->setFont(0, bold);
    group->setFirstColumnSpanned(true);
    return group;
}

void addKeys(QTreeWidget& sheet, const QString& name, std::span<const Key> keys) {
    auto* const group = addGroup(sheet, name);
    for (const auto& [key, meaning] : keys) {
        new QTreeWidgetItem(group, {QString::fromUtf8(meaning), QString::fromUtf8(key)});
    }
}

void addMenu(QTreeWidget& sheet, const QMenu& menu) {
    QTreeWidgetItem* group = nullptr;
    for (const auto* const action : menu.actions()) {
        const auto keys = action->shortcut().toString(QKeySequence::NativeText);
        if (keys.isEmpty()) {
            continue;
        }
        if (group == nullptr) {
            group = addGroup(sheet, QString(menu.title()).remove(QLatin1Char('&')));
        }
        auto* const item = new QTreeWidgetItem(group, {action->iconText(), keys});
        item->setToolTip(0, action->statusTip());
    }
}

// So that no text is cut.
int widthOf(QTreeWidget& sheet) {
    int width = sheet.style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2 * sheet.frameWidth();
    for (int column = 0; column < sheet.columnCount(); ++column) {
        sheet.resizeColumnToContents(column);
        width += sheet.columnWidth(column);
    }
    return width;
}

} // namespace

ShortcutSheet::ShortcutSheet(const QMenuBar& menus, QWidget* parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("Keyboard Shortcuts"));
    auto* const sheet = new QTreeWidget(this);
    sheet->setAccessibleName(QStringLiteral("Keyboard shortcuts"));
    sheet->setHeaderLabels({QStringLiteral("Command"), QStringLiteral("Keys")});
    sheet->setRootIsDecorated(false);
    sheet->setItemsExpandable(false);
    for (const auto* const action : menus.actions()) {
        if (action->menu() != nullptr) {
            addMenu(*sheet, *action->menu());
        }
    }
    addKeys(*sheet, QStringLiteral("Tree and list"), viewKeys);
    addKeys(*sheet, QStringLiteral("Dialogs"), dialogKeys);
    sheet->expandAll();
    sheet->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    sheet->setMinimumWidth(widthOf(*sheet));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(sheet, 1);
    layout->addWidget(buttons);
    resize(naturalSheet);
}

} // namespace desktop
