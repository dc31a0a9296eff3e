#pragma once

#include <QDialog>

#include <array>

#include "bild/Bildvorgabe.h"
#include "ui/diagram/Leinwand.h"

class QCheckBox;
class QComboBox;
class QFontComboBox;
class QFormLayout;
class QLabel;
class QLayout;
class QPushButton;

namespace zerna {

class Befundzeile;
class Bildvorschau;
class Wertfeld;

/// Asks how a picture is to look that is saved, and shows it. There is no "Speichern" while a number cannot be used,
/// and a line says which and why.
class frmBild : public QDialog {
    Q_OBJECT

public:
    frmBild(const Bildmaler& maler, Bildvorgabe vorgabe, QWidget* parent);

    /// What was chosen; a number that cannot be used as it was before.
    const Bildvorgabe& vorgabe() const { return m_vorgabe; }

private:
    void createControls();
    void createMasse();
    void createButtons();
    void fill();
    void layOut();
    void layOutSize(QFormLayout& form);
    QLayout* masszeile(std::size_t index);
    void orderTabs();
    void waehleBreite(int index);
    void geaendert();
    QString liesMasse();
    void zeigeBreite();
    void zeigePixel();

    Bildvorgabe m_vorgabe;
    QComboBox* m_cmbBreite = nullptr;
    std::array<Wertfeld*, 5> m_txtMass{}; // in the order of bildmasse()
    Wertfeld* m_falsches = nullptr; // the first number that cannot be used
    QFontComboBox* m_cmbSchrift = nullptr;
    std::array<QCheckBox*, 4> m_chkSchalter{};
    QComboBox* m_cmbDezimal = nullptr;
    QComboBox* m_cmbArt = nullptr;
    QLabel* m_lblPixel = nullptr;
    Bildvorschau* m_picVorschau = nullptr;
    Befundzeile* m_lblBefund = nullptr;
    QPushButton* m_cmdSpeichern = nullptr;
    QPushButton* m_cmdVorgabe = nullptr;
    QPushButton* m_cmdAbbrechen = nullptr;
};

} // namespace zerna
