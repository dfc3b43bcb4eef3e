#pragma once

#include "forms/Control.h"

#include <QLabel>

#include <functional>
#include <vector>

namespace forms {
class FormLabels;
} // namespace forms

namespace desktop {

// The widget of one control: shows what the form does to the control and tells the form what the user does.
class ControlWidget : public QObject {
public:
    ControlWidget(const ControlWidget&) = delete;
    ControlWidget& operator=(const ControlWidget&) = delete;
    ~ControlWidget() override = default;

    // The box, list or button itself, which takes the keyboard.
    [[nodiscard]] QWidget* widget() const { return widget_; }
    // The widget that is placed in the dialog: the same one, or its container.
    [[nodiscard]] QWidget* field() const { return field_; }
    // The label beside or above it; null when the widget shows its label itself, or there is none.
    [[nodiscard]] QLabel* caption() const { return caption_; }
    // All widgets that take the keyboard focus, in Tab order.
    [[nodiscard]] virtual std::vector<QWidget*> tabStops() const { return {widget_}; }
    // Its label, and those of its pages.
    virtual void showLabels(const forms::FormLabels& labels);
    // The form has changed this about the control.
    void mirror(forms::Aspect aspect);
    // Mirrors everything but whether it is visible.
    void mirrorContent();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    explicit ControlWidget(forms::Control& control) : control_(control) {}

    // Called once, by the constructor. Makes a caption if the control has a label that the widget does not show itself.
    void setUp(QWidget* widget, QWidget* field = nullptr);
    // The width of a box for reading and typing text: about thirty characters.
    [[nodiscard]] int comfortableWidth() const;
    // The label, with its access key marked.
    virtual void showLabel(const QString& text);
    virtual void update(forms::Aspect aspect) = 0;
    // The name for screen readers: a box without a label goes by the label of the control that it is beside.
    [[nodiscard]] virtual wire::WideString spokenName() const;
    virtual void enable(bool enabled) { field_->setEnabled(enabled); }

    // True while the form's changes are being mirrored: the widget's signals are then only an echo.
    [[nodiscard]] bool mirroring() const { return mirroring_; }
    void mirrored(const std::function<void()>& change);

    // For lists that a handler fills row by row: shows them once, when the handler has returned. Until then the
    // displayed rows may not be those of the form, and input on them is ignored.
    void refillSoon();
    [[nodiscard]] bool stale() const { return stale_; }
    virtual void refill() {}

private:
    void addCaption();
    void show(QWidget* widget) const;
    void refillNow();

    forms::Control& control_;
    QWidget* widget_ = nullptr;
    QWidget* field_ = nullptr;
    QLabel* caption_ = nullptr;
    bool mirroring_ = false;
    bool stale_ = false;
};

} // namespace desktop
