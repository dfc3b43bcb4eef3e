#pragma once

#include <QDateTimeEdit>

namespace desktop {

// A box for a day or a time that takes it as people write it: "12:30:15 PM". Qt goes on to the next part by itself once
// a part is full, and would take the separator that is typed then as a wish to go on by one more.
class TypedDateTimeEdit final : public QDateTimeEdit {
public:
    using QDateTimeEdit::QDateTimeEdit;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    bool wentOn_ = false; // the last key filled a part
};

} // namespace desktop
