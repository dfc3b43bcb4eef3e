#include "hosts/desktop/list/FilterBar.h"

#include "hosts/desktop/look/SvgIcon.h"
#include "hosts/desktop/look/Text.h"

#include <QAction>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include <utility>

namespace desktop {
namespace {

QString textOf(const std::vector<shell::FilterProblem>& problems) {
    QStringList sentences;
    for (const auto& problem : problems) {
        sentences += oneLine(shell::describe(problem)) + QLatin1Char('.');
    }
    sentences.removeDuplicates();
    return sentences.join(QLatin1Char(' '));
}

} // namespace

FilterBar::FilterBar(Operations& operations, shell::Observers& observers, QWidget* parent)
    : QLineEdit(parent), operations_(operations), observers_(observers) {
    setAccessibleName(QStringLiteral("Filter the list"));
    setPlaceholderText(QStringLiteral("Filter this list (Ctrl+F)"));
    showProblem();
    setClearButtonEnabled(true);
    setMaxLength(1'000);
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!following_ && !std::exchange(asked_, true)) { // letters typed in quick succession are filtered once
            operations_.later([this] { filter(); });
        }
    });
    observers_.add(*this);
}

FilterBar::~FilterBar() {
    observers_.remove(*this);
}

void FilterBar::filter() {
    asked_ = false;
    const auto wanted = toWideString(text());
    operations_.perform([&](shell::Shell& console) {
        if (console.pane().filterText() != wanted) {
            console.filter(wanted);
        }
        return true;
    });
    // A row that is filtered out must not be changed by a key press.
    if (const auto row = operations_.shell().selection().row; row != 0 && !operations_.shell().pane().indexOf(row)) {
        operations_.perform([](shell::Shell& console) { return console.selectRow(0); });
    }
    showProblem();
    if (onFiltered) {
        onFiltered();
    }
}

void FilterBar::showProblem() {
    problem_ = textOf(operations_.shell().pane().filterProblems());
    if (problem_.isEmpty()) {
        delete std::exchange(mark_, nullptr);
    } else if (mark_ == nullptr) {
        mark_ = addAction(SvgIcon::make(QStringLiteral(":/icons/boxes/warning.svg")), QLineEdit::TrailingPosition);
    }
    if (mark_ != nullptr) {
        mark_->setText(problem_);
        mark_->setToolTip(plainToolTip(problem_));
    }
    const QString help = QStringLiteral("Shows only some rows, as in: laser  model:laser  jobs:>0  -location:\"\"");
    setToolTip(plainToolTip(problem_.isEmpty() ? help : problem_));
    setAccessibleDescription(problem_.isEmpty() ? help : problem_);
    if (onProblem) {
        onProblem(problem_);
    }
}

void FilterBar::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        if (text().isEmpty()) {
            break;
        }
        clear();
        event->accept();
        return;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (onLeave) {
            onLeave();
        }
        event->accept();
        return;
    default:
        break;
    }
    QLineEdit::keyPressEvent(event);
}

// The list of another node starts without a filter.
void FilterBar::selectionChanged() {
    const QString filter = toQString(operations_.shell().pane().filterText());
    if (!asked_ && text() != filter) {
        const QScopedValueRollback following(following_, true);
        setText(filter);
    }
    showProblem();
}

// The filter names columns.
void FilterBar::columnsChanged() {
    showProblem();
}

} // namespace desktop
