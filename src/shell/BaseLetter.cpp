#include "shell/BaseLetter.h"

#include <string_view>

namespace shell {
namespace {

// From U+00E0 to U+017F.
constexpr std::u16string_view letters = u"aaaaaaaceeeeiiiidnooooo\u00F7ouuuuyty"
                                        u"aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiiiiijjkkk"
                                        u"llllllllllnnnnnnnnnoooooooorrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs";
static_assert(letters.size() == 0x180 - 0xE0);

} // namespace

char16_t baseLetter(char16_t unit) {
    if (unit == u'\u00DF') {
        return u's';
    }
    return unit >= 0xE0 && unit < 0x180 ? letters[unit - 0xE0U] : unit;
}

} // namespace shell
