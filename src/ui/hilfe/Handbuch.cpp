#include "ui/hilfe/Handbuch.h"

#include <QFile>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QImage>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextOption>
#include <QTextTable>
#include <QUrl>

#include <algorithm>

#ifndef _WIN32
#include "core/Datei.h"
#include "core/Plattform.h"
#endif
#include "ui/platform/Farben.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

/// The parts of the style that follow from font and palette.
struct Mittel {
    explicit Mittel(const Handbuchstil& style)
        : stil(style)
        , zeile(QFontMetricsF(stil.schrift).height())
        , fest(QFontDatabase::systemFont(QFontDatabase::FixedFont))
        , text(stil.palette.color(QPalette::Text))
        , grund(gemischt(stil.palette.color(QPalette::Base), text, 0.07))
        , linie(gemischt(stil.palette.color(QPalette::Base), text, 0.3))
        , verweis(
              abgehoben(stil.palette.color(QPalette::Link), {stil.palette.color(QPalette::Base), grund}, Textkontrast))
    {
        fest.setPointSizeF(stil.schrift.pointSizeF() * 0.95);
    }

    const Handbuchstil& stil;
    double zeile;
    QFont fest;
    QColor text;
    QColor grund; // behind code and heads of tables
    QColor linie;
    QColor verweis;
};

bool istCode(const QTextBlock& block) { return block.blockFormat().hasProperty(QTextFormat::BlockCodeLanguage); }

bool hatBild(const QTextBlock& block) { return block.text().contains(QChar::ObjectReplacementCharacter); }

/// Paragraphs, headings and code get their distances, headings their anchors, too.
void gestalteBlock(const QTextBlock& block, const Mittel& mittel)
{
    QTextCursor cursor(block);
    QTextBlockFormat format = block.blockFormat();
    const bool isInTable = cursor.currentTable() != nullptr;
    if (istCode(block)) {
        format.setBackground(mittel.grund);
        format.setTopMargin(istCode(block.previous()) ? 0 : mittel.zeile * 0.3);
        format.setBottomMargin(istCode(block.next()) ? 0 : mittel.zeile * 0.7);
        format.setLeftMargin(mittel.zeile);
        format.setNonBreakableLines(false); // a long command goes on in the next line
    } else if (const int level = format.headingLevel(); level > 0) {
        format.setTopMargin(mittel.zeile * (level <= 2 ? 1.8 : 1.2));
        format.setBottomMargin(mittel.zeile * 0.5);
        QTextCharFormat anchor;
        anchor.setAnchor(true);
        anchor.setAnchorNames({handbuchanker(block.text())});
        cursor.select(QTextCursor::BlockUnderCursor);
        cursor.mergeCharFormat(anchor);
    } else {
        format.setTopMargin(0);
        format.setBottomMargin(isInTable ? 0 : mittel.zeile * (block.textList() != nullptr ? 0.25 : 0.6));
        if (!hatBild(block))
            format.setLineHeight(115, QTextBlockFormat::ProportionalHeight);
    }
    QTextCursor(block).setBlockFormat(format);
}

/// A picture no wider than the lines. It is made smaller here, since painting would do it coarsely.
QTextImageFormat eingepasst(QTextDocument& dokument, const QString& file, QTextImageFormat format, const Mittel& mittel)
{
    QImage image(file);
    if (image.isNull())
        return format;
    const int width = std::min(static_cast<int>(image.width() * mittel.stil.bildgroesse), mittel.stil.breite);
    format.setWidth(width);
    format.setHeight(static_cast<double>(image.height()) * width / image.width());
    if (const double pixels = width * mittel.stil.pixel; mittel.stil.pixel > 0 && pixels < image.width())
        image = image.scaledToWidth(static_cast<int>(pixels), Qt::SmoothTransformation);
    dokument.addResource(QTextDocument::ImageResource, QUrl(format.name()), image);
    return format;
}

/// A piece of text, with the format that it is to have.
struct Stueck {
    int von;
    int bis;
    QTextCharFormat format;
};

std::vector<Stueck> gestalteteStuecke(
    QTextDocument& dokument, const QTextBlock& block, const QString& ordner, const Mittel& mittel)
{
    std::vector<Stueck> pieces;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        QTextCharFormat format = fragment.charFormat();
        if (format.isImageFormat()) {
            const QTextImageFormat image = format.toImageFormat();
            format = eingepasst(dokument, ordner + QLatin1Char('/') + image.name(), image, mittel);
        } else if (format.isAnchor() && !format.anchorHref().isEmpty()) {
            const bool isInside = format.anchorHref().startsWith(QLatin1Char('#'));
            format.setAnchor(isInside); // other pages are not where this one is
            format.setAnchorHref(isInside ? format.anchorHref() : QString());
            format.setForeground(isInside ? mittel.verweis : mittel.text);
            format.setFontUnderline(isInside);
        } else if (format.fontFixedPitch()) {
            format.setFont(mittel.fest, QTextCharFormat::FontPropertiesSpecifiedOnly);
            if (!istCode(block))
                format.setBackground(mittel.grund);
        } else
            continue;
        pieces.push_back({fragment.position(), fragment.position() + fragment.length(), format});
    }
    return pieces;
}

