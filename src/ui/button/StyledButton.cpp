#include "ui/button/StyledButton.h"

#include <QApplication>
#include <QEvent>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>
#include <cmath>
#include <vector>

#include "ui/platform/Kontrast.h"

namespace zerna {

namespace {

constexpr const char* ApplicationThemeProperty = "zernaButtonTheme";
constexpr int PictureGap = 6; // between picture and caption
constexpr int SmallestMargin = 2; // between frame and content of a button that is too small
constexpr qreal FocusGap = 1; // between frame and focus ring
constexpr qreal FocusWidth = 1;

struct CaptionLayer {
    int offset; ///< to the right and down, in steps of about one logical pixel
    QColor colour;
};

/// Copies of the caption from back to front; the last is the caption itself.
std::vector<CaptionLayer> captionLayers(StyledButton::CaptionEffect effect, const QColor& text)
{
    // Behind light text a light edge would only blur it, and so would a dark edge behind dark text.
    const bool lightText = textOn(text) == QColor(Qt::black);
    const QColor light(255, 255, 255, lightText ? 60 : 255);
    const QColor shade(0, 0, 0, lightText ? 180 : 55);
    switch (effect) {
    case StyledButton::CaptionEffect::Raised:
        return {{-1, light}, {1, shade}, {0, text}};
    case StyledButton::CaptionEffect::Engraved:
        return {{-1, shade}, {1, light}, {0, text}};
    case StyledButton::CaptionEffect::Shadow:
        return {{2, QColor(0, 0, 0, shade.alpha() / 2)}, {1, shade}, {0, text}};
    case StyledButton::CaptionEffect::None:
        break;
    }
    return {{0, text}};
}

QString elidedLines(const QString& caption, const QFontMetrics& metrics, int width)
{
    QStringList lines = caption.split(u'\n');
    for (QString& line : lines) {
        // The toolkit measures a mnemonic differently when it elides, so it must not elide what fits.
        if (metrics.size(Qt::TextShowMnemonic, line).width() > width)
            line = metrics.elidedText(line, Qt::ElideRight, width, Qt::TextShowMnemonic);
    }
    return lines.join(u'\n');
}

/// Looked for once: asking the toolkit for a family that is missing costs a search each time.
const QStringList& captionFamilies()
{
    static const QStringList families = QFontDatabase::families().contains(QStringLiteral("Tahoma"))
        ? QStringList{QStringLiteral("Tahoma")}
        : QStringList();
    return families;
}

/// Most buttons have the palette of the one before.
const ButtonTheme& themeOf(const QPalette& palette)
{
    static qint64 key = palette.cacheKey();
    static ButtonTheme theme = themeFromPalette(palette);
    if (key != palette.cacheKey()) {
        key = palette.cacheKey();
        theme = themeFromPalette(palette);
    }
    return theme;
}

QString toHtml(const QString& plain) { return plain.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")); }

} // namespace

FrameGeometry layOutFrame(const QRectF& area, qreal lineWidth, qreal devicePixelRatio, const QPointF& deviceOrigin)
{
    constexpr qreal Rounding = 1e-6; // 0.1 · 3 pixels must not count as a begun one
    const auto up = [](qreal pixel) { return std::ceil(pixel - Rounding); };
    const auto down = [](qreal pixel) { return std::floor(pixel + Rounding); };
    // Inwards: what lies outside the widget's area may be cut off.
    const QRectF device(QPointF(up(area.left() * devicePixelRatio + deviceOrigin.x()),
                            up(area.top() * devicePixelRatio + deviceOrigin.y())),
        QPointF(down(area.right() * devicePixelRatio + deviceOrigin.x()),
            down(area.bottom() * devicePixelRatio + deviceOrigin.y())));
    const qreal line = std::max(1.0, std::round(lineWidth * devicePixelRatio));
    const auto toLogical = [&](const QRectF& rect) {
        const QRectF moved = rect.translated(-deviceOrigin);
        return QRectF(moved.topLeft() / devicePixelRatio, moved.bottomRight() / devicePixelRatio);
    };
    return {toLogical(device), toLogical(device.adjusted(line, line, -line, -line))};
}

ContentGeometry layOutContent(const QRect& area, const QSize& picture, const QSize& caption)
{
    const int gap = picture.isEmpty() || caption.isEmpty() ? 0 : PictureGap;
    const int captionWidth = std::clamp(area.width() - picture.width() - gap, 0, caption.width());
    const int left = area.left() + (area.width() - picture.width() - gap - captionWidth) / 2;
    const int pictureTop = area.top() + (area.height() - picture.height()) / 2;
    return {QRect(QPoint(left, pictureTop), picture),
        QRect(left + picture.width() + gap, area.top(), captionWidth, caption.isEmpty() ? 0 : area.height())};
}

StyledButton::StyledButton(QWidget* parent)
    : StyledButton(QString(), parent)
{
}

StyledButton::StyledButton(const QString& caption, QWidget* parent)
    : QAbstractButton(parent)
{
    setAttribute(Qt::WA_Hover); // not every style sets it
    QFont font; // Only the families are set: size and weight still come from the parent.
    font.setFamilies(captionFamilies() + QApplication::font().families());
    setFont(font);
    setText(caption);
    refreshTheme();
}

void StyledButton::setToolTipText(const QString& text, const QString& title)
{
    QString html;
    if (!title.isEmpty())
        html += QStringLiteral("<p style='white-space:pre'><b>%1</b></p>").arg(toHtml(title));
    if (!text.isEmpty())
        html += QStringLiteral("<p>%1</p>").arg(toHtml(text));
    setToolTip(html);
    // Without it a screen reader would read out the tags.
    setAccessibleDescription(title.isEmpty() || text.isEmpty() ? title + text : title + u'\n' + text);
}

void StyledButton::setPicture(ButtonState state, const QIcon& picture)
{
    const QIcon before = state == ButtonState::Normal ? icon() : m_pictures[state];
    if (before.cacheKey() == picture.cacheKey())
        return;
    if (state == ButtonState::Normal) {
        setIcon(picture);
        return;
    }
    m_pictures[state] = picture;
    updateGeometry();
    update();
}

void StyledButton::setCaptionEffect(CaptionEffect effect)
{
    if (m_captionEffect == effect)
        return;
    m_captionEffect = effect;
    update();
}

void StyledButton::setApplicationTheme(const std::optional<ButtonTheme>& theme)
{
    qApp->setProperty(ApplicationThemeProperty, theme ? QVariant::fromValue(*theme) : QVariant());
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (auto* button = qobject_cast<StyledButton*>(widget))
            button->refreshTheme();
    }
}

std::optional<ButtonTheme> StyledButton::applicationTheme()
{
    const QVariant theme = qApp->property(ApplicationThemeProperty);
    return theme.isValid() ? std::optional(theme.value<ButtonTheme>()) : std::nullopt;
}

QSize StyledButton::sizeHint() const { return sizeAround(captionSize()); }

QSize StyledButton::minimumSizeHint() const
{
    const QSize caption = captionSize();
    return sizeAround(QSize(std::min(caption.width(), 3 * fontMetrics().averageCharWidth()), caption.height()));
}

void StyledButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        refreshTheme();
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        m_measured.reset();
    QAbstractButton::changeEvent(event);
}

