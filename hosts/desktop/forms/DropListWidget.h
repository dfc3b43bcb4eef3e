#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

#include <QComboBox>

namespace console {
class DropList;
}

namespace desktop {

// A drop list of a form.
class DropListWidget final : public ControlWidget {
public:
    explicit DropListWidget(console::DropList& list);

    console::DropList& list() const { return list_; }

protected:
    void update(console::Aspect aspect) override;
    void refill() override;

private:
    void showSelection();

    console::DropList& list_;
    QComboBox* box_;
};

} // namespace desktop
