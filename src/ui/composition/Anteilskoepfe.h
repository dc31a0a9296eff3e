#pragma once

#include <QObject>

#include <array>
#include <span>

#include "model/rechnung/Befund.h"

namespace zerna {

class Anteilskopf;
class Kurzlabel;

/// The heads of the two columns of parts, at% and mass %, which choose the one that is typed, and the sum of the parts.
class Anteilskoepfe : public QObject {
    Q_OBJECT

public:
    explicit Anteilskoepfe(QWidget* panel);

    QWidget* kopf(Anteilseinheit einheit) const;
    QWidget* summe() const;

    void zeige(const Eingabe& eingabe, std::span<const Befund> befunde);

signals:
    void chosen(zerna::Anteilseinheit einheit);

private:
    std::array<Anteilskopf*, 2> m_koepfe{};
    Kurzlabel* m_summe = nullptr;
};

} // namespace zerna
