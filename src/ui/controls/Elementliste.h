#pragma once

#include "ui/controls/Festliste.h"

namespace zerna {

/// A list of elements. An entry's text is the symbol; the open list shows the name beside it, and letters typed jump to
/// the symbol that they spell, or else to a symbol or a name that begins so.
class Elementliste : public Festliste {
    Q_OBJECT

public:
    explicit Elementliste(QWidget* parent = nullptr);

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
