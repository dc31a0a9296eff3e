#pragma once

#include <QComboBox>

namespace zerna {

/// A list of elements. An entry's text is the symbol; the open list shows the name beside it, and letters typed jump to
/// the symbol that they spell, or else to a symbol or a name that begins so.
class Elementliste : public QComboBox {
    Q_OBJECT

public:
    explicit Elementliste(QWidget* parent = nullptr);

    void setName(int position, const QString& name);

    void showPopup() override;

    /// Whether an entry is being chosen by typing its letters, of which each chooses.
    bool istBeimTippen() const { return m_isTyping; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool m_isTyping = false;
};

} // namespace zerna
