#pragma once

#include <QFrame>

#include "model/rechnung/Einzelheiten.h"

class QLabel;

namespace zerna {

/// Details as rich text: the quantity's name and a row for each of them, indices lowered and powers raised.
QString einzelheitenHtml(const Einzelheiten& einzelheiten);

/// Where something of that size goes beside `area`: below it, above it if there is no room, always on the screen.
QPoint platzNeben(const QRect& area, const QSize& size, const QRect& screen);

/// The details of a value in a small window beside it, until a click elsewhere or Escape closes it and the value has
/// the keyboard again. Its text can be selected and copied with mouse and keys.
class Ergebnisdetails : public QFrame {
    Q_OBJECT

public:
    explicit Ergebnisdetails(QWidget* parent = nullptr);

    /// Shows them beside `area`, in screen coordinates.
    void zeige(const Einzelheiten& einzelheiten, const QRect& area);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLabel* m_text = nullptr;
};

} // namespace zerna
