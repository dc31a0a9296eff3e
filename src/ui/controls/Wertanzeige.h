#pragma once

#include <QWidget>

namespace zerna {

class Ansage;

/// One result value: number and unit stand in columns, so that the units of all lines are aligned. It paints the number
/// with a true minus sign and a power of ten; its text stays the given one. Takes the keyboard
/// focus; Ctrl+C copies what it shows, the right mouse button or the menu key asks for its menu, a click, Enter or the
/// space bar for the details of its value. Another text of the same width asks for no layout.
class Wertanzeige : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ text)

public:
    explicit Wertanzeige(QWidget* parent = nullptr);

    /// Shows a text; screen readers are told once the user pauses.
    void zeige(const QString& shown);
    const QString& text() const { return m_text; }

    /// The unit that texts end in, and the width of the number column in front of it (0: text as one piece), which has
    /// a margin on both sides so that numbers and units stand below those of fields.
    void setEinheit(const QString& einheit, int numberWidth, int margin = 0);
    const QString& einheit() const { return m_einheit; }

    /// Between a number's column, or a field, and its unit.
    static int einheitenabstand(const QFontMetrics& metrics) { return qMax(4, metrics.height() / 4); }

    /// A mark behind the value says that more is to be said of it; `bedeutung` is for screen readers, empty: no mark.
    void setMarke(const QString& bedeutung);

    /// Whether the value does not count at the moment; it is shown paler then.
    void setBlass(bool blass);
    bool istBlass() const { return m_blass; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void menuRequested(const QPoint& globalPosition);
    void copyRequested();
    void detailsRequested();
    void hintRequested(const QPoint& globalPosition); ///< the mouse rests on it

protected:
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int textWidth() const;
    bool hasColumns() const;
    QRect numberArea() const;
    void paintFocus(QPainter& painter) const;
    void paintNumber(QPainter& painter) const;

    Ansage* m_ansage;
    QString m_text;
    QString m_einheit;
    bool m_blass = false;
    int m_numberWidth = 0; // logical pixels
    QString m_marke; // behind the unit; empty if there is none
    int m_margin = 0;
};

} // namespace zerna
