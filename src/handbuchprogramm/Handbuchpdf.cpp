#include "handbuchprogramm/Handbuchpdf.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "ui/hilfe/Handbuch.h"

namespace zerna {

namespace {

constexpr double Schriftgroesse = 9.5; // points
constexpr QSizeF Seite(494, 706); // points, with the margin of the document on each page
constexpr double Rand = 6; // which keeps lines clear of the edge, where the painting of pages meets
constexpr double Bildpunkt = 0.75; // points of a pixel in the sizes of pictures
constexpr double Fusshoehe = 24; // points

Handbuchstil druckstil()
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Link, QColor(0, 60, 140));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSizeF(Schriftgroesse);
    font.setHintingPreference(QFont::PreferNoHinting);
    return {.schrift = font,
        .palette = palette,
        .breite = static_cast<int>((Seite.width() - 2 * Rand) / Bildpunkt),
        .pixel = 0,
        .bildgroesse = 0.7};
}

void setupPage(QTextDocument& document, QPdfWriter& writer)
{
    document.documentLayout()->setPaintDevice(&writer);
    document.setUseDesignMetrics(true);
    document.setDocumentMargin(Rand);
    document.setPageSize(Seite);
}

/// Lays all of it out anew: after changes here and there the toolkit leaves parts without their lines.
void layOut(QTextDocument& document)
{
    document.setPageSize(2 * Seite);
    document.setPageSize(Seite);
    document.documentLayout()->documentSize();
}

int pageOf(const QTextDocument& document, const QTextBlock& block)
{
    // A block's rectangle begins with its margin, which may be on the page before.
    const QRectF place = document.documentLayout()->blockBoundingRect(block);
    const double first = block.layout()->lineCount() > 0 ? block.layout()->lineAt(0).y() : 0;
    return static_cast<int>((place.top() + first + 1) / Seite.height());
}

void breakBefore(const QTextBlock& block)
{
    QTextBlockFormat format = block.blockFormat();
    format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    format.setTopMargin(0);
    QTextCursor(block).setBlockFormat(format);
}

/// Chapters begin on a new page, and no heading is left alone at the end of one.
void paginate(QTextDocument& document, const std::vector<Handbuchabschnitt>& sections)
{
    for (const Handbuchabschnitt& section : sections) {
        const QTextBlock heading = document.findBlock(section.position);
        if (section.ebene <= 2 && heading.position() > 0)
            breakBefore(heading);
    }
    layOut(document);
    for (const Handbuchabschnitt& section : sections) {
        const QTextBlock heading = document.findBlock(section.position);
        if (heading.next().isValid() && pageOf(document, heading) != pageOf(document, heading.next())) {
            breakBefore(heading);
            layOut(document);
        }
    }
}

/// Title page: what the manual is, and its contents.
void fillFront(QTextDocument& front, const QString& intro, const QString& ordner, const QString& version,
    const std::vector<std::pair<Handbuchabschnitt, int>>& pages)
{
    setzeHandbuch(front, intro, ordner, druckstil());
    QTextCursor cursor(&front);
    cursor.movePosition(QTextCursor::End);
    cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
    cursor.insertText(QStringLiteral("Version %1").arg(version));
    QTextTableFormat format;
    format.setBorder(0);
    format.setCellPadding(0.2);
    format.setTopMargin(16);
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    format.setColumnWidthConstraints(
        {QTextLength(QTextLength::PercentageLength, 92), QTextLength(QTextLength::PercentageLength, 8)});
    QTextTable* const table = cursor.insertTable(static_cast<int>(pages.size()), 2, format);
    for (int row = 0; row < std::ssize(pages); ++row) {
        const auto& [section, page] = pages.at(static_cast<std::size_t>(row));
        QTextCharFormat letters;
        letters.setFontPointSize(Schriftgroesse - 1.5); // all on one page
        letters.setFontWeight(section.ebene == 2 ? QFont::Bold : QFont::Normal);
        QTextBlockFormat indented;
        indented.setLeftMargin(section.ebene == 2 ? 0 : 18);
        QTextCursor entry = table->cellAt(row, 0).firstCursorPosition();
        entry.setBlockFormat(indented);
        entry.insertText(section.titel, letters);
        QTextBlockFormat right;
        right.setAlignment(Qt::AlignRight);
        QTextCursor number = table->cellAt(row, 1).firstCursorPosition();
        number.setBlockFormat(right);
        number.insertText(QString::number(page), letters);
    }
}

void paint(QTextDocument& document, QPdfWriter& writer, QPainter& painter, int& number)
{
    for (int page = 0; page < document.pageCount(); ++page) {
        if (++number > 1)
            writer.newPage();
        painter.save();
        painter.setRenderHint(QPainter::LosslessImageRendering); // pictures of few colours are smaller and sharper so
        painter.translate(0, -page * Seite.height());
        const QRectF part(QPointF(0, page * Seite.height()), Seite);
        painter.setClipRect(part);
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = part;
        context.palette.setColor(QPalette::Text, Qt::black);
        document.documentLayout()->draw(&painter, context);
        painter.restore();
        painter.setFont(druckstil().schrift);
        painter.drawText(QRectF(0, Seite.height(), Seite.width(), Fusshoehe), Qt::AlignHCenter | Qt::AlignBottom,
            QString::number(number));
    }
}

} // namespace

void schreibeHandbuchpdf(const QString& markdown, const QString& ordner, const QString& version, const QString& datei)
{
    QPdfWriter writer(datei);
    writer.setTitle(QStringLiteral("Handbuch zu Zerna"));
    writer.setCreator(QStringLiteral("Zerna %1").arg(version));
    writer.setResolution(72); // so that lengths are points; letters and lines are as fine as ever
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(18, 18, 18, 15), QPageLayout::Millimeter);
    const qsizetype firstChapter = markdown.indexOf(QLatin1String("\n## "));
    const qsizetype contents = markdown.indexOf(QLatin1String("\n1. ["));
    QTextDocument body;
    setupPage(body, writer);
    const auto sections = setzeHandbuch(body, markdown.mid(firstChapter + 1), ordner, druckstil());
    paginate(body, sections);

    QTextDocument front;
    std::vector<std::pair<Handbuchabschnitt, int>> pages;
    for (const Handbuchabschnitt& section : sections)
        pages.emplace_back(section, pageOf(body, body.findBlock(section.position)) + 1);
    for (int frontPages = 0; frontPages != front.pageCount();) { // their number is part of the numbers on them
        frontPages = front.pageCount();
        auto shifted = pages;
        for (auto& entry : shifted)
            entry.second += frontPages;
        setupPage(front, writer);
        fillFront(front, markdown.left(std::min(firstChapter, contents)), ordner, version, shifted);
        layOut(front);
    }
    QPainter painter;
    if (!painter.begin(&writer))
        throw std::runtime_error("the PDF document cannot be written");
    int number = 0;
    paint(front, writer, painter, number);
    paint(body, writer, painter, number);
}

} // namespace zerna
