#pragma once

#include <QAbstractButton>

namespace zerna {

class Ansage;

/// A line that says what is the matter and, when it is clicked or Enter is pressed on it, leads there. It keeps its
/// place while it has nothing to say, so that what stands below stays still; a long text takes further lines.
class Befundzeile : public QAbstractButton {
    Q_OBJECT

public:
    enum class Ton { Hinweis, Bedenken, Fehler };

    explicit Befundzeile(QWidget* parent = nullptr);

    /// Empty for nothing. One that leads nowhere is only read: it takes neither clicks nor the focus.
    void zeige(const QString& befund, Ton ton, bool fuehrtHin = true);
    const QString& befund() const { return m_befund; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QColor colour() const;

    Ansage* m_ansage;
    QString m_befund;
    Ton m_ton = Ton::Hinweis;
};

} // namespace zerna
