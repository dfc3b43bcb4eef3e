#include "hosts/desktop/list/ListModel.h"

#include "hosts/desktop/look/Text.h"
#include "hosts/desktop/look/TextDelegate.h"
#include "hosts/desktop/tree/DragData.h"
#include "shell/NumberColumn.h"

#include <QIcon>
#include <QMimeData>

#include <algorithm>

namespace desktop {

using console::ResultId;
using console::ScopeId;

ListModel::ListModel(Operations& operations, shell::Observers& observers, const IconStrips& icons)
    : operations_(operations), observers_(observers), icons_(icons) {
    observers_.add(*this);
}

ListModel::~ListModel() {
    observers_.remove(*this);
}

ResultId ListModel::idOf(const QModelIndex& index) const {
    const auto row = static_cast<std::size_t>(index.row());
    return index.isValid() && row < pane().rowCount() ? pane().row(row).id : 0;
}

QModelIndex ListModel::indexOf(ResultId id) const {
    const auto place = id != 0 ? pane().indexOf(id) : std::nullopt;
    return place ? index(static_cast<int>(*place), 0) : QModelIndex();
}

shell::Target ListModel::targetOf(const QModelIndex& index) const {
    return {operations_.shell().selection().scope, idOf(index)};
}

ScopeId ListModel::scopeOf(const QModelIndex& index) const {
    if (idOf(index) == 0) {
        return 0;
    }
    const auto& row = pane().row(static_cast<std::size_t>(index.row()));
    return row.isScopeItem() ? row.scopeId() : operations_.shell().scopeOf(*row.node);
}

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(pane().rowCount());
}

int ListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(operations_.shell().header().columns().size());
}

wire::WideStringView ListModel::cell(const QModelIndex& index) const {
    return pane().cell(static_cast<std::size_t>(index.row()), index.column());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || static_cast<std::size_t>(index.row()) >= pane().rowCount()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return oneLine(cell(index));
    case Qt::EditRole:
        return toQString(cell(index));
    case Qt::ToolTipRole:
        return withRemarks(index, toQString(cell(index)));
    case Qt::AccessibleDescriptionRole:
        return withRemarks(index, {});
    case TextDelegate::cutRole:
        return isCut(index);
    case Qt::TextAlignmentRole:
        return alignmentOf(index.column());
    case Qt::DecorationRole:
        return index.column() == 0 ? iconOf(pane().row(static_cast<std::size_t>(index.row()))) : QVariant();
    default:
        return {};
    }
}

QVariant ListModel::iconOf(const shell::Row& row) const {
    const auto strip = operations_.shell().listImages().strip();
    const auto state = row.node->rowState();
    return icons_.iconOf(row.node->className(), strip, row.image, state ? state->severity : console::Severity::none);
}

// What the icon only shows is said in words: the state, and that the row is cut.
QString ListModel::withRemarks(const QModelIndex& index, const QString& text) const {
    QStringList lines;
    if (!text.isEmpty()) {
        lines += text;
    }
    const auto state = pane().row(static_cast<std::size_t>(index.row())).node->rowState();
    if (index.column() == 0 && state) {
        lines += toQString(console::describe(*state));
    }
    if (isCut(index)) {
        lines += cutText({});
    }
    return lines.join(QLatin1Char('\n'));
}

bool ListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const QString name = value.toString();
    if (role != Qt::EditRole || idOf(index) == 0 || name.isEmpty() || name == data(index, Qt::EditRole).toString()) {
        return false;
    }
    const auto target = targetOf(index);
    operations_.rename({.target = target, .name = toWideString(name)});
    operations_.later([this, target] { selectAgain(target); });
    return true;
}

bool ListModel::isCut(const QModelIndex& index) const {
    const auto& shell = operations_.shell();
    return shell.cutNode() != nullptr && shell.isCut(*pane().row(static_cast<std::size_t>(index.row())).node);
}

