#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>

#include <string>
#include <vector>

#include "ui/diagram/Leinwand.h"

/// What texts a picture has and where, found by painting it.
namespace zerna {

/// A text with the area of its line, which is a little higher than its letters.
struct Textkasten {
    QString text;
    QRectF box;
    double size = 0; ///< of the font, in pixels
};

/// A canvas that keeps nothing but the texts painted on it.
class Textaufnahme : public QPaintDevice {
public:
    explicit Textaufnahme(const QSize& size)
        : m_size(size)
    {
    }

    QPaintEngine* paintEngine() const override { return &m_engine; }
    const std::vector<Textkasten>& texts() const { return m_engine.texts; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        constexpr int Dpi = 96;
        switch (metric) {
        case PdmWidth:
            return m_size.width();
        case PdmHeight:
            return m_size.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return Dpi;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        case PdmDepth:
            return 24;
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    struct Engine : QPaintEngine {
        Engine()
            : QPaintEngine(AllFeatures)
        {
        }
        bool begin(QPaintDevice*) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState&) override { }
        void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override { }
        void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override { }
        void drawPath(const QPainterPath&) override { }
        void drawPolygon(const QPointF*, int, PolygonDrawMode) override { }
        Type type() const override { return User; }
        void drawTextItem(const QPointF& at, const QTextItem& item) override
        {
            const QRectF line(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent());
            texts.push_back(
                {item.text(), painter()->combinedTransform().mapRect(line), QFontInfo(item.font()).pixelSize() * 1.0});
        }

        std::vector<Textkasten> texts;
    };

    QSize m_size;
    mutable Engine m_engine;
};

inline std::vector<Textkasten> textkaesten(const Bildmaler& maler, const Leinwand& leinwand)
{
    Textaufnahme aufnahme(leinwand.size);
    QPainter painter(&aufnahme);
    maler(painter, leinwand);
    painter.end();
    return aufnahme.texts();
}

/// Names the texts that are cut off at the edge of the picture or touch another one; empty if none.
inline std::string schlechteTexte(const std::vector<Textkasten>& texts, const QSize& size)
{
    constexpr double Air = 1.5; // of a line above and below its letters
    const QRectF area = QRectF(QPointF(0, 0), size).adjusted(-0.5, -Air, 0.5, Air);
    std::string bad;
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        if (!area.contains(text->box))
            bad += "cut: " + text->text.toStdString() + "; ";
        const QRectF letters = text->box.adjusted(0, Air, 0, -Air);
        for (auto other = texts.begin(); other != text; ++other) {
            if (letters.intersects(other->box.adjusted(0, Air, 0, -Air)))
                bad += text->text.toStdString() + " on " + other->text.toStdString() + "; ";
        }
    }
    return bad;
}

} // namespace zerna
