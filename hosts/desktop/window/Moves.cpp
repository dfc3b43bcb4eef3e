#include "hosts/desktop/window/Moves.h"

#include "hosts/desktop/look/Text.h"

#include <algorithm>
#include <utility>

namespace desktop {

using console::CSnapInItem;
using console::ScopeId;

Moves::Moves(Operations& operations, UndoBar& bar) : operations_(operations), bar_(bar) {
    operations_.onDrop = [this](const shell::Target& source, ScopeId to) { drop(source, to); };
}

Moves::~Moves() {
    operations_.onDrop = nullptr;
}

void Moves::say(const QString& text) const {
    if (onMessage) {
        onMessage(text);
    }
}

QString Moves::nameOf(ScopeId item) const {
    return oneLine(shell().tree().text(item));
}

ScopeId Moves::childLike(ScopeId parent, const CSnapInItem& node) const {
    const auto& tree = shell().tree();
    const auto children = tree.children(parent);
    const auto found = std::ranges::find_if(children, [&](ScopeId child) {
        const CSnapInItem& other = *tree.find(child)->node;
        return other.className() == node.className() && other.refreshKey() == node.refreshKey();
    });
    return found != children.end() ? *found : 0;
}

Moves::Move Moves::moveOf(std::shared_ptr<CSnapInItem> node, ScopeId to) const {
    const ScopeId item = node ? shell().scopeOf(*node) : 0;
    return {.node = std::move(node), .from = item != 0 ? shell().tree().parent(item) : 0, .to = to};
}

void Moves::drop(const shell::Target& source, ScopeId to) {
    const auto move = moveOf(shell().nodeOf(source), to);
    if (carryOut(move, [&](shell::Shell& console) { return console.drop(source, to); })) {
        offerUndo(move);
    }
}

void Moves::paste() {
    operations_.later([this] { pasteNow(); });
}

void Moves::pasteNow() {
    const auto target = shell().nodeOf(shell().selection());
    if (!target) {
        return;
    }
    const auto move = moveOf(shell().cutNode(), shell().scopeOf(*target));
    if (carryOut(move, &shell::Shell::paste)) {
        offerUndo(move);
    } else if (move.node && !shell().cutNode()) {
        operations_.perform([&](shell::Shell& console) {
            console.setCutNode(move.node);
            return true;
        });
    }
}

bool Moves::carryOut(const Move& move, const std::function<bool(shell::Shell&)>& work) {
    bar_.withdraw();
    const auto before = shell().selection();
    if (!operations_.performChange(work)) {
        return false;
    }
    // The nodes read only the new place again, and only if it is shown.
    operations_.perform([&](shell::Shell& console) { return console.select(move.to) && console.reread({move.from}); });
    const bool isThere = childLike(move.to, *move.node) != 0;
    operations_.perform([&](shell::Shell& console) {
        const auto* const row = isThere ? console.pane().findLike(*move.node) : nullptr;
        return isThere ? row != nullptr && console.selectRow(row->id)
                       : console.select(before.scope) && console.selectRow(before.row);
    });
    return isThere;
}

void Moves::offerUndo(const Move& move) {
    if (move.from == 0 || move.from == move.to) {
        return;
    }
    bar_.offer(QStringLiteral("Moved '%1' to '%2'.").arg(oneLine(move.node->displayName()), nameOf(move.to)),
               [this, move] { operations_.later([this, move] { moveBack(move); }); });
}

void Moves::moveBack(const Move& move) {
    const QString name = oneLine(move.node->displayName());
    const ScopeId item = childLike(move.to, *move.node);
    if (item == 0 || !shell().tree().contains(move.from)) {
        say(QStringLiteral("'%1' can't be moved back any more: something else has changed.").arg(name));
        return;
    }
    const Move back = moveOf(shell().nodeOf({item, 0}), move.from);
    if (carryOut(back, [&](shell::Shell& console) { return console.drop({item, 0}, move.from); })) {
        say(QStringLiteral("Moved '%1' back to '%2'.").arg(name, nameOf(move.from)));
    }
}

} // namespace desktop
