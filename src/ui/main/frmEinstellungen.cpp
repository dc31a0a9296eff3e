#include "ui/main/frmEinstellungen.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/main/Sitzung.h"

namespace zerna {

frmEinstellungen::frmEinstellungen(Settings& settings, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmEinstellungen"));
    setWindowTitle(QStringLiteral("Einstellungen"));
    auto* const restore = new QCheckBox(QStringLiteral("Beim Start die letzte Legierung &wiederherstellen"), this);
    restore->setObjectName(QStringLiteral("chkWiederherstellen"));
    restore->setChecked(Sitzung::stelltWiederHer(settings));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("&Abbrechen"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this, restore, &settings] {
        Sitzung::setWiederherstellen(settings, restore->isChecked());
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(16);
    column->addWidget(restore);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace zerna
