#pragma once

namespace shell {

// The letter under which people look for a letter of the Latin alphabets when they read a sorted list: "e" for "é", "l"
// for "ł". Other units are returned unchanged. Takes and returns lower case.
char16_t baseLetter(char16_t unit);

} // namespace shell
