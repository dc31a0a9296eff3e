#pragma once

#include <QMenu>

#include <string_view>

#include "bild/Konzentrationsbild.h"
#include "programm/Programm.h"
#include "ui/controls/Schritt.h"

namespace zerna {

/// The setting of the switch for the true mixture, which the search has, too.
inline constexpr std::string_view Mischungsreihenschluessel = "Mischungsreihe";

/// What a concentration diagram shows besides the curve of the alloy, and how: the menu of the button below the area,
/// which is a submenu of the menu bar and of the context menu, too. The switches are remembered, the rest is the
/// document's.
class Kurvenmenue : public QMenu {
    Q_OBJECT

public:
    explicit Kurvenmenue(Programm& programm, QWidget* parent = nullptr);

    const Kurvenschalter& schalter() const { return m_schalter; }

    /// Draws the given series or the true mixture from now on.
    void setMischungsreihe(bool an) { m_mischungsreihe->setChecked(an); }

    /// Draws with the whole curve from now on.
    void zeigeGanzeKurve() { m_ganzeKurve->trigger(); }

    /// Which curve there is to be kept; null for none.
    void setKurve(std::optional<GehalteneKurve> kurve) { m_kurve = std::move(kurve); }

signals:
    void schalterChanged();
    /// The document has changed.
    void umgestellt(const Schritt& schritt);
    void tabelleSaveRequested();
    void tabelleCopyRequested();

private:
    QAction* add(const QString& text, const char* name, void (Kurvenmenue::*tun)());
    QAction* addSchalter(const QString& text, const char* name, std::string_view key, bool Kurvenschalter::*value);
    void fillZweite(QMenu& menu);
    void fillEntfernen(QMenu& menu);
    void aktualisiere();
    void halteFest();
    void entferne(std::size_t position);
    void setKurven(std::vector<GehalteneKurve> kurven, const QString& schritt);
    Dokument& dokument() { return m_programm.Dokument(); }

    Programm& m_programm;
    Kurvenschalter m_schalter;
    std::optional<GehalteneKurve> m_kurve; // the one that is shown
    QAction* m_mischungsreihe = nullptr;
    QAction* m_ganzeKurve = nullptr;
    QAction* m_festhalten = nullptr;
    QMenu* m_entfernen = nullptr;
    QAction* m_varianten = nullptr;
    QList<QAction*> m_mitKurve; // possible with a curve alone
};

} // namespace zerna
