#include "hosts/desktop/list/ColumnLayout.h"

#include "hosts/desktop/look/Text.h"

#include <QEvent>
#include <QHeaderView>
#include <QMenu>
#include <QScopedValueRollback>

#include <algorithm>
#include <numeric>

namespace desktop {
namespace {

constexpr int automaticWidth = 120; // of a column without a width
constexpr int onlyWidth = 260;      // the least width of an only column
constexpr int leastWidth = 64;
constexpr int saveDelay = 400;            // milliseconds
constexpr std::size_t measuredRows = 100; // enough to tell, and quick
constexpr int widestContents = 420;       // for which a column asks by its texts
constexpr int cellMargins = 14;           // what a cell adds to its text
constexpr int iconWidth = 24;             // what the first column has in front of it

} // namespace

ColumnLayout::ColumnLayout(const Operations& operations, ViewSettings& settings, QHeaderView& header)
    : operations_(operations), settings_(settings), header_(header) {
    fittingSoon_.setSingleShot(true);
    fittingSoon_.callOnTimeout([this] {
        if (fitting_) {
            const QScopedValueRollback applying(applying_, true);
            fit();
        }
    });
    saving_.setSingleShot(true);
    saving_.setInterval(saveDelay);
    saving_.callOnTimeout([this] { save(); });
    connect(&header_, &QHeaderView::sectionResized, this, [this](int column, int /*before*/, int width) {
        if (width > 0) {
            widths_[column] = width;
        }
        changed();
    });
    connect(&header_, &QHeaderView::sectionMoved, this, [this] { changed(); });
    header_.installEventFilter(this);
}

ColumnLayout::~ColumnLayout() {
    if (saving_.isActive()) {
        save();
    }
}

QString ColumnLayout::key() const {
    const auto& shell = operations_.shell();
    const auto* const item = shell.tree().find(shell.selection().scope);
    if (item == nullptr || shell.header().columns().empty()) {
        return {};
    }
    QString key = toQString(std::string_view(item->node->className()));
    for (const auto& column : shell.header().columns()) {
        key += QLatin1Char(';') + oneLine(column.title);
    }
    return key.replace(QLatin1Char('/'), QLatin1Char(';')).replace(QLatin1Char('\\'), QLatin1Char(';'));
}

void ColumnLayout::apply() {
    if (saving_.isActive()) {
        save();
    }
    const QScopedValueRollback applying(applying_, true);
    applyDefaults();
    applied_ = key();
    if (applied_.isEmpty()) {
        return;
    }
    int place = 0;
    for (const auto& choice : settings_.columns(applied_)) {
        fitting_ = false;
        for (int column = 0; column < header_.count(); ++column) {
            if (header_.model()->headerData(column, Qt::Horizontal).toString() == choice.title) {
                widths_[column] = choice.width;
                header_.resizeSection(column, choice.width);
                header_.moveSection(header_.visualIndex(column), place++);
                setHidden(column, choice.hidden);
                break;
            }
        }
    }
}

void ColumnLayout::applyDefaults() {
    for (int column = 0; column < header_.count(); ++column) {
        header_.setSectionHidden(column, false);
        header_.moveSection(header_.visualIndex(column), column);
    }
    fitting_ = true;
    fit();
}

void ColumnLayout::rowsChanged() {
    if (fitting_) {
        fittingSoon_.start(0);
    }
}

int ColumnLayout::contentsWidth(int column) const {
    const auto& pane = operations_.shell().pane();
    const QFontMetrics metrics(header_.font());
    int widest = 0;
    for (std::size_t row = 0; row < std::min(pane.rowCount(), measuredRows); ++row) {
        widest = std::max(widest, metrics.horizontalAdvance(oneLine(pane.cell(row, column))));
    }
    return widest == 0 ? 0 : std::min(widest + cellMargins + (column == 0 ? iconWidth : 0), widestContents);
}

// Where there is little room, no column is wider than its texts and its title, and the texts matter more than the
// title.
std::vector<ColumnWish> ColumnLayout::wishes() const {
    const auto& columns = operations_.shell().header().columns();
    std::vector<ColumnWish> roomy;
    std::vector<ColumnWish> snug;
    std::vector<ColumnWish> tight;
    int needed = 0;
    int neededByTexts = 0;
    for (int column = 0; column < header_.count(); ++column) {
        const auto width = static_cast<std::size_t>(column) < columns.size()
                               ? columns[static_cast<std::size_t>(column)].width
                               : automaticWidth;
        const int own = std::max(width > 0 ? width : automaticWidth, header_.count() == 1 ? onlyWidth : 0);
        const int title = header_.sectionSizeHint(column);
        const int contents = contentsWidth(column);
        roomy.push_back({std::max({own, title, contents}), std::max({title, contents, leastWidth})});
        snug.push_back({std::max(title, contents), std::max(contents, leastWidth)});
        tight.push_back({std::max(own, contents), std::min(title, std::max(contents, leastWidth))});
        needed += roomy.back().least;
        neededByTexts += snug.back().least;
    }
    return needed <= header_.width() ? roomy : neededByTexts <= header_.width() ? snug : tight;
}

bool ColumnLayout::isToTheRight(int column) const {
    const int alignment = header_.model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
    return (static_cast<unsigned>(alignment) & Qt::AlignRight) != 0;
}

// The last column that does not hold numbers, which would be far away from the text to their left.
std::size_t ColumnLayout::roomiest() const {
    int column = header_.count() - 1;
    while (column > 0 && isToTheRight(column)) {
        --column;
    }
    return static_cast<std::size_t>(isToTheRight(column) ? header_.count() - 1 : column);
}

void ColumnLayout::fit() {
    auto widths = fittedWidths(wishes(), header_.width());
    if (!widths.empty()) {
        // The header goes on to the edge of the list.
        widths[roomiest()] += std::max(0, header_.width() - std::accumulate(widths.begin(), widths.end(), 0));
    }
    int column = 0;
    for (const int width : widths) {
        widths_[column] = width;
        header_.resizeSection(column++, width);
    }
}

// The list pane has become wider or narrower.
bool ColumnLayout::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && watched == &header_ && fitting_) {
        const QScopedValueRollback applying(applying_, true);
        fit();
    }
    return QObject::eventFilter(watched, event);
}

