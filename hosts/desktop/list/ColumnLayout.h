#pragma once

#include "hosts/desktop/activity/Operations.h"
#include "hosts/desktop/list/FittedWidths.h"
#include "hosts/desktop/list/ViewSettings.h"

#include <QTimer>

#include <unordered_map>
#include <vector>

class QHeaderView;
class QMenu;
class QPoint;

namespace desktop {

// The columns of the list as the user arranged them: which, in what order and how wide, remembered for each class of
// node and each set of columns that it has. Until the user changes them, all of them fit into the view and fill it, and
// those whose texts are long get the room that others do not need.
class ColumnLayout final : public QObject {
public:
    // All outlive it. The header is the list's.
    ColumnLayout(const Operations& operations, ViewSettings& settings, QHeaderView& header);
    ~ColumnLayout() override;

    // Call when the list has other columns, or shows another node.
    void apply();
    // Call when the list has other rows.
    void rowsChanged();
    // Resets the columns to those that the node asks for.
    void reset();
    // Lets the user choose the visible columns.
    void showMenu(const QPoint& globalPosition);
    // The same as a menu within another one, which always has the columns of the list shown.
    QMenu* addMenu(QMenu& menu);
    bool isHidden(int column) const;
    // The last visible column can't be hidden.
    void setHidden(int column, bool hidden);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fill(QMenu& menu);
    QString key() const;
    void applyDefaults();
    void fit();
    [[nodiscard]] std::vector<ColumnWish> wishes() const;
    [[nodiscard]] bool isToTheRight(int column) const;
    // The column that gets the room that no column asks for.
    [[nodiscard]] std::size_t roomiest() const;
    // The widest text among the first rows, in pixels.
    [[nodiscard]] int contentsWidth(int column) const;
    void changed();
    std::vector<ColumnChoice> current() const;
    void save();

    const Operations& operations_;
    ViewSettings& settings_;
    QHeaderView& header_;
    QTimer fittingSoon_;                  // rows come one after the other
    QTimer saving_;                       // a drag changes a width hundreds of times
    QString applied_;                     // the list whose columns these are
    std::vector<ColumnChoice> wanted_;    // what is to be saved
    std::unordered_map<int, int> widths_; // by column, whether it is hidden or not
    bool applying_ = false;
    bool fitting_ = false; // the node's own columns, fitted into the available width
};

} // namespace desktop
