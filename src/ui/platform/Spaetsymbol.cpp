#include "ui/platform/Spaetsymbol.h"

#include <QIconEngine>
#include <QPainter>

#include <utility>

namespace zerna {

namespace {

class Spaetsymbol : public QIconEngine {
public:
    explicit Spaetsymbol(std::function<QIcon()> lies)
        : m_lies(std::move(lies))
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, mode, state);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override
    {
        return icon().pixmap(size / scale, scale, mode, state);
    }

    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().actualSize(size, mode, state);
    }

    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return icon().availableSizes(mode, state);
    }

    QIconEngine* clone() const override { return new Spaetsymbol(*this); }

private:
    const QIcon& icon()
    {
        if (m_icon.isNull())
            m_icon = m_lies();
        return m_icon;
    }

    std::function<QIcon()> m_lies;
    QIcon m_icon;
};

} // namespace

QIcon spaetesSymbol(std::function<QIcon()> lies) { return QIcon(new Spaetsymbol(std::move(lies))); }

} // namespace zerna
