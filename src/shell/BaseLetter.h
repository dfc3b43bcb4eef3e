#pragma once

namespace shell {

// The letter under which people look for a letter of the Latin alphabets when they read a sorted list: "e" for "é", "l"
// for "ł". Other units are their own. Takes and gives lower case.
char16_t baseLetter(char16_t unit);

} // namespace shell
