#pragma once

#include <QLineEdit>

namespace zerna {

/// A field for a typed value. It marks a text that is not valid, with the reason as tool tip, can show beside a formula
/// what it comes to, and says when the keyboard focus enters it.
class Wertfeld : public QLineEdit {
    Q_OBJECT

public:
    explicit Wertfeld(QWidget* parent = nullptr);

    /// Writes a text without taking it for typing. The marker beside it tells an unknown value from a known one.
    void setWert(const QString& text, bool unbekannt);
    bool istWertUnbekannt() const;

    /// Why the text is not valid; empty if it is.
    void setFehler(const QString& grund);
    const QString& fehler() const { return m_fehler; }

    /// What is odd about a valid text; empty if nothing is.
    void setBedenken(const QString& bedenken);
    const QString& bedenken() const { return m_bedenken; }

    /// What the formula in the field comes to, for example "= 1,5"; empty for none. The formula comes first: what the
    /// field has no room for beside it is cut off, and the tool tip has it whole.
    void setEcho(const QString& echo);
    const QString& echo() const { return m_echo; }

    /// Whether the field takes its own typing back. Else undo and redo go to the window's actions with these keys, from
    /// the field's menu too.
    void setEigenerVerlauf(bool eigener) { m_eigenerVerlauf = eigener; }

    /// Whether the program works the value out: then the field looks like a label until it has the focus.
    void setBerechnet(bool berechnet);

    /// The tool tip while the text is valid.
    void setHinweis(const QString& hinweis);

signals:
    void focusEntered();
    void focusLeft();
    /// The user is done with the text: Enter was pressed, or the focus has gone and does not come back by itself.
    void verlassen();

protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showHinweis();
    void cutEcho();
    void strengthenDisabledText();
    bool goesToWindow(const QKeyEvent& key) const;
    bool looksLikeLabel() const { return m_berechnet && !hasFocus(); }
    void showArt();

    QString m_fehler;
    QString m_bedenken;
    QString m_echo;
    QString m_shownEcho; // as much of it as there is room for
    QString m_hinweis;
    bool m_berechnet = false;
    bool m_eigenerVerlauf = false;
};

} // namespace zerna