void ColumnLayout::reset() {
    saving_.stop();
    settings_.forgetColumns(applied_);
    const QScopedValueRollback applying(applying_, true);
    applyDefaults();
}

void ColumnLayout::showMenu(const QPoint& globalPosition) {
    QMenu menu(&header_);
    fill(menu);
    menu.exec(globalPosition);
}

QMenu* ColumnLayout::addMenu(QMenu& menu) {
    QMenu* const columns = menu.addMenu(QStringLiteral("C&olumns"));
    connect(columns, &QMenu::aboutToShow, this, [this, columns] {
        columns->clear();
        fill(*columns);
    });
    return columns;
}

void ColumnLayout::fill(QMenu& menu) {
    for (int place = 0; place < header_.count(); ++place) {
        const int column = header_.logicalIndex(place);
        const QString title = header_.model()->headerData(column, Qt::Horizontal).toString();
        QAction* const action = menu.addAction(QString(title).replace(QLatin1Char('&'), QStringLiteral("&&")));
        action->setCheckable(true);
        action->setChecked(!isHidden(column));
        action->setEnabled(isHidden(column) || header_.count() - header_.hiddenSectionCount() > 1);
        connect(action, &QAction::toggled, this, [this, column](bool shown) { setHidden(column, !shown); });
    }
    menu.addSeparator();
    connect(menu.addAction(QStringLiteral("&Reset Columns")), &QAction::triggered, this, [this] { reset(); });
}

bool ColumnLayout::isHidden(int column) const {
    return header_.isSectionHidden(column);
}

void ColumnLayout::setHidden(int column, bool hidden) {
    const bool isLast = header_.count() - header_.hiddenSectionCount() <= 1;
    if (hidden != isHidden(column) && !(hidden && isLast)) {
        header_.setSectionHidden(column, hidden);
        changed();
    }
}

void ColumnLayout::changed() {
    if (!applying_) {
        fitting_ = false;
        wanted_ = current(); // another list may be shown before it is saved
        saving_.start();
    }
}

std::vector<ColumnChoice> ColumnLayout::current() const {
    std::vector<ColumnChoice> columns;
    for (int place = 0; place < header_.count(); ++place) {
        const int column = header_.logicalIndex(place);
        const auto width = widths_.find(column); // a hidden column has none in the header
        columns.push_back({header_.model()->headerData(column, Qt::Horizontal).toString(),
                           width != widths_.end() ? width->second : automaticWidth, isHidden(column)});
    }
    return columns;
}

void ColumnLayout::save() {
    saving_.stop();
    if (!applied_.isEmpty() && !wanted_.empty()) {
        settings_.setColumns(applied_, wanted_);
    }
}

} // namespace desktop
