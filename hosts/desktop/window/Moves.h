#pragma once

#include "hosts/desktop/activity/Operations.h"
#include "hosts/desktop/window/UndoBar.h"

#include <QString>

#include <memory>

namespace desktop {

// Moves regions and printers, by drag and drop or by cut and paste: shows what was moved in its new place, lets it
// leave the old one at once, and offers to move it back by the same commands. A move that the server has not carried
// out is not offered to be undone, and what was cut for it stays cut.
class Moves {
public:
    // Both outlive it.
    Moves(Operations& operations, UndoBar& bar);
    Moves(const Moves&) = delete;
    Moves& operator=(const Moves&) = delete;
    ~Moves();

    // Pastes on the selected item or row, like Operations::later.
    void paste();
    // Called with a message for the status bar.
    std::function<void(const QString&)> onMessage;

private:
    struct Move {
        std::shared_ptr<console::CSnapInItem> node;
        console::ScopeId from = 0; // what it was in
        console::ScopeId to = 0;
    };

    [[nodiscard]] const shell::Shell& shell() const { return operations_.shell(); }
    [[nodiscard]] QString nameOf(console::ScopeId item) const;
    // The item of the tree that stands for the same as the node; 0 when there is none.
    [[nodiscard]] console::ScopeId childLike(console::ScopeId parent, const console::CSnapInItem& node) const;
    [[nodiscard]] Move moveOf(std::shared_ptr<console::CSnapInItem> node, console::ScopeId to) const;
    void drop(const shell::Target& source, console::ScopeId to);
    void pasteNow();
    void moveBack(const Move& move);
    // Looks at what was moved, or goes on looking at what was selected before. False when it was not sent, or the
    // server has not carried it out.
    bool carryOut(const Move& move, const std::function<bool(shell::Shell&)>& work);
    void offerUndo(const Move& move);
    void say(const QString& text) const;

    Operations& operations_;
    UndoBar& bar_;
};

} // namespace desktop