/// A switch turns with its mnemonic at once: the toolkit gives it the focus a moment earlier, and screen readers would
/// call it off.
bool StyledButton::event(QEvent* event)
{
    if (event->type() != QEvent::Shortcut || !isCheckable() || static_cast<QShortcutEvent*>(event)->isAmbiguous())
        return QAbstractButton::event(event);
    setFocus(Qt::ShortcutFocusReason);
    click();
    return true;
}

void StyledButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QAbstractButton::keyPressEvent(event);
        return;
    }
    event->accept(); // also when repeated: the key must not go on to the window
    if (!event->isAutoRepeat())
        click();
}

void StyledButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const ButtonLook look = lookOf(m_theme, condition());
    const QRect inside = paintFrame(painter, look).toAlignedRect();
    const QRect area = inside.adjusted(SmallestMargin, 0, -SmallestMargin, 0);
    const QSize caption = captionSize();
    const ContentGeometry content = layOutContent(area, pictureSize(), caption);
    const bool fits = caption.width() <= content.caption.width();
    paintPicture(painter, content.picture);
    paintCaption(
        painter, content.caption, fits ? text() : elidedLines(text(), fontMetrics(), content.caption.width()), look);
}

ButtonCondition StyledButton::condition() const
{
    return {.enabled = isEnabled(), .pressed = isDown(), .checked = isChecked(), .hovered = underMouse()};
}

void StyledButton::refreshTheme()
{
    const std::optional<ButtonTheme> common = applicationTheme();
    const ButtonTheme theme = common ? *common : themeOf(palette());
    if (m_theme == theme)
        return;
    m_theme = theme;
    update();
}

/// Room for the largest picture of any state, so that the caption does not jump; empty without pictures.
QSize StyledButton::pictureSize() const
{
    QSize size = icon().actualSize(iconSize());
    for (const auto& [state, picture] : m_pictures)
        size = size.expandedTo(picture.actualSize(iconSize()));
    return size.expandedTo(QSize(0, 0));
}

