#include "tests/hosts/desktop/WindowFixture.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>

namespace desktoptest {
namespace {

// The texts by their access keys.
using TextsByKey = std::map<QString, QStringList>;

void add(TextsByKey& texts, const QString& text) {
    if (const QKeySequence key = QKeySequence::mnemonic(text); !key.isEmpty()) {
        texts[key.toString()] += text;
    }
}

void expectUnique(const TextsByKey& texts, const QString& where) {
    for (const auto& [key, sharing] : texts) {
        EXPECT_EQ(1, sharing.size()) << where.toStdString() << ", " << key.toStdString() << ": "
                                     << sharing.join(QStringLiteral(" | ")).toStdString();
    }
}

// Opens each menu, as some are filled only then. Returns how many there are.
int expectUniqueInMenus(const QList<QAction*>& entries, const QString& where) {
    TextsByKey texts;
    int menus = 0;
    for (const QAction* const entry : entries) {
        add(texts, entry->text());
        if (QMenu* const menu = entry->menu()) {
            emit menu->aboutToShow();
            menus += 1 + expectUniqueInMenus(menu->actions(), entry->text());
        }
    }
    expectUnique(texts, where);
    return menus;
}

using AccessKeys = WindowFixture;

TEST_F(AccessKeys, areGivenOnceInTheWindow) {
    open(QStringLiteral("Printers/München"));
    TextsByKey texts;
    for (const QAction* const menu : window().menuBar()->actions()) {
        add(texts, menu->text());
    }
    for (const auto* const button : window().findChildren<QAbstractButton*>()) {
        add(texts, button->text());
    }
    for (const auto* const label : window().findChildren<QLabel*>()) {
        add(texts, label->buddy() != nullptr ? label->text() : QString());
    }

    EXPECT_GE(texts.size(), 8U) << "six menus, and the buttons of the notice, shown or not";
    expectUnique(texts, QStringLiteral("window"));
}

TEST_F(AccessKeys, areGivenOnceInEachMenu) {
    open(QStringLiteral("Printers/München"));
    selectRow(QStringLiteral("MUC-003"));

    EXPECT_GE(expectUniqueInMenus(window().menuBar()->actions(), QStringLiteral("menu bar")), 10);
}

} // namespace
} // namespace desktoptest