void gestalteText(QTextDocument& dokument, const QTextBlock& block, const QString& ordner, const Mittel& mittel)
{
    for (const Stueck& piece : gestalteteStuecke(dokument, block, ordner, mittel)) {
        QTextCursor cursor(&dokument);
        cursor.setPosition(piece.von);
        cursor.setPosition(piece.bis, QTextCursor::KeepAnchor);
        cursor.setCharFormat(piece.format);
    }
}

void gestalteTabelle(QTextTable& table, const Mittel& mittel)
{
    QTextTableFormat format = table.format();
    format.setBorderCollapse(true);
    format.setBorder(1);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(mittel.linie);
    format.setCellPadding(mittel.zeile * 0.25);
    format.setCellSpacing(0);
    format.setTopMargin(mittel.zeile * 0.2);
    format.setBottomMargin(mittel.zeile * 0.6);
    table.setFormat(format);
    for (int column = 0; column < table.columns(); ++column) {
        QTextTableCell cell = table.cellAt(0, column);
        QTextCharFormat head = cell.format();
        head.setBackground(mittel.grund);
        cell.setFormat(head);
    }
}

void gestalteTabellen(QTextFrame& frame, const Mittel& mittel)
{
    for (QTextFrame* const child : frame.childFrames()) {
        if (auto* const table = qobject_cast<QTextTable*>(child))
            gestalteTabelle(*table, mittel);
        gestalteTabellen(*child, mittel);
    }
}

/// How much of a message a quotation with dots for what varies covers; 0 if it is another message.
qsizetype deckung(const QString& quotation, const QString& message)
{
    qsizetype at = 0;
    qsizetype covered = 0;
    for (const QString& part : quotation.split(QChar(0x2026), Qt::SkipEmptyParts)) {
        const QString text = part.simplified();
        const qsizetype found = message.indexOf(text, at);
        if (found < 0)
            return 0;
        at = found + text.size();
        covered += text.size();
    }
    return covered;
}

} // namespace

QString handbuchanker(const QString& titel)
{
    QString anchor;
    for (const QChar c : titel.toLower()) {
        if (c.isLetterOrNumber() || c == QLatin1Char('-') || c == QLatin1Char('_'))
            anchor.append(c);
        else if (c == QLatin1Char(' '))
            anchor.append(QLatin1Char('-'));
    }
    return anchor;
}

QString handbuchbilderordner()
{
#ifdef Q_OS_WIN
    return QLatin1String(Handbuchordner);
#else
    return toQt(utf8FromPath(executableFolder() / "handbuch"));
#endif
}

QString handbuchtext(const QString& ordner)
{
    QFile file(ordner + QStringLiteral("/handbuch.md"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

std::vector<Handbuchabschnitt> setzeHandbuch(
    QTextDocument& dokument, const QString& markdown, const QString& ordner, const Handbuchstil& stil)
{
    const Mittel mittel(stil);
    dokument.setUndoRedoEnabled(false);
    dokument.setDefaultFont(stil.schrift);
    dokument.setIndentWidth(mittel.zeile * 1.6);
    dokument.setMarkdown(markdown);
    std::vector<Handbuchabschnitt> sections;
    QTextCursor all(&dokument);
    all.beginEditBlock();
    for (QTextBlock block = dokument.begin(); block.isValid(); block = block.next()) {
        gestalteText(dokument, block, ordner, mittel);
        gestalteBlock(block, mittel);
        if (const int level = block.blockFormat().headingLevel(); level > 0)
            sections.push_back({handbuchanker(block.text()), block.text(), level, block.position()});
    }
    gestalteTabellen(*dokument.rootFrame(), mittel);
    all.endEditBlock();
    return sections;
}

const Handbuchabschnitt* findeAbschnitt(const std::vector<Handbuchabschnitt>& abschnitte, const QString& anker)
{
    static const QRegularExpression number(QStringLiteral("^\\d+-"));
    const auto found = std::ranges::find_if(abschnitte, [&anker](const Handbuchabschnitt& section) {
        return section.anker == anker || QString(section.anker).remove(number) == anker;
    });
    return found == abschnitte.end() ? nullptr : &*found;
}

int meldungsstelle(const QTextDocument& dokument, const QString& meldung)
{
    static const QRegularExpression quotations(QStringLiteral("\u201e([^\u201c]*)\u201c"));
    const QString message = meldung.simplified();
    std::pair<qsizetype, int> best{7, -1}; // less than eight letters in common are chance
    for (QTextBlock block = dokument.begin(); block.isValid(); block = block.next()) {
        const QTextTable* const table = QTextCursor(block).currentTable();
        if (table == nullptr || table->cellAt(block.position()).column() != 0)
            continue;
        for (auto it = quotations.globalMatch(block.text()); it.hasNext();)
            best = std::max(best, {deckung(it.next().captured(1), message), block.position()},
                [](const auto& a, const auto& b) { return a.first < b.first; });
    }
    return best.second;
}

void brichWoerter(QTextDocument& dokument)
{
    QTextOption option = dokument.defaultTextOption();
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    dokument.setDefaultTextOption(option);
}

int titelbreite(const QString& text, const QFontMetrics& letters, int einzug)
{
    static const QRegularExpression heading(QStringLiteral("^##(#?) (.*)$"), QRegularExpression::MultilineOption);
    int widest = 0;
    for (auto found = heading.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch title = found.next();
        const int level = title.captured(1).isEmpty() ? 1 : 2;
        widest = std::max(widest, letters.horizontalAdvance(title.captured(2)) + level * einzug);
    }
    return widest;
}

} // namespace zerna
