#pragma once

#include "ui/controls/Kurzlabel.h"
#include "ui/platform/Zugang.h"

namespace zerna {

/// A label is called what it shows, unless it has a name.
class KurzlabelZugang : public Zugang {
public:
    explicit KurzlabelZugang(Kurzlabel& label)
        : Zugang(&label, QAccessible::StaticText)
        , m_label(label)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString said = Zugang::text(kind);
        return kind == QAccessible::Name && said.isEmpty() ? m_label.text() : said;
    }

private:
    const Kurzlabel& m_label;
};

} // namespace zerna
