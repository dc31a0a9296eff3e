#pragma once

#include <QAbstractButton>
#include <QIcon>

#include <map>
#include <optional>

#include "ui/button/ButtonTheme.h"

class QPainter;

namespace zerna {

/// A frame between two rectangles, in logical coordinates. All its edges lie between device pixels, so lines are
/// sharp on every screen.
struct FrameGeometry {
    QRectF outer;
    QRectF inner;
};

/// Largest such frame within `area`, its line at least one device pixel wide. `deviceOrigin` is where logical (0, 0)
/// lies in device pixels: at 150 % a widget may well begin in the middle of one.
FrameGeometry layOutFrame(
    const QRectF& area, qreal lineWidth, qreal devicePixelRatio, const QPointF& deviceOrigin = {});

/// Where picture and caption stand; each empty where there is none.
struct ContentGeometry {
    QRect picture;
    QRect caption;
};

/// Puts the picture to the left of the caption and both into the middle of `area`; the caption gives way if `area`
/// is too narrow.
ContentGeometry layOutContent(const QRect& area, const QSize& picture, const QSize& caption);

/// The button of every form: caption with mnemonic and effect, pictures by state, optionally checkable.
/// Its theme follows the light or dark palette unless a theme is set for the whole application. A click comes from
/// the mouse, Space, Enter, Return or the mnemonic. Repaints only when its look changes.
class StyledButton : public QAbstractButton {
    Q_OBJECT

public:
    enum class CaptionEffect { None, Raised, Engraved, Shadow };

    explicit StyledButton(QWidget* parent = nullptr);
    explicit StyledButton(const QString& caption, QWidget* parent = nullptr);

    /// Plain texts, shown as they are; the title stands above in bold. Screen readers get both as description.
    void setToolTipText(const QString& text, const QString& title = {});

    /// Icon or pixmap for one state; an empty one falls back to that for Normal, which is also icon(). Without its own
    /// picture a disabled button shows the normal one greyed.
    void setPicture(ButtonState state, const QIcon& picture);

    void setCaptionEffect(CaptionEffect effect);
    CaptionEffect captionEffect() const { return m_captionEffect; }

    /// One theme for all buttons, existing and later ones; nothing = each follows its palette again.
    static void setApplicationTheme(const std::optional<ButtonTheme>& theme);
    static std::optional<ButtonTheme> applicationTheme();
    const ButtonTheme& theme() const { return m_theme; } ///< the one shown now

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override; ///< picture and the first letters of the caption

protected:
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    ButtonCondition condition() const;
    void refreshTheme();
    QSize pictureSize() const;
    QSize captionSize() const;
    QSize sizeAround(const QSize& caption) const;
    QPixmap currentPicture(qreal devicePixelRatio) const;
    QRectF paintFrame(QPainter& painter, const ButtonLook& look) const;
    void paintPicture(QPainter& painter, const QRect& area) const;
    void paintCaption(QPainter& painter, const QRect& area, const QString& caption, const ButtonLook& look) const;

    ButtonTheme m_theme;
    std::map<ButtonState, QIcon> m_pictures; // all but Normal, which is icon()
    CaptionEffect m_captionEffect = CaptionEffect::None;
    struct Messung {
        QString text;
        QSize size;
    };
    mutable std::optional<Messung> m_measured; // the caption
};

} // namespace zerna
