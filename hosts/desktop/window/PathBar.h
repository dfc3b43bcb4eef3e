#pragma once

#include "console/ItemFields.h"

#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QMenu;
class QToolButton;

namespace desktop {

class ElidedLabel;

// The path of the displayed list, "Printers › Berlin". Each name above the last is a button that goes there. In a
// narrow window the first names move into a menu; the last one, which matters most, always stays.
class PathBar final : public QWidget {
public:
    struct Step {
        console::ScopeId id = 0;
        QString name;

        friend bool operator==(const Step&, const Step&) = default;
    };

    explicit PathBar(QWidget* parent = nullptr);

    void setPath(std::vector<Step> path);
    // The names that fit, as displayed: "… › Berlin › Warehouse".
    [[nodiscard]] QString shownText() const;
    // The user wants to go to one of the steps above the last.
    std::function<void(console::ScopeId)> onChosen;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QToolButton* addButton(const QString& name);
    // How many of the first steps have no room.
    [[nodiscard]] std::size_t hiddenSteps() const;
    void arrange();
    void fillMenu();

    std::vector<Step> path_;
    QToolButton* more_; // opens the menu of the steps without room
    QMenu* menu_;
    std::vector<QToolButton*> buttons_; // one for each step above the last
    std::vector<QLabel*> separators_;   // one in front of each step but the first
    ElidedLabel* last_;
    std::size_t hidden_ = 0;
};

} // namespace desktop
