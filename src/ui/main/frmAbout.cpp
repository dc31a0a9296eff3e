#include "ui/main/frmAbout.h"

#include <QDesktopServices>
#include <QIcon>
#include <QLabel>
#include <QUrl>
#include <QVBoxLayout>

#include "core/MessageBoxes.h"
#include "core/clsLoader.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

/// A link label; hidden when the build gives no address.
QLabel* makeLink(QWidget* parent, const char* name, const QString& address, const QString& target)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::RichText);
    label->setText(QStringLiteral("<a href=\"%1\">%2</a>").arg(target.toHtmlEscaped(), address.toHtmlEscaped()));
    label->setTextInteractionFlags(Qt::TextBrowserInteraction);
    label->setAccessibleName(address);
    label->setVisible(!address.isEmpty());
    QObject::connect(
        label, &QLabel::linkActivated, label, [](const QString& link) { QDesktopServices::openUrl(QUrl(link)); });
    return label;
}

/// What the toolkit's licence wants to be said.
QLabel* makeLicences(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QStringLiteral("lblLizenzen"));
    label->setText(
        QStringLiteral("benutzt Qt %1 unter der GNU LGPL, Version 3\nLizenztexte und Quellen nennt das Paket")
            .arg(QLatin1String(qVersion())));
    return label;
}

} // namespace

frmAbout::frmAbout(const clsLoader& loader, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Info"));
    auto* picture = new QLabel(this);
    picture->setPixmap(QIcon(QStringLiteral(":/zerna.svg")).pixmap(QSize(96, 96), devicePixelRatioF()));
    auto* title = new QLabel(toQt(Programmtitel), this);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 2);
    large.setBold(true);
    title->setFont(large);
    auto* subtitle = new QLabel(QStringLiteral("Modell freier Elektronen für metallische Legierungen"), this);
    auto* version = new QLabel(QStringLiteral("Version %1").arg(toQt(loader.Version())), this);
    version->setObjectName(QStringLiteral("lblVersion"));
    auto* build = new QLabel(QStringLiteral("kompiliert am %1 um %2 Uhr\n%3 Codezeilen")
                                 .arg(toQt(loader.Creation_Date()), toQt(loader.Creation_Time()))
                                 .arg(loader.Code_Lines()),
        this);
    build->setObjectName(QStringLiteral("lblKompiliert"));
    const QString mail = QStringLiteral(ZERNA_MAIL);
    const QString web = QStringLiteral(ZERNA_WEB);
    auto* close = new StyledButton(QStringLiteral("S&chließen"), this);
    close->setObjectName(QStringLiteral("cmdSchliessen"));
    close->setMinimumWidth(Knopfbreite);
    connect(close, &StyledButton::clicked, this, &QDialog::accept);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(32, 24, 32, 20);
    column->setSpacing(8);
    for (QWidget* const widget : std::initializer_list<QWidget*>{picture, title, subtitle, version, build,
             makeLicences(this), makeLink(this, "lblMail", mail, QStringLiteral("mailto:") + mail),
             makeLink(this, "lblWeb", web, web), close}) {
        if (auto* const label = qobject_cast<QLabel*>(widget))
            label->setAlignment(Qt::AlignHCenter);
        column->addWidget(widget, 0, Qt::AlignHCenter);
    }
    column->insertSpacing(3, 4);
    column->insertSpacing(column->count() - 1, 8);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace zerna
