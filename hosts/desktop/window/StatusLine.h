#pragma once

#include "hosts/desktop/activity/ListAge.h"
#include "hosts/desktop/look/ElidedLabel.h"
#include "hosts/desktop/window/PartButtons.h"

class QStatusBar;

namespace desktop {

// The status bar: how many rows there are, or a message for as long as there is one; how many of them are in which
// state, when they were read, and who is logged in where.
class StatusLine {
public:
    // All outlive it; the bar owns the labels.
    StatusLine(QStatusBar& bar, const Operations& operations, const ListAge& age);

    void update();
    // "5 of 120 rows" under a filter.
    static QString countText(std::size_t shown, std::size_t all, const QString& noun = QStringLiteral("row"));
    PartButtons& parts() { return *parts_; }

private:
    void showCount();

    const Operations& operations_;
    const ListAge& age_;
    shell::ListSummary summary_;
    std::optional<std::uint64_t> summarized_; // the revision of the rows that the summary is of
    QString message_;
    ElidedLabel* count_;
    PartButtons* parts_;
    ElidedLabel* readAt_;
    ElidedLabel* connection_;
};

} // namespace desktop
