#pragma once

#include <QIconEngine>
#include <QString>

#include <map>
#include <memory>
#include <utility>

class QSvgRenderer;

namespace desktop {

// An icon drawn at any requested size from an SVG among the program's resources. Needs no plug-in.
class SvgIcon final : public QIconEngine {
public:
    // Empty when there is no such drawing.
    static QIcon make(const QString& path);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    bool isNull() override { return false; }
    [[nodiscard]] QIconEngine* clone() const override { return new SvgIcon(*this); }

private:
    explicit SvgIcon(std::shared_ptr<QSvgRenderer> drawing) : drawing_(std::move(drawing)) {}

    std::shared_ptr<QSvgRenderer> drawing_;
    std::map<std::pair<int, int>, QPixmap> drawn_; // by size and mode
};

} // namespace desktop
