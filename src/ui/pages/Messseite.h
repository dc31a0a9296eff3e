#pragma once

#include <optional>

#include "model/messung/Messvergleich.h"
#include "ui/pages/Diagrammseite.h"
#include "ui/platform/Dialoge.h"

class QComboBox;

namespace zerna {

class Messtafel;

/// Measured curves beside what follows of the alloy, "Messkurve". The strip chooses one of the document's curves and
/// says what it is; drawn are all curves of its kind, and the table below the area names their maxima.
class Messseite : public Diagrammseite {
    Q_OBJECT

public:
    Messseite(Programm& programm, Diagrammflaeche& flaeche, Dialoge dialoge, QWidget* parent);

    QString titel() const override { return QStringLiteral("Messkurve"); }
    std::span<const int> groessen() const override { return {}; }
    void zeigeAuswahl(const Eingabe& eingabe) override;
    void zeichne(const Eingabe& eingabe) override;
    std::vector<QWidget*> tabOrder() const override;
    QWidget* darunter() override;
    Suchfrage suchfrage() const override; ///< 2kF = Kp of the chosen S(K)

    /// Adds the curves of files to the document; asks for one if there are none. Says why a file cannot be read.
    /// Whether there is a new curve.
    bool oeffne(const QStringList& dateien);

signals:
    void oeffnenRequested();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QComboBox* makeList(const char* name, const QString& accessibleName);
    void createLists();
    void createButtons();
    void layOut();
    void fillKurven();
    void showGewaehlte();
    void aendere(const QString& schritt, void (*aenderung)(Messkurve&, int), int value);
    void entferne();
    void zeigeBeiwerk(Messart art);
    std::optional<double> kp() const;
    const std::vector<Messkurve>& kurven() const { return *m_kurven; }

    Dialoge m_dialoge;
    Geteilt<std::vector<Messkurve>> m_kurven; // as they are listed
    Messauswertung m_auswertung; // of those that are drawn
    std::optional<Messart> m_gezeichnet; // which of them
    int m_gewaehlt = 0;
    QComboBox* m_cmbMesskurve = nullptr;
    QComboBox* m_cmbMessart = nullptr;
    QComboBox* m_cmbMesseinheit = nullptr;
    StyledButton* m_cmdOeffnen = nullptr;
    StyledButton* m_cmdEntfernen = nullptr;
    Messtafel* m_tafel = nullptr;
};

} // namespace zerna
