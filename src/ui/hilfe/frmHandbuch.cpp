#include "ui/hilfe/frmHandbuch.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QTextBlock>
#include <QTextDocument>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <utility>

#include "ui/controls/Knopfzeile.h"
#include "ui/hilfe/Handbuchbrowser.h"
#include "ui/hilfe/Handbuchsuche.h"
#include "ui/hilfe/Titelumbruch.h"

namespace zerna {

namespace {

constexpr const char* Zoomschluessel = "Handbuchzoom";
constexpr std::array Zoomstufen{70, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300}; // percent
constexpr int LaengsteZeile = 112; // times the average letter; longer lines are hard to follow
constexpr auto Meldungskapitel = "meldungen-und-was-zu-tun-ist";

constexpr int PositionRole = Qt::UserRole;

/// The next step of zoom in a direction.
int naechsteStufe(int percent, int direction)
{
    if (direction > 0) {
        const auto* const step = std::ranges::upper_bound(Zoomstufen, percent);
        return step == Zoomstufen.end() ? Zoomstufen.back() : *step;
    }
    const auto* const step = std::ranges::lower_bound(Zoomstufen, percent);
    return step == Zoomstufen.begin() ? Zoomstufen.front() : *(step - 1);
}

StyledButton* makeKnopf(QWidget* parent, const QString& caption, const char* name, const QString& hint)
{
    auto* const button = new StyledButton(caption, parent);
    button->setObjectName(QLatin1String(name));
    button->setToolTipText(hint);
    button->setAccessibleDescription(hint);
    setKnopfgroesse(button, 0);
    return button;
}

} // namespace

frmHandbuch::frmHandbuch(Settings& settings, QWidget* parent)
    : QWidget(parent, Qt::Window)
    , m_settings(settings)
{
    setObjectName(QStringLiteral("frmHandbuch"));
    setWindowTitle(QStringLiteral("Handbuch"));
    const int stored = QString::fromStdString(settings.LoadSetting(Zoomschluessel, "100")).toInt();
    m_zoom = std::ranges::find(Zoomstufen, stored) == Zoomstufen.end() ? 100 : stored;
    createControls();
    layOut();
    connectControls();
    addTasten();
}

void frmHandbuch::createControls()
{
    m_cmdZurueck = makeKnopf(this, QStringLiteral("◀ Zurück"), "cmdZurueck", QStringLiteral("Zurück (Alt+←)"));
    m_cmdVor = makeKnopf(this, QStringLiteral("Vor ▶"), "cmdVor", QStringLiteral("Vor (Alt+→)"));
    m_inhalt = new QTreeWidget(this);
    m_inhalt->setObjectName(QStringLiteral("lstInhalt"));
    m_inhalt->setAccessibleName(QStringLiteral("Inhalt"));
    m_inhalt->setHeaderHidden(true);
    m_inhalt->setItemDelegate(new Titelumbruch(*m_inhalt));
    m_inhalt->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_text = new Handbuchbrowser(this);
    m_text->setObjectName(QStringLiteral("txtHandbuch"));
    m_text->setAccessibleName(QStringLiteral("Handbuch"));
    m_text->setOpenLinks(false);
    m_text->viewport()->installEventFilter(this);
    m_suche = new Handbuchsuche(*m_text, this);
    m_lblZoom = new QLabel(this);
    m_lblZoom->setObjectName(QStringLiteral("lblZoom"));
    m_lblZoom->setAlignment(Qt::AlignCenter);
    folgeSchrift(
        m_lblZoom, [this] { m_lblZoom->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral(" 300 % "))); });
}

