#pragma once

#include <QObject>

#include <optional>
#include <string_view>
#include <utility>

#include "core/Laufzeitfehler.h"
#include "core/MessageBoxes.h"

namespace zerna {

inline constexpr std::string_view Wiegesteuerelement = "Benutzersteuerelement conWiegen"; ///< as errors name it

/// What the last change of a mass has run into, to be shown once the user is done with the mass.
class Wiegemeldung : public QObject {
    Q_OBJECT

public:
    explicit Wiegemeldung(MessageBoxes& boxes, QObject* parent = nullptr);

    void merke(std::optional<Laufzeitfehler> fehler) { m_fehler = std::move(fehler); }

    /// Shows it; nothing if it has been shown.
    void zeige();

    /// Shows it out of the focus event, and not while a mouse button is down: its release would be lost to the box.
    void zeigeSpaeter();

private:
    MessageBoxes& m_boxes;
    std::optional<Laufzeitfehler> m_fehler;
};

} // namespace zerna
