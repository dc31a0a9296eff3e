#pragma once

#include <QUndoStack>

#include <memory>
#include <optional>

#include "model/dokument/Dokument.h"
#include "ui/controls/Schritt.h"

namespace zerna {

/// The way back: the states that the document has gone through, as whole values. A step leads from one state that the
/// user has seen to another such state; what follows from an edit in other parts of the document belongs to its step.
class Verlauf : public QObject {
    Q_OBJECT

public:
    static constexpr int Grenze = 1000; ///< steps

    /// What the user saw.
    struct Stand {
        Dokument dokument;
        std::optional<Eingabe> gerechnet; ///< what the results belong to while the entered alloy is incomplete
    };

    /// `gerechnet` is the alloy that was computed last. Both outlive this. No step is taken before beginne.
    Verlauf(Dokument& dokument, const Eingabe& gerechnet, QObject* parent = nullptr);

    /// Forgets all steps: the document as it is now is where the way begins.
    void beginne();

    /// Takes what the user did since the last step as a step; nothing if the document has not changed. A step and what
    /// continues its gesture are one, and none if they lead back.
    void geschehen(const Schritt& schritt);

    /// Ends the gesture: what comes next is a step of its own.
    void trenne() { m_geste.clear(); }

    /// While it lives no step is taken; what has been done until then is one step.
    class Handlung {
    public:
        Handlung(Verlauf& verlauf, Schritt schritt);
        ~Handlung();
        Handlung(const Handlung&) = delete;
        Handlung& operator=(const Handlung&) = delete;

    private:
        Verlauf& m_verlauf;
        Schritt m_schritt;
    };

    /// For going back and forth, and for its clean state, which is that of the file.
    QUndoStack& stapel() { return m_stapel; }

signals:
    /// The document is again what it was in that state; `vorher` is the state that was left.
    void zurueckgekehrt(const Verlauf::Stand& stand, const Verlauf::Stand& vorher);

private:
    using Standzeiger = std::shared_ptr<const Stand>;
    class Befehl;

    Standzeiger jetzt() const;
    void kehreZurueck(const Standzeiger& stand);

    Dokument& m_dokument;
    const Eingabe& m_gerechnet;
    QUndoStack m_stapel;
    Standzeiger m_letzter; // the state after the last step; null before the beginning
    QString m_geste; // of the last step
    int m_nummer = 0; // of the gesture
    int m_gesperrt = 0; // no step is taken while it is not 0
};

} // namespace zerna
