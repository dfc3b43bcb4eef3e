#pragma once

#include "shell/ListParts.h"

#include <QWidget>

#include <functional>
#include <vector>

class QToolButton;

namespace desktop {

// What the list holds ("3 with errors", "17 jobs"), each a button that filters the list by it. Those that don't fit
// into the width are left out from the end.
class PartButtons final : public QWidget {
public:
    explicit PartButtons(QWidget* parent = nullptr);

    // A button is down while the list's filter asks for its part.
    void setParts(const std::vector<shell::ListPart>& parts, const shell::ResultPane& pane);
    std::function<void(const shell::ListPart&)> onPressed;

    [[nodiscard]] const std::vector<QToolButton*>& buttons() const { return buttons_; }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void setCount(std::size_t count);
    void arrange();

    std::vector<shell::ListPart> parts_;
    std::vector<QToolButton*> buttons_; // as many as parts_
};

} // namespace desktop