void frmHandbuch::layOut()
{
    auto* const smaller = makeKnopf(this, QStringLiteral("−"), "cmdKleiner", QStringLiteral("Kleiner (Strg+−)"));
    auto* const larger = makeKnopf(this, QStringLiteral("+"), "cmdGroesser", QStringLiteral("Größer (Strg++)"));
    for (const auto& [button, direction] : {std::pair(smaller, -1), {larger, 1}}) {
        setZeichenknopf(button);
        connect(button, &StyledButton::clicked, this,
            [this, direction = direction] { setZoom(naechsteStufe(m_zoom, direction)); });
    }
    auto* const strip = new QHBoxLayout;
    strip->setContentsMargins(8, 6, 8, 6);
    strip->setSpacing(4);
    strip->addWidget(m_cmdZurueck);
    strip->addWidget(m_cmdVor);
    strip->addSpacing(8);
    strip->addWidget(m_suche, 1);
    strip->addSpacing(8);
    strip->addWidget(smaller);
    strip->addWidget(m_lblZoom);
    strip->addWidget(larger);
    m_teile = new QSplitter(this);
    m_teile->setChildrenCollapsible(false);
    m_teile->addWidget(m_inhalt);
    m_teile->addWidget(m_text);
    m_teile->setStretchFactor(1, 1);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(strip);
    column->addWidget(m_teile, 1);
    setTabOrder(m_cmdVor, m_suche);
    setTabOrder(larger, m_inhalt);
    setTabOrder(m_inhalt, m_text);
}

void frmHandbuch::connectControls()
{
    connect(m_cmdZurueck, &StyledButton::clicked, this, [this] { geh(m_zurueck, m_vor); });
    connect(m_cmdVor, &StyledButton::clicked, this, [this] { geh(m_vor, m_zurueck); });
    connect(m_text, &QTextBrowser::anchorClicked, this, [this](const QUrl& url) { folge(url.fragment()); });
    connect(m_text->verticalScrollBar(), &QScrollBar::valueChanged, this, &frmHandbuch::zeigeInhaltsstelle);
    const auto go = [this](const QTreeWidgetItem* item) { springe(item->data(0, PositionRole).toInt()); };
    connect(m_inhalt, &QTreeWidget::itemClicked, this, go);
    connect(m_inhalt, &QTreeWidget::itemActivated, this, go);
    connect(m_teile, &QSplitter::splitterMoved, this, &frmHandbuch::passeEin);
    connect(m_suche, &Handbuchsuche::gefunden, this, &frmHandbuch::zeigeTreffer);
}

void frmHandbuch::addTasten()
{
    const auto add = [this](const QKeySequence& key, const std::function<void()>& act) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, act);
    };
    add(QKeySequence::Find, [this] { m_suche->beginne(); });
    add(Qt::Key_F3, [this] { m_suche->weiter(1); });
    add(Qt::SHIFT | Qt::Key_F3, [this] { m_suche->weiter(-1); });
    add(Qt::ALT | Qt::Key_Left, [this] { geh(m_zurueck, m_vor); });
    add(Qt::ALT | Qt::Key_Right, [this] { geh(m_vor, m_zurueck); });
    for (const QKeySequence& key : {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)})
        add(key, [this] { setZoom(naechsteStufe(m_zoom, 1)); });
    add(Qt::CTRL | Qt::Key_Minus, [this] { setZoom(naechsteStufe(m_zoom, -1)); });
    add(Qt::CTRL | Qt::Key_0, [this] { setZoom(100); });
    add(Qt::CTRL | Qt::Key_W, [this] { close(); });
}

/// The width of a line that the window has room for, as far as lines of that length are good to read.
int frmHandbuch::zeilenbreite() const
{
    QFont letters = font();
    letters.setPointSizeF(letters.pointSizeF() * m_zoom / 100);
    const int longest = LaengsteZeile * QFontMetrics(letters).averageCharWidth();
    const int frame = m_text->verticalScrollBar()->sizeHint().width() + 2 * m_text->frameWidth() + 2; // of tables
    return std::max(std::min(m_text->width() - frame - 2 * fontMetrics().height(), longest), 100);
}

