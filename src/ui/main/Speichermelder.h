#pragma once

#include "core/Kuerzung.h"
#include "programm/ExportFileDialog.h"
#include "ui/controls/Kurzmeldung.h"
#include "ui/platform/QtText.h"

namespace zerna {

/// The save dialog of a window, in whose line it says which file has been written.
class Speichermelder : public SaveFileDialog {
public:
    Speichermelder(SaveFileDialog& dialog, Kurzmeldung& meldung)
        : m_dialog(dialog)
        , m_meldung(meldung)
    {
    }

    std::optional<Choice> choose(
        std::string_view title, std::span<const Exportart> arten, const std::optional<Choice>& refused) override
    {
        return m_dialog.choose(title, arten, refused);
    }
    bool confirmReplace(std::string_view name) override { return m_dialog.confirmReplace(name); }
    void gespeichert(std::string_view name) override
    {
        m_meldung.zeige(QStringLiteral("✓  „%1“ gespeichert").arg(toQt(gekuerzt(name))));
    }

private:
    SaveFileDialog& m_dialog;
    Kurzmeldung& m_meldung;
};

} // namespace zerna
