#include "ui/hilfe/Handbuchsuche.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTextBlock>
#include <QTextEdit>

#include <algorithm>

#include "ui/controls/Knopfzeile.h"
#include "ui/platform/Farben.h"

namespace zerna {

namespace {

StyledButton* makeStep(QWidget* parent, const QString& sign, const char* name, const QString& hint)
{
    auto* const button = new StyledButton(sign, parent);
    button->setObjectName(QLatin1String(name));
    button->setToolTipText(hint);
    button->setAccessibleName(hint);
    setZeichenknopf(button);
    return button;
}

} // namespace

Handbuchsuche::Handbuchsuche(QTextEdit& text, QWidget* parent)
    : QWidget(parent)
    , m_text(text)
    , m_txtSuche(new QLineEdit(this))
    , m_lblTreffer(new QLabel(this))
    , m_cmdVorher(makeStep(this, QStringLiteral("▲"), "cmdVorher", QStringLiteral("Voriger Treffer (Umschalt+F3)")))
    , m_cmdWeiter(makeStep(this, QStringLiteral("▼"), "cmdWeiter", QStringLiteral("Nächster Treffer (F3)")))
{
    m_txtSuche->setObjectName(QStringLiteral("txtSuche"));
    m_txtSuche->setPlaceholderText(QStringLiteral("Im Handbuch suchen (Strg+F)"));
    m_txtSuche->setAccessibleName(QStringLiteral("Im Handbuch suchen"));
    m_txtSuche->setClearButtonEnabled(true);
    m_txtSuche->installEventFilter(this);
    m_lblTreffer->setObjectName(QStringLiteral("lblTreffer"));
    folgeSchrift(this, [this] {
        m_txtSuche->setMinimumWidth(16 * fontMetrics().averageCharWidth());
        m_txtSuche->setFixedHeight(feldhoehe(*m_txtSuche));
        m_lblTreffer->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("Treffer 100 von 100")));
    });
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(m_txtSuche, 1);
    row->addWidget(m_cmdVorher);
    row->addWidget(m_cmdWeiter);
    row->addWidget(m_lblTreffer);
    connect(m_txtSuche, &QLineEdit::textChanged, this, &Handbuchsuche::suche);
    connect(m_cmdVorher, &StyledButton::clicked, this, [this] { weiter(-1); });
    connect(m_cmdWeiter, &StyledButton::clicked, this, [this] { weiter(1); });
    erneuere();
}

void Handbuchsuche::beginne()
{
    m_txtSuche->setFocus();
    m_txtSuche->selectAll();
}

void Handbuchsuche::erneuere()
{
    const int now = m_jetzt;
    m_treffer.clear();
    const QString wanted = m_txtSuche->text().simplified();
    if (!wanted.isEmpty()) {
        for (QTextCursor at = m_text.document()->find(wanted, 0); !at.isNull();
             at = m_text.document()->find(wanted, at))
            m_treffer.push_back(at);
    }
    m_jetzt = m_treffer.empty() ? -1 : std::clamp(now, 0, static_cast<int>(m_treffer.size()) - 1);
    zeige();
}

void Handbuchsuche::suche()
{
    m_jetzt = -1;
    erneuere();
    if (m_treffer.empty())
        return;
    const auto heading = std::ranges::find_if(
        m_treffer, [](const QTextCursor& hit) { return hit.block().blockFormat().headingLevel() > 0; });
    m_jetzt = heading == m_treffer.end() ? 0 : static_cast<int>(heading - m_treffer.begin());
    weiter(0);
}

void Handbuchsuche::weiter(int schritt)
{
    if (m_treffer.empty())
        return;
    const int count = static_cast<int>(m_treffer.size());
    m_jetzt = (m_jetzt + schritt + count) % count;
    zeige();
    emit gefunden(m_treffer.at(static_cast<std::size_t>(m_jetzt)).selectionStart());
}

void Handbuchsuche::zeige()
{
    const bool isDark = istDunkel(palette(), QPalette::Base);
    const QColor mark = isDark ? QColor(110, 90, 0) : QColor(255, 235, 130);
    const QColor current = isDark ? QColor(255, 160, 40) : QColor(255, 150, 30);
    QList<QTextEdit::ExtraSelection> marks;
    for (int i = 0; i < std::ssize(m_treffer); ++i) {
        QTextEdit::ExtraSelection selection;
        selection.cursor = m_treffer.at(static_cast<std::size_t>(i));
        selection.format.setBackground(i == m_jetzt ? current : mark);
        selection.format.setForeground(textOn(i == m_jetzt ? current : mark));
        marks.append(selection);
    }
    m_text.setExtraSelections(marks);
    const bool isAsked = !m_txtSuche->text().simplified().isEmpty();
    m_lblTreffer->setText(!isAsked ? QString()
            : m_treffer.empty()    ? QStringLiteral("kein Treffer")
                                   : QStringLiteral("Treffer %1 von %2").arg(m_jetzt + 1).arg(m_treffer.size()));
    QPalette colours = palette();
    if (isAsked && m_treffer.empty())
        colours.setColor(QPalette::Text, fehlerfarbe(palette(), QPalette::Base));
    m_txtSuche->setPalette(colours);
    for (StyledButton* const button : {m_cmdVorher, m_cmdWeiter})
        button->setEnabled(!m_treffer.empty());
}

bool Handbuchsuche::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
            weiter(key.modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
            return true;
        }
        if (key.key() == Qt::Key_Escape && !m_txtSuche->text().isEmpty()) {
            m_txtSuche->clear();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace zerna