/// Sets the text for the present font, colours and width; what is seen stays at its place.
void frmHandbuch::setze()
{
    const QString text = handbuchtext(QLatin1String(Handbuchordner));
    const int seen = m_abschnitte.empty() ? 0 : stelle();
    if (m_abschnitte.empty())
        zeigeGanzeTitel(text);
    Handbuchstil style{.schrift = font(), .palette = m_text->palette(), .pixel = devicePixelRatioF()};
    style.schrift.setPointSizeF(font().pointSizeF() * m_zoom / 100);
    const int margin = fontMetrics().height();
    m_breite = zeilenbreite();
    style.breite = m_breite;
    auto* const document = new QTextDocument(this); // without a view nothing is laid out while it is made
    m_abschnitte = setzeHandbuch(*document, text, handbuchbilderordner(), style);
    document->setDocumentMargin(margin);
    m_text->setLineWrapMode(QTextEdit::FixedPixelWidth);
    m_text->setLineWrapColumnOrWidth(m_breite + 2 * margin);
    m_text->setExtraSelections({}); // of the document that goes
    m_text->setDocument(document);
    if (document->size().width() > m_breite + 2 * margin) // tables keep words whole as long as there is room
        brichWoerter(*document);
    delete std::exchange(m_dokument, document);
    m_lblZoom->setText(QStringLiteral("%1 %").arg(m_zoom));
    fuelleInhalt();
    m_suche->erneuere();
    rolle(seen);
}

void frmHandbuch::passeEin()
{
    if (!m_abschnitte.empty() && zeilenbreite() != m_breite)
        setze();
}

void frmHandbuch::fuelleInhalt()
{
    if (m_inhalt->topLevelItemCount() == 0) {
        QTreeWidgetItem* chapter = nullptr;
        for (const Handbuchabschnitt& section : m_abschnitte) {
            if (section.ebene == 2)
                chapter = new QTreeWidgetItem(m_inhalt, {section.titel});
            else if (section.ebene == 3 && chapter != nullptr)
                new QTreeWidgetItem(chapter, {section.titel});
        }
    }
    QTreeWidgetItemIterator entry(m_inhalt);
    for (const Handbuchabschnitt& section : m_abschnitte) {
        if (section.ebene == 2 || section.ebene == 3) {
            (*entry)->setData(0, PositionRole, section.position);
            ++entry;
        }
    }
}

/// Gives the contents the width of the longest title, but not too much of the window.
void frmHandbuch::zeigeGanzeTitel(const QString& text)
{
    const int margin = m_inhalt->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_inhalt) + 1;
    const int edge = m_inhalt->verticalScrollBar()->sizeHint().width() + 4 * m_inhalt->frameWidth() + 2 * margin;
    const int whole = titelbreite(text, m_inhalt->fontMetrics(), m_inhalt->indentation());
    const int wanted = std::min(whole + edge, width() * 2 / 5);
    m_teile->setSizes({wanted, width() - wanted});
}

/// Marks in the contents the section that is seen.
void frmHandbuch::zeigeInhaltsstelle()
{
    const int seen = stelle();
    QTreeWidgetItem* current = nullptr;
    for (QTreeWidgetItemIterator entry(m_inhalt); *entry != nullptr; ++entry) {
        if ((*entry)->data(0, PositionRole).toInt() > seen)
            break;
        current = *entry;
    }
    if (current == m_inhalt->currentItem())
        return;
    m_inhalt->setCurrentItem(current);
    if (current != nullptr)
        m_inhalt->scrollToItem(current);
}

void frmHandbuch::zeigeAbschnitt(const QString& anker)
{
    if (m_abschnitte.empty())
        setze();
    const Handbuchabschnitt* const section = findeAbschnitt(m_abschnitte, anker);
    oeffne(section != nullptr ? section->position : 0);
}

void frmHandbuch::zeigeMeldung(const QString& meldung)
{
    if (m_abschnitte.empty())
        setze();
    if (const int place = meldungsstelle(*m_text->document(), meldung); place >= 0)
        oeffne(place);
    else
        zeigeAbschnitt(QLatin1String(Meldungskapitel));
}

