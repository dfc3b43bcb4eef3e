#pragma once

#include <QIconEngine>

#include <cstdint>

namespace desktop {

// The pictures of the window's own commands, drawn in the colour of its text, so that they are sharp at any scale and
// fit light and dark windows.
class GlyphIcon final : public QIconEngine {
public:
    enum class Glyph : std::uint8_t { back, forward, up, refresh, log, find, filter, exportList };

    static QIcon make(Glyph glyph);

    explicit GlyphIcon(Glyph glyph) : glyph_(glyph) {}
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QIconEngine* clone() const override { return new GlyphIcon(*this); }

private:
    Glyph glyph_;
};

} // namespace desktop
