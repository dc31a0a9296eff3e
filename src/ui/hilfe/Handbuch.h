#pragma once

#include <QFont>
#include <QPalette>
#include <QString>

#include <vector>

class QTextDocument;

/// The manual as a document: its source is Markdown, the same that other pages are made from.
namespace zerna {

/// Where the text of the manual is inside the program.
inline constexpr auto Handbuchordner = ":/handbuch";

/// Where its pictures are: beside the program, since its pages show the same ones; on Windows inside it.
QString handbuchbilderordner();

/// How the manual is to look.
struct Handbuchstil {
    QFont schrift;
    QPalette palette;
    int breite = 0; ///< of a line, in pixels of the document; wider pictures are made to fit
    double pixel = 1; ///< of the picture per pixel of the document; 0 keeps all that the files have
    double bildgroesse = 1; ///< of narrower pictures
};

/// A heading of the manual.
struct Handbuchabschnitt {
    QString anker; ///< "2-zusammensetzung", as links name it
    QString titel;
    int ebene = 0; ///< 1 for the title of the manual
    int position = 0; ///< in the document
};

/// The anchor that a heading has on pages made from Markdown.
QString handbuchanker(const QString& titel);

/// The text of the manual.
QString handbuchtext(const QString& ordner);

/// Fills a document with such a text and returns the headings in their order.
std::vector<Handbuchabschnitt> setzeHandbuch(
    QTextDocument& dokument, const QString& markdown, const QString& ordner, const Handbuchstil& stil);

/// The section with that anchor, also without the number in front of it, which may change; null if there is none.
const Handbuchabschnitt* findeAbschnitt(const std::vector<Handbuchabschnitt>& abschnitte, const QString& anker);

/// Where the manual explains a message, by the messages that its tables quote; -1 if it does not.
int meldungsstelle(const QTextDocument& dokument, const QString& meldung);

/// Lets long words go on in the next line.
void brichWoerter(QTextDocument& dokument);

/// The width of the longest title in a list of chapters and, once more indented, their sections.
int titelbreite(const QString& text, const QFontMetrics& letters, int einzug);

} // namespace zerna
