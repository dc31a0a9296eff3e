#include "ui/main/Titeldialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "ui/platform/QtText.h"

namespace zerna {

Titeldialog::Titeldialog(const std::string& titel, const std::string& bemerkung, QWidget* parent)
    : QDialog(parent)
    , m_txtTitel(new QLineEdit(toQt(titel), this))
    , m_txtBemerkung(new QPlainTextEdit(toQt(bemerkung), this))
{
    setObjectName(QStringLiteral("frmTitel"));
    setWindowTitle(QStringLiteral("Titel und Bemerkung"));
    m_txtTitel->setObjectName(QStringLiteral("txtTitel"));
    m_txtBemerkung->setObjectName(QStringLiteral("txtBemerkung"));
    m_txtBemerkung->setTabChangesFocus(true);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("&Abbrechen"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const form = new QFormLayout(this);
    form->addRow(QStringLiteral("&Titel:"), m_txtTitel);
    form->addRow(QStringLiteral("&Bemerkung:"), m_txtBemerkung);
    form->addRow(buttons);
    resize(480, 280);
}

std::string Titeldialog::titel() const { return fromQt(m_txtTitel->text()); }
std::string Titeldialog::bemerkung() const { return fromQt(m_txtBemerkung->toPlainText()); }

} // namespace zerna
