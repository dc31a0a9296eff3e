#pragma once

#include <QTextBrowser>

namespace zerna {

/// The manual's text. Tab goes to the next link from what is seen; the toolkit's own goes to the first one of all.
class Handbuchbrowser : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

    bool focusNextPrevChild(bool next) override
    {
        if (QTextCursor seen = textCursor(); !seen.hasSelection()) {
            seen = cursorForPosition({0, 0});
            seen.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor); // it begins behind a selection
            setTextCursor(seen);
        }
        return QTextBrowser::focusNextPrevChild(next);
    }
};

} // namespace zerna
