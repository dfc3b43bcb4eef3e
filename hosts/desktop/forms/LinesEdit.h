#pragma once

#include <QPlainTextEdit>

namespace desktop {

// A box for a few lines of text, which grows if there is room.
class LinesEdit final : public QPlainTextEdit {
public:
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
};

} // namespace desktop
