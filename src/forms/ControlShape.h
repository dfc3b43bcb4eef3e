#pragma once

#include <cstdint>

namespace forms {

class Control;

// How a control is placed among its neighbours.
enum class Place : std::uint8_t {
    row,    // a box with its label in front
    field,  // a box that carries its own label, in line with the other boxes
    block,  // as wide as the dialog, its label above it
    button, // side by side with others
};

// What a dialog's layout needs to know about a control, whatever its content.
struct ControlShape {
    Place place = Place::row;
    bool hasCaption = false; // its label is in front of it or above it, not on it
    bool takesKey = false;   // an access key in its label moves the focus to it
    bool grows = false;      // in height, if there is room
};

ControlShape shapeOf(Control& control);

} // namespace forms
