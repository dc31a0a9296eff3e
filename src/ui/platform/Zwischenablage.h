#pragma once

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

namespace zerna {

/// Put a text or a picture into the clipboard in place of what is in it.
inline void copyToClipboard(const QString& text) { QGuiApplication::clipboard()->setText(text); }
inline void copyToClipboard(const QString& text, const QString& html)
{
    auto* const both = new QMimeData; // the clipboard takes it
    both->setText(text);
    both->setHtml(html);
    QGuiApplication::clipboard()->setMimeData(both);
}
inline void copyToClipboard(const QImage& picture) { QGuiApplication::clipboard()->setImage(picture); }

} // namespace zerna
