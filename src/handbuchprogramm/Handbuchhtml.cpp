#include "handbuchprogramm/Handbuchhtml.h"

#include <QRegularExpression>
#include <QStringList>

#include <md4c-html.h>
#include <md4c.h>

#include <functional>
#include <stdexcept>

#include "ui/hilfe/Handbuch.h"

namespace zerna {

namespace {

constexpr auto Kopf = R"(<!DOCTYPE html>
<html lang="de">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>Handbuch zu Zerna</title>
<style>
:root { color-scheme: light dark; --rand: #bbb; --grund: #f2f2f2; }
@media (prefers-color-scheme: dark) { :root { --rand: #666; --grund: #2a2a2a; } }
body { font: 1rem/1.5 "DejaVu Sans", "Segoe UI", sans-serif; max-width: 52rem; margin: 2rem auto; padding: 0 1rem; }
h2 { margin-top: 3rem; border-bottom: 1px solid var(--rand); }
h3 { margin-top: 2rem; }
code, pre { font-family: "DejaVu Sans Mono", Consolas, monospace; font-size: .9em; background: var(--grund); }
pre { padding: .6rem .8rem; overflow-x: auto; }
table { border-collapse: collapse; margin: 1rem 0; }
th, td { border: 1px solid var(--rand); padding: .25rem .6rem; text-align: left; vertical-align: top; }
th { background: var(--grund); }
img { max-width: 100%; height: auto; border: 1px solid var(--rand); }
@media print { body { max-width: none; font-size: 10pt; } h2, h3 { break-after: avoid; } img, tr { break-inside: avoid; } }
</style>
</head>
<body>
)";

QString replaced(const QString& text, const QRegularExpression& pattern,
    const std::function<QString(const QRegularExpressionMatch&)>& by)
{
    QString all;
    qsizetype from = 0;
    for (auto it = pattern.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        all += text.mid(from, match.capturedStart() - from) + by(match);
        from = match.capturedEnd();
    }
    return all + text.mid(from);
}

/// The text that a reader sees of a piece of HTML.
QString sichtbar(QString html)
{
    html.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
    return html.replace(QLatin1String("&lt;"), QLatin1String("<"))
        .replace(QLatin1String("&gt;"), QLatin1String(">"))
        .replace(QLatin1String("&quot;"), QLatin1String("\""))
        .replace(QLatin1String("&amp;"), QLatin1String("&"));
}

/// Headings get the anchors that links name; links to pages that are not there become plain text.
QString verankert(const QString& html)
{
    static const QRegularExpression heading(QStringLiteral("<(h[1-6])>(.*?)</h[1-6]>"));
    static const QRegularExpression elsewhere(QStringLiteral("<a href=\"(?!#|https?:)[^\"]*\">(.*?)</a>"));
    const QString anchored = replaced(html, heading, [](const QRegularExpressionMatch& match) {
        return QStringLiteral("<%1 id=\"%3\">%2</%1>")
            .arg(match.captured(1), match.captured(2), handbuchanker(sichtbar(match.captured(2))).toHtmlEscaped());
    });
    return replaced(anchored, elsewhere, [](const QRegularExpressionMatch& match) { return match.captured(1); });
}

} // namespace

QByteArray handbuchhtml(const QString& markdown)
{
    const QByteArray source = markdown.toUtf8();
    QByteArray body;
    const auto take = [](const MD_CHAR* text, MD_SIZE size, void* all) {
        static_cast<QByteArray*>(all)->append(text, static_cast<qsizetype>(size));
    };
    if (md_html(source.constData(), static_cast<MD_SIZE>(source.size()), take, &body, MD_DIALECT_GITHUB, 0) != 0)
        throw std::runtime_error("the manual is not readable as Markdown");
    return Kopf + verankert(QString::fromUtf8(body)).toUtf8() + "</body>\n</html>\n";
}

QStringList handbuchbilder(const QString& markdown)
{
    static const QRegularExpression picture(QStringLiteral("!\\[[^\\]]*\\]\\(([^)]+)\\)"));
    QStringList all;
    for (auto it = picture.globalMatch(markdown); it.hasNext();)
        all.append(it.next().captured(1));
    return all;
}

} // namespace zerna
