#include "hosts/desktop/tree/ScopeModel.h"

#include "hosts/desktop/look/Text.h"
#include "hosts/desktop/look/TextDelegate.h"
#include "hosts/desktop/tree/DragData.h"

#include <QIcon>
#include <QMimeData>

namespace desktop {

using console::ScopeId;

ScopeModel::ScopeModel(Operations& operations, shell::Observers& observers, const IconStrips& icons)
    : operations_(operations), observers_(observers), icons_(icons) {
    observers_.add(*this);
    noticeRoot();
}

ScopeModel::~ScopeModel() {
    observers_.remove(*this);
}

void ScopeModel::noticeRoot() {
    if (!hasRoot_ && tree().root() != 0) {
        beginInsertRows({}, 0, 0);
        hasRoot_ = true;
        endInsertRows();
    }
}

int ScopeModel::rowOf(ScopeId id) const {
    const auto siblings = tree().children(tree().parent(id));
    if (lastRow_ >= siblings.size() || siblings[lastRow_] != id) {
        lastRow_ = tree().indexInParent(id);
    }
    return static_cast<int>(lastRow_);
}

QModelIndex ScopeModel::indexOf(ScopeId id) const {
    if (id == 0 || !hasRoot_ || !tree().contains(id)) {
        return {};
    }
    if (id == tree().root()) {
        return createIndex(0, 0, static_cast<quintptr>(id));
    }
    const int row = rowOf(id);
    const bool shown = static_cast<std::size_t>(row) < tree().children(tree().parent(id)).size();
    return shown ? createIndex(row, 0, static_cast<quintptr>(id)) : QModelIndex();
}

QModelIndex ScopeModel::index(int row, int column, const QModelIndex& parent) const {
    if (row < 0 || column != 0 || row >= rowCount(parent)) {
        return {};
    }
    const ScopeId id = parent.isValid() ? tree().children(idOf(parent))[static_cast<std::size_t>(row)] : tree().root();
    return createIndex(row, 0, static_cast<quintptr>(id));
}

QModelIndex ScopeModel::parent(const QModelIndex& index) const {
    return index.isValid() ? indexOf(tree().parent(idOf(index))) : QModelIndex();
}

int ScopeModel::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid()) {
        return hasRoot_ ? 1 : 0;
    }
    return static_cast<int>(tree().children(idOf(parent)).size());
}

int ScopeModel::columnCount(const QModelIndex& /*parent*/) const {
    return 1;
}

bool ScopeModel::hasChildren(const QModelIndex& parent) const {
    return parent.isValid() ? tree().mayHaveChildren(idOf(parent)) : hasRoot_;
}

QVariant ScopeModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const ScopeId id = idOf(index);
    switch (role) {
    case Qt::DisplayRole:
        return oneLine(tree().text(id));
    case Qt::EditRole:
        return toQString(tree().text(id));
    case Qt::ToolTipRole:
        return isCut(id) ? cutText(toQString(tree().text(id))) : toQString(tree().text(id));
    case Qt::AccessibleDescriptionRole:
        return isCut(id) ? QVariant(cutText({})) : QVariant();
    case TextDelegate::cutRole:
        return isCut(id);
    case Qt::DecorationRole:
        return iconOf(id);
    default:
        return {};
    }
}

bool ScopeModel::isCut(ScopeId id) const {
    const auto& shell = operations_.shell();
    return shell.cutNode() != nullptr && shell.isCut(*tree().find(id)->node);
}

QIcon ScopeModel::iconOf(ScopeId id) const {
    const auto* const item = tree().find(id);
    return item == nullptr
               ? QIcon()
               : icons_.iconOf(item->node->className(), operations_.shell().scopeImages().strip(), tree().image(id));
}

bool ScopeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const QString name = value.toString();
    if (role != Qt::EditRole || !index.isValid() || name.isEmpty() || name == data(index, Qt::EditRole).toString()) {
        return false;
    }
    operations_.rename({.target = {.scope = idOf(index)}, .name = toWideString(name)});
    return true;
}

Qt::ItemFlags ScopeModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
    if (!tree().mayHaveChildren(idOf(index))) {
        flags |= Qt::ItemNeverHasChildren;
    }
    if (operations_.shell().selection() == shell::Target{idOf(index), 0} && operations_.shell().canRename()) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}

QStringList ScopeModel::mimeTypes() const {
    return {QString::fromLatin1(dragFormat)};
}

QMimeData* ScopeModel::mimeData(const QModelIndexList& indexes) const {
    if (indexes.isEmpty()) {
        return nullptr;
    }
    const ScopeId id = idOf(indexes.front());
    return makeDragData({id, 0}, toQString(tree().text(id)));
}

bool ScopeModel::canDropMimeData(const QMimeData* data, Qt::DropAction /*action*/, int row, int /*column*/,
                                 const QModelIndex& parent) const {
    const auto source = draggedTarget(data);
    return source && row < 0 && parent.isValid() &&
           operations_.perform([&](shell::Shell& console) { return console.canDrop(*source, idOf(parent)); });
}

bool ScopeModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                              const QModelIndex& parent) {
    if (!canDropMimeData(data, action, row, column, parent)) {
        return false;
    }
    operations_.drop(*draggedTarget(data), idOf(parent));
    return true;
}

void ScopeModel::scopeItemsAboutToBeInserted(ScopeId parent, std::size_t first, std::size_t count) {
    noticeRoot();
    beginInsertRows(indexOf(parent), static_cast<int>(first), static_cast<int>(first + count) - 1);
}

void ScopeModel::scopeItemsInserted(ScopeId /*parent*/, std::size_t /*first*/, std::size_t /*count*/) {
    endInsertRows();
}

void ScopeModel::scopeItemsAboutToBeRemoved(ScopeId parent, std::size_t first, std::size_t count) {
    beginRemoveRows(indexOf(parent), static_cast<int>(first), static_cast<int>(first + count) - 1);
}

void ScopeModel::scopeItemsRemoved(ScopeId /*parent*/, std::size_t /*first*/, std::size_t /*count*/) {
    endRemoveRows();
}

void ScopeModel::scopeItemChanged(ScopeId item) {
    if (const auto index = indexOf(item); index.isValid()) {
        emit dataChanged(index, index);
    }
}

void ScopeModel::scopeItemOpened(ScopeId item, bool /*open*/) {
    noticeRoot();
    scopeItemChanged(item); // it may have another icon while it is open
}

} // namespace desktop
