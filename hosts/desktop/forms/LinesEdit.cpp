#include "hosts/desktop/forms/LinesEdit.h"

namespace desktop {
namespace {

constexpr int linesHigh = 4;

} // namespace

QSize LinesEdit::sizeHint() const {
    const int margins = static_cast<int>(document()->documentMargin()) + frameWidth();
    return {minimumWidth(), fontMetrics().lineSpacing() * linesHigh + margins * 2};
}

} // namespace desktop
