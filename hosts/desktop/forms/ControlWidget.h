#pragma once

#include "forms/Control.h"

#include <QLabel>

#include <functional>
#include <vector>

namespace forms {
class FormLabels;
} // namespace forms

namespace desktop {

// What stands on the screen for one control: shows what the form does to it and tells the form what the person does.
class ControlWidget : public QObject {
public:
    ControlWidget(const ControlWidget&) = delete;
    ControlWidget& operator=(const ControlWidget&) = delete;
    ~ControlWidget() override = default;

    // The box, list or button itself, which takes the keyboard.
    QWidget* widget() const { return widget_; }
    // What takes the place in the dialog: the same, or what holds it.
    QWidget* field() const { return field_; }
    // The label beside or above it; null where the widget shows its label itself, or there is none.
    QLabel* caption() const { return caption_; }
    // Everything that takes the keyboard, in the order of the Tab key.
    virtual std::vector<QWidget*> tabStops() const { return {widget_}; }
    // Its label, and those of its pages.
    virtual void showLabels(const forms::FormLabels& labels);
    // The form has changed this about the control.
    void mirror(forms::Aspect aspect);
    // Brings everything to the screen.
    void mirrorAll();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    explicit ControlWidget(forms::Control& control) : control_(control) {}

    // Once, by the constructor. With a caption when the control has a label that the widget does not show itself.
    void setUp(QWidget* widget, QWidget* field = nullptr);
    // Of a box that a person reads and writes texts in: about thirty characters.
    int comfortableWidth() const;
    // The label, with its access key marked.
    virtual void showLabel(const QString& text);
    virtual void update(forms::Aspect aspect) = 0;
    // What a screen reader calls it: a box without a label like what it stands beside.
    virtual wire::WideString spokenName() const;
    virtual void enable(bool enabled) { field_->setEnabled(enabled); }

    // True while the form's changes are brought to the screen: what the widget signals then is an echo.
    bool mirroring() const { return mirroring_; }
    void mirrored(const std::function<void()>& change);

    // For lists that a handler fills row by row: shows them once, when the handler is through. Until then the rows on
    // the screen may not be those of the form, and what the person does to them does not count.
    void refillSoon();
    bool stale() const { return stale_; }
    virtual void refill() {}

private:
    void addCaption();
    void refillNow();

    forms::Control& control_;
    QWidget* widget_ = nullptr;
    QWidget* field_ = nullptr;
    QLabel* caption_ = nullptr;
    bool mirroring_ = false;
    bool stale_ = false;
};

} // namespace desktop
