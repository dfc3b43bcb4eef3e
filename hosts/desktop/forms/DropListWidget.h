#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

#include <QComboBox>

namespace forms {
class DropList;
} // namespace forms

namespace desktop {

// A drop list of a form.
class DropListWidget final : public ControlWidget {
public:
    explicit DropListWidget(forms::DropList& list);

    [[nodiscard]] forms::DropList& list() const { return list_; }

protected:
    void update(forms::Aspect aspect) override;
    void refill() override;

private:
    void showSelection();

    forms::DropList& list_;
    QComboBox* box_;
};

} // namespace desktop
