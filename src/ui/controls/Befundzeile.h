#pragma once

#include <QAbstractButton>

namespace zerna {

/// One line that says what is the matter and, when it is clicked or Enter is pressed on it, leads there. It keeps its
/// place while it has nothing to say, so that what stands below stays still. A text that is too long is cut, the tool
/// tip has it whole.
class Befundzeile : public QAbstractButton {
    Q_OBJECT

public:
    enum class Ton { Hinweis, Bedenken, Fehler };

    explicit Befundzeile(QWidget* parent = nullptr);

    /// Empty for nothing.
    void zeige(const QString& befund, Ton ton);
    const QString& befund() const { return m_befund; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void cut();
    QColor colour() const;

    QString m_befund;
    Ton m_ton = Ton::Hinweis;
};

} // namespace zerna