bool ListModel::holdsNumbers(int column) const {
    if (!numbers_) {
        numbers_.emplace();
        for (int each = 0; each < columnCount(); ++each) {
            numbers_->push_back(shell::holdsNumbers(pane(), each));
        }
    }
    const auto place = static_cast<std::size_t>(column);
    return place < numbers_->size() && (*numbers_)[place];
}

QVariant ListModel::alignmentOf(int column) const {
    return static_cast<int>((holdsNumbers(column) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

// The nodes leave the selection on the item of the tree.
void ListModel::selectAgain(const shell::Target& target) {
    operations_.perform([&](shell::Shell& console) {
        return console.selection() == shell::Target{target.scope, 0} && console.pane().indexOf(target.row) &&
               console.selectRow(target.row);
    });
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const auto& columns = operations_.shell().header().columns();
    if (orientation != Qt::Horizontal || section < 0 || static_cast<std::size_t>(section) >= columns.size()) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return alignmentOf(section);
    }
    return role == Qt::DisplayRole ? QVariant(oneLine(columns[static_cast<std::size_t>(section)].title)) : QVariant();
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled |
                          Qt::ItemNeverHasChildren;
    const auto& shell = operations_.shell();
    if (index.column() == 0 && shell.selection().row != 0 && shell.selection().row == idOf(index) &&
        shell.canRename()) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}

QStringList ListModel::mimeTypes() const {
    return {QString::fromLatin1(dragFormat)};
}

QMimeData* ListModel::mimeData(const QModelIndexList& indexes) const {
    if (indexes.isEmpty()) {
        return nullptr;
    }
    const auto first = indexes.front().siblingAtColumn(0);
    if (std::ranges::any_of(indexes, [&](const QModelIndex& index) { return index.row() != first.row(); })) {
        return nullptr; // the nodes take one at a time
    }
    return makeDragData(targetOf(first), toQString(cell(first)));
}

bool ListModel::canDropMimeData(const QMimeData* data, Qt::DropAction /*action*/, int row, int /*column*/,
                                const QModelIndex& parent) const {
    const auto source = draggedTarget(data);
    const ScopeId id = row < 0 ? scopeOf(parent) : 0;
    return source && id != 0 &&
           operations_.perform([&](shell::Shell& console) { return console.canDrop(*source, id); });
}

bool ListModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                             const QModelIndex& parent) {
    if (!canDropMimeData(data, action, row, column, parent)) {
        return false;
    }
    operations_.drop(*draggedTarget(data), scopeOf(parent));
    return true;
}

void ListModel::announceChange() {
    numbers_.reset();
    if (onAboutToChange) {
        onAboutToChange();
    }
}

void ListModel::columnsChanged() {
    announceChange();
    beginResetModel();
    endResetModel();
}

void ListModel::rowsAboutToBeInserted(std::size_t first, std::size_t count) {
    announceChange();
    beginInsertRows({}, static_cast<int>(first), static_cast<int>(first + count) - 1);
}

void ListModel::rowsInserted(std::size_t /*first*/, std::size_t /*count*/) {
    endInsertRows();
}

void ListModel::rowsAboutToBeRemoved(std::size_t first, std::size_t count) {
    announceChange();
    beginRemoveRows({}, static_cast<int>(first), static_cast<int>(first + count) - 1);
}

void ListModel::rowsRemoved(std::size_t /*first*/, std::size_t /*count*/) {
    endRemoveRows();
}

void ListModel::rowsChanged(std::size_t first, std::size_t count) {
    numbers_.reset();
    if (columnCount() > 0) {
        emit dataChanged(index(static_cast<int>(first), 0),
                         index(static_cast<int>(first + count) - 1, columnCount() - 1));
    }
}

void ListModel::rowsAboutToBeReset() {
    announceChange();
    beginResetModel();
}

void ListModel::rowsReset() {
    endResetModel();
}

} // namespace desktop
