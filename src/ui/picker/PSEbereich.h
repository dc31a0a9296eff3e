#pragma once

#include <QWidget>

#include "programm/Programm.h"

class QComboBox;

namespace zerna {

class Elementkarte;
class Kurzmeldung;
class Periodentafel;

/// The second panel: the periodic table, in which an element is picked, and that element's data.
class PSEbereich : public QWidget {
    Q_OBJECT

public:
    explicit PSEbereich(Programm& programm, QWidget* parent = nullptr);

    /// Places table and information side by side and shows the selected element.
    void layOut();

    QSize minimumSizeHint() const override;

signals:
    /// The element is to become component `row` of the alloy.
    void componentChosen(int row, const QString& symbol);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void select(const std::shared_ptr<clsElement>& element);
    void colour();
    void offerComponents(const QPoint& position);
    void take(int row, const std::shared_ptr<clsElement>& element);
    void showKomponenten();

    Programm& m_programm;
    Periodentafel* m_picPSE = nullptr;
    QWidget* m_farbwahl = nullptr; // list and caption
    QComboBox* m_cmbFarbe = nullptr;
    Kurzmeldung* m_lblUebernahme = nullptr; // how an element is taken, or that it has been
    Elementkarte* m_picInfo = nullptr;
};

} // namespace zerna
