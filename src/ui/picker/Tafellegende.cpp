#include "ui/picker/Tafellegende.h"

#include <QPainter>

#include <algorithm>
#include <array>

#include "bild/PSETafel.h"
#include "core/Anzeigetext.h"
#include "ui/picker/Zelltexte.h"
#include "ui/platform/Farben.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

/// What the numbers in the corners of cells mean, at the bottom of the area.
void paintMarkenhinweis(QPainter& painter, const QRectF& area, const Zellstil& stil)
{
    const QColor text = stil.palette.color(QPalette::WindowText);
    const double height = painter.fontMetrics().height();
    const QPointF corner(area.left() + 1.2 * height, area.bottom() - 1.4 * height);
    paintKomponenten(painter, corner, QStringLiteral("1"), text, painter.font());
    painter.setPen(text);
    painter.drawText(QRectF(corner.x() + 8, corner.y() + 1, area.width(), height + 1), Qt::AlignLeft | Qt::AlignVCenter,
        QStringLiteral("Komponente der Legierung"));
}

/// Two groups above the two others.
void paintGruppen(QPainter& painter, const QRectF& area, const QPalette& palette)
{
    const double height = std::min(painter.fontMetrics().height() + 12.0, area.height() / 2);
    const double width = area.width() / 2;
    std::size_t i = 0;
    for (const Elementgruppe& gruppe : elementgruppen()) {
        const QPointF corner(area.left() + (i % 2 == 0 ? 0 : width), area.top() + (i < 2 ? 0 : height));
        const QColor colour = toQt(gruppe.farbe(istDunkel(palette)));
        const QRectF sample(corner, QSizeF(height, height) * 0.7);
        paintGrund(painter, sample, colour, istDunkel(palette));
        const QSizeF size = sample.size() * 0.4;
        const QRectF middle(sample.center() - QPointF(size.width(), size.height()) / 2, size);
        paintZeichen(painter, middle, gruppe.zeichen, textOn(colour));
        painter.setPen(palette.color(QPalette::WindowText));
        painter.drawText(QRectF(sample.right() + 8, sample.top(), width - sample.width() - 8, sample.height()),
            Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, toQt(gruppe.name));
        ++i;
    }
}

void paintSkala(QPainter& painter, const QRectF& area, const Tafelfaerbung& faerbung, const QPalette& palette)
{
    const double barHeight = std::min(14.0, area.height() / 3);
    const QRectF bar(area.left(), area.top() + 2, area.width(), barHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(farbverlauf(bar.topLeft(), bar.topRight()));
    painter.drawRect(bar);
    painter.setPen(palette.color(QPalette::WindowText));
    const QRectF labels(bar.left(), bar.bottom() + 2, bar.width(), area.bottom() - bar.bottom() - 2);
    const Wertskala& skala = faerbung.skala();
    painter.drawText(labels, Qt::AlignLeft | Qt::AlignTop, toQt(anzeigetext(tafelzahl(skala.kleinster()))));
    painter.drawText(labels, Qt::AlignRight | Qt::AlignTop, toQt(anzeigetext(tafelzahl(skala.groesster()))));
    const double line = painter.fontMetrics().height();
    QString titel = toQt(faerbung.titel());
    if (skala.art() != Skalenart::Linear) {
        painter.drawText(labels, Qt::AlignHCenter | Qt::AlignTop, toQt(anzeigetext(tafelzahl(skala.mitte()))));
        titel += QStringLiteral(", Farbe %1").arg(toQt(skalenhinweis(skala.art())));
    }
    painter.drawText(labels.adjusted(0, line, 0, 0), Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, titel);
}

} // namespace

void paintLegende(QPainter& painter, const QRectF& area, const Tafelfaerbung& faerbung, const Zellstil& stil)
{
    if (area.height() < 20 || area.width() < 80)
        return;
    painter.setFont(stil.font);
    if (faerbung.nachGruppe())
        paintGruppen(painter, area, stil.palette);
    else
        paintSkala(painter, area, faerbung, stil.palette);
    if (area.height() > 6 * painter.fontMetrics().height())
        paintMarkenhinweis(painter, area, stil);
}

void paintReihenhinweise(QPainter& painter, const Tafelmassstab& scale, const Zellstil& stil)
{
    struct Hinweis {
        int row;
        const char* text;
    };
    constexpr std::array<Hinweis, 2> Hinweise{{{9, "zu La  ▴"}, {10, "zu Ac  ▴"}}};
    painter.setPen(stil.palette.color(QPalette::WindowText));
    for (const auto& [row, text] : Hinweise) {
        const Rechteck place = scale.cell(1, row);
        painter.setFont(withPixelSize(stil.font, std::clamp(place.height * 0.2, 7.0, 14.0)));
        painter.drawText(QRectF(place.left, place.top, place.width * 3 - 6, place.height),
            Qt::AlignRight | Qt::AlignVCenter, QString::fromUtf8(text));
    }
}

} // namespace zerna
