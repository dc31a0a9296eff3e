#include "ui/main/Verlauf.h"

#include <QUndoCommand>

#include <utility>

namespace zerna {

/// The step from one state to another.
class Verlauf::Befehl : public QUndoCommand {
public:
    Befehl(Verlauf& verlauf, const QString& name, int geste, Standzeiger von, Standzeiger nach)
        : QUndoCommand(name)
        , m_verlauf(verlauf)
        , m_geste(geste)
        , m_von(std::move(von))
        , m_nach(std::move(nach))
    {
    }

    void undo() override { m_verlauf.kehreZurueck(m_von); }

    /// The stack calls it for a step that has just been taken, too.
    void redo() override
    {
        if (std::exchange(m_isDone, true))
            m_verlauf.kehreZurueck(m_nach);
    }

    int id() const override { return 1; } // all may be continued

    bool mergeWith(const QUndoCommand* other) override
    {
        const auto& next = static_cast<const Befehl&>(*other);
        if (next.m_geste != m_geste)
            return false;
        m_nach = next.m_nach;
        setText(next.text());
        setObsolete(m_nach->dokument == m_von->dokument);
        return true;
    }

private:
    Verlauf& m_verlauf;
    int m_geste;
    Standzeiger m_von;
    Standzeiger m_nach;
    bool m_isDone = false;
};

Verlauf::Verlauf(Dokument& dokument, const Eingabe& gerechnet, QObject* parent)
    : QObject(parent)
    , m_dokument(dokument)
    , m_gerechnet(gerechnet)
{
    m_stapel.setUndoLimit(Grenze);
}

Verlauf::Standzeiger Verlauf::jetzt() const
{
    const bool isComputed = m_dokument.eingabe.istVollstaendig();
    return std::make_shared<const Stand>(
        Stand{m_dokument, isComputed ? std::nullopt : std::optional<Eingabe>(m_gerechnet)});
}

void Verlauf::beginne()
{
    m_stapel.clear();
    m_letzter = jetzt();
    trenne();
}

void Verlauf::geschehen(const Schritt& schritt)
{
    if (m_gesperrt != 0 || !m_letzter || m_dokument == m_letzter->dokument)
        return;
    if (schritt.geste.isEmpty() || schritt.geste != m_geste)
        ++m_nummer;
    m_geste = schritt.geste;
    const Standzeiger von = std::exchange(m_letzter, jetzt());
    m_stapel.push(new Befehl(*this, schritt.name, m_nummer, von, m_letzter));
}

void Verlauf::kehreZurueck(const Standzeiger& stand)
{
    const Standzeiger vorher = std::exchange(m_letzter, stand);
    ++m_gesperrt; // what panels do while they show the state is no step
    m_dokument = stand->dokument;
    trenne();
    emit zurueckgekehrt(*stand, *vorher);
    --m_gesperrt;
    if (m_dokument != stand->dokument)
        m_letzter = jetzt(); // the focus had to leave the balance row, which then forgets what was typed there
}

Verlauf::Handlung::Handlung(Verlauf& verlauf, Schritt schritt)
    : m_verlauf(verlauf)
    , m_schritt(std::move(schritt))
{
    ++m_verlauf.m_gesperrt;
}

Verlauf::Handlung::~Handlung()
{
    --m_verlauf.m_gesperrt;
    m_verlauf.geschehen(m_schritt);
}

} // namespace zerna
