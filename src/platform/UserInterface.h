#pragma once

#include "platform/WindowHandle.h"
#include "wire/Text.h"

#include <cstdint>
#include <functional>
#include <span>

namespace forms {
class Form;
} // namespace forms

namespace platform {

// Keys that handlers press on the user's behalf; the numbers are the platform's virtual key codes.
enum class Key : std::uint16_t { tab = 0x09, up = 0x26, down = 0x28, deleteKey = 0x2E, f5 = 0x74 };

// Styles of a message box: buttons, icon and other flags, added up. The numbers are the platform's MB_ values.
namespace boxStyle {
constexpr std::uint32_t ok = 0x00;
constexpr std::uint32_t okCancel = 0x01;
constexpr std::uint32_t yesNoCancel = 0x03;
constexpr std::uint32_t yesNo = 0x04;
constexpr std::uint32_t iconStop = 0x10; // also the platform's "error"
constexpr std::uint32_t iconQuestion = 0x20;
constexpr std::uint32_t iconWarning = 0x30; // also the platform's "exclamation"
constexpr std::uint32_t iconInformation = 0x40;
constexpr std::uint32_t secondIsDefault = 0x100; // Enter presses the second button, such as Cancel
constexpr std::uint32_t taskModal = 0x2000;      // blocks all windows of the program
constexpr std::uint32_t buttonMask = 0x0F;
constexpr std::uint32_t iconMask = 0xF0;
} // namespace boxStyle

// The answer given to a message box; the numbers are the platform's ID values.
enum class Answer : int { ok = 1, cancel = 2, yes = 6, no = 7 };

// What a host lends to nodes and forms to talk with the person at the screen. The login, which runs on a thread started
// by startThread, calls messageBox, runModal, press, setForeground and close; everything else comes from the console's
// own thread alone.
class UserInterface {
public:
    virtual ~UserInterface() = default;

    // Modal; returns one of the buttons that the style names. Escape means cancel, or no if there is no cancel.
    virtual Answer messageBox(WindowHandle owner, const wire::WideString& text, const wire::WideString& caption,
                              std::uint32_t style) = 0;

    // The same about an object that the text does not name, such as "Berlin" for "Delete the selected region?". A host
    // shows the name beneath the text; one that can't shows the text alone.
    virtual Answer messageBoxAbout(WindowHandle owner, const wire::WideString& /*object*/, const wire::WideString& text,
                                   const wire::WideString& caption, std::uint32_t style) {
        return messageBox(owner, text, caption, style);
    }

    // Shows the form until it ends: attaches itself as the form's observer, calls Form::open, reports what the user
    // does, detaches. Returns Form::result. Forms nest. May be called from a thread started by startThread.
    virtual int runModal(forms::Form& form, WindowHandle owner) = 0;

    // Presses the keys one after the other, each down and up, as one sequence. Acted on after the running handler has
    // returned. Sequences make the console read again what a command has changed: a host without a keyboard of its own
    // turns each sequence into one refresh of the current view, whatever its keys.
    virtual void press(std::span<const Key> keys) = 0;

    // Runs the work concurrently with the handler that started it. A host may run it later on its own thread instead.
    virtual void startThread(std::function<void()> work) = 0;

    // The owner for a modal form; 0 when the host has no window.
    virtual WindowHandle activeWindow() = 0;
    virtual void setForeground(WindowHandle window) = 0;
    // Asks the window to close, which ends the console when it is the main window.
    virtual void close(WindowHandle window) = 0;
};

} // namespace platform
