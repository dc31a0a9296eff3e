#include "ui/main/Zugangsfabrik.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QLineEdit>

#include "ui/button/StyledButton.h"
#include "ui/button/StyledButtonZugang.h"
#include "ui/controls/Befundzeile.h"
#include "ui/controls/BefundzeileZugang.h"
#include "ui/controls/KurzlabelZugang.h"
#include "ui/controls/Kurzmeldung.h"
#include "ui/controls/TextfeldZugang.h"
#include "ui/controls/Wertanzeige.h"
#include "ui/controls/WertanzeigeZugang.h"
#include "ui/diagram/Bildvorschau.h"
#include "ui/diagram/DiagrammZugang.h"
#include "ui/diagram/Diagrammflaeche.h"
#include "ui/diagram/conDisplay.h"
#include "ui/diagram/conLabel.h"
#include "ui/diagram/conLabelZugang.h"
#include "ui/picker/Elementkarte.h"
#include "ui/picker/Periodentafel.h"
#include "ui/picker/PeriodentafelZugang.h"
#include "ui/platform/Durchsage.h"

namespace zerna {

namespace {

using Maker = QAccessibleInterface* (*)(QObject*);

/// Of a widget class with an interface of its own.
template <class Widget, class Zugang>
QAccessibleInterface* make(QObject* widget)
{
    return new Zugang(static_cast<Widget&>(*widget));
}

/// Of one that only needs to be called what it is.
template <QAccessible::Role Role>
QAccessibleInterface* makePlain(QObject* widget)
{
    return new QAccessibleWidget(static_cast<QWidget*>(widget), Role);
}

QAccessibleInterface* makeDurchsage(QObject* durchsage) { return new DurchsageZugang(durchsage); }

QAccessibleInterface* makeDisplay(QObject* widget)
{
    auto& display = static_cast<conDisplay&>(*widget);
    return new DiagrammZugang(display, [&display]() -> const Diagramm* { return &display.diagramm(); });
}

QAccessibleInterface* makeFlaeche(QObject* widget)
{
    auto& flaeche = static_cast<Diagrammflaeche&>(*widget);
    return new DiagrammZugang(flaeche,
        [&flaeche]() -> const Diagramm* { return flaeche.zeigtKonzentration() ? nullptr : &flaeche.diagramm(); });
}

/// The toolkit asks for each class of a widget, from its own down to QWidget, and knows its own ones itself.
QAccessibleInterface* zugangOf(const QString& className, QObject* object)
{
    static const QHash<QString, Maker> makers{
        {QStringLiteral("zerna::frmMain"), makePlain<QAccessible::Window>},
        {QStringLiteral("zerna::StyledButton"), make<StyledButton, StyledButtonZugang>},
        {QStringLiteral("zerna::Befundzeile"), make<Befundzeile, BefundzeileZugang>},
        {QStringLiteral("zerna::Wertanzeige"), make<Wertanzeige, WertanzeigeZugang>},
        {QStringLiteral("zerna::Kurzlabel"), make<Kurzlabel, KurzlabelZugang>},
        {QStringLiteral("zerna::conLabel"), make<conLabel, conLabelZugang>},
        {QStringLiteral("zerna::Periodentafel"), make<Periodentafel, PeriodentafelZugang>},
        {QStringLiteral("zerna::conDisplay"), makeDisplay},
        {QStringLiteral("zerna::Diagrammflaeche"), makeFlaeche},
        {QStringLiteral("zerna::Kurzmeldung"), makePlain<QAccessible::StaticText>},
        {QStringLiteral("zerna::Elementkarte"), makePlain<QAccessible::Grouping>},
        {QStringLiteral("zerna::Bildvorschau"), makePlain<QAccessible::Graphic>},
        {QStringLiteral("zerna::Durchsage"), makeDurchsage},
        {QStringLiteral("QLineEdit"), make<QLineEdit, TextfeldZugang>},
        // The toolkit's own layers are spoken at each way into them.
        {QStringLiteral("QStackedWidget"), makePlain<QAccessible::Client>},
    };
    const Maker maker = object != nullptr ? makers.value(className) : nullptr;
    return maker != nullptr ? maker(object) : nullptr;
}

} // namespace

void installZugangsfabrik() { QAccessible::installFactory(zugangOf); }

} // namespace zerna