/// Measured once for each text: layouts ask often, and measuring takes as long as painting.
QSize StyledButton::captionSize() const
{
    if (!m_measured || m_measured->text != text())
        m_measured = {text(), fontMetrics().size(Qt::TextShowMnemonic, text())};
    return m_measured->size;
}

QSize StyledButton::sizeAround(const QSize& caption) const
{
    const QSize picture = pictureSize();
    const int em = fontMetrics().height();
    const int above = (em * 2 + 4) / 5;
    const bool withCaption = !text().isEmpty();
    const int gap = withCaption && !picture.isEmpty() ? PictureGap : 0;
    const int besides = withCaption ? (em * 4 + 4) / 5 : above;
    const int width = picture.width() + gap + (withCaption ? caption.width() : 0) + 2 * besides;
    return {width, std::max(picture.height(), std::max(caption.height(), em)) + 2 * above};
}

QPixmap StyledButton::currentPicture(qreal devicePixelRatio) const
{
    const ButtonState state = stateOf(condition());
    const QIcon::State on = isChecked() ? QIcon::On : QIcon::Off;
    const auto own = m_pictures.find(state);
    if (own != m_pictures.end() && !own->second.isNull())
        return own->second.pixmap(iconSize(), devicePixelRatio, QIcon::Normal, on);
    const QIcon::Mode mode = state == ButtonState::Disabled ? QIcon::Disabled : QIcon::Normal;
    return icon().pixmap(iconSize(), devicePixelRatio, mode, on);
}

/// Paints background, frame and focus ring; returns what is left inside the frame.
QRectF StyledButton::paintFrame(QPainter& painter, const ButtonLook& look) const
{
    // The transform knows the ratio and the place of the device that is really painted on, also when the widget is
    // rendered to an image.
    const QTransform toDevice = painter.deviceTransform();
    const qreal ratio = toDevice.m11();
    const QPointF origin = toDevice.map(QPointF());
    const FrameGeometry frame = layOutFrame(rect(), look.frameWidth, ratio, origin);
    const auto innerRadius = [&look, &frame](const QRectF& rect) {
        return std::max(0.0, look.cornerRadius - (rect.left() - frame.outer.left()));
    };

    QLinearGradient background(frame.inner.topLeft(), frame.inner.bottomLeft());
    background.setColorAt(0, look.backgroundStart);
    background.setColorAt(1, look.backgroundEnd);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.frame);
    painter.drawRoundedRect(frame.outer, look.cornerRadius, look.cornerRadius);
    painter.setBrush(background);
    painter.drawRoundedRect(frame.inner, innerRadius(frame.inner), innerRadius(frame.inner));

    if (hasFocus()) {
        const QRectF around = frame.inner.adjusted(FocusGap, FocusGap, -FocusGap, -FocusGap);
        const FrameGeometry ring = layOutFrame(around, FocusWidth, ratio, origin);
        QPainterPath path; // odd-even filled: the ring between two rectangles
        path.addRoundedRect(ring.outer, innerRadius(ring.outer), innerRadius(ring.outer));
        path.addRoundedRect(ring.inner, innerRadius(ring.inner), innerRadius(ring.inner));
        painter.fillPath(path, m_theme.focus);
    }
    return frame.inner;
}

void StyledButton::paintPicture(QPainter& painter, const QRect& area) const
{
    const QTransform toDevice = painter.deviceTransform();
    const QPixmap picture = currentPicture(toDevice.m11());
    const QSizeF rest = area.size() - picture.deviceIndependentSize();
    // On whole device pixels, or the picture would be smeared over its neighbours.
    const QPointF corner = toDevice.map(QPointF(area.topLeft()) + QPointF(rest.width(), rest.height()) / 2);
    painter.drawPixmap(toDevice.inverted().map(QPointF(corner.toPoint())), picture);
}

void StyledButton::paintCaption(
    QPainter& painter, const QRect& area, const QString& caption, const ButtonLook& look) const
{
    if (area.isEmpty())
        return;
    QStyleOptionButton option;
    option.initFrom(this);
    const bool underline = style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) != 0;
    const int flags = Qt::AlignCenter | Qt::TextDontClip | (underline ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
    const qreal ratio = painter.deviceTransform().m11();
    const qreal step = std::max(1.0, std::floor(ratio)) / ratio;
    for (const CaptionLayer& layer : captionLayers(m_captionEffect, look.text)) {
        painter.setPen(layer.colour);
        painter.drawText(QRectF(area).translated(layer.offset * step, layer.offset * step), flags, caption);
    }
}

} // namespace zerna