void frmHandbuch::folge(const QString& verweis)
{
    if (const Handbuchabschnitt* const section = findeAbschnitt(m_abschnitte, verweis); section != nullptr)
        springe(section->position);
}

/// Goes to a place from outside; from the first one after the window has been closed no way leads back.
void frmHandbuch::oeffne(int position)
{
    if (!std::exchange(m_neu, false))
        return springe(position);
    m_zurueck.clear();
    m_vor.clear();
    rolle(position);
}

/// Goes to a place; the way back leads to where the reader is now.
void frmHandbuch::springe(int position)
{
    if (m_zurueck.empty() || m_zurueck.back() != stelle())
        m_zurueck.push_back(stelle());
    m_vor.clear();
    rolle(position);
}

void frmHandbuch::geh(std::vector<int>& dort, std::vector<int>& hier)
{
    if (dort.empty())
        return;
    hier.push_back(stelle());
    const int position = dort.back();
    dort.pop_back();
    rolle(position);
}

/// Brings a place to the top of the view.
void frmHandbuch::rolle(int position)
{
    const QTextBlock block = m_text->document()->findBlock(position);
    QTextCursor cursor(block);
    m_text->setTextCursor(cursor);
    const auto* const layout = m_text->document()->documentLayout();
    layout->documentSize(); // all of it is laid out, or there is nowhere to go to
    const double top = layout->blockBoundingRect(block).top();
    m_text->verticalScrollBar()->setValue(static_cast<int>(top) - m_text->fontMetrics().height() / 2);
    m_text->horizontalScrollBar()->setValue(0);
    m_gerollt = {position, m_text->verticalScrollBar()->value()};
    zeigeInhaltsstelle();
    m_cmdZurueck->setEnabled(!m_zurueck.empty());
    m_cmdVor->setEnabled(!m_vor.empty());
}

/// Brings a hit into view, with what belongs to it below.
void frmHandbuch::zeigeTreffer(int position)
{
    QTextCursor cursor(m_text->document());
    cursor.setPosition(position);
    m_text->setTextCursor(cursor);
    const int top = m_text->cursorRect().top();
    const int height = m_text->viewport()->height();
    if (top < 0 || top > height * 2 / 3)
        m_text->verticalScrollBar()->setValue(m_text->verticalScrollBar()->value() + top - height / 4);
    zeigeInhaltsstelle();
}

/// The position of what is seen at the top: what was last brought there, as long as nobody has scrolled.
int frmHandbuch::stelle() const
{
    if (m_text->verticalScrollBar()->value() == m_gerollt.second)
        return m_gerollt.first;
    return m_text->cursorForPosition({m_text->width() / 4, m_text->fontMetrics().height()}).block().position();
}

void frmHandbuch::setZoom(int prozent)
{
    if (prozent == m_zoom)
        return;
    m_zoom = prozent;
    m_settings.SaveSetting(Zoomschluessel, std::to_string(prozent));
    setze();
}

void frmHandbuch::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (!m_abschnitte.empty() && (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange))
        QMetaObject::invokeMethod(this, &frmHandbuch::setze, Qt::QueuedConnection); // when the children follow, too
}

void frmHandbuch::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void frmHandbuch::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    QMetaObject::invokeMethod(this, &frmHandbuch::passeEin, Qt::QueuedConnection); // when the children have their size
}

void frmHandbuch::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_text->setFocus();
}

/// The wheel with Ctrl zooms, as in browsers.
bool frmHandbuch::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel) {
        const auto& wheel = static_cast<const QWheelEvent&>(*event);
        if (wheel.modifiers().testFlag(Qt::ControlModifier)) {
            constexpr int Notch = 120; // eighths of a degree; touchpads send them in small parts, and sideways too
            m_rad += wheel.angleDelta().y();
            if (const int notches = m_rad / Notch; notches != 0) {
                m_rad %= Notch;
                setZoom(naechsteStufe(m_zoom, notches));
            }
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace zerna
