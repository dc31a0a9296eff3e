#pragma once

#include <QString>

namespace zerna {

/// Something that the user has just done to the document, and that can be undone.
struct Schritt {
    QString name; ///< as it stands behind "Rückgängig: ", for example "at% von Al"
    QString geste =
        {}; ///< steps with the same one right after each other are one, such as keys in a field; empty: never
};

} // namespace zerna
