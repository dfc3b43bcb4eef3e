#pragma once

#include <cstdint>

namespace forms {

class Control;

// Where a control stands among its neighbours.
enum class Place : std::uint8_t {
    row,    // a box with its label in front
    field,  // a box that says itself what it is, in line with the boxes
    block,  // as wide as the dialog, its label above it
    button, // side by side with others
};

// What a dialog's layout needs to know of a control, whatever it holds.
struct ControlShape {
    Place place = Place::row;
    bool hasCaption = false; // its label stands in front of it or above it, not on it
    bool takesKey = false;   // an access key in its label takes the keyboard to it
    bool grows = false;      // in height, where there is room
};

ControlShape shapeOf(Control& control);

} // namespace forms
