#include "ui/main/Titeldialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "dokument/Dokumentdatei.h"
#include "ui/controls/Befundzeile.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

/// Says that a text is too long; empty if it is not.
QString zuLang(const QString& name, const QString& text, std::size_t longest)
{
    const auto most = static_cast<qsizetype>(longest);
    if (text.size() <= most) // a character takes one or two places there
        return {};
    const qsizetype count = text.toUcs4().size();
    return count <= most
        ? QString()
        : QStringLiteral("%1 hat %2 Zeichen, höchstens %3 sind möglich.").arg(name).arg(count).arg(most);
}

} // namespace

Titeldialog::Titeldialog(const std::string& titel, const std::string& bemerkung, QWidget* parent)
    : QDialog(parent)
    , m_txtTitel(new QLineEdit(this))
    , m_txtBemerkung(new QPlainTextEdit(toQt(bemerkung), this))
    , m_lblZuLang(new Befundzeile(this))
{
    setObjectName(QStringLiteral("frmTitel"));
    setWindowTitle(QStringLiteral("Titel und Bemerkung"));
    m_txtTitel->setMaxLength(static_cast<int>(LaengsteBemerkung)); // so that a title too long is not cut to fit
    m_txtTitel->setText(toQt(titel));
    m_txtTitel->setObjectName(QStringLiteral("txtTitel"));
    m_txtBemerkung->setObjectName(QStringLiteral("txtBemerkung"));
    m_txtBemerkung->setTabChangesFocus(true);
    m_lblZuLang->setObjectName(QStringLiteral("lblZuLang"));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("&Abbrechen"));
    m_cmdOK = buttons->button(QDialogButtonBox::Ok);
    connect(m_lblZuLang, &Befundzeile::clicked, this, [this] { m_zuLang->setFocus(Qt::OtherFocusReason); });
    connect(m_txtTitel, &QLineEdit::textChanged, this, &Titeldialog::pruefe);
    connect(m_txtBemerkung, &QPlainTextEdit::textChanged, this, &Titeldialog::pruefe);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const form = new QFormLayout(this);
    form->addRow(QStringLiteral("&Titel:"), m_txtTitel);
    form->addRow(QStringLiteral("&Bemerkung:"), m_txtBemerkung);
    form->addRow(m_lblZuLang);
    form->addRow(buttons);
    resize(480, 280);
    pruefe();
}

void Titeldialog::pruefe()
{
    QString befund = zuLang(QStringLiteral("Der Titel"), m_txtTitel->text(), LaengstesFeld);
    m_zuLang = m_txtTitel;
    if (befund.isEmpty()) {
        m_zuLang = m_txtBemerkung;
        befund = zuLang(QStringLiteral("Die Bemerkung"), m_txtBemerkung->toPlainText(), LaengsteBemerkung);
    }
    m_lblZuLang->zeige(befund, Befundzeile::Ton::Fehler);
    m_cmdOK->setEnabled(befund.isEmpty());
}

std::string Titeldialog::titel() const { return fromQt(m_txtTitel->text()); }
std::string Titeldialog::bemerkung() const { return fromQt(m_txtBemerkung->toPlainText()); }

} // namespace zerna
