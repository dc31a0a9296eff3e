#pragma once

#include <QComboBox>

namespace zerna {

/// A list of elements. An entry's text is the symbol; the open list shows the name beside it, and letters typed jump to
/// the symbol that they spell, or else to a symbol or a name that begins so.
class Elementliste : public QComboBox {
    Q_OBJECT

public:
    explicit Elementliste(QWidget* parent = nullptr);

    /// Its size is given: no entry is measured for it.
    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSizeHint() const override { return minimumSize(); }

    void setName(int position, const QString& name);

    /// The open list, made when it is first asked for.
    QAbstractItemView* view();

    void showPopup() override;

    /// Whether an entry is being chosen by typing its letters, of which each chooses.
    bool istBeimTippen() const { return m_isTyping; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool m_isTyping = false;
    bool m_hasView = false;
};

} // namespace zerna
