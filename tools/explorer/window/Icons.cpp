#include "Icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace explorer {
namespace {

constexpr const char* kStandInColour = "#777777";

class PaletteIcon : public QIconEngine {
public:
    explicit PaletteIcon(QByteArray drawing) : m_drawing(std::move(drawing)) {}

    void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        QByteArray drawing = m_drawing;
        drawing.replace(kStandInColour, QGuiApplication::palette().color(group, role).name().toLatin1());
        QSvgRenderer(drawing).render(painter, area);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new PaletteIcon(*this); }

private:
    const QByteArray m_drawing;
};

}  // namespace

QIcon Icon(const char* name)
{
    QFile file(QStringLiteral(":/explorer/icons/%1.svg").arg(QLatin1String(name)));
    file.open(QIODevice::ReadOnly);
    return QIcon(new PaletteIcon(file.readAll()));
}

}  // namespace explorer
