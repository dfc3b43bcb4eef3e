#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

#include <QGroupBox>

namespace forms {
class Group;
} // namespace forms

namespace desktop {

// A frame with a caption around controls that belong together.
class GroupWidget final : public ControlWidget {
public:
    explicit GroupWidget(forms::Group& group);

    [[nodiscard]] QWidget& surface() const { return *box_; }

protected:
    void showLabel(const QString& text) override { box_->setTitle(text); }
    void update(forms::Aspect /*aspect*/) override {}

private:
    QGroupBox* box_;
};

} // namespace desktop
