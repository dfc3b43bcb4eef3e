#pragma once

#include "hosts/desktop/list/ViewSettings.h"
#include "hosts/desktop/look/ColorScheme.h"

#include <QActionGroup>

#include <functional>

class QMenu;

namespace desktop {

// What the View menu offers for the look of the whole program: light or dark, which changes at once, and the scale,
// with which a program can only start. Both are remembered.
class LookChoices final : public QObject {
public:
    // It outlives this.
    explicit LookChoices(ViewSettings& settings);

    void addTo(QMenu& menu);
    std::function<void(const QString&)> onMessage;

    static ColorScheme savedLook(const ViewSettings& settings);
    // In percent; 100 unless the user has chosen another one.
    static int savedScale(const ViewSettings& settings);

private:
    void addLooks(QMenu& menu);
    void addScales(QMenu& menu);

    ViewSettings& settings_;
    QActionGroup looks_;
    QActionGroup scales_;
};

} // namespace desktop
