#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

#include <QCheckBox>
#include <QDateTimeEdit>

namespace forms {
class DateTimePicker;
} // namespace forms

namespace desktop {

// A box in which a day, a time or both are picked; one that may have no value has a check box in front.
class DateTimeWidget final : public ControlWidget {
public:
    explicit DateTimeWidget(forms::DateTimePicker& picker);

    [[nodiscard]] std::vector<QWidget*> tabStops() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void update(forms::Aspect aspect) override;

private:
    void picked();

    forms::DateTimePicker& picker_;
    QDateTimeEdit* edit_;
    QCheckBox* set_ = nullptr; // null when there is always a value
};

} // namespace desktop
