#include "hosts/desktop/window/Panes.h"

#include "hosts/desktop/look/GlyphIcon.h"
#include "hosts/desktop/look/Text.h"
#include "hosts/desktop/window/StatusLine.h"

#include <QLabel>
#include <QVBoxLayout>

namespace desktop {
namespace {

constexpr int gap = 6;
constexpr int treeWidth = 270;
constexpr int listWidth = 730;
constexpr int filterWidth = 260;

} // namespace

Panes::Panes(Operations& operations, shell::Observers& observers, const IconStrips& icons, ViewSettings& settings,
             QWidget* parent)
    : QSplitter(Qt::Horizontal, parent),
      operations_(operations),
      treeModel_(operations, observers, icons),
      listModel_(operations, observers, icons),
      search_(new TreeSearchBar(operations)),
      tree_(new ScopeView(operations, observers, treeModel_)),
      path_(new PathBar),
      filter_(new FilterBar(operations, observers)),
      filterNote_(new QLabel),
      notice_(new NoticeBar),
      undo_(new UndoBar),
      list_(new ListView(operations, observers, listModel_, settings)) {
    setObjectName(QStringLiteral("panes"));
    setChildrenCollapsible(false);
    setHandleWidth(1);
    addWidget(treeSide());
    addWidget(listSide());
    setSizes({treeWidth, listWidth});
    setStretchFactor(0, 0);
    setStretchFactor(1, 1);
    search_->addAction(GlyphIcon::make(GlyphIcon::Glyph::find), QLineEdit::LeadingPosition);
    filter_->addAction(GlyphIcon::make(GlyphIcon::Glyph::filter), QLineEdit::LeadingPosition);
    search_->onLeave = [this] { tree_->setFocus(Qt::ShortcutFocusReason); };
    filter_->onLeave = [this] { list_->setFocus(Qt::ShortcutFocusReason); };
    list_->emptyText = [this] { return emptyText(); };
    filter_->onProblem = [this](const QString& problem) {
        filterNote_->setText(problem);
        filterNote_->setVisible(!problem.isEmpty());
    };
    QWidget::setTabOrder(search_, tree_);
    QWidget::setTabOrder(tree_, path_);
    QWidget::setTabOrder(path_, filter_);
    QWidget::setTabOrder(filter_, list_);
}

// Destroys the views before their models.
Panes::~Panes() {
    delete list_;
    delete tree_;
}

QWidget* Panes::treeSide() {
    auto* const side = new QWidget(this);
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* const line = new QHBoxLayout;
    line->setContentsMargins(gap, gap, gap, gap);
    line->addWidget(search_);
    layout->addLayout(line);
    layout->addWidget(tree_, 1);
    return side;
}

QWidget* Panes::listSide() {
    auto* const side = new QWidget(this);
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* const line = new QHBoxLayout;
    line->setContentsMargins(gap + 2, gap, gap, gap);
    filter_->setFixedWidth(filterWidth);
    line->addWidget(path_, 1);
    line->addWidget(filter_);
    layout->addLayout(line);
    filterNote_->setTextFormat(Qt::PlainText);
    filterNote_->setWordWrap(true);
    filterNote_->setAlignment(Qt::AlignRight);
    filterNote_->setContentsMargins(gap, 0, gap, gap);
    filterNote_->hide();
    layout->addWidget(filterNote_);
    layout->addWidget(notice_);
    layout->addWidget(undo_);
    layout->addWidget(list_, 1);
    return side;
}

void Panes::showPath() {
    const auto& tree = operations_.shell().tree();
    const auto path = tree.pathTo(operations_.shell().selection().scope);
    std::vector<PathBar::Step> steps;
    // The two fixed items at the top are left out unless one of them is shown.
    for (std::size_t place = path.size() > 2 ? 2 : 0; place < path.size(); ++place) {
        steps.push_back({path[place], oneLine(tree.text(path[place]))});
    }
    path_->setPath(std::move(steps));
}

QString Panes::emptyText() const {
    const auto& pane = operations_.shell().pane();
    if (operations_.shell().selection().scope == 0) {
        return {};
    }
    if (pane.unfilteredCount() > 0) {
        return QStringLiteral("The filter hides all of %1.\nClear it (Ctrl+F, Esc) to see them.")
            .arg(StatusLine::countText(pane.unfilteredCount(), pane.unfilteredCount()));
    }
    if (readingFailure && !readingFailure().isEmpty()) {
        return QStringLiteral("The list could not be read.");
    }
    if (!creators_.isEmpty()) {
        return QStringLiteral("There is nothing here yet.\nThe Action menu has: %1.")
            .arg(creators_.join(QStringLiteral(", ")));
    }
    return operations_.shell().header().columns().empty() ? QStringLiteral("There is nothing to list here.")
                                                          : QStringLiteral("There is nothing here yet.");
}

} // namespace desktop
